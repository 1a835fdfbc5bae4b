#include "MemoryDc.h"

#include <vector>

TEST(Region, CombinesAndCompares)
{
    CRgn left;
    CRgn right;
    CRgn both;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(right.CreateRectRgnIndirect(CRect(10, 0, 20, 10)));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_OR), SIMPLEREGION);
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 20, 10));
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_AND), NULLREGION);
    EXPECT_EQ(both.CopyRgn(&left), SIMPLEREGION);
    EXPECT_TRUE(both.EqualRgn(&left));
    EXPECT_FALSE(both.EqualRgn(&right));
    EXPECT_EQ(both.CombineRgn(nullptr, &right, RGN_OR), ERROR);
    EXPECT_FALSE(both.EqualRgn(nullptr));
}

TEST(Region, HitsAndMoves)
{
    CRgn region;
    ASSERT_TRUE(region.CreateEllipticRgn(0, 0, 20, 20));
    EXPECT_TRUE(region.PtInRegion(10, 10));
    EXPECT_FALSE(region.PtInRegion(CPoint(0, 0)));
    region.OffsetRgn(100, 0);
    EXPECT_TRUE(region.PtInRegion(110, 10));
    EXPECT_TRUE(region.RectInRegion(CRect(100, 0, 120, 20)));
    EXPECT_FALSE(region.RectInRegion(CRect(0, 0, 20, 20)));
    region.SetRectRgn(CRect(1, 2, 3, 4));
    CRect box;
    region.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(1, 2, 3, 4));
}

TEST(Region, ShapesCanBeMade)
{
    const POINT triangle[] = {{0, 0}, {20, 0}, {0, 20}};
    const INT counts[] = {3};
    CRgn polygon;
    CRgn polygons;
    CRgn round;
    EXPECT_TRUE(polygon.CreatePolygonRgn(triangle, 3, WINDING));
    EXPECT_TRUE(polygons.CreatePolyPolygonRgn(triangle, counts, 1, ALTERNATE));
    EXPECT_TRUE(polygon.EqualRgn(&polygons));
    EXPECT_FALSE(polygon.PtInRegion(19, 19));
    EXPECT_TRUE(round.CreateRoundRectRgn(0, 0, 20, 20, 10, 10));
    EXPECT_FALSE(round.PtInRegion(0, 0));
    EXPECT_TRUE(round.PtInRegion(10, 0));
}

TEST(Region, DataMakesAnEqualRegion)
{
    CRgn region;
    region.CreateEllipticRgnIndirect(CRect(0, 0, 30, 10));
    const int size = region.GetRegionData(nullptr, 0);
    ASSERT_GT(size, 0);
    std::vector<BYTE> data(size);
    EXPECT_GT(region.GetRegionData(reinterpret_cast<LPRGNDATA>(data.data()), size), 0);
    CRgn copy;
    ASSERT_TRUE(copy.CreateFromData(nullptr, size, reinterpret_cast<RGNDATA*>(data.data())));
    // The rectangles may be split in another way.
    EXPECT_EQ(copy.CombineRgn(&copy, &region, RGN_XOR), NULLREGION);
}

TEST(Region, PathBecomesARegion)
{
    MemoryDc dc;
    dc.BeginPath();
    dc.Rectangle(2, 3, 12, 13);
    dc.EndPath();
    CRgn region;
    ASSERT_TRUE(region.CreateFromPath(&dc));
    EXPECT_TRUE(region.PtInRegion(5, 5));
    EXPECT_FALSE(region.PtInRegion(20, 20));
    EXPECT_FALSE(CRgn().CreateFromPath(nullptr));
}
