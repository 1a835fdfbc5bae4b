#include "MemoryDc.h"

#include <algorithm>

namespace
{
constexpr POINT TRIANGLE[] = {{0, 0}, {10, 0}, {0, 10}};

/** A red picture to copy from. */
class RedDc : public MemoryDc
{
  public:
    RedDc() { FillSolidRect(0, 0, 40, 30, RED); }
};
} // namespace

TEST(Draw, SolidRectFillsAndKeepsTheBackColour)
{
    MemoryDc dc;
    dc.SetBkColor(GREEN);
    dc.FillSolidRect(2, 3, 4, 5, RED);
    EXPECT_EQ(dc.Count(RED), 20);
    EXPECT_EQ(dc.GetPixel(2, 3), RED);
    EXPECT_EQ(dc.GetPixel(5, 7), RED);
    EXPECT_EQ(dc.GetBkColor(), GREEN);
    dc.FillSolidRect(CRect(10, 10, 12, 12), BLUE);
    EXPECT_EQ(dc.Count(BLUE), 4);
}

TEST(Draw, ThreeDimensionalRectIsOnePixelWide)
{
    MemoryDc dc;
    dc.Draw3dRect(CRect(1, 1, 11, 7), RED, BLUE);
    for (const CPoint& point : {CPoint(1, 1), CPoint(9, 1), CPoint(1, 5)}) {
        EXPECT_EQ(dc.GetPixel(point), RED);
    }
    for (const CPoint& point : {CPoint(10, 1), CPoint(1, 6), CPoint(10, 6)}) {
        EXPECT_EQ(dc.GetPixel(point), BLUE);
    }
    EXPECT_EQ(dc.Count(RED), 9 + 4);
    EXPECT_EQ(dc.Count(BLUE), 10 + 5);
}

TEST(Draw, ThreeDimensionalRectStaysInsideWhateverItsSize)
{
    for (int cx = -1; cx <= 5; ++cx) {
        for (int cy = -1; cy <= 5; ++cy) {
            MemoryDc dc;
            dc.Draw3dRect(10, 10, cx, cy, RED, BLUE);
            const int rim = cx > 0 && cy > 0 ? cx * cy - (std::max)(cx - 2, 0) * (std::max)(cy - 2, 0) : 0;
            EXPECT_EQ(dc.Count(RED) + dc.Count(BLUE), rim) << cx << " x " << cy;
            dc.FillSolidRect(10, 10, cx > 0 ? cx : 0, cy > 0 ? cy : 0, WHITE);
            EXPECT_EQ(dc.Count(WHITE), 40 * 30) << cx << " x " << cy;
        }
    }
}

TEST(Draw, BrushFillsFramesAndInverts)
{
    MemoryDc dc;
    CBrush brush(RED);
    dc.FillRect(CRect(0, 0, 3, 3), &brush);
    EXPECT_EQ(dc.Count(RED), 9);
    dc.FrameRect(CRect(10, 10, 15, 15), &brush);
    EXPECT_EQ(dc.Count(RED), 9 + 16);
    dc.InvertRect(CRect(0, 0, 3, 3));
    EXPECT_EQ(dc.Count(RGB(0, 255, 255)), 9);
}

TEST(Draw, FocusRectUndoesItself)
{
    MemoryDc dc;
    dc.DrawFocusRect(CRect(2, 2, 12, 8));
    EXPECT_GT(dc.Count(BLACK), 5);
    dc.DrawFocusRect(CRect(2, 2, 12, 8));
    EXPECT_EQ(dc.Count(WHITE), 40 * 30);
}

TEST(Draw, LineStopsBeforeItsEnd)
{
    MemoryDc dc;
    CPen pen(PS_SOLID, 1, RED);
    CPen* former = dc.SelectObject(&pen);
    EXPECT_EQ(dc.MoveTo(2, 5), CPoint(0, 0));
    EXPECT_TRUE(dc.LineTo(CPoint(8, 5)));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(8, 5));
    EXPECT_EQ(dc.Count(RED), 6);
    EXPECT_EQ(dc.GetPixel(8, 5), WHITE);
    dc.SelectObject(former);
}

