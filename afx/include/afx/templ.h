#pragma once

/** @file
 *  Collection templates: CArray, CList, CMap and the typed wrappers of the pointer collections. */

#include <afx/array.h>
#include <afx/list.h>
#include <afx/map.h>
#include <afx/typedptr.h>
