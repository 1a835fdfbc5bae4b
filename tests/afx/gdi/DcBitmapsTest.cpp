#include "MemoryDc.h"

namespace
{
/** A red picture to copy from. */
class RedDc : public MemoryDc
{
  public:
    RedDc() { FillSolidRect(0, 0, 40, 30, kRed); }
};
} // namespace

TEST(Draw, BlitsCopyPixels)
{
    MemoryDc dc;
    RedDc source;
    EXPECT_TRUE(dc.BitBlt(1, 1, 3, 3, &source, 0, 0, SRCCOPY));
    EXPECT_EQ(dc.Count(kRed), 9);
    EXPECT_TRUE(dc.StretchBlt(10, 10, 6, 6, &source, 0, 0, 3, 3, SRCCOPY));
    EXPECT_EQ(dc.Count(kRed), 9 + 36);
    EXPECT_TRUE(dc.PatBlt(0, 0, 40, 30, BLACKNESS));
    EXPECT_EQ(dc.Count(kBlack), 1200);
    source.SetPixel(0, 0, kGreen);
    EXPECT_TRUE(dc.TransparentBlt(0, 0, 3, 3, &source, 0, 0, 3, 3, kGreen));
    EXPECT_EQ(dc.GetPixel(0, 0), kBlack);
    EXPECT_EQ(dc.Count(kRed), 8);
}

TEST(Draw, MaskedBlitLeavesWhatTheMaskHides)
{
    MemoryDc dc;
    RedDc source;
    const WORD rows[2] = {0x80, 0x80};
    CBitmap mask;
    mask.CreateBitmap(2, 2, 1, 1, rows);
    EXPECT_TRUE(dc.MaskBlt(0, 0, 2, 2, &source, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ(dc.GetPixel(0, 0), kRed);
    EXPECT_EQ(dc.GetPixel(1, 0), kWhite);
    const POINT corners[] = {{10, 10}, {14, 10}, {10, 14}};
    CBitmap none;
    EXPECT_TRUE(dc.PlgBlt(const_cast<LPPOINT>(corners), &source, 0, 0, 4, 4, none, 0, 0));
    EXPECT_EQ(dc.GetPixel(12, 12), kRed);
}

TEST(Draw, AlphaBlendMixes)
{
    MemoryDc dc;
    RedDc source;
    const BLENDFUNCTION half = {AC_SRC_OVER, 0, 128, 0};
    EXPECT_TRUE(dc.AlphaBlend(0, 0, 4, 4, &source, 0, 0, 4, 4, half));
    EXPECT_NEAR(GetGValue(dc.GetPixel(1, 1)), 127, 2);
    EXPECT_EQ(GetRValue(dc.GetPixel(1, 1)), 255);
}

TEST(Draw, PixelsAndFloods)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetPixel(CPoint(3, 3), kRed), kRed);
    EXPECT_TRUE(dc.SetPixelV(CPoint(4, 3), kBlue));
    EXPECT_EQ(dc.GetPixel(CPoint(3, 3)), kRed);
    EXPECT_EQ(dc.GetPixel(4, 3), kBlue);
    EXPECT_EQ(dc.GetPixel(-1, 0), CLR_INVALID);
    dc.Rectangle(10, 10, 20, 20);
    CBrush brush(kGreen);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.FloodFill(15, 15, kBlack));
    EXPECT_EQ(dc.Count(kGreen), 64);
    EXPECT_TRUE(dc.ExtFloodFill(15, 15, kGreen, FLOODFILLSURFACE));
    dc.SelectObject(former);
}

TEST(Draw, IconIsDrawnAtItsPlace)
{
    MemoryDc dc(64, 64);
    EXPECT_TRUE(dc.DrawIcon(CPoint(10, 10), ::LoadIcon(nullptr, IDI_ERROR)));
    EXPECT_LT(dc.Count(kWhite), 64 * 64);
    EXPECT_EQ(dc.GetPixel(5, 5), kWhite);
    EXPECT_FALSE(dc.DrawIcon(0, 0, nullptr));
}

TEST(Draw, StatesOfPictureIconAndText)
{
    RedDc picture;
    CBitmap* bitmap = picture.SelectObject(CBitmap::FromHandle(::CreateBitmap(1, 1, 1, 1, nullptr)));
    MemoryDc dc;
    EXPECT_TRUE(dc.DrawState(CPoint(0, 0), CSize(0, 0), bitmap, DSS_NORMAL));
    EXPECT_EQ(dc.Count(kRed), 1200);
    MemoryDc text;
    EXPECT_TRUE(text.DrawState(CPoint(0, 0), CSize(0, 0), TEXT("Wide"), DSS_NORMAL));
    EXPECT_GT(text.Count(kBlack), 10);
    MemoryDc icon;
    EXPECT_TRUE(icon.DrawState(CPoint(0, 0), CSize(0, 0), ::LoadIcon(nullptr, IDI_ERROR), DSS_DISABLED));
    EXPECT_LT(icon.Count(kWhite), 1200);
    EXPECT_FALSE(icon.DrawState(CPoint(0, 0), CSize(0, 0), LPCTSTR(nullptr), DSS_NORMAL));
    ::DeleteObject(picture.SelectObject(bitmap)->m_hObject);
}

TEST(Draw, StateCallbackDraws)
{
    MemoryDc dc;
    const DRAWSTATEPROC draw = [](HDC hDC, LPARAM colour, WPARAM, int cx, int cy) -> BOOL {
        CDC::FromHandle(hDC)->FillSolidRect(0, 0, cx, cy, static_cast<COLORREF>(colour));
        return TRUE;
    };
    EXPECT_TRUE(dc.DrawState(CPoint(2, 2), CSize(3, 3), draw, kRed, DSS_NORMAL));
    EXPECT_EQ(dc.Count(kRed), 9);
}

TEST(Draw, ScrollMovesPixels)
{
    MemoryDc dc;
    dc.SetPixel(5, 5, kRed);
    EXPECT_TRUE(dc.ScrollDC(3, 2, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.GetPixel(8, 7), kRed);
}
