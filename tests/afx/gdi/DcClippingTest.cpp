#include "MemoryDc.h"

TEST(Dc, SelectingARegionClips)
{
    MemoryDc dc;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    dc.FillSolidRect(0, 0, 40, 30, kRed);
    EXPECT_EQ(dc.Count(kRed), 100);
}

TEST(Dc, ClippingLimitsWhatIsDrawn)
{
    MemoryDc dc;
    EXPECT_EQ(dc.IntersectClipRect(CRect(0, 0, 20, 20)), SIMPLEREGION);
    EXPECT_EQ(dc.ExcludeClipRect(0, 0, 10, 20), SIMPLEREGION);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(10, 0, 20, 20));
    EXPECT_TRUE(dc.PtVisible(15, 5));
    EXPECT_FALSE(dc.PtVisible(CPoint(5, 5)));
    EXPECT_TRUE(dc.RectVisible(CRect(0, 0, 12, 5)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 8, 5)));
    EXPECT_EQ(dc.OffsetClipRgn(5, 0), SIMPLEREGION);
    dc.FillSolidRect(0, 0, 40, 30, kRed);
    EXPECT_EQ(dc.Count(kRed), 200);
    EXPECT_EQ(dc.GetPixel(14, 0), kWhite);
    EXPECT_EQ(dc.GetPixel(24, 0), kRed);
    EXPECT_NE(dc.SelectClipRgn(nullptr), ERROR);
    EXPECT_TRUE(dc.PtVisible(0, 0));
    EXPECT_EQ(dc.IntersectClipRect(nullptr), ERROR);
    EXPECT_EQ(dc.ExcludeClipRect(nullptr), ERROR);
}

TEST(Dc, ClipRegionsCombine)
{
    MemoryDc dc;
    CRgn left;
    CRgn right;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgn(10, 0, 20, 10);
    dc.SelectClipRgn(&left);
    EXPECT_EQ(dc.SelectClipRgn(&right, RGN_OR), SIMPLEREGION);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 20, 10));
}
