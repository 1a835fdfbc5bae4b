#include "MemoryDc.h"

TEST(Brush, KindsTellTheirDescription)
{
    LOGBRUSH description = {};
    CBrush solid(kRed);
    EXPECT_NE(solid.GetLogBrush(&description), 0);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(description.lbColor, kRed);

    CBrush hatch(HS_DIAGCROSS, kGreen);
    hatch.GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(description.lbHatch, static_cast<ULONG_PTR>(HS_DIAGCROSS));

    CBrush copy;
    EXPECT_TRUE(copy.CreateBrushIndirect(&description));
    EXPECT_FALSE(CBrush().CreateBrushIndirect(nullptr));
    EXPECT_FALSE(CBrush().CreatePatternBrush(nullptr));
}

TEST(Brush, PatternBrushRepeatsItsBitmap)
{
    const WORD rows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    CBitmap pattern;
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, rows));
    CBrush brush(&pattern);
    MemoryDc dc(16, 16);
    dc.SetTextColor(kRed);
    dc.SetBkColor(kBlue);
    dc.FillRect(CRect(0, 0, 16, 16), &brush);
    EXPECT_EQ(dc.Count(kRed), 128);
    EXPECT_EQ(dc.Count(kBlue), 128);
    EXPECT_NE(dc.GetPixel(0, 0), dc.GetPixel(1, 0));
}

TEST(Brush, DibPatternBrushComesFromGlobalMemory)
{
    struct
    {
        BITMAPINFOHEADER header = {sizeof(BITMAPINFOHEADER), 8, 8, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
        BYTE bits[8 * 24];
    } dib;
    for (size_t i = 0; i < sizeof(dib.bits); i += 3) {
        dib.bits[i] = 255;
        dib.bits[i + 1] = dib.bits[i + 2] = 0;
    }
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof(dib));
    memcpy(::GlobalLock(memory), &dib, sizeof(dib));
    ::GlobalUnlock(memory);
    CBrush brush;
    EXPECT_TRUE(brush.CreateDIBPatternBrush(memory, DIB_RGB_COLORS));
    ::GlobalFree(memory);
    MemoryDc dc(8, 8);
    dc.FillRect(CRect(0, 0, 8, 8), &brush);
    EXPECT_EQ(dc.Count(kBlue), 64);
    EXPECT_FALSE(CBrush().CreateDIBPatternBrush(HGLOBAL(nullptr), DIB_RGB_COLORS));
}

TEST(Brush, SystemColourBrushPaintsThatColour)
{
    CBrush brush;
    ASSERT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
    MemoryDc dc(4, 4);
    dc.FillRect(CRect(0, 0, 4, 4), &brush);
    EXPECT_EQ(dc.Count(::GetSysColor(COLOR_HIGHLIGHT)), 16);
}
