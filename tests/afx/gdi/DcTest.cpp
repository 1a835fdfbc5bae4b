#include "MemoryDc.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

namespace
{
template <class Function>
bool ThrowsResource(Function function)
{
    try {
        function();
    } catch (CResourceException* error) {
        error->Delete();
        return true;
    }
    return false;
}

constexpr int DENSITY_PER_INCH = 2540;
} // namespace

TEST(Dc, DestructorDeletesTheContext)
{
    HDC handle = nullptr;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        handle = dc;
        EXPECT_EQ(dc.m_hAttribDC, handle);
        EXPECT_EQ(CDC::FromHandle(handle), &dc);
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(Dc, DetachKeepsTheContext)
{
    HDC handle = nullptr;
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        handle = dc.Detach();
        EXPECT_EQ(dc.GetSafeHdc(), nullptr);
        EXPECT_EQ(dc.m_hAttribDC, nullptr);
    }
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    CDC again;
    EXPECT_TRUE(again.Attach(handle));
    EXPECT_FALSE(again.Attach(handle));
    EXPECT_TRUE(again.DeleteDC());
    EXPECT_FALSE(again.DeleteDC());
}

TEST(Dc, TemporaryObjectDoesNotDeleteTheContext)
{
    HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(handle);
    EXPECT_EQ(temporary->m_hDC, handle);
    EXPECT_EQ(temporary->m_hAttribDC, handle);
    CDC::DeleteTempMap();
    EXPECT_NE(::GetObjectType(handle), 0u);
    ::DeleteDC(handle);
}

TEST(Dc, EmptyContextFailsQuietly)
{
    CDC dc;
    CPen pen(PS_SOLID, 1, RED);
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(dc.SelectObject(&pen), nullptr);
    EXPECT_EQ(dc.SelectStockObject(NULL_BRUSH), nullptr);
    EXPECT_EQ(dc.GetCurrentPen(), nullptr);
    EXPECT_EQ(dc.SaveDC(), 0);
    EXPECT_FALSE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.SetTextColor(RED), CLR_INVALID);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), 0);
    EXPECT_FALSE(dc.LineTo(1, 1));
    EXPECT_FALSE(dc.Rectangle(nullptr));
    EXPECT_EQ(dc.DrawText(TEXT("x"), 1, rect, DT_LEFT), 0);
    EXPECT_EQ(dc.DrawText(TEXT("x"), 1, nullptr, DT_LEFT), 0);
    EXPECT_EQ(dc.GetTextExtent(TEXT("x"), 1), CSize(0, 0));
    EXPECT_FALSE(dc.DrawEdge(nullptr, EDGE_ETCHED, BF_RECT));
    EXPECT_EQ(dc.GetPixel(0, 0), CLR_INVALID);
    EXPECT_EQ(dc.GetWindow(), nullptr);
    EXPECT_FALSE(dc.BitBlt(0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
    dc.FillSolidRect(rect, RED);
    dc.Draw3dRect(rect, RED, BLUE);
    dc.FillRect(rect, nullptr);
    dc.DrawFocusRect(nullptr);
    dc.DrawDragRect(rect, CSize(1, 1), nullptr, CSize(1, 1));
    SIZE size = {96, 96};
    dc.DPtoHIMETRIC(&size);
    EXPECT_GT(size.cx, 0);
    dc.LPtoDP(static_cast<LPSIZE>(nullptr));
}

TEST(Dc, CompatibleWithAnEmptyContextIsRefused)
{
    CDC empty;
    CDC dc;
    EXPECT_FALSE(dc.CreateCompatibleDC(&empty));
}

TEST(Dc, SelectObjectReturnsWhatWasSelected)
{
    MemoryDc dc;
    CPen first(PS_SOLID, 1, RED);
    CPen second(PS_SOLID, 1, BLUE);
    CPen* stock = dc.SelectObject(&first);
    EXPECT_EQ(stock->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&second), &first);
    EXPECT_EQ(dc.GetCurrentPen(), &second);
    EXPECT_EQ(dc.SelectObject(stock), &second);
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);

    CBrush brush(RED);
    EXPECT_EQ(dc.SelectObject(&brush)->m_hObject, ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(dc.SelectStockObject(NULL_BRUSH), &brush);
    CFont font;
    font.CreatePointFont(80, TEXT("Tahoma"));
    CFont* formerFont = dc.SelectObject(&font);
    EXPECT_EQ(formerFont->m_hObject, ::GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(dc.SelectObject(formerFont), &font);
}

TEST(Dc, SelectingARegionClips)
{
    MemoryDc dc;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    dc.FillSolidRect(0, 0, 40, 30, RED);
    EXPECT_EQ(dc.Count(RED), 100);
}

TEST(Dc, SaveAndRestoreBringBackTheState)
{
    MemoryDc dc;
    dc.SetTextColor(RED);
    const int first = dc.SaveDC();
    EXPECT_GT(first, 0);
    dc.SetTextColor(BLUE);
    dc.SaveDC();
    dc.SetTextColor(GREEN);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(dc.GetTextColor(), BLUE);
    EXPECT_TRUE(dc.RestoreDC(first));
    EXPECT_EQ(dc.GetTextColor(), RED);
    EXPECT_FALSE(dc.RestoreDC(7));
}

TEST(Dc, ColoursAndModesReturnTheFormerOnes)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetTextColor(RED), BLACK);
    EXPECT_EQ(dc.GetTextColor(), RED);
    EXPECT_EQ(dc.SetBkColor(BLUE), WHITE);
    EXPECT_EQ(dc.GetBkColor(), BLUE);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.SetROP2(R2_NOT), R2_COPYPEN);
    EXPECT_EQ(dc.GetROP2(), R2_NOT);
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_EQ(dc.GetPolyFillMode(), WINDING);
    EXPECT_EQ(dc.SetStretchBltMode(COLORONCOLOR), BLACKONWHITE);
    EXPECT_EQ(dc.GetStretchBltMode(), COLORONCOLOR);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
    EXPECT_EQ(dc.SetTextCharacterExtra(3), 0);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 3);
    EXPECT_EQ(dc.SetBrushOrg(2, 3), CPoint(0, 0));
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(2, 3));
    EXPECT_TRUE(dc.SetMiterLimit(4));
    EXPECT_EQ(dc.GetMiterLimit(), 4);
    dc.SetDCBrushColor(RED);
    EXPECT_EQ(dc.GetDCBrushColor(), RED);
    dc.SetDCPenColor(BLUE);
    EXPECT_EQ(dc.GetDCPenColor(), BLUE);
}

