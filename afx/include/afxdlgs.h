#pragma once

/** @file
 *  The place of property sheets and the common dialogs, beside the dialog class. */

#include <afxwin.h>
