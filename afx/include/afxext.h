#pragma once

/** @file
 *  Extension modules; the place of the extended windows (splitters, views). */

#include <afxwin.h>