TEST(Dc, MappingMovesAndScales)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    EXPECT_EQ(dc.GetMapMode(), MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    EXPECT_EQ(dc.GetWindowExt(), CSize(100, 100));
    dc.SetViewportExt(CSize(200, 300));
    EXPECT_EQ(dc.GetViewportExt(), CSize(200, 300));
    EXPECT_EQ(dc.SetViewportOrg(5, 7), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), CPoint(5, 7));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(6, 8));
    EXPECT_EQ(dc.SetWindowOrg(10, 10), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetWindowOrg(1, 2), CPoint(10, 10));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(11, 12));
    CPoint point(11, 12);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(6, 8));
    dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(11, 12));
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(20, 30));
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(10, 10));
    CRect rect(11, 12, 21, 22);
    dc.LPtoDP(static_cast<LPRECT>(rect));
    EXPECT_EQ(rect, CRect(6, 8, 26, 38));
}

TEST(Dc, ScalingTheExtentsReturnsTheFormerOnes)
{
    MemoryDc dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(50, 50);
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 3, 1), CSize(100, 100));
    EXPECT_EQ(dc.GetWindowExt(), CSize(200, 300));
    EXPECT_EQ(dc.ScaleViewportExt(1, 5, 1, 10), CSize(50, 50));
    EXPECT_EQ(dc.GetViewportExt(), CSize(10, 5));
}

TEST(Dc, HimetricIsHundredthsOfAMillimetre)
{
    MemoryDc dc;
    const int density = dc.GetDeviceCaps(LOGPIXELSX);
    SIZE size = {density, density};
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size.cx, DENSITY_PER_INCH);
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size.cx, density);
    dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(size.cy, DENSITY_PER_INCH);
    dc.HIMETRICtoLP(&size);
    EXPECT_EQ(size.cy, density);
}

