#pragma once

#include <atlconv.h>
