#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Makes a grey copy of a bitmap; black stays black.
 * @return owned by the caller; null when it could not be made.
 */
QORUI_API HBITMAP QorCreateGrayBmp(HBITMAP source);

/**
 * Makes a grey copy of an icon for a disabled look.
 * @return owned by the caller; null when it could not be made.
 */
QORUI_API HICON QorCreateGrayIcon(HICON source);
