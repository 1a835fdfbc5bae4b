#pragma once

#include <QorUI/app/base/HotState.h>

/**
 * A check box that paints itself, keeps its own checked state and tells its parent of clicks with `BN_CLICKED`.
 *
 * It knows two states only: `BST_INDETERMINATE` counts as unchecked.
 */
class QORUI_API CCheckBox : public CButton
{
  public:
    /** Makes an unchecked check box without window. */
    CCheckBox();

    /** Draws the glyph. @param state 0 normal, 1 hot, 2 disabled. */
    void DrawCheck(CDC& dc, UINT state);

    /**
     * Draws the window text beside the glyph.
     * @param mode bit 0 for the text, bit 1 for the focus rectangle around it (drawn twice, it is gone again).
     * @param state as in `DrawCheck`.
     */
    void DrawText(CDC& dc, UINT mode, UINT state);

    /** Draws the focus rectangle on the window, or removes it; does nothing without window. */
    void DrawFocus();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnKeyUp(UINT key, UINT repeats, UINT flags);
    afx_msg void OnPaint();
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnSetCheck(WPARAM state, LPARAM);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    void Toggle();

    HotState m_hot;
    BOOL m_bChecked;
    BOOL m_bSecondClick; // the button is down for the second time of a double click, which counts as one click
};

/**
 * A radio button of the same kind: checking one unchecks the others of its dialog group, and only the checked one is
 * a tab stop.
 */
class QORUI_API CRadioBox : public CButton
{
  public:
    /** Makes an unchecked radio button without window. */
    CRadioBox();

    /** Draws the glyph. @param state 0 normal, 1 hot, 2 disabled. */
    void DrawCheck(CDC& dc, UINT state);

    /** As `CCheckBox::DrawText`. */
    void DrawText(CDC& dc, UINT mode, UINT state);

    /** As `CCheckBox::DrawFocus`. */
    void DrawFocus();

    /** Unchecks the other buttons of the dialog group and makes them no tab stops. */
    void UncheckOtherRadio();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnSetCheck(WPARAM state, LPARAM);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    BOOL m_bChecked;
    HotState m_hot;
};
