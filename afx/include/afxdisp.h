#pragma once

/** @file
 *  The place of the automation types. */

#include <afx/oledate.h>
#include <afxwin.h>
