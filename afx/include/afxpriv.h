#pragma once

/** @file
 *  Dialog templates in memory and the framework's own messages. */

#include <afx/dlgtemplate.h>
#include <afxwin.h>
