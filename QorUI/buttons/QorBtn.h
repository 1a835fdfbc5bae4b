#pragma once

#include <QorUI/app/base/HotState.h>

/**
 * The ordinary push button of dialogs: rounded and bevelled, with a hot look under the mouse.
 *
 * It is 21 pixels high whatever its template or its creator says, and stays owner-drawn when the dialog moves the
 * default button.
 */
class QORUI_API CQorBtn : public CButton
{
  public:
    /** Makes a button without window. */
    CQorBtn();

    /** Makes the window owner-drawn and 21 pixels high. */
    void PreSubclassWindow() override;

    /** Gives a button that is created the height that one of a template gets. */
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    /** Draws the button in the state that it has. */
    void DrawItem(LPDRAWITEMSTRUCT item) override;

    /**
     * Draws frame and face.
     * @param rect the button; afterwards what lies inside the frame.
     * @param row row of the button style table: 0 normal, 1 hot, 2 pressed, 3 disabled; another one draws nothing.
     * @param focus whether to draw the focus rectangle inside.
     */
    void DrawBack(CDC* dc, CRect& rect, UINT row, BOOL focus);

    /** Draws the window text in the middle of a rectangle. */
    void DrawText(CDC* dc, CRect& rect, BOOL disabled);

  protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnSetStyle(WPARAM style, LPARAM redraw);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    HotState m_hot;
};
