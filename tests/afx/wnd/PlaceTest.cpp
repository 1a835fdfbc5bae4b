#include <tests/afx/TestWindows.h>

TEST(WindowWrappers, RectanglesConvertBetweenClientAndScreen)
{
    TopWnd wnd;
    CRect rect(1, 2, 30, 40);
    wnd.ClientToScreen(&rect);
    CPoint origin(0, 0);
    wnd.ClientToScreen(&origin);
    EXPECT_EQ(CRect(1 + origin.x, 2 + origin.y, 30 + origin.x, 40 + origin.y), rect);
    wnd.ScreenToClient(&rect);
    EXPECT_EQ(CRect(1, 2, 30, 40), rect);
}

TEST(WindowWrappers, InsertionPlacesOrderWindows)
{
    TopWnd parent;
    const HWND hFirst = MakeControl(parent, _T("STATIC"), 0, 1);
    const HWND hSecond = MakeControl(parent, _T("STATIC"), 0, 2);
    constexpr UINT kOnlyOrder = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    CWnd::FromHandle(hSecond)->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(hSecond, parent.GetTopWindow()->m_hWnd);
    CWnd::FromHandle(hSecond)->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(hFirst, parent.GetTopWindow()->m_hWnd);
    parent.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_NE(0u, parent.GetExStyle() & WS_EX_TOPMOST);
    parent.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(0u, parent.GetExStyle() & WS_EX_TOPMOST);
}

TEST(CenterWindow, PutsAPopupOverItsOwnerAndKeepsItOnTheScreen)
{
    TopWnd owner;
    owner.MoveWindow(100, 100, 400, 300);
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 100, 50), &owner, 0));
    popup.CenterWindow();
    CRect rect;
    popup.GetWindowRect(&rect);
    EXPECT_EQ(CRect(250, 225, 350, 275), rect);
    owner.MoveWindow(-350, -250, 400, 300);
    popup.CenterWindow();
    popup.GetWindowRect(&rect);
    EXPECT_EQ(CPoint(0, 0), rect.TopLeft());
}
