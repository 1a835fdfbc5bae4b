#include <gtest/gtest.h>
#include <QorUI/app/Triangle.h>
#include <tests/app/Drawn.h>

namespace
{

constexpr COLORREF kInk = RGB(70, 80, 90);
constexpr RECT kPlace = {4, 3, 12, 9}; // mid is 8, 6

TEST(DrawTriangle, UpHasItsApexAtTheTop)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) { QorDrawTriangle(&dc, kPlace, 0, kInk); });
    EXPECT_EQ(kInk, picture.At(8, 3));
    EXPECT_EQ(kInk, picture.At(12, 9));
    EXPECT_EQ(kInk, picture.At(4, 9));
    EXPECT_EQ(kInk, picture.At(8, 7)) << "filled";
    EXPECT_EQ(kPaper, picture.At(4, 3));
    EXPECT_EQ(kPaper, picture.At(12, 3));
}

TEST(DrawTriangle, DownHasItsApexAtTheBottom)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) { QorDrawTriangle(&dc, kPlace, 1, kInk); });
    EXPECT_EQ(kInk, picture.At(4, 3));
    EXPECT_EQ(kInk, picture.At(12, 3));
    EXPECT_EQ(kInk, picture.At(8, 9));
    EXPECT_EQ(kInk, picture.At(8, 5));
    EXPECT_EQ(kPaper, picture.At(4, 9));
    EXPECT_EQ(kPaper, picture.At(12, 9));
}

TEST(DrawTriangle, LeftHasItsApexAtTheLeft)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) { QorDrawTriangle(&dc, kPlace, 2, kInk); });
    EXPECT_EQ(kInk, picture.At(4, 6));
    EXPECT_EQ(kInk, picture.At(12, 3));
    EXPECT_EQ(kInk, picture.At(12, 9));
    EXPECT_EQ(kInk, picture.At(10, 6));
    EXPECT_EQ(kPaper, picture.At(4, 3));
    EXPECT_EQ(kPaper, picture.At(4, 9));
}

TEST(DrawTriangle, RightHasItsApexAtTheRight)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) { QorDrawTriangle(&dc, kPlace, 3, kInk); });
    EXPECT_EQ(kInk, picture.At(12, 6));
    EXPECT_EQ(kInk, picture.At(4, 3));
    EXPECT_EQ(kInk, picture.At(4, 9));
    EXPECT_EQ(kInk, picture.At(6, 6));
    EXPECT_EQ(kPaper, picture.At(12, 3));
    EXPECT_EQ(kPaper, picture.At(12, 9));
}

TEST(DrawTriangle, StaysInsideItsRectangle)
{
    for (int direction = 0; direction < 4; ++direction) {
        const ts::Picture picture = Drawn(20, 14, [&](CDC& dc) { QorDrawTriangle(&dc, kPlace, direction, kInk); });
        EXPECT_EQ(CRect(4, 3, 13, 10), CRect(picture.BoundsOfOthers(kPaper))) << direction;
    }
}

TEST(DrawTriangle, OddExtentsAreHalvedDownwards)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) { QorDrawTriangle(&dc, RECT{4, 3, 11, 9}, 0, kInk); });
    EXPECT_EQ(kInk, picture.At(7, 3));
    EXPECT_EQ(kPaper, picture.At(8, 3));
}

TEST(DrawTriangle, OtherDirectionsDrawNothing)
{
    const ts::Picture picture = Drawn(20, 14, [](CDC& dc) {
        QorDrawTriangle(&dc, kPlace, 4, kInk);
        QorDrawTriangle(&dc, kPlace, -1, kInk);
    });
    QorDrawTriangle(nullptr, kPlace, 0, kInk);
    EXPECT_EQ(0, picture.Count(kInk));
}

TEST(DrawTriangle, LeavesTheDeviceContextAsItWas)
{
    Drawn(20, 14, [](CDC& dc) {
        dc.SetPolyFillMode(ALTERNATE);
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        QorDrawTriangle(&dc, kPlace, 0, kInk);
        EXPECT_EQ(ALTERNATE, dc.GetPolyFillMode());
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
}

} // namespace
