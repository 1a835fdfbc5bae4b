#include <QorUI/app/draw/Box.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

namespace
{

ts::Picture DrawnBox()
{
    return ts::Drawn(60, 40, [](CDC& dc) { QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7)); });
}

TEST(DrawBox, OuterEdgeIsDarkAtTopAndLeftAndLightAtBottomAndRight)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(RGB(168, 168, 152), picture.At(5, 6));
    EXPECT_EQ(RGB(168, 168, 152), picture.At(44, 6));
    EXPECT_EQ(RGB(168, 168, 152), picture.At(5, 25));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(45, 26));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(45, 7));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(6, 26));
}

TEST(DrawBox, EdgeLinesExcludeTheirEndPoints)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(ts::kPaper, picture.At(45, 6));
    EXPECT_EQ(ts::kPaper, picture.At(5, 26));
}

TEST(DrawBox, InnerEdgeLiesOnePixelFurtherIn)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(RGB(112, 108, 96), picture.At(6, 7));
    EXPECT_EQ(RGB(112, 108, 96), picture.At(43, 7));
    EXPECT_EQ(RGB(112, 108, 96), picture.At(6, 24));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(44, 25));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(44, 8));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(7, 25));
    EXPECT_EQ(ts::kPaper, picture.At(44, 7));
    EXPECT_EQ(ts::kPaper, picture.At(6, 25));
}

TEST(DrawBox, FillsTheInside)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(36 * 16, picture.Count(RGB(9, 8, 7)));
    EXPECT_EQ(RGB(9, 8, 7), picture.At(7, 8));
    EXPECT_EQ(RGB(9, 8, 7), picture.At(42, 23));
    EXPECT_NE(RGB(9, 8, 7), picture.At(43, 24));
}

TEST(DrawBox, StaysInsideItsRectangle)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(CRect(5, 6, 46, 27), CRect(picture.BoundsOfOthers(ts::kPaper)));
}

TEST(DrawBox, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC&) { QorDrawBox(nullptr, 0, 0, 10, 10, 0); });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST(DrawBox, LeavesTheDeviceContextAsItWasAndNothingBehind)
{
    ts::Drawn(60, 40, [](CDC& dc) {
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
    EXPECT_TRUE(ts::NoLeak([] { DrawnBox(); }));
}

TEST(DrawBox, WithoutGdiHandlesIsNotDrawnAndNothingIsThrown)
{
    const ts::Picture picture = ts::Drawn(60, 40, [](CDC& dc) {
        const ts::GdiShortage shortage;
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
    });
    EXPECT_EQ(60 * 40, picture.Count(ts::kPaper));
}

} // namespace
