#pragma once

/** @file
 *  The place of the docking bars and their kin; what there is of them beside the dialog with a background. */

#include <afxcmn.h>
#include <afxdialogex.h>
#include <afxext.h>
