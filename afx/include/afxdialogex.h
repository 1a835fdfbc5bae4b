#pragma once

/** @file
 *  Dialogs with a background of their own. */

#include <afx/dialogex.h>
#include <afxwin.h>
