#pragma once

#include <afx/rect.h>
