#include "MemoryDc.h"

#include <tests/support/Support.h>

#include <thread>

namespace
{
bool Lives(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}

template <class Object>
void ExpectEmptyIsHarmless()
{
    Object object;
    EXPECT_EQ(object.GetSafeHandle(), nullptr);
    EXPECT_FALSE(object.DeleteObject());
    EXPECT_EQ(object.Detach(), nullptr);
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_EQ(object.GetObject(0, nullptr), 0);
    EXPECT_FALSE(object.UnrealizeObject());
}
} // namespace

TEST(GdiObject, DestructorDeletesTheHandle)
{
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, RED);
        handle = pen.m_hObject;
        EXPECT_TRUE(Lives(handle));
    }
    EXPECT_FALSE(Lives(handle));
}

TEST(GdiObject, DetachKeepsTheHandle)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(RED);
        handle = brush.Detach();
        EXPECT_EQ(brush.GetSafeHandle(), nullptr);
    }
    EXPECT_TRUE(Lives(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, AttachTakesOwnershipOnceOnly)
{
    HBRUSH handle = ::CreateSolidBrush(RED);
    CBrush brush;
    EXPECT_TRUE(brush.Attach(handle));
    EXPECT_FALSE(brush.Attach(::GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(static_cast<HBRUSH>(brush), handle);
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_FALSE(Lives(handle));
    EXPECT_FALSE(brush.DeleteObject());
}

TEST(GdiObject, OwnerOfAnotherObjectRefusesANewOneAndLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CBrush brush(RED);
        EXPECT_FALSE(brush.CreateSolidBrush(0));
        EXPECT_FALSE(brush.CreateHatchBrush(HS_CROSS, 0));
        CPen pen(PS_SOLID, 1, RED);
        EXPECT_FALSE(pen.CreatePen(PS_DOT, 1, COLORREF(0)));
        CFont font;
        EXPECT_TRUE(font.CreatePointFont(90, TEXT("Arial")));
        EXPECT_FALSE(font.CreatePointFont(90, TEXT("Arial")));
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
        EXPECT_FALSE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
        CRgn region;
        EXPECT_TRUE(region.CreateRectRgn(0, 0, 1, 1));
        EXPECT_FALSE(region.CreateRectRgn(0, 0, 1, 1));
        CDC dc;
        EXPECT_TRUE(dc.CreateCompatibleDC(nullptr));
        EXPECT_FALSE(dc.CreateCompatibleDC(nullptr));
    }));
}

TEST(GdiObject, FromHandleGivesTheOwnerWhileItOwns)
{
    CPen pen(PS_SOLID, 1, RED);
    HPEN handle = pen;
    EXPECT_EQ(CPen::FromHandle(handle), &pen);
    pen.Detach();
    EXPECT_NE(CPen::FromHandle(handle), &pen);
    ::DeleteObject(handle);
}