TEST(Draw, PolylinesUseTheirPoints)
{
    MemoryDc dc;
    EXPECT_TRUE(dc.Polyline(TRIANGLE, 3));
    EXPECT_EQ(dc.GetPixel(5, 0), BLACK);
    dc.MoveTo(20, 20);
    const POINT to[] = {{25, 20}, {25, 25}};
    EXPECT_TRUE(dc.PolylineTo(to, 2));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(25, 25));
    const POINT lines[] = {{0, 28}, {5, 28}, {10, 28}, {15, 28}};
    const DWORD counts[] = {2, 2};
    EXPECT_TRUE(dc.PolyPolyline(lines, counts, 2));
    EXPECT_EQ(dc.GetPixel(3, 28), BLACK);
    EXPECT_EQ(dc.GetPixel(7, 28), WHITE);
    const BYTE types[] = {PT_MOVETO, PT_LINETO};
    const POINT draw[] = {{30, 0}, {35, 0}};
    EXPECT_TRUE(dc.PolyDraw(draw, types, 2));
    EXPECT_EQ(dc.GetPixel(32, 0), BLACK);
    const POINT curve[] = {{0, 15}, {3, 15}, {6, 15}, {9, 15}};
    EXPECT_TRUE(dc.PolyBezier(curve, 4));
    EXPECT_EQ(dc.GetPixel(4, 15), BLACK);
    dc.MoveTo(20, 15);
    const POINT curveTo[] = {{23, 15}, {26, 15}, {29, 15}};
    EXPECT_TRUE(dc.PolyBezierTo(curveTo, 3));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(29, 15));
}

TEST(Draw, ShapesFillWithTheBrush)
{
    MemoryDc dc;
    CBrush brush(RED);
    CBrush* formerBrush = dc.SelectObject(&brush);
    CGdiObject* formerPen = dc.SelectStockObject(NULL_PEN);
    EXPECT_TRUE(dc.Polygon(TRIANGLE, 3));
    EXPECT_EQ(dc.GetPixel(2, 2), RED);
    EXPECT_EQ(dc.GetPixel(9, 9), WHITE);
    dc.FillSolidRect(0, 0, 40, 30, WHITE);
    EXPECT_TRUE(dc.Ellipse(CRect(0, 0, 20, 20)));
    EXPECT_EQ(dc.GetPixel(10, 10), RED);
    EXPECT_EQ(dc.GetPixel(0, 0), WHITE);
    dc.FillSolidRect(0, 0, 40, 30, WHITE);
    EXPECT_TRUE(dc.RoundRect(CRect(0, 0, 20, 20), CPoint(10, 10)));
    EXPECT_EQ(dc.GetPixel(0, 0), WHITE);
    EXPECT_EQ(dc.GetPixel(10, 1), RED);
    dc.FillSolidRect(0, 0, 40, 30, WHITE);
    EXPECT_TRUE(dc.Pie(CRect(0, 0, 20, 20), CPoint(20, 10), CPoint(10, 0)));
    EXPECT_EQ(dc.GetPixel(13, 6), RED);
    EXPECT_EQ(dc.GetPixel(6, 13), WHITE);
    dc.FillSolidRect(0, 0, 40, 30, WHITE);
    EXPECT_TRUE(dc.Chord(CRect(0, 0, 20, 20), CPoint(20, 10), CPoint(0, 10)));
    EXPECT_EQ(dc.GetPixel(10, 5), RED);
    EXPECT_EQ(dc.GetPixel(10, 15), WHITE);
    const INT counts[] = {3};
    EXPECT_TRUE(dc.PolyPolygon(TRIANGLE, counts, 1));
    dc.SelectObject(formerBrush);
    dc.SelectObject(formerPen);
}

TEST(Draw, RectangleHasPenAndBrush)
{
    MemoryDc dc;
    CBrush brush(RED);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.Rectangle(CRect(0, 0, 10, 10)));
    EXPECT_EQ(dc.Count(BLACK), 36);
    EXPECT_EQ(dc.Count(RED), 64);
    dc.SelectObject(former);
}

TEST(Draw, ArcsDrawTheirPartOnly)
{
    MemoryDc dc;
    EXPECT_TRUE(dc.Arc(CRect(0, 0, 21, 21), CPoint(21, 10), CPoint(0, 10)));
    EXPECT_EQ(dc.GetPixel(10, 0), BLACK);
    EXPECT_EQ(dc.GetPixel(10, 20), WHITE);
    dc.FillSolidRect(0, 0, 40, 30, WHITE);
    dc.MoveTo(30, 5);
    EXPECT_TRUE(dc.ArcTo(CRect(0, 0, 21, 21), CPoint(21, 10), CPoint(0, 10)));
    EXPECT_NE(dc.GetCurrentPosition(), CPoint(30, 5));
    EXPECT_TRUE(dc.AngleArc(20, 15, 5, 0, 90));
}

TEST(Draw, RegionsAreFilledFramedInvertedAndPainted)
{
    MemoryDc dc;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    CBrush brush(RED);
    EXPECT_TRUE(dc.FillRgn(&region, &brush));
    EXPECT_EQ(dc.Count(RED), 100);
    EXPECT_TRUE(dc.InvertRgn(&region));
    EXPECT_EQ(dc.Count(RED), 0);
    EXPECT_TRUE(dc.FrameRgn(&region, &brush, 1, 1));
    EXPECT_EQ(dc.Count(RED), 36);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.PaintRgn(&region));
    EXPECT_EQ(dc.Count(RED), 100);
    dc.SelectObject(former);
    EXPECT_FALSE(dc.FillRgn(nullptr, &brush));
}

