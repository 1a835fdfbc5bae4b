#include "TestDialogs.h"

// Where a dialog is taken hold of, and how it is sized.
namespace
{

// --- hit-testing

TEST(DialogHitTest, CloseButtonIsClientArea)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    const int width = dialog.ClientSize().cx;
    EXPECT_EQ(HTCLIENT, dialog.Hit(width - 50, 1));
    EXPECT_EQ(HTCLIENT, dialog.Hit(width - 9, 17));
    EXPECT_EQ(HTCAPTION, dialog.Hit(width - 51, 10));
}

TEST(DialogHitTest, BorderNeverSizesWithoutTheFlag)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(2, 16));
    EXPECT_EQ(HTCLIENT, dialog.Hit(2, 100));
    EXPECT_EQ(HTCAPTION, dialog.Hit(0, 0));
}

TEST(DialogHitTest, BorderSizesWithTheFlag)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    const CSize size = dialog.ClientSize();
    EXPECT_EQ(HTTOPLEFT, dialog.Hit(6, 6));
    EXPECT_EQ(HTLEFT, dialog.Hit(2, 16));
    EXPECT_EQ(HTBOTTOMRIGHT, dialog.Hit(size.cx - 6, size.cy - 6));
    EXPECT_EQ(HTBOTTOM, dialog.Hit(size.cx / 2, size.cy - 3));
}

TEST(DialogHitTest, SystemMenuSpotIsSixToTwentyTwo)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(6, 10));
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 6));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(10, 7));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(7, 7));
    EXPECT_EQ(HTSYSMENU, dialog.Hit(22, 22));
    EXPECT_EQ(HTCAPTION, dialog.Hit(23, 10));
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 23));
}

TEST(DialogHitTest, WithoutSystemMenuTheSpotIsCaption)
{
    CTestDialog dialog(IDD_OK_ONLY, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(10, 10));
}

TEST(DialogHitTest, BelowTheCaptionTheDefaultAnswers)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCLIENT, dialog.Hit(100, 100));
    EXPECT_EQ(HTNOWHERE, dialog.Hit(-50, 100));
}

TEST(DialogHitTest, CaptionBandEndsAtThirtyTwo)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(HTCAPTION, dialog.Hit(100, 32));
    EXPECT_EQ(HTCLIENT, dialog.Hit(100, 33));
}

// --- sizing

class CCommandDialog : public CTestDialog
{
  public:
    using CTestDialog::CTestDialog;
    WPARAM m_command = 0;
    LPARAM m_point = 0;
    int m_defaults = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SYSCOMMAND) {
            m_command = wParam;
            m_point = lParam;
            return 0;
        }
        return CTestDialog::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_defaults += message == WM_NCLBUTTONDOWN || message == WM_GETMINMAXINFO || message == WM_SIZE;
        if (message == WM_NCLBUTTONDOWN) {
            return 0;
        }
        return CTestDialog::DefWindowProc(message, wParam, lParam);
    }
};

TEST(DialogSizing, EveryBorderCodeStartsItsSizingCommand)
{
    CCommandDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    for (UINT hit = HTLEFT; hit <= HTBOTTOMRIGHT; ++hit) {
        dialog.SendMessage(WM_NCLBUTTONDOWN, hit, MAKELPARAM(120, 130));
        EXPECT_EQ(static_cast<WPARAM>(SC_SIZE + hit - 9), dialog.m_command);
        EXPECT_EQ(MAKELPARAM(120, 130), dialog.m_point);
    }
    EXPECT_EQ(0, dialog.m_defaults - defaults);
}

TEST(DialogSizing, SizesAndTheirLimitsGetTheDefaultToo)
{
    CCommandDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 195));
    EXPECT_EQ(1, dialog.m_defaults - defaults);
    MINMAXINFO info = {};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(2, dialog.m_defaults - defaults);
}

TEST(DialogSizing, OtherCodesGetTheDefault)
{
    CCommandDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    const int defaults = dialog.m_defaults;
    for (const UINT hit : {HTCAPTION, HTCLIENT, HTVSCROLL, HTBORDER, HTSYSMENU}) {
        dialog.SendMessage(WM_NCLBUTTONDOWN, hit, 0);
    }
    EXPECT_EQ(5, dialog.m_defaults - defaults);
    EXPECT_EQ(0u, dialog.m_command);
}

CPoint MinTrack(CTestDialog& dialog)
{
    MINMAXINFO info = {};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info.ptMinTrackSize;
}

TEST(DialogSizing, SmallestSizeIsTwoHundredSixtyByTwoHundred)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CPoint(260, 200), MinTrack(dialog));
}

TEST(DialogSizing, WithoutTheFlagThereIsNoSmallestSize)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(CPoint(0, 0), MinTrack(dialog));
}

} // namespace
