#include "MemoryDc.h"

#include <algorithm>

namespace
{
constexpr POINT kTriangle[] = {{0, 0}, {10, 0}, {0, 10}};
} // namespace

TEST(Draw, SolidRectFillsAndKeepsTheBackColour)
{
    MemoryDc dc;
    dc.SetBkColor(kGreen);
    dc.FillSolidRect(2, 3, 4, 5, kRed);
    EXPECT_EQ(dc.Count(kRed), 20);
    EXPECT_EQ(dc.GetPixel(2, 3), kRed);
    EXPECT_EQ(dc.GetPixel(5, 7), kRed);
    EXPECT_EQ(dc.GetBkColor(), kGreen);
    dc.FillSolidRect(CRect(10, 10, 12, 12), kBlue);
    EXPECT_EQ(dc.Count(kBlue), 4);
}

TEST(Draw, ThreeDimensionalRectIsOnePixelWide)
{
    MemoryDc dc;
    dc.Draw3dRect(CRect(1, 1, 11, 7), kRed, kBlue);
    for (const CPoint& point : {CPoint(1, 1), CPoint(9, 1), CPoint(1, 5)}) {
        EXPECT_EQ(dc.GetPixel(point), kRed);
    }
    for (const CPoint& point : {CPoint(10, 1), CPoint(1, 6), CPoint(10, 6)}) {
        EXPECT_EQ(dc.GetPixel(point), kBlue);
    }
    EXPECT_EQ(dc.Count(kRed), 9 + 4);
    EXPECT_EQ(dc.Count(kBlue), 10 + 5);
}

TEST(Draw, ThreeDimensionalRectStaysInsideWhateverItsSize)
{
    for (int cx = -1; cx <= 5; ++cx) {
        for (int cy = -1; cy <= 5; ++cy) {
            MemoryDc dc;
            dc.Draw3dRect(10, 10, cx, cy, kRed, kBlue);
            const int rim = cx > 0 && cy > 0 ? cx * cy - (std::max)(cx - 2, 0) * (std::max)(cy - 2, 0) : 0;
            EXPECT_EQ(dc.Count(kRed) + dc.Count(kBlue), rim) << cx << " x " << cy;
            dc.FillSolidRect(10, 10, cx > 0 ? cx : 0, cy > 0 ? cy : 0, kWhite);
            EXPECT_EQ(dc.Count(kWhite), 40 * 30) << cx << " x " << cy;
        }
    }
}

TEST(Draw, BrushFillsFramesAndInverts)
{
    MemoryDc dc;
    CBrush brush(kRed);
    dc.FillRect(CRect(0, 0, 3, 3), &brush);
    EXPECT_EQ(dc.Count(kRed), 9);
    dc.FrameRect(CRect(10, 10, 15, 15), &brush);
    EXPECT_EQ(dc.Count(kRed), 9 + 16);
    dc.InvertRect(CRect(0, 0, 3, 3));
    EXPECT_EQ(dc.Count(RGB(0, 255, 255)), 9);
}

TEST(Draw, FocusRectUndoesItself)
{
    MemoryDc dc;
    dc.DrawFocusRect(CRect(2, 2, 12, 8));
    EXPECT_GT(dc.Count(kBlack), 5);
    dc.DrawFocusRect(CRect(2, 2, 12, 8));
    EXPECT_EQ(dc.Count(kWhite), 40 * 30);
}

TEST(Draw, ShapesFillWithTheBrush)
{
    MemoryDc dc;
    CBrush brush(kRed);
    CBrush* formerBrush = dc.SelectObject(&brush);
    CGdiObject* formerPen = dc.SelectStockObject(NULL_PEN);
    EXPECT_TRUE(dc.Polygon(kTriangle, 3));
    EXPECT_EQ(dc.GetPixel(2, 2), kRed);
    EXPECT_EQ(dc.GetPixel(9, 9), kWhite);
    dc.FillSolidRect(0, 0, 40, 30, kWhite);
    EXPECT_TRUE(dc.Ellipse(CRect(0, 0, 20, 20)));
    EXPECT_EQ(dc.GetPixel(10, 10), kRed);
    EXPECT_EQ(dc.GetPixel(0, 0), kWhite);
    dc.FillSolidRect(0, 0, 40, 30, kWhite);
    EXPECT_TRUE(dc.RoundRect(CRect(0, 0, 20, 20), CPoint(10, 10)));
    EXPECT_EQ(dc.GetPixel(0, 0), kWhite);
    EXPECT_EQ(dc.GetPixel(10, 1), kRed);
    dc.FillSolidRect(0, 0, 40, 30, kWhite);
    EXPECT_TRUE(dc.Pie(CRect(0, 0, 20, 20), CPoint(20, 10), CPoint(10, 0)));
    EXPECT_EQ(dc.GetPixel(13, 6), kRed);
    EXPECT_EQ(dc.GetPixel(6, 13), kWhite);
    dc.FillSolidRect(0, 0, 40, 30, kWhite);
    EXPECT_TRUE(dc.Chord(CRect(0, 0, 20, 20), CPoint(20, 10), CPoint(0, 10)));
    EXPECT_EQ(dc.GetPixel(10, 5), kRed);
    EXPECT_EQ(dc.GetPixel(10, 15), kWhite);
    const INT counts[] = {3};
    EXPECT_TRUE(dc.PolyPolygon(kTriangle, counts, 1));
    dc.SelectObject(formerBrush);
    dc.SelectObject(formerPen);
}

