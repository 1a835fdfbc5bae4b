#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
} // namespace

TEST(ScrollBar, KeepsRangePageAndPosition)
{
    ts::AfxHost host;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(kChild | SBS_HORZ, CRect(0, 0, 100, 20), &host, kId));
    bar.SetScrollRange(0, 100);
    EXPECT_EQ(bar.SetScrollPos(40), 0);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    int least = -1;
    int greatest = -1;
    bar.GetScrollRange(&least, &greatest);
    EXPECT_EQ(greatest, 100);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO read = {};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPage, 11u);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    EXPECT_FALSE(bar.GetScrollInfo(nullptr));
    EXPECT_FALSE(CScrollBar().SetScrollInfo(&info));
    EXPECT_EQ(CScrollBar().GetScrollLimit(), 0);
}
