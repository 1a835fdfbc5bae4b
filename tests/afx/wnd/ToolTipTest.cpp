#include <tests/afx/TestWindows.h>

namespace
{
class ToolWnd : public TopWnd
{
  public:
    int asked = 0;

    void Move(CPoint point)
    {
        MSG msg = {m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y), 0, {0, 0}};
        EXPECT_FALSE(PreTranslateMessage(&msg));
    }
    static LRESULT Tools()
    {
        const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
        return ::IsWindow(hWndTip) ? ::SendMessage(hWndTip, TTM_GETTOOLCOUNT, 0, 0) : 0;
    }
    BOOL OnNeedText(UINT, NMHDR* pNMHDR, LRESULT*)
    {
        ++asked;
        reinterpret_cast<NMTTDISPINFO*>(pNMHDR)->lpszText = const_cast<LPTSTR>(_T("tip"));
        return TRUE;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ToolWnd, CWnd)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &ToolWnd::OnNeedText)
END_MESSAGE_MAP()
} // namespace

TEST(ToolTips, FollowThePointerFromControlToControl)
{
    ToolWnd wnd;
    MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5); // at 10, 10, 120 x 80 pixels
    wnd.Move({20, 20});
    EXPECT_EQ(0, ToolWnd::Tools());
    wnd.EnableToolTips();
    wnd.Move({20, 20});
    EXPECT_EQ(1, ToolWnd::Tools());
    wnd.Move({200, 200});
    EXPECT_EQ(0, ToolWnd::Tools());
    wnd.Move({20, 20});
    wnd.DestroyWindow();
    EXPECT_EQ(nullptr, AfxGetThreadState()->m_hWndToolTip);
}

TEST(ToolTips, HitTestNamesTheChildUnderThePoint)
{
    const ToolWnd wnd;
    const HWND hWnd = MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5);
    TOOLINFO info = {};
    EXPECT_EQ(5, wnd.OnToolHitTest({20, 20}, &info));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(hWnd), info.uId);
    EXPECT_EQ(wnd.m_hWnd, info.hwnd);
    EXPECT_EQ(-1, wnd.OnToolHitTest({200, 200}, &info));
}

TEST(ToolTips, TextIsAskedOfTheWindowWhenTheTipShows)
{
    ToolWnd wnd;
    wnd.SetForegroundWindow();
    MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5);
    wnd.EnableToolTips();
    wnd.Move({20, 20});
    const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
    ASSERT_TRUE(::IsWindow(hWndTip));
    ::SendMessage(hWndTip, TTM_SETDELAYTIME, TTDT_INITIAL, 1);
    ts::MoveMouse(wnd, 22, 22);
    wnd.Move({22, 22});
    EXPECT_TRUE(ts::PumpUntil([&] { return wnd.asked > 0; }));
}
