#pragma once

#include <afx/coll.h>