TEST(Dc, AttributesAreAskedOfTheAttributeContext)
{
    MemoryDc output;
    MemoryDc attributes;
    CDC dc;
    dc.SetOutputDC(output);
    dc.SetAttribDC(attributes);
    EXPECT_EQ(dc.SetTextColor(RED), BLACK);
    EXPECT_EQ(::GetTextColor(output), RED);
    EXPECT_EQ(::GetTextColor(attributes), RED);
    EXPECT_EQ(dc.SaveDC(), -1);
    dc.SetTextColor(BLUE);
    dc.MoveTo(3, 3);
    dc.LineTo(9, 3);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(9, 3));
    EXPECT_EQ(output.Count(BLACK), 6);
    EXPECT_EQ(attributes.Count(BLACK), 0);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(::GetTextColor(output), RED);
    EXPECT_EQ(::GetTextColor(attributes), RED);
    dc.ReleaseAttribDC();
    dc.ReleaseOutputDC();
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
}

TEST(Dc, ClippingLimitsWhatIsDrawn)
{
    MemoryDc dc;
    EXPECT_EQ(dc.IntersectClipRect(CRect(0, 0, 20, 20)), SIMPLEREGION);
    EXPECT_EQ(dc.ExcludeClipRect(0, 0, 10, 20), SIMPLEREGION);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(10, 0, 20, 20));
    EXPECT_TRUE(dc.PtVisible(15, 5));
    EXPECT_FALSE(dc.PtVisible(CPoint(5, 5)));
    EXPECT_TRUE(dc.RectVisible(CRect(0, 0, 12, 5)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 8, 5)));
    EXPECT_EQ(dc.OffsetClipRgn(5, 0), SIMPLEREGION);
    dc.FillSolidRect(0, 0, 40, 30, RED);
    EXPECT_EQ(dc.Count(RED), 200);
    EXPECT_EQ(dc.GetPixel(14, 0), WHITE);
    EXPECT_EQ(dc.GetPixel(24, 0), RED);
    EXPECT_NE(dc.SelectClipRgn(nullptr), ERROR);
    EXPECT_TRUE(dc.PtVisible(0, 0));
    EXPECT_EQ(dc.IntersectClipRect(nullptr), ERROR);
    EXPECT_EQ(dc.ExcludeClipRect(nullptr), ERROR);
}

TEST(Dc, ClipRegionsCombine)
{
    MemoryDc dc;
    CRgn left;
    CRgn right;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgn(10, 0, 20, 10);
    dc.SelectClipRgn(&left);
    EXPECT_EQ(dc.SelectClipRgn(&right, RGN_OR), SIMPLEREGION);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 20, 10));
}

TEST(ClientDc, CoversTheClientAreaOfItsWindow)
{
    ts::AfxHost host(300, 150);
    CClientDC dc(&host);
    EXPECT_EQ(dc.GetWindow(), &host);
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 300, 150));
}

TEST(WindowDc, CoversTheFrameToo)
{
    ts::AfxHost host(100, 50);
    CWindowDC dc(&host);
    CRect box;
    CRect window;
    dc.GetClipBox(&box);
    host.GetWindowRect(&window);
    EXPECT_EQ(box.Size(), window.Size());
}

TEST(WindowContexts, NullWindowIsTheScreenAndAMissingOneThrows)
{
    CClientDC screen(nullptr);
    EXPECT_GE(screen.GetDeviceCaps(HORZRES), 640);
    CWnd none;
    EXPECT_TRUE(ThrowsResource([&] { CClientDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CWindowDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CPaintDC dc(&none); }));
    EXPECT_TRUE(ThrowsResource([&] { CPaintDC dc(nullptr); }));
}

TEST(PaintDc, ValidatesWhatItPaints)
{
    ts::AfxHost host(100, 50);
    ts::Settle();
    host.InvalidateRect(CRect(10, 10, 30, 20));
    {
        CPaintDC dc(&host);
        EXPECT_EQ(CRect(dc.m_ps.rcPaint), CRect(10, 10, 30, 20));
        EXPECT_EQ(dc.m_ps.hdc, dc.GetSafeHdc());
        EXPECT_TRUE(::GetUpdateRect(host, nullptr, FALSE) == FALSE);
    }
    EXPECT_FALSE(host.GetUpdateRect(nullptr));
}

TEST(WindowContexts, LeaveNoContextBehind)
{
    ts::AfxHost host(100, 50);
    ts::Settle();
    EXPECT_TRUE(ts::NoLeak([&] {
        CClientDC client(&host);
        CWindowDC window(&host);
        host.Invalidate();
        CPaintDC paint(&host);
        paint.FillSolidRect(0, 0, 5, 5, RED);
    }));
}