TEST(Draw, BlitsCopyPixels)
{
    MemoryDc dc;
    RedDc source;
    EXPECT_TRUE(dc.BitBlt(1, 1, 3, 3, &source, 0, 0, SRCCOPY));
    EXPECT_EQ(dc.Count(RED), 9);
    EXPECT_TRUE(dc.StretchBlt(10, 10, 6, 6, &source, 0, 0, 3, 3, SRCCOPY));
    EXPECT_EQ(dc.Count(RED), 9 + 36);
    EXPECT_TRUE(dc.PatBlt(0, 0, 40, 30, BLACKNESS));
    EXPECT_EQ(dc.Count(BLACK), 1200);
    source.SetPixel(0, 0, GREEN);
    EXPECT_TRUE(dc.TransparentBlt(0, 0, 3, 3, &source, 0, 0, 3, 3, GREEN));
    EXPECT_EQ(dc.GetPixel(0, 0), BLACK);
    EXPECT_EQ(dc.Count(RED), 8);
}

TEST(Draw, MaskedBlitLeavesWhatTheMaskHides)
{
    MemoryDc dc;
    RedDc source;
    const WORD rows[2] = {0x80, 0x80};
    CBitmap mask;
    mask.CreateBitmap(2, 2, 1, 1, rows);
    EXPECT_TRUE(dc.MaskBlt(0, 0, 2, 2, &source, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ(dc.GetPixel(0, 0), RED);
    EXPECT_EQ(dc.GetPixel(1, 0), WHITE);
    const POINT corners[] = {{10, 10}, {14, 10}, {10, 14}};
    CBitmap none;
    EXPECT_TRUE(dc.PlgBlt(const_cast<LPPOINT>(corners), &source, 0, 0, 4, 4, none, 0, 0));
    EXPECT_EQ(dc.GetPixel(12, 12), RED);
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

TEST(Draw, GradientRunsFromColourToColour)
{
    MemoryDc dc;
    TRIVERTEX vertices[] = {{0, 0, 0xFF00, 0, 0, 0}, {40, 30, 0, 0, 0xFF00, 0}};
    GRADIENT_RECT mesh = {0, 1};
    EXPECT_TRUE(dc.GradientFill(vertices, 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    EXPECT_GT(GetRValue(dc.GetPixel(0, 5)), 240);
    EXPECT_GT(GetBValue(dc.GetPixel(39, 5)), 240);
}

TEST(Draw, PixelsAndFloods)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetPixel(CPoint(3, 3), RED), RED);
    EXPECT_TRUE(dc.SetPixelV(CPoint(4, 3), BLUE));
    EXPECT_EQ(dc.GetPixel(CPoint(3, 3)), RED);
    EXPECT_EQ(dc.GetPixel(4, 3), BLUE);
    EXPECT_EQ(dc.GetPixel(-1, 0), CLR_INVALID);
    dc.Rectangle(10, 10, 20, 20);
    CBrush brush(GREEN);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.FloodFill(15, 15, BLACK));
    EXPECT_EQ(dc.Count(GREEN), 64);
    EXPECT_TRUE(dc.ExtFloodFill(15, 15, GREEN, FLOODFILLSURFACE));
    dc.SelectObject(former);
}

TEST(Draw, EdgesAndFrameControlsDrawSomething)
{
    MemoryDc dc;
    CRect rect(0, 0, 20, 20);
    EXPECT_TRUE(dc.DrawEdge(&rect, EDGE_RAISED, BF_RECT | BF_ADJUST));
    EXPECT_EQ(rect, CRect(2, 2, 18, 18));
    EXPECT_LT(dc.Count(WHITE), 1200);
    MemoryDc other;
    EXPECT_TRUE(other.DrawFrameControl(CRect(0, 0, 16, 16), DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_LT(other.Count(WHITE), 1200);
}

TEST(Draw, IconIsDrawnAtItsPlace)
{
    MemoryDc dc(64, 64);
    EXPECT_TRUE(dc.DrawIcon(CPoint(10, 10), ::LoadIcon(nullptr, IDI_ERROR)));
    EXPECT_LT(dc.Count(WHITE), 64 * 64);
    EXPECT_EQ(dc.GetPixel(5, 5), WHITE);
    EXPECT_FALSE(dc.DrawIcon(0, 0, nullptr));
}

TEST(Draw, StatesOfPictureIconAndText)
{
    RedDc picture;
    CBitmap* bitmap = picture.SelectObject(CBitmap::FromHandle(::CreateBitmap(1, 1, 1, 1, nullptr)));
    MemoryDc dc;
    EXPECT_TRUE(dc.DrawState(CPoint(0, 0), CSize(0, 0), bitmap, DSS_NORMAL));
    EXPECT_EQ(dc.Count(RED), 1200);
    MemoryDc text;
    EXPECT_TRUE(text.DrawState(CPoint(0, 0), CSize(0, 0), TEXT("Wide"), DSS_NORMAL));
    EXPECT_GT(text.Count(BLACK), 10);
    MemoryDc icon;
    EXPECT_TRUE(icon.DrawState(CPoint(0, 0), CSize(0, 0), ::LoadIcon(nullptr, IDI_ERROR), DSS_DISABLED));
    EXPECT_LT(icon.Count(WHITE), 1200);
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
    EXPECT_TRUE(dc.DrawState(CPoint(2, 2), CSize(3, 3), draw, RED, DSS_NORMAL));
    EXPECT_EQ(dc.Count(RED), 9);
}

TEST(Draw, PathsAreStrokedAndFilled)
{
    MemoryDc dc;
    CBrush brush(RED);
    CBrush* former = dc.SelectObject(&brush);
    auto square = [&](int x) {
        dc.BeginPath();
        dc.MoveTo(x, 0);
        dc.LineTo(x + 9, 0);
        dc.LineTo(x + 9, 9);
        dc.LineTo(x, 9);
        dc.CloseFigure();
        dc.EndPath();
    };
    square(0);
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 4);
    EXPECT_TRUE(dc.FillPath());
    EXPECT_EQ(dc.Count(RED), 81);
    square(20);
    EXPECT_TRUE(dc.StrokePath());
    EXPECT_EQ(dc.Count(BLACK), 36);
    square(20);
    EXPECT_TRUE(dc.StrokeAndFillPath());
    EXPECT_GE(dc.Count(RED), 81 + 64);
    square(0);
    EXPECT_TRUE(dc.FlattenPath());
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_FALSE(dc.FillPath());
    square(0);
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 9, 9));
    dc.SelectObject(former);
}

TEST(Draw, DragRectLeavesNothingBehind)
{
    MemoryDc dc;
    const CSize frame(2, 2);
    const CRect first(2, 2, 20, 20);
    const CRect second(5, 5, 25, 25);
    dc.DrawDragRect(first, frame, nullptr, frame);
    EXPECT_LT(dc.Count(WHITE), 1200);
    EXPECT_EQ(dc.GetPixel(10, 10), WHITE);
    dc.DrawDragRect(second, frame, first, frame);
    EXPECT_LT(dc.Count(WHITE), 1200);
    dc.DrawDragRect(second, CSize(0, 0), second, frame);
    EXPECT_EQ(dc.Count(WHITE), 1200);
}

TEST(Draw, DragRectIsInLogicalUnits)
{
    MemoryDc dc;
    CBrush solid(WHITE);
    dc.SetViewportOrg(10, 5);
    dc.DrawDragRect(CRect(0, 0, 10, 10), CSize(1, 1), nullptr, CSize(1, 1), &solid);
    EXPECT_EQ(dc.GetPixel(0, 0), BLACK);
    dc.SetViewportOrg(0, 0);
    EXPECT_EQ(dc.GetPixel(10, 5), BLACK);
    EXPECT_EQ(dc.GetPixel(9, 4), WHITE);
    EXPECT_EQ(dc.Count(BLACK), 36);
}

TEST(Draw, DragRectWithBrushesOfItsOwn)
{
    MemoryDc dc;
    CBrush solid(WHITE);
    CBrush other(RGB(0, 255, 255));
    dc.DrawDragRect(CRect(0, 0, 10, 10), CSize(1, 1), nullptr, CSize(1, 1), &solid);
    EXPECT_EQ(dc.Count(BLACK), 36);
    dc.DrawDragRect(CRect(20, 0, 30, 10), CSize(1, 1), CRect(0, 0, 10, 10), CSize(1, 1), &other, &solid);
    EXPECT_EQ(dc.Count(BLACK), 0);
    EXPECT_EQ(dc.Count(RED), 36);
}

TEST(Draw, HalftoneBrushIsEveryOtherPixel)
{
    MemoryDc dc(8, 8);
    ASSERT_NE(CDC::GetHalftoneBrush(), nullptr);
    dc.FillRect(CRect(0, 0, 8, 8), CDC::GetHalftoneBrush());
    EXPECT_EQ(dc.Count(BLACK), 32);
    EXPECT_EQ(dc.Count(WHITE), 32);
}

TEST(Draw, ScrollMovesPixels)
{
    MemoryDc dc;
    dc.SetPixel(5, 5, RED);
    EXPECT_TRUE(dc.ScrollDC(3, 2, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.GetPixel(8, 7), RED);
}
