#include <QorUI/buttons/ButtonDraw.h>
#include <tests/support/ui/Drawn.h>

namespace
{

constexpr COLORREF kLine = RGB(200, 10, 20);

TEST(DrawRounded, LineRunsAroundTheInsideAndLeavesTheCorners)
{
    const ts::Picture picture = ts::Drawn(
        40, 30, [](CDC& dc) { QorDrawRounded(dc, CRect(5, 4, 35, 26), kLine, ::GetStockObject(WHITE_BRUSH)); });
    EXPECT_EQ(CRect(5, 4, 35, 26), CRect(picture.BoundsOfOthers(ts::kPaper)));
    for (const CPoint at : {CPoint(20, 4), CPoint(20, 25), CPoint(5, 15), CPoint(34, 15)}) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, kLine));
    }
    for (const CPoint at : {CPoint(5, 4), CPoint(34, 4), CPoint(5, 25), CPoint(34, 25)}) {
        EXPECT_TRUE(ts::PixelIs(picture, at.x, at.y, ts::kPaper));
    }
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 7, 32, 23), RGB(255, 255, 255)));
}

TEST(DrawRounded, WithoutBrushLeavesTheInside)
{
    const ts::Picture picture =
        ts::Drawn(40, 30, [](CDC& dc) { QorDrawRounded(dc, CRect(5, 4, 35, 26), kLine, nullptr); });
    EXPECT_TRUE(ts::AreaIs(picture, CRect(8, 7, 32, 23), ts::kPaper));
}

TEST(DrawRounded, LeavesTheDeviceContextAsItWas)
{
    ts::Drawn(40, 30, [](CDC& dc) {
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        const COLORREF line = ::GetDCPenColor(dc);
        QorDrawRounded(dc, CRect(5, 4, 35, 26), kLine, ::GetStockObject(WHITE_BRUSH));
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
        EXPECT_EQ(line, ::GetDCPenColor(dc));
    });
}

} // namespace
