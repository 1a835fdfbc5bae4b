#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Repaints the sunken client edge of a control flat: a grey line of one pixel around the window.
 * @param wnd a null pointer, or a window without `WS_EX_CLIENTEDGE`, draws nothing.
 * @param inner whether a second line inside the first one gets the colour of windows.
 */
QORUI_API void QorDrawFlatBorder(CWnd* wnd, BOOL inner);
