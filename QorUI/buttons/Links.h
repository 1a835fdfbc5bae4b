#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A static text that opens an address when it is clicked and shows it as a tooltip.
 *
 * It stands on what its parent has painted, and has the parent paint again there when its look changes; a parent that
 * clips its children leaves it without a background. Without an address the window text serves as one, without a text
 * the address serves as text.
 */
class QORUI_API CQorLink : public CStatic
{
  public:
    CQorLink();

    /** @param url what the shell opens: an address or a path; copied. */
    void SetURL(LPCWSTR url);

    /** Sets the text colours. @param hover `CLR_NONE` for the system's highlight colour. */
    void SetColors(COLORREF link, COLORREF visited, COLORREF hover);

    /**
     * Chooses between the colours of a visited and an unvisited link. It is seen when the parent paints under the link
     * next: this function repaints nothing.
     */
    void SetVisited(BOOL visited);

    /** Whether the control takes the size of its text (as it does at first); done at once when it has a window. */
    void SetAutoSize(BOOL autoSize);

    /** Whether the text is underlined. */
    void SetUnderline(BOOL underline);

    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* msg) override;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    /** Gives the control the size of its text, keeping the edge that its style aligns to. */
    void PositionWindow();

    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnClicked();
    DECLARE_MESSAGE_MAP()

  private:
    void MakeLinkFont();
    HGDIOBJ LinkFont() const; // the control's own one when it could not be made
    void MakeTooltip();
    void SetOver(BOOL over);

    COLORREF m_clrLink;
    COLORREF m_clrVisited;
    COLORREF m_clrHover;
    BOOL m_bOver; // the mouse is over the link, which holds the capture
    BOOL m_bVisited;
    BOOL m_bUnderline;
    BOOL m_bAutoSize;
    CString m_strUrl;
    CFont m_font;
    CToolTipCtrl m_tip;
};

/**
 * A clickable label in white on a background that its parent paints when asked with `WM_DRAWPARENTBACK`.
 *
 * Clicks reach the parent as `STN_CLICKED` when the control has `SS_NOTIFY`.
 */
class QORUI_API CTextLink : public CStatic
{
  public:
    CTextLink();

    /**
     * Measures the text.
     * @param size in pixels.
     * @return FALSE, and a size of zero, without a window or a device context for it.
     */
    BOOL GetExtent(CSize& size);

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()
};
