#include <QorUI/app/draw/BufferedPaint.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Drawn.h>

namespace
{

constexpr COLORREF kInk = RGB(200, 0, 0);
constexpr RECT kArea = {5, 6, 15, 18};

HBITMAP WINAPI NoBitmap(HDC, int, int)
{
    return nullptr;
}

TEST(BufferedPaint, BringsTheAreaToTheTargetAtTheEnd)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC& dc) {
        {
            BufferedPaint paint(dc, kArea);
            EXPECT_NE(&dc, &paint.Dc());
            paint.Dc().FillSolidRect(0, 0, 20, 20, kInk);
            EXPECT_EQ(ts::kPaper, dc.GetPixel(7, 7));
        }
        EXPECT_EQ(kInk, dc.GetPixel(7, 7));
    });
    EXPECT_TRUE(ts::AreaIs(picture, kArea, kInk));
    EXPECT_EQ(10 * 12, picture.Count(kInk));
}

TEST(BufferedPaint, TakesTheTargetsCoordinates)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC& dc) {
        BufferedPaint paint(dc, kArea);
        paint.Dc().FillSolidRect(0, 0, 20, 20, RGB(9, 9, 9));
        paint.Dc().FillSolidRect(7, 8, 3, 4, kInk);
    });
    EXPECT_TRUE(ts::AreaIs(picture, CRect(7, 8, 10, 12), kInk));
    EXPECT_EQ(12, picture.Count(kInk));
}

TEST(BufferedPaint, WithoutMemoryDrawsStraightOntoTheTarget)
{
    const ts::ReplacedImport none(L"afx.dll", "CreateCompatibleBitmap", &NoBitmap);
    bool direct = false;
    const ts::Picture picture = ts::DrawTo(
        20, 20,
        [&direct](HDC handle) {
            CDC& dc = *CDC::FromHandle(handle);
            BufferedPaint paint(dc, kArea);
            direct = &paint.Dc() == &dc;
            paint.Dc().FillSolidRect(7, 8, 3, 4, kInk);
        },
        ts::kPaper);
    EXPECT_TRUE(direct);
    EXPECT_EQ(12, picture.Count(kInk));
}

TEST(BufferedPaint, LeavesNoObjects)
{
    EXPECT_TRUE(ts::NoLeak(
        [] {
            ts::Drawn(20, 20, [](CDC& dc) {
                BufferedPaint paint(dc, kArea);
                paint.Dc().FillSolidRect(0, 0, 20, 20, kInk);
            });
        },
        200));
}

} // namespace
