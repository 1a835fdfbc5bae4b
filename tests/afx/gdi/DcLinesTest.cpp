#include "MemoryDc.h"

namespace
{
constexpr POINT kTriangle[] = {{0, 0}, {10, 0}, {0, 10}};
} // namespace

TEST(Draw, LineStopsBeforeItsEnd)
{
    MemoryDc dc;
    CPen pen(PS_SOLID, 1, kRed);
    CPen* former = dc.SelectObject(&pen);
    EXPECT_EQ(dc.MoveTo(2, 5), CPoint(0, 0));
    EXPECT_TRUE(dc.LineTo(CPoint(8, 5)));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(8, 5));
    EXPECT_EQ(dc.Count(kRed), 6);
    EXPECT_EQ(dc.GetPixel(8, 5), kWhite);
    dc.SelectObject(former);
}

TEST(Draw, PolylinesUseTheirPoints)
{
    MemoryDc dc;
    EXPECT_TRUE(dc.Polyline(kTriangle, 3));
    EXPECT_EQ(dc.GetPixel(5, 0), kBlack);
    dc.MoveTo(20, 20);
    const POINT to[] = {{25, 20}, {25, 25}};
    EXPECT_TRUE(dc.PolylineTo(to, 2));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(25, 25));
    const POINT lines[] = {{0, 28}, {5, 28}, {10, 28}, {15, 28}};
    const DWORD counts[] = {2, 2};
    EXPECT_TRUE(dc.PolyPolyline(lines, counts, 2));
    EXPECT_EQ(dc.GetPixel(3, 28), kBlack);
    EXPECT_EQ(dc.GetPixel(7, 28), kWhite);
    const BYTE types[] = {PT_MOVETO, PT_LINETO};
    const POINT draw[] = {{30, 0}, {35, 0}};
    EXPECT_TRUE(dc.PolyDraw(draw, types, 2));
    EXPECT_EQ(dc.GetPixel(32, 0), kBlack);
    const POINT curve[] = {{0, 15}, {3, 15}, {6, 15}, {9, 15}};
    EXPECT_TRUE(dc.PolyBezier(curve, 4));
    EXPECT_EQ(dc.GetPixel(4, 15), kBlack);
    dc.MoveTo(20, 15);
    const POINT curveTo[] = {{23, 15}, {26, 15}, {29, 15}};
    EXPECT_TRUE(dc.PolyBezierTo(curveTo, 3));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(29, 15));
}

TEST(Draw, ArcsDrawTheirPartOnly)
{
    MemoryDc dc;
    EXPECT_TRUE(dc.Arc(CRect(0, 0, 21, 21), CPoint(21, 10), CPoint(0, 10)));
    EXPECT_EQ(dc.GetPixel(10, 0), kBlack);
    EXPECT_EQ(dc.GetPixel(10, 20), kWhite);
    dc.FillSolidRect(0, 0, 40, 30, kWhite);
    dc.MoveTo(30, 5);
    EXPECT_TRUE(dc.ArcTo(CRect(0, 0, 21, 21), CPoint(21, 10), CPoint(0, 10)));
    EXPECT_NE(dc.GetCurrentPosition(), CPoint(30, 5));
    EXPECT_TRUE(dc.AngleArc(20, 15, 5, 0, 90));
}
