#include <tests/afx/TestWindows.h>

TEST(WindowInput, CaptureAndFocusGoToTheWindow)
{
    TopWnd top;
    EXPECT_EQ(nullptr, top.SetCapture());
    EXPECT_EQ(&top, CWnd::GetCapture());
    ::ReleaseCapture();
    top.SetForegroundWindow();
    top.SetFocus();
    EXPECT_EQ(&top, CWnd::GetFocus());
    EXPECT_FALSE(top.EnableWindow(FALSE));
    EXPECT_FALSE(top.IsWindowEnabled());
}

TEST(WindowInput, CaretStandsWhereItIsPut)
{
    TopWnd top;
    top.SetForegroundWindow();
    top.SetFocus();
    top.CreateSolidCaret(2, 10);
    CWnd::SetCaretPos(CPoint(12, 34));
    EXPECT_EQ(CPoint(12, 34), CWnd::GetCaretPos());
    ::DestroyCaret();
}
