#pragma once

#include <QorUI/app/base/HotState.h>
#include <QorUI/app/draw/QorBmp.h>

/**
 * A button whose face is one frame of a strip of pictures: normal, hot, pressed, disabled.
 *
 * Each frame is exactly as large as the button. The window text, if any, stands in the middle in white.
 */
class QORUI_API CBmpBtn : public CButton
{
  public:
    /** Makes a button without window. */
    CBmpBtn();

    /**
     * Creates the button without text.
     * @param rect place in client coordinates of `parent`, pixels.
     */
    BOOL Create(const RECT& rect, CWnd* parent, UINT id);

    /**
     * Gives the button another strip. The former one is gone also when this fails.
     * @param inst module with the strip.
     * @param id number of the resource.
     * @param type type of a resource with a compressed picture; null for a bitmap resource.
     * @param transparent colour where the strip lets through what is behind, or `CLR_NONE`.
     * @return FALSE when there is no such picture.
     */
    BOOL SetImage(HINSTANCE inst, UINT id, LPCWSTR type, COLORREF transparent);

    /** Makes the window owner-drawn. */
    void PreSubclassWindow() override;

    /** Draws the button in the state that it has. */
    void DrawItem(LPDRAWITEMSTRUCT item) override;

  protected:
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    void DrawFrame(HDC dc, const CRect& rect, UINT frame);
    void DrawCaption(CDC* dc, CRect& rect, BOOL disabled);

    HotState m_hot;
    CQorBmp m_bmp;
    COLORREF m_clrTransparent;
};
