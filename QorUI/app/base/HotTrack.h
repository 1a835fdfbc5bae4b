#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * The hot look of a control that is under the mouse: one implementation for all of them.
 */
namespace QorHot
{

/**
 * To be called on a mouse move: asks once for a leave notification and makes the control hot when it will come.
 * @param hot the control's state; nothing happens when it is TRUE already.
 * @param area what to repaint, in client coordinates; null for the whole control.
 */
void Enter(CWnd& wnd, BOOL& hot, const RECT* area = nullptr);

/**
 * To be called on `WM_MOUSELEAVE`: makes the control cold again.
 * @return 1, the result of the message.
 */
LRESULT Leave(CWnd& wnd, BOOL& hot, const RECT* area = nullptr);

} // namespace QorHot
