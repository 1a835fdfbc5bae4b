#include <tests/afx/TestWindows.h>

TEST(WindowWrappers, TextRoundTripsAtAnyLength)
{
    TopWnd wnd;
    const CString strLong(_T('x'), 3000);
    wnd.SetWindowText(strLong);
    CString strText;
    wnd.GetWindowText(strText);
    EXPECT_EQ(strLong, strText);
    wnd.SetWindowText(_T(""));
    wnd.GetWindowText(strText);
    EXPECT_TRUE(strText.IsEmpty());
}

TEST(WindowWrappers, StylesChangeAndReportWhetherTheyDid)
{
    TopWnd wnd;
    EXPECT_TRUE(wnd.ModifyStyle(WS_MAXIMIZEBOX, WS_DISABLED));
    EXPECT_FALSE(wnd.ModifyStyle(WS_MAXIMIZEBOX, WS_DISABLED));
    EXPECT_EQ(0u, wnd.GetStyle() & WS_MAXIMIZEBOX);
    EXPECT_TRUE(wnd.ModifyStyleEx(0, WS_EX_TOOLWINDOW, SWP_FRAMECHANGED));
    EXPECT_NE(0u, wnd.GetExStyle() & WS_EX_TOOLWINDOW);
}

TEST(WindowWrappers, SetFontAndGetFontAgree)
{
    TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("EDIT"), 0, 1);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, _T("Tahoma")));
    CWnd::FromHandle(hWnd)->SetFont(&font);
    EXPECT_EQ(&font, CWnd::FromHandle(hWnd)->GetFont());
}

TEST(WindowWrappers, NullWindowIsAQuietNoOp)
{
    CWnd wnd;
    wnd.Invalidate();
    EXPECT_EQ(0u, wnd.SetTimer(1, 10, nullptr));
    EXPECT_FALSE(wnd.KillTimer(1));
    EXPECT_FALSE(wnd.RedrawWindow());
    EXPECT_FALSE(wnd.EnableWindow());
    EXPECT_EQ(nullptr, wnd.GetParent());
    EXPECT_EQ(nullptr, wnd.GetTopLevelParent());
    EXPECT_EQ(nullptr, wnd.GetDlgItem(1));
    EXPECT_FALSE(wnd.UpdateData());
    wnd.CenterWindow();
    CString strText(_T("old"));
    wnd.GetWindowText(strText);
    EXPECT_TRUE(strText.IsEmpty());
}
