#pragma once

/** @file
 * Messages that controls of this library and their parents exchange.
 */

#include "QorUIDef.h"

/** A control asks its parent to paint the parent's background: wParam = `CDC*`, lParam = the control (`CWnd*`). */
#define WM_DRAWPARENTBACK (WM_USER + 300)

/** Notification-area callback to the host's owner window. */
#define WM_QORTRAY_CALLBACK (WM_USER + 301)

/** Posted by the waiting dialog's worker when the work function has returned. */
#define WM_QORWAIT_END (WM_USER + 302)

/** The property sheet asks each created page on OK. */
#define WM_SHEET_APPLY (WM_USER + 303)

/** lParam of the tray callback after the shell re-created the taskbar. */
#define WM_QORTRAY_RECREATED (WM_USER + 304)

/** A tab window reports a new selection. */
#define WM_TABWND_SELCHANGE (WM_USER + 305)

/** A panel reports a chosen item. */
#define WM_PANEL_NOTIFY (WM_USER + 306)

/** Protocol of the archive dialog: what an archive job of QorPub sends as `WM_QORZIP`. */
#define WM_QORZIP_PROGRESS (WM_USER + 400)

/** Registered message "TaskbarCreated": the shell re-created the taskbar. Registered when the library is loaded. */
extern QORUI_API const UINT WM_QOR_TASKBARCREATED;
