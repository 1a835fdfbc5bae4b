#pragma once

#include <windows.h>

/**
 * For static controls that paint themselves, after their base class has handled a message: lets them be painted again
 * when the system's control has drawn over them, which it does at once and not as an answer to WM_PAINT.
 * @param wnd the control, as it was before the message.
 * @return whether they will be painted again.
 */
inline bool QorRepaintStatic(HWND wnd, UINT message)
{
    return (message == WM_SETTEXT || message == WM_ENABLE) && ::InvalidateRect(wnd, nullptr, TRUE);
}