TEST(GdiObject, TemporaryObjectDoesNotDeleteItsHandle)
{
    HBRUSH handle = ::CreateSolidBrush(RED);
    CBrush* temporary = CBrush::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hObject, handle);
    EXPECT_EQ(CBrush::FromHandle(handle), temporary);
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(Lives(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, TemporaryObjectHasTheClassOfItsHandle)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    EXPECT_TRUE(dc.GetCurrentPen()->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(dc.GetCurrentBrush()->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(dc.GetCurrentFont()->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(dc.GetCurrentBitmap()->IsKindOf(RUNTIME_CLASS(CBitmap)));
    EXPECT_TRUE(dc.GetCurrentPalette()->IsKindOf(RUNTIME_CLASS(CPalette)));
}

TEST(GdiObject, FromHandleOfNullIsNull)
{
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, MapsAreKeptPerThread)
{
    CPen pen(PS_SOLID, 1, RED);
    CPen* other = &pen;
    std::thread([&] { other = CPen::FromHandle(pen); }).join();
    EXPECT_NE(other, &pen);
}

TEST(GdiObject, EmptyObjectsAreHarmless)
{
    ExpectEmptyIsHarmless<CPen>();
    ExpectEmptyIsHarmless<CBrush>();
    ExpectEmptyIsHarmless<CFont>();
    ExpectEmptyIsHarmless<CBitmap>();
    ExpectEmptyIsHarmless<CPalette>();
    ExpectEmptyIsHarmless<CRgn>();
}

TEST(GdiObject, ComparesHandles)
{
    CBrush first(RED);
    CBrush second(RED);
    EXPECT_TRUE(first == first);
    EXPECT_TRUE(first != second);
}

TEST(GdiObject, StockObjectIsAttached)
{
    CPen pen;
    ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    EXPECT_EQ(pen.m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(pen.GetObjectType(), static_cast<UINT>(OBJ_PEN));
    EXPECT_FALSE(CPen().CreateStockObject(-1));
}

TEST(GdiObject, LeavesNoHandleBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CPen pen(PS_SOLID, 2, RED);
        CBrush brush(HS_CROSS, BLUE);
        CFont font;
        font.CreatePointFont(90, TEXT("Tahoma"));
        CRgn region;
        region.CreateRectRgn(0, 0, 5, 5);
        MemoryDc dc;
        CPen* formerPen = dc.SelectObject(&pen);
        CGdiObject* formerFont = dc.CDC::SelectObject(static_cast<CGdiObject*>(&font));
        dc.LineTo(4, 4);
        dc.SelectObject(formerPen);
        dc.CDC::SelectObject(formerFont);
    }));
}

TEST(Pen, KeepsWhatItWasMadeWith)
{
    CPen pen(PS_DASH, 1, RED);
    LOGPEN description = {};
    EXPECT_NE(pen.GetLogPen(&description), 0);
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(description.lopnColor, RED);
    CPen copy;
    EXPECT_TRUE(copy.CreatePenIndirect(&description));
    EXPECT_FALSE(CPen().CreatePenIndirect(nullptr));
}

TEST(Pen, ExtendedPenTellsItsDescription)
{
    const LOGBRUSH brush = {BS_SOLID, BLUE, 0};
    CPen pen(PS_GEOMETRIC | PS_ENDCAP_FLAT, 7, &brush);
    EXTLOGPEN description = {};
    EXPECT_NE(pen.GetExtLogPen(&description), 0);
    EXPECT_EQ(description.elpWidth, 7u);
    EXPECT_EQ(description.elpColor, BLUE);
    EXPECT_FALSE(CPen().CreatePen(PS_GEOMETRIC, 1, nullptr));
    EXPECT_EQ(CPen().GetExtLogPen(&description), 0);
}

TEST(Pen, RefusedPenThrows)
{
    const LOGBRUSH brush = {BS_SOLID, BLUE, 0};
    bool caught = false;
    try {
        CPen pen(PS_COSMETIC | PS_SOLID, 5, &brush);
    } catch (CResourceException* error) {
        caught = true;
        error->Delete();
    }
    EXPECT_TRUE(caught);
}

TEST(Brush, KindsTellTheirDescription)
{
    LOGBRUSH description = {};
    CBrush solid(RED);
    EXPECT_NE(solid.GetLogBrush(&description), 0);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(description.lbColor, RED);

    CBrush hatch(HS_DIAGCROSS, GREEN);
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
    dc.SetTextColor(RED);
    dc.SetBkColor(BLUE);
    dc.FillRect(CRect(0, 0, 16, 16), &brush);
    EXPECT_EQ(dc.Count(RED), 128);
    EXPECT_EQ(dc.Count(BLUE), 128);
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
    EXPECT_EQ(dc.Count(BLUE), 64);
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

TEST(Font, PointFontIsMeasuredForTheScreen)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, TEXT("Tahoma")));
    LOGFONT description = {};
    ASSERT_NE(font.GetLogFont(&description), 0);
    CClientDC screen(nullptr);
    EXPECT_EQ(description.lfHeight, -::MulDiv(120, screen.GetDeviceCaps(LOGPIXELSY), 720));
    EXPECT_STREQ(description.lfFaceName, TEXT("Tahoma"));
}

TEST(Font, PointFontIndirectKeepsTheOtherMembers)
{
    LOGFONT wanted = {};
    wanted.lfHeight = 90;
    wanted.lfWeight = FW_BOLD;
    wanted.lfUnderline = TRUE;
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&wanted));
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    EXPECT_TRUE(description.lfUnderline);
    EXPECT_EQ(wanted.lfHeight, 90);
    EXPECT_FALSE(CFont().CreatePointFontIndirect(nullptr));
    EXPECT_FALSE(CFont().CreateFontIndirect(nullptr));
}

TEST(Font, CreateFontTakesEveryMember)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 0, 0, 0, FW_BOLD, TRUE, FALSE, TRUE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, TEXT("Tahoma")));
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfHeight, -20);
    EXPECT_TRUE(description.lfItalic);
    EXPECT_TRUE(description.lfStrikeOut);
    EXPECT_FALSE(description.lfUnderline);
}

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

TEST(Palette, EntriesCanBeReadAndChanged)
{
    struct
    {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2] = {{255, 0, 0, 0}, {0, 0, 255, 0}};
    } wanted;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LPLOGPALETTE>(&wanted)));
    EXPECT_EQ(palette.GetEntryCount(), 2);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(0, 0, 250)), 1u);
    PALETTEENTRY green = {0, 255, 0, 0};
    EXPECT_EQ(palette.SetPaletteEntries(0, 1, &green), 1u);
    PALETTEENTRY read = {};
    EXPECT_EQ(palette.GetPaletteEntries(0, 1, &read), 1u);
    EXPECT_EQ(read.peGreen, 255);
    EXPECT_TRUE(palette.ResizePalette(4));
    EXPECT_EQ(palette.GetEntryCount(), 4);
    EXPECT_FALSE(CPalette().CreatePalette(nullptr));
    EXPECT_EQ(CPalette().GetEntryCount(), 0);
}
