#pragma once

/** @file
 *  The place of the list of recent files. */

#include <afxwin.h>
