#pragma once

/** @file
 *  Date and time pickers; they stand with the other common controls. */

#include <afxcmn.h>
