#pragma once

#include <QorUI/buttons/BmpBtn.h>

#include <array>

/**
 * Main window of a host program in the library's look: a borderless rounded popup with a banner picture, its own
 * minimise, maximise and close buttons, its own sizing border, keyboard navigation between its child controls like a
 * dialog, optional accelerators, and focus that survives deactivation.
 *
 * The host derives from it and places its content inside `GetClientPos`. Create it with `CreateEx`; its styles are
 * fixed by `PreCreateWindow`.
 */
class QORUI_API CQorFrame : public CWnd
{
  public:
    CQorFrame();

    /** Indexes of the title buttons. */
    enum : UINT
    {
        MinimizeButton,
        MaximizeButton,
        CloseButton,
        TitleButtons
    };

  protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* msg) override;

    /** The room inside the frame and below the banner, in client coordinates. */
    void GetClientPos(CRect& rect) const;

    /**
     * Disables or enables a title button and what it stands for in the window style or the system menu.
     * @param which index of the button; 3 and above do nothing.
     */
    void DisableTitleBtn(UINT which, BOOL disable);

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message);
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnClickWndBtn(UINT id);
    DECLARE_MESSAGE_MAP()

  private:
    bool CreateTitleButtons();
    void PlaceTitleButtons(int cx);
    void DrawBackground(CDC& dc, const CRect& client) const;

    CRgn m_region;
    int m_lastWidth;
    int m_lastHeight;
    std::array<CBmpBtn, TitleButtons> m_titleBtns;
    HWND m_lastFocus;

  protected:
    HACCEL m_hAccel; ///< accelerators of the program, set by the derived class and not owned; null for none

  private:
    int m_maximizedHeight; // height of the work area plus 1; 0 when unknown
};
