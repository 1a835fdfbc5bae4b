#pragma once

#define __AFXWIN_H__

/** @file
 *  Windows, dialogs, threads and the application, drawing objects, menus and the standard controls. */

#include <afx.h>
#include <afx/checklist.h>
#include <afx/cmdtarget.h>
#include <afx/dialog.h>
#include <afx/gdi.h>
#include <afx/imagelist.h>
#include <afx/menu.h>
#include <afx/msgmap.h>
#include <afx/stdctrl.h>
#include <afx/thread.h>
#include <afx/wnd.h>
#include <afxres.h>
#include <atlconv.h>
