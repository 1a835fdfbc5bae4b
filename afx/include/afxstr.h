#pragma once

#include <afx/str.h>
