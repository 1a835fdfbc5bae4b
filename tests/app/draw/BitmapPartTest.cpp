#include <QorUI/app/draw/BitmapPart.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Drawn.h>

namespace
{

constexpr COLORREF kLeft = RGB(200, 0, 0);
constexpr COLORREF kRight = RGB(0, 200, 0);
constexpr int kFrame = 6;

HDC WINAPI NoDc(HDC)
{
    return nullptr;
}

/** Two frames beside each other, each of one colour. */
class BitmapPart : public testing::Test
{
  protected:
    void SetUp() override
    {
        ts::Drawn(1, 1, [this](CDC& dc) {
            CDC memory;
            ASSERT_TRUE(memory.CreateCompatibleDC(&dc));
            ASSERT_TRUE(m_strip.CreateCompatibleBitmap(&dc, 2 * kFrame, kFrame));
            CBitmap* former = memory.SelectObject(&m_strip);
            memory.FillSolidRect(0, 0, kFrame, kFrame, kLeft);
            memory.FillSolidRect(kFrame, 0, kFrame, kFrame, kRight);
            memory.SelectObject(former);
        });
    }

    ts::Picture DrawnPart(HGDIOBJ bitmap, POINT from, COLORREF key)
    {
        return ts::Drawn(20, 20, [&](CDC& dc) {
            QorDrawBitmapPart(dc, {3, 4, 3 + kFrame, 4 + kFrame}, bitmap, from, key);
        });
    }

    CBitmap m_strip;
};

TEST_F(BitmapPart, DrawsThePartAtItsPlaceOnly)
{
    const ts::Picture picture = DrawnPart(m_strip, {kFrame, 0}, CLR_NONE);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(3, 4, 9, 10), kRight));
    EXPECT_EQ(kFrame * kFrame, picture.Count(kRight));
    EXPECT_EQ(400 - kFrame * kFrame, picture.Count(ts::kPaper));
}

TEST_F(BitmapPart, KeyColourLetsThroughWhatIsBehind)
{
    const ts::Picture picture = DrawnPart(m_strip, {3, 0}, kLeft);
    EXPECT_TRUE(ts::AreaIs(picture, CRect(3, 4, 6, 10), ts::kPaper));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(6, 4, 9, 10), kRight));
}

TEST_F(BitmapPart, WithoutABitmapNothingIsDrawn)
{
    EXPECT_EQ(400, DrawnPart(nullptr, {0, 0}, CLR_NONE).Count(ts::kPaper));
}

TEST_F(BitmapPart, WithoutADeviceContextNothingIsDrawn)
{
    const ts::Picture picture = ts::Drawn(20, 20, [this](CDC& dc) {
        const ts::ReplacedImport none(nullptr, "CreateCompatibleDC", &NoDc);
        QorDrawBitmapPart(dc, {0, 0, kFrame, kFrame}, m_strip, {0, 0});
    });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST_F(BitmapPart, LeavesTheBitmapUnselected)
{
    DrawnPart(m_strip, {0, 0}, CLR_NONE);
    EXPECT_TRUE(m_strip.DeleteObject());
}

} // namespace
