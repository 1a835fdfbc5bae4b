#pragma once

/** @file
 *  Dialog templates in memory and the framework's own messages. */

#include <afxwin.h>

#include <afx/dlgtemplate.h>
