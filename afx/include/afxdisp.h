#pragma once

/** @file
 *  The place of the automation types. */

#include <afxwin.h>

#include <afx/oledate.h>
