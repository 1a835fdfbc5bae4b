#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Whether the mouse is over a control that looks different then. A control has one and calls its three handlers: when
 * the mouse moves, when it has left, and when the control gets or loses its window.
 */
class HotState
{
  public:
    /** Whether the control is hot: the mouse is over it and a leave notification is pending. */
    explicit operator bool() const { return m_hot; }

    /**
     * To be called on a mouse move: asks once for a leave notification and makes the control hot when it will come.
     * @param area what to repaint, in client coordinates; null for the whole control.
     */
    void OnMouseMove(CWnd& wnd, const RECT* area = nullptr);

    /**
     * To be called on `WM_MOUSELEAVE`: makes the control cold again.
     * @param area as above.
     * @return 1, the result of the message.
     */
    LRESULT OnMouseLeave(CWnd& wnd, const RECT* area = nullptr);

    /** To be called for another window: no leave notification comes from the former one. Repaints nothing. */
    void OnNewWindow() { m_hot = false; }

  private:
    bool m_hot = false;
};
