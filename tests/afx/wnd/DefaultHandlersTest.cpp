#include <tests/afx/TestWindows.h>

TEST(DefaultHandlers, PassTheMessageOnAsItCameWhateverTheyAreGiven)
{
    class Frame : public CWnd
    {
      public:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            last = {m_hWnd, message, wParam, lParam, 0, {0, 0}};
            return CWnd::DefWindowProc(message, wParam, lParam);
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                OnNcRButtonUp(0, CPoint(1, 1));
                return 0;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
        MSG last = {};
    } wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    wnd.SendMessage(WM_USER, 3, 4);
    EXPECT_EQ(static_cast<UINT>(WM_USER), wnd.last.message);
    EXPECT_EQ(3u, wnd.last.wParam);
    EXPECT_EQ(4, wnd.last.lParam);
}
