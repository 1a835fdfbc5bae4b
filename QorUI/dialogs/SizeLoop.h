#pragma once

#include <QorUI/app/module/QorUIDef.h>

namespace QorShape
{

/**
 * Window rectangle while a border is dragged; the opposite borders stay where they are.
 * @param start the rectangle at the beginning, in screen coordinates.
 * @param hit the dragged border: `HTLEFT`, ..., `HTBOTTOMRIGHT`.
 * @param way how far the pointer has come, in pixels.
 * @param smallest, largest limits of the size, in pixels.
 */
CRect SizedRect(const CRect& start, UINT hit, CSize way, CSize smallest, CSize largest);

/**
 * Sizes a window with the mouse until the left button goes up; Escape takes it back. The window hears the same messages
 * as in the sizing of the system.
 * @param from where the button went down, in screen coordinates.
 */
void TrackSize(CWnd& wnd, UINT hit, POINT from);

} // namespace QorShape