TEST(Draw, RectangleHasPenAndBrush)
{
    MemoryDc dc;
    CBrush brush(kRed);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.Rectangle(CRect(0, 0, 10, 10)));
    EXPECT_EQ(dc.Count(kBlack), 36);
    EXPECT_EQ(dc.Count(kRed), 64);
    dc.SelectObject(former);
}

TEST(Draw, RegionsAreFilledFramedInvertedAndPainted)
{
    MemoryDc dc;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    CBrush brush(kRed);
    EXPECT_TRUE(dc.FillRgn(&region, &brush));
    EXPECT_EQ(dc.Count(kRed), 100);
    EXPECT_TRUE(dc.InvertRgn(&region));
    EXPECT_EQ(dc.Count(kRed), 0);
    EXPECT_TRUE(dc.FrameRgn(&region, &brush, 1, 1));
    EXPECT_EQ(dc.Count(kRed), 36);
    CBrush* former = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.PaintRgn(&region));
    EXPECT_EQ(dc.Count(kRed), 100);
    dc.SelectObject(former);
    EXPECT_FALSE(dc.FillRgn(nullptr, &brush));
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

TEST(Draw, EdgesAndFrameControlsDrawSomething)
{
    MemoryDc dc;
    CRect rect(0, 0, 20, 20);
    EXPECT_TRUE(dc.DrawEdge(&rect, EDGE_RAISED, BF_RECT | BF_ADJUST));
    EXPECT_EQ(rect, CRect(2, 2, 18, 18));
    EXPECT_LT(dc.Count(kWhite), 1200);
    MemoryDc other;
    EXPECT_TRUE(other.DrawFrameControl(CRect(0, 0, 16, 16), DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_LT(other.Count(kWhite), 1200);
}

TEST(Draw, DragRectLeavesNothingBehind)
{
    MemoryDc dc;
    const CSize frame(2, 2);
    const CRect first(2, 2, 20, 20);
    const CRect second(5, 5, 25, 25);
    dc.DrawDragRect(first, frame, nullptr, frame);
    EXPECT_LT(dc.Count(kWhite), 1200);
    EXPECT_EQ(dc.GetPixel(10, 10), kWhite);
    dc.DrawDragRect(second, frame, first, frame);
    EXPECT_LT(dc.Count(kWhite), 1200);
    dc.DrawDragRect(second, CSize(0, 0), second, frame);
    EXPECT_EQ(dc.Count(kWhite), 1200);
}

TEST(Draw, DragRectIsInLogicalUnits)
{
    MemoryDc dc;
    CBrush solid(kWhite);
    dc.SetViewportOrg(10, 5);
    dc.DrawDragRect(CRect(0, 0, 10, 10), CSize(1, 1), nullptr, CSize(1, 1), &solid);
    EXPECT_EQ(dc.GetPixel(0, 0), kBlack);
    dc.SetViewportOrg(0, 0);
    EXPECT_EQ(dc.GetPixel(10, 5), kBlack);
    EXPECT_EQ(dc.GetPixel(9, 4), kWhite);
    EXPECT_EQ(dc.Count(kBlack), 36);
}

TEST(Draw, DragRectWithBrushesOfItsOwn)
{
    MemoryDc dc;
    CBrush solid(kWhite);
    CBrush other(RGB(0, 255, 255));
    dc.DrawDragRect(CRect(0, 0, 10, 10), CSize(1, 1), nullptr, CSize(1, 1), &solid);
    EXPECT_EQ(dc.Count(kBlack), 36);
    dc.DrawDragRect(CRect(20, 0, 30, 10), CSize(1, 1), CRect(0, 0, 10, 10), CSize(1, 1), &other, &solid);
    EXPECT_EQ(dc.Count(kBlack), 0);
    EXPECT_EQ(dc.Count(kRed), 36);
}
