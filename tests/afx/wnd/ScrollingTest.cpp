#include <tests/afx/TestWindows.h>

TEST(WindowScrolling, RangePageAndPositionAreKept)
{
    TopWnd top;
    top.ModifyStyle(0, WS_VSCROLL);
    top.SetScrollRange(SB_VERT, 0, 100);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(top.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(90, top.GetScrollLimit(SB_VERT));
    top.SetScrollPos(SB_VERT, 95);
    EXPECT_EQ(90, top.GetScrollPos(SB_VERT));
    int least = -1;
    int greatest = -1;
    top.GetScrollRange(SB_VERT, &least, &greatest);
    EXPECT_EQ(0, least);
    EXPECT_EQ(100, greatest);
    EXPECT_EQ(nullptr, top.GetScrollBarCtrl(SB_VERT));
}
