#include <QorUI/app/draw/Triangle.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

namespace
{

constexpr COLORREF kInk = RGB(70, 80, 90);
constexpr RECT kPlace = {4, 3, 12, 9}; // mid is 8, 6

ts::Picture DrawnTriangle(int direction, const RECT& place = kPlace)
{
    return ts::Drawn(20, 14, [&](CDC& dc) { QorDrawTriangle(&dc, place, direction, kInk); });
}

/** Expects the corners and a point inside in the colour, and the given points outside untouched. */
void ExpectTriangle(int direction, std::initializer_list<POINT> inked, std::initializer_list<POINT> outside)
{
    const ts::Picture picture = DrawnTriangle(direction);
    for (const POINT& at : inked) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, kInk));
    }
    for (const POINT& at : outside) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, ts::kPaper));
    }
}

TEST(DrawTriangle, UpHasItsApexAtTheTop)
{
    ExpectTriangle(0, {{8, 3}, {12, 9}, {4, 9}, {8, 7}}, {{4, 3}, {12, 3}});
}

TEST(DrawTriangle, DownHasItsApexAtTheBottom)
{
    ExpectTriangle(1, {{4, 3}, {12, 3}, {8, 9}, {8, 5}}, {{4, 9}, {12, 9}});
}

TEST(DrawTriangle, LeftHasItsApexAtTheLeft)
{
    ExpectTriangle(2, {{4, 6}, {12, 3}, {12, 9}, {10, 6}}, {{4, 3}, {4, 9}});
}

TEST(DrawTriangle, RightHasItsApexAtTheRight)
{
    ExpectTriangle(3, {{12, 6}, {4, 3}, {4, 9}, {6, 6}}, {{12, 3}, {12, 9}});
}

TEST(DrawTriangle, StaysInsideItsRectangle)
{
    for (int direction = 0; direction < 4; ++direction) {
        EXPECT_EQ(CRect(4, 3, 13, 10), CRect(DrawnTriangle(direction).BoundsOfOthers(ts::kPaper))) << direction;
    }
}

TEST(DrawTriangle, OddExtentsAreHalvedDownwards)
{
    const ts::Picture wide = DrawnTriangle(0, {4, 3, 11, 9});
    EXPECT_EQ(kInk, wide.At(7, 3));
    EXPECT_EQ(ts::kPaper, wide.At(8, 3));
    const ts::Picture high = DrawnTriangle(3, {4, 3, 12, 8});
    EXPECT_EQ(kInk, high.At(12, 5));
    EXPECT_EQ(ts::kPaper, high.At(12, 6));
}

TEST(DrawTriangle, OtherDirectionsDrawNothing)
{
    for (const int direction : {-1, 4}) {
        EXPECT_EQ(0, DrawnTriangle(direction).Count(kInk)) << direction;
    }
    QorDrawTriangle(nullptr, kPlace, 0, kInk);
}

TEST(DrawTriangle, LeavesTheDeviceContextAsItWas)
{
    ts::Drawn(20, 14, [](CDC& dc) {
        dc.SetPolyFillMode(ALTERNATE);
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        QorDrawTriangle(&dc, kPlace, 0, kInk);
        EXPECT_EQ(ALTERNATE, dc.GetPolyFillMode());
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
}

/** The fill modes and numbers of corners of the polygons that were drawn. */
std::vector<std::pair<int, int>> g_polygons;

BOOL WINAPI RecordPolygon(HDC dc, const POINT*, int count)
{
    g_polygons.emplace_back(::GetPolyFillMode(dc), count);
    return TRUE;
}

TEST(DrawTriangle, IsOnePolygonFilledByWinding)
{
    const ts::ReplacedImport record(nullptr, "Polygon", &RecordPolygon);
    g_polygons.clear();
    DrawnTriangle(0);
    EXPECT_EQ((std::vector{std::pair(WINDING, 3)}), g_polygons);
}

TEST(DrawTriangle, WithoutGdiHandlesNothingIsDrawnOrThrown)
{
    const ts::Picture picture = ts::Drawn(20, 14, [](CDC& dc) {
        const ts::GdiShortage shortage;
        QorDrawTriangle(&dc, kPlace, 0, kInk);
    });
    EXPECT_EQ(20 * 14, picture.Count(ts::kPaper));
}

TEST(DrawTriangle, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] { DrawnTriangle(0); }));
}

} // namespace
