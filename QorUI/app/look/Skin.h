#pragma once

/** @file
 * What hosts share of the library's skin.
 */

#include <QorUI/app/module/QorUIDef.h>

/**
 * Brush of the dialog background, to be returned from colour handlers.
 * @return owned by the library; null before the library is attached.
 */
QORUI_API HBRUSH QorGetDlgBkBrush();

/**
 * Chooses the icon that every dialog of the library draws in its caption, and the banner of the frame window.
 * To be called once, early, on the user-interface thread.
 * @param icon neither copied nor destroyed: the caller keeps it alive; null for dialogs without an icon.
 * @param flag chooses the banner of the frame window: zero the high one, anything else the low one.
 * @return TRUE.
 */
QORUI_API BOOL QorSetAppIcon(HICON icon, BOOL flag);
