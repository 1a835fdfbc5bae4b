#include <QorUI/app/draw/Draw.h>
#include <QorUI/app/draw/GdiPlusFlat.h>
#include <tests/app/Drawn.h>
#include <tests/app/OwnResources.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>

namespace
{

constexpr COLORREF kUsed = RGB(200, 100, 50);
constexpr COLORREF kFree = RGB(40, 80, 240);

// Tops are darkened channel by channel: trunc(c x 0.4 + floor(c / 2)).
constexpr COLORREF kUsedTop = RGB(180, 90, 45);
constexpr COLORREF kFreeTop = RGB(36, 72, 216);
constexpr COLORREF kPieOutline = RGB(128, 128, 128);

ts::Picture DrawnBox()
{
    return Drawn(60, 40, [](CDC& dc) { QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7)); });
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
    EXPECT_EQ(kPaper, picture.At(45, 6));
    EXPECT_EQ(kPaper, picture.At(5, 26));
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
    EXPECT_EQ(kPaper, picture.At(44, 7));
    EXPECT_EQ(kPaper, picture.At(6, 25));
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
    EXPECT_EQ(CRect(5, 6, 46, 27), CRect(picture.BoundsOfOthers(kPaper)));
}

TEST(DrawBox, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = Drawn(20, 20, [](CDC&) { QorDrawBox(nullptr, 0, 0, 10, 10, 0); });
    EXPECT_EQ(400, picture.Count(kPaper));
}

TEST(DrawBox, LeavesTheDeviceContextAsItWasAndNothingBehind)
{
    Drawn(60, 40, [](CDC& dc) {
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
    EXPECT_TRUE(ts::NoLeak([] { DrawnBox(); }));
}

/** A pie whose box has its corner at the origin. */
ts::Picture DrawnPie(double ratio)
{
    return Drawn(161, 77, [ratio](CDC& dc) { QorDrawPie(dc, 0, 0, kUsed, kFree, ratio); });
}

TEST(DrawPie, FillsABoxOf160By76)
{
    const ts::Picture picture = Drawn(200, 120, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.5); });
    const CRect bounds = CRect(picture.BoundsOfOthers(kPaper));
    EXPECT_NEAR(10, bounds.left, 1);
    EXPECT_NEAR(20, bounds.top, 1);
    EXPECT_NEAR(170, bounds.right - 1, 1);
    EXPECT_NEAR(96, bounds.bottom - 1, 1);
}

/** What the middle of a share's top looks like: halfway along its middle ray. */
COLORREF TopAt(const ts::Picture& picture, double turn)
{
    const double angle = turn * 2 * 3.14159265358979;
    return picture.At(static_cast<int>(80 + 40 * std::cos(angle)), static_cast<int>(30 + 15 * std::sin(angle)));
}

TEST(DrawPie, QuarterIsClockwiseFromThreeOClock)
{
    const ts::Picture picture = DrawnPie(0.25);
    EXPECT_EQ(kUsedTop, TopAt(picture, 0.03));
    EXPECT_EQ(kUsedTop, TopAt(picture, 0.125));
    EXPECT_EQ(kUsedTop, TopAt(picture, 0.22));
    EXPECT_EQ(kFreeTop, TopAt(picture, 0.28));
    EXPECT_EQ(kFreeTop, TopAt(picture, 0.625));
    EXPECT_EQ(kFreeTop, TopAt(picture, 0.97));
}

/** Whether a rim pixel is a mixture of a share's colour and the grey sheen over it. */
bool IsRimOf(COLORREF pixel, COLORREF share)
{
    const auto between = [](int value, int from) {
        // The sheen has alpha 100 and is between 128 and 255.
        const int low = from + (128 - from) * 100 / 255;
        const int high = from + (255 - from) * 100 / 255;
        return value >= (std::min)(low, high) - 2 && value <= (std::max)(low, high) + 2;
    };
    return between(GetRValue(pixel), GetRValue(share)) && between(GetGValue(pixel), GetGValue(share)) &&
           between(GetBValue(pixel), GetBValue(share));
}

/** A pixel in the middle of the rim below the edge of the disc at a column. */
COLORREF RimAt(const ts::Picture& picture, int x)
{
    const double part = (x - 80) / 80.0;
    return picture.At(x, static_cast<int>(30 + 30 * std::sqrt(1 - part * part) + 8));
}

TEST(DrawPie, QuarterHasTheUsedRimFrom0To90AndTheFreeRimFrom90To180)
{
    const ts::Picture picture = DrawnPie(0.25);
    EXPECT_TRUE(IsRimOf(RimAt(picture, 140), kUsed));
    EXPECT_TRUE(IsRimOf(RimAt(picture, 84), kUsed));
    EXPECT_TRUE(IsRimOf(RimAt(picture, 76), kFree));
    EXPECT_TRUE(IsRimOf(RimAt(picture, 20), kFree));
}

void ExpectAll(const ts::Picture& picture, COLORREF top, COLORREF otherTop, COLORREF rim)
{
    for (const double turn : {0.02, 0.125, 0.375, 0.625, 0.875}) {
        EXPECT_EQ(top, TopAt(picture, turn)) << turn;
    }
    EXPECT_EQ(0, picture.Count(otherTop));
    for (const int x : {12, 40, 80, 120, 148}) {
        EXPECT_TRUE(IsRimOf(RimAt(picture, x), rim)) << x;
    }
}

TEST(DrawPie, RatioZeroIsAllFree)
{
    const ts::Picture picture = DrawnPie(0);
    ExpectAll(picture, kFreeTop, kUsedTop, kFree);
}

TEST(DrawPie, RatioOneIsAllUsed)
{
    const ts::Picture picture = DrawnPie(1);
    ExpectAll(picture, kUsedTop, kFreeTop, kUsed);
}

TEST(DrawPie, RatioAboveOneIsAsOne)
{
    const ts::Picture picture = DrawnPie(2.5);
    const ts::Picture one = DrawnPie(1);
    EXPECT_TRUE(ts::SamePicture(one, picture));
    EXPECT_NE(0, one.Count(kUsedTop));
}

TEST(DrawPie, NegativeRatioAndNoNumberAreAsZero)
{
    const ts::Picture zero = DrawnPie(0);
    for (const double ratio : {-0.3, std::nan("")}) {
        const ts::Picture picture = DrawnPie(ratio);
        EXPECT_TRUE(ts::SamePicture(zero, picture)) << ratio;
    }
    EXPECT_NE(0, zero.Count(kFreeTop));
}

TEST(DrawPie, MoreThanHalfHasNoFreeRim)
{
    const ts::Picture picture = DrawnPie(0.75);
    for (const int x : {12, 40, 80, 120, 148}) {
        EXPECT_TRUE(IsRimOf(RimAt(picture, x), kUsed)) << x;
    }
    EXPECT_EQ(kUsedTop, TopAt(picture, 0.7));
    EXPECT_EQ(kFreeTop, TopAt(picture, 0.8));
}

/** A share's colour under the sheen, over the whole box of a pie with its corner at 10, 20. */
ts::Picture UnderSheen(COLORREF share)
{
    return Drawn(181, 97, [share](CDC& dc) {
        dc.FillSolidRect(0, 0, 181, 97, share);
        Gdiplus::Graphics graphics(dc);
        Gdiplus::LinearGradientBrush sheen(Gdiplus::Rect(10, 20, 160, 76), Gdiplus::Color(100, 128, 128, 128),
                                           Gdiplus::Color(100, 255, 255, 255), -180.0F, FALSE);
        sheen.SetBlendBellShape(0.7F, 1.0F);
        graphics.FillRectangle(&sheen, 10, 20, 160, 76);
    });
}

TEST(DrawPie, SheenOverTheRimIsABellOfGreyAndWhite)
{
    const ts::Picture picture = Drawn(181, 97, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.25); });
    for (const int x : {24, 40, 56, 72, 100, 116, 132, 148, 160}) {
        const double part = (x - 90) / 80.0;
        const int y = static_cast<int>(50 + 30 * std::sqrt(1 - part * part) + 8);
        EXPECT_TRUE(ts::PixelIs(picture, x, y, UnderSheen(x < 90 ? kFree : kUsed).At(x, y), 2));
    }
}

TEST(DrawPie, OutlineIsOnePixelWide)
{
    const ts::Picture picture = DrawnPie(0.25);
    EXPECT_EQ(kPieOutline, picture.At(76, 76)) << "lower edge of the rim";
    EXPECT_NE(kPieOutline, picture.At(76, 75));
    EXPECT_NE(kPieOutline, picture.At(76, 74));
    EXPECT_EQ(kPieOutline, picture.At(120, 30)) << "between the shares";
    EXPECT_NE(kPieOutline, picture.At(120, 29));
    EXPECT_NE(kPieOutline, picture.At(120, 31));
    EXPECT_EQ(kFreeTop, picture.At(40, 30)) << "none inside a share";
}

TEST(DrawPie, IsOutlinedInGrey)
{
    const ts::Picture picture = DrawnPie(0.25);
    EXPECT_GT(picture.Count(kPieOutline), 200);
}

TEST(DrawPie, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = Drawn(20, 20, [](CDC&) { QorDrawPie(nullptr, 0, 0, kUsed, kFree, 0.5); });
    EXPECT_EQ(400, picture.Count(kPaper));
}

int g_drawings = 0;
/** The smoothing modes that were set, each with the number of drawings before it. */
std::vector<std::pair<Gdiplus::SmoothingMode, int>> g_smoothings;

Gdiplus::GpStatus WINGDIPAPI RecordSmoothing(Gdiplus::GpGraphics* graphics, Gdiplus::SmoothingMode mode)
{
    g_smoothings.emplace_back(mode, g_drawings);
    return Gdiplus::DllExports::GdipSetSmoothingMode(graphics, mode);
}

Gdiplus::GpStatus WINGDIPAPI CountFill(Gdiplus::GpGraphics* graphics, Gdiplus::GpBrush* brush, Gdiplus::GpPath* path)
{
    ++g_drawings;
    return Gdiplus::DllExports::GdipFillPath(graphics, brush, path);
}

TEST(DrawPie, IsSmoothedFromTheFirstShareOn)
{
    const ts::ReplacedImport smoothing(L"QorUI.dll", "GdipSetSmoothingMode", &RecordSmoothing);
    const ts::ReplacedImport fill(L"QorUI.dll", "GdipFillPath", &CountFill);
    g_smoothings.clear();
    g_drawings = 0;
    DrawnPie(0.25);
    EXPECT_EQ((std::vector{std::pair(Gdiplus::SmoothingModeAntiAlias, 0)}), g_smoothings);
    EXPECT_EQ(4, g_drawings);
}

/** A brush that fades, as it was asked for. */
struct Fading
{
    int x, y, cx, cy;
    Gdiplus::ARGB from, to;
    float angle;
    BOOL scalable;
    bool operator==(const Fading&) const = default;
};

std::vector<Fading> g_fadings;
std::vector<std::pair<float, float>> g_bells;

Gdiplus::GpStatus WINGDIPAPI RecordFading(const Gdiplus::GpRect* rect, Gdiplus::ARGB from, Gdiplus::ARGB to,
                                          Gdiplus::REAL angle, BOOL scalable, Gdiplus::GpWrapMode mode,
                                          Gdiplus::GpLineGradient** brush)
{
    g_fadings.push_back({rect->X, rect->Y, rect->Width, rect->Height, from, to, angle, scalable});
    return Gdiplus::DllExports::GdipCreateLineBrushFromRectWithAngleI(rect, from, to, angle, scalable, mode, brush);
}

Gdiplus::GpStatus WINGDIPAPI RecordBell(Gdiplus::GpLineGradient* brush, Gdiplus::REAL focus, Gdiplus::REAL scale)
{
    g_bells.emplace_back(focus, scale);
    return Gdiplus::DllExports::GdipSetLineSigmaBlend(brush, focus, scale);
}

TEST(DrawPie, SheenIsOneBrushThatDoesNotScaleItsAngle)
{
    const ts::ReplacedImport fading(L"QorUI.dll", "GdipCreateLineBrushFromRectWithAngleI", &RecordFading);
    const ts::ReplacedImport bell(L"QorUI.dll", "GdipSetLineSigmaBlend", &RecordBell);
    g_fadings.clear();
    g_bells.clear();
    Drawn(181, 97, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.25); });
    EXPECT_EQ((std::vector<Fading>{{10, 20, 160, 76, 0x64808080, 0x64FFFFFF, -180.0F, FALSE}}), g_fadings);
    EXPECT_EQ((std::vector{std::pair(0.7F, 1.0F)}), g_bells);
}

/** Box, start and sweep of an arc or a pie. */
struct Sweep
{
    int x, y, cx, cy;
    float start, sweep;
    bool operator==(const Sweep&) const = default;
};

std::vector<Sweep> g_arcs, g_filledPies, g_drawnPies;
int g_closed = 0;

Gdiplus::GpStatus WINGDIPAPI RecordArc(Gdiplus::GpPath*, INT x, INT y, INT cx, INT cy, Gdiplus::REAL start,
                                       Gdiplus::REAL sweep)
{
    g_arcs.push_back({x, y, cx, cy, start, sweep});
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI CountClosed(Gdiplus::GpPath*)
{
    EXPECT_EQ(0u, g_arcs.size() % 2) << "closed after its second arc";
    ++g_closed;
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI RecordFilledPie(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, INT x, INT y, INT cx, INT cy,
                                             Gdiplus::REAL start, Gdiplus::REAL sweep)
{
    g_filledPies.push_back({x, y, cx, cy, start, sweep});
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI RecordDrawnPie(Gdiplus::GpGraphics*, Gdiplus::GpPen*, INT x, INT y, INT cx, INT cy,
                                            Gdiplus::REAL start, Gdiplus::REAL sweep)
{
    g_drawnPies.push_back({x, y, cx, cy, start, sweep});
    return Gdiplus::Ok;
}

/** Expects the arcs of the rims and the pies of the tops of a pie at 10, 20, in their order. */
void ExpectShares(double ratio, const std::vector<Sweep>& rims, const std::vector<Sweep>& tops)
{
    const ts::ReplacedImport arc(L"QorUI.dll", "GdipAddPathArcI", &RecordArc);
    const ts::ReplacedImport close(L"QorUI.dll", "GdipClosePathFigure", &CountClosed);
    const ts::ReplacedImport fill(L"QorUI.dll", "GdipFillPieI", &RecordFilledPie);
    const ts::ReplacedImport draw(L"QorUI.dll", "GdipDrawPieI", &RecordDrawnPie);
    g_arcs.clear();
    g_filledPies.clear();
    g_drawnPies.clear();
    g_closed = 0;
    Drawn(181, 97, [=](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, ratio); });
    EXPECT_EQ(rims, g_arcs);
    EXPECT_EQ(rims.size() / 2, static_cast<size_t>(g_closed));
    EXPECT_EQ(tops, g_filledPies);
    EXPECT_EQ(tops, g_drawnPies);
}

TEST(DrawPie, SharesUpToHalfHaveARimEach)
{
    ExpectShares(
        0.25,
        {{10, 20, 160, 60, 0, 90}, {10, 36, 160, 60, 90, -90}, {10, 20, 160, 60, 90, 90}, {10, 36, 160, 60, 180, -90}},
        {{10, 20, 160, 60, 0, 90}, {10, 20, 160, 60, 90, 270}});
}

TEST(DrawPie, RimEndsWithTheFrontHalf)
{
    for (const double ratio : {0.5, 0.75}) {
        const auto angle = static_cast<float>(ratio * 360);
        ExpectShares(ratio, {{10, 20, 160, 60, 0, 180}, {10, 36, 160, 60, 180, -180}},
                     {{10, 20, 160, 60, 0, angle}, {10, 20, 160, 60, angle, 360 - angle}});
    }
}

Gdiplus::GpStatus WINGDIPAPI NoGraphics(HDC, Gdiplus::GpGraphics**)
{
    return Gdiplus::GdiplusNotInitialized;
}

Gdiplus::GpStatus WINGDIPAPI NoPen(Gdiplus::ARGB, Gdiplus::REAL, Gdiplus::GpUnit, Gdiplus::GpPen**)
{
    return Gdiplus::OutOfMemory;
}

Gdiplus::GpStatus WINGDIPAPI NoFading(const Gdiplus::GpRect*, Gdiplus::ARGB, Gdiplus::ARGB, Gdiplus::REAL, BOOL,
                                      Gdiplus::GpWrapMode, Gdiplus::GpLineGradient**)
{
    return Gdiplus::OutOfMemory;
}

/** How many of the library's GDI+ objects are not deleted yet. */
int g_objects = 0;

Gdiplus::GpStatus WINGDIPAPI DeleteGraphics(Gdiplus::GpGraphics* graphics)
{
    --g_objects;
    return Gdiplus::DllExports::GdipDeleteGraphics(graphics);
}

Gdiplus::GpStatus WINGDIPAPI MakeGraphics(HDC dc, Gdiplus::GpGraphics** graphics)
{
    ++g_objects;
    return Gdiplus::DllExports::GdipCreateFromHDC(dc, graphics);
}

void ExpectNoPie()
{
    const ts::ReplacedImport deletion(L"QorUI.dll", "GdipDeleteGraphics", &DeleteGraphics);
    const ts::ReplacedImport fill(L"QorUI.dll", "GdipFillPath", &CountFill);
    g_drawings = 0;
    const ts::Picture picture = DrawnPie(0.25);
    EXPECT_EQ(161 * 77, picture.Count(kPaper));
    EXPECT_EQ(0, g_drawings);
}

TEST(DrawPie, WithoutGraphicsNothingIsDrawn)
{
    const ts::ReplacedImport none(L"QorUI.dll", "GdipCreateFromHDC", &NoGraphics);
    ExpectNoPie();
}

TEST(DrawPie, WithoutPenOrSheenNothingIsDrawnAndTheGraphicsAreDeleted)
{
    g_objects = 0;
    const ts::ReplacedImport make(L"QorUI.dll", "GdipCreateFromHDC", &MakeGraphics);
    {
        const ts::ReplacedImport none(L"QorUI.dll", "GdipCreatePen1", &NoPen);
        ExpectNoPie();
    }
    {
        const ts::ReplacedImport none(L"QorUI.dll", "GdipCreateLineBrushFromRectWithAngleI", &NoFading);
        ExpectNoPie();
    }
    EXPECT_EQ(0, g_objects);
}

TEST(DrawPie, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] { DrawnPie(0.25); }));
}

TEST(DrawGradientLine, IsTheRowAboveItsStart)
{
    const ts::Picture picture = Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    EXPECT_EQ(CRect(10, 4, 110, 5), CRect(picture.BoundsOfOthers(kPaper)));
}

TEST(DrawGradientLine, FadesFromBlueToWhite)
{
    const ts::Picture picture = Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    const auto expectNear = [](COLORREF expected, COLORREF pixel) {
        EXPECT_NEAR(GetRValue(expected), GetRValue(pixel), 4);
        EXPECT_NEAR(GetGValue(expected), GetGValue(pixel), 4);
        EXPECT_NEAR(GetBValue(expected), GetBValue(pixel), 4);
    };
    expectNear(RGB(0, 0, 200), picture.At(10, 4));
    expectNear(RGB(127, 127, 227), picture.At(60, 4));
    expectNear(RGB(255, 255, 255), picture.At(109, 4));
}

/** A gradient as the system was asked for it: position, red, green, blue and alpha of each corner, and the mesh. */
struct Gradient
{
    std::vector<std::vector<LONG>> corners;
    std::vector<std::pair<ULONG, ULONG>> rects;
    ULONG mode;
    bool operator==(const Gradient&) const = default;
};

std::vector<Gradient> g_gradients;

BOOL WINAPI RecordGradient(HDC, TRIVERTEX* corners, ULONG count, void* mesh, ULONG rects, ULONG mode)
{
    Gradient gradient = {{}, {}, mode};
    for (const TRIVERTEX& corner : std::span(corners, count)) {
        gradient.corners.push_back({corner.x, corner.y, corner.Red, corner.Green, corner.Blue, corner.Alpha});
    }
    for (const GRADIENT_RECT& rect : std::span(static_cast<GRADIENT_RECT*>(mesh), rects)) {
        gradient.rects.emplace_back(rect.UpperLeft, rect.LowerRight);
    }
    g_gradients.push_back(gradient);
    return TRUE;
}

TEST(DrawGradientLine, IsOneGradientWithItsEndsInSixteenBitsAndNoAlpha)
{
    const ts::ReplacedImport record(L"afx.dll", "GdiGradientFill", &RecordGradient);
    g_gradients.clear();
    Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    const Gradient rule = {
        {{10, 4, 0, 0, 0xC800, 0}, {110, 5, 0xFF00, 0xFF00, 0xFF00, 0}}, {{0, 1}}, GRADIENT_FILL_RECT_H};
    EXPECT_EQ(std::vector{rule}, g_gradients);
}

TEST(DrawGradientLine, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = Drawn(20, 20, [](CDC&) { QorDrawGradientLine(nullptr, CPoint(1, 1), 10); });
    EXPECT_EQ(400, picture.Count(kPaper));
}

/** A bitmap of the screen's depth with one pixel of each colour. */
class ColourRow
{
  public:
    explicit ColourRow(std::initializer_list<COLORREF> colours)
    {
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, static_cast<int>(colours.size()), 1);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc.m_hDC, m_bitmap.GetSafeHandle());
        int x = 0;
        for (const COLORREF colour : colours) {
            ::SetPixel(dc.m_hDC, x++, 0, colour);
        }
        ::SelectObject(dc.m_hDC, old);
    }
    HBITMAP Handle() { return m_bitmap; }

  private:
    CBitmap m_bitmap;
};

std::vector<COLORREF> PixelsOf(HBITMAP bitmap)
{
    const ts::Picture picture = ts::PictureOf(bitmap);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            pixels.push_back(picture.At(x, y));
        }
    }
    return pixels;
}

TEST(GrayBmp, WeighsTheColoursAndCutsOff)
{
    ColourRow source({RGB(255, 255, 255), RGB(255, 0, 0), RGB(250, 0, 0), RGB(0, 250, 0), RGB(0, 0, 250)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    const std::vector<COLORREF> expected = {RGB(255, 255, 255), RGB(76, 76, 76), RGB(74, 74, 74), RGB(146, 146, 146),
                                            RGB(28, 28, 28)};
    EXPECT_EQ(expected, PixelsOf(gray));
}

TEST(GrayBmp, BlackStaysBlack)
{
    ColourRow source({0, RGB(255, 0, 0), 0});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ((std::vector<COLORREF>{0, RGB(76, 76, 76), 0}), PixelsOf(gray));
}

TEST(GrayBmp, HasTheSizeAndDepthOfTheSourceAndLeavesItAlone)
{
    ColourRow source({RGB(255, 0, 0), RGB(0, 255, 0)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    BITMAP of = {};
    BITMAP copy = {};
    ::GetObjectW(source.Handle(), sizeof(of), &of);
    gray.GetBitmap(&copy);
    EXPECT_EQ(of.bmWidth, copy.bmWidth);
    EXPECT_EQ(of.bmHeight, copy.bmHeight);
    EXPECT_EQ(of.bmPlanes, copy.bmPlanes);
    EXPECT_EQ(of.bmBitsPixel, copy.bmBitsPixel);
    EXPECT_EQ((std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0)}), PixelsOf(source.Handle()));
}

TEST(GrayBmp, CopyOfABlackAndWhiteBitmapIsTheSame)
{
    const WORD bits[] = {0x00A0, 0x0060}; // of each row, the first byte's upper bits
    CBitmap source;
    ASSERT_TRUE(source.CreateBitmap(3, 2, 1, 1, bits));
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source)));
    BITMAP copy = {};
    gray.GetBitmap(&copy);
    EXPECT_EQ(3, copy.bmWidth);
    EXPECT_EQ(2, copy.bmHeight);
    EXPECT_EQ(1, copy.bmPlanes);
    EXPECT_EQ(1, copy.bmBitsPixel);
    const COLORREF white = RGB(255, 255, 255);
    EXPECT_EQ((std::vector<COLORREF>{white, 0, white, 0, white, white}), PixelsOf(gray));
}

TEST(GrayBmp, NoBitmapGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    EXPECT_EQ(nullptr, QorCreateGrayBmp(static_cast<HBITMAP>(::GetStockObject(WHITE_BRUSH))));
}

TEST(GrayBmp, LeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    EXPECT_TRUE(ts::NoLeak([&] {
        CBitmap gray;
        EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
        EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    }));
}

TEST(GrayBmp, BitmapThatIsInUseGivesNullAndLeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc.m_hDC, source.Handle());
    EXPECT_TRUE(ts::NoLeak([&] { EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle())); }));
    ::SelectObject(dc.m_hDC, old);
}

int g_dcsLeft = 0;

HDC WINAPI FewMemoryDcs(HDC like)
{
    return g_dcsLeft-- > 0 ? ::CreateCompatibleDC(like) : nullptr;
}

TEST(GrayBmp, WithoutADeviceContextGivesNullAndReleasesTheOthers)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    for (const int left : {0, 1}) {
        EXPECT_TRUE(ts::NoLeak([&] {
            g_dcsLeft = left;
            EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
        })) << left;
    }
}

int g_screenDcs = 0;

HDC WINAPI TakeScreenDc(HWND wnd)
{
    ++g_screenDcs;
    return ::GetDC(wnd);
}

HDC WINAPI NoScreenDc(HWND)
{
    return nullptr;
}

int WINAPI GiveBackScreenDc(HWND wnd, HDC dc)
{
    --g_screenDcs;
    return ::ReleaseDC(wnd, dc);
}

TEST(GrayBmp, GivesTheScreenBack)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport take(L"QorUI.dll", "GetDC", &TakeScreenDc);
    const ts::ReplacedImport giveBack(L"QorUI.dll", "ReleaseDC", &GiveBackScreenDc);
    g_screenDcs = 0;
    CBitmap gray;
    EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ(0, g_screenDcs);
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    g_dcsLeft = 1;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(0, g_screenDcs);
}

TEST(GrayBmp, WithoutScreenGivesNull)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport none(L"QorUI.dll", "GetDC", &NoScreenDc);
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
}

TEST(GrayIcon, IsDrawnGreyWithTheSameMask)
{
    const HICON icon = ::LoadIconW(Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const HICON gray = QorCreateGrayIcon(icon);
    ASSERT_NE(nullptr, gray);
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(gray, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    const std::vector<COLORREF> pixels = PixelsOf(colour);
    ASSERT_EQ(1024u, pixels.size());
    EXPECT_EQ(RGB(76, 76, 76), pixels[0]);
    EXPECT_EQ(RGB(255, 255, 255), pixels[31]);
    EXPECT_EQ(0u, pixels[992]);
    EXPECT_EQ(1024u, PixelsOf(mask).size());
    EXPECT_EQ(0u, PixelsOf(mask)[0]);
    ::DestroyIcon(gray);
    ICONINFO still = {};
    EXPECT_TRUE(::GetIconInfo(icon, &still)) << "the source icon lives on";
    ::DeleteObject(still.hbmColor);
    ::DeleteObject(still.hbmMask);
}

/** A black icon of the screen's depth. */
HICON IconWithMask(const std::vector<BYTE>& mask)
{
    CBitmap colours;
    CClientDC screen(nullptr);
    colours.CreateCompatibleBitmap(&screen, 32, 32);
    CBitmap shape;
    shape.CreateBitmap(32, 32, 1, 1, mask.data());
    ICONINFO info = {TRUE, 0, 0, shape, colours};
    return ::CreateIconIndirect(&info);
}

std::vector<COLORREF> MaskOf(HICON icon)
{
    ICONINFO info = {};
    EXPECT_TRUE(::GetIconInfo(icon, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    return PixelsOf(mask);
}

TEST(GrayIcon, HasTheWholeMaskOfTheIcon)
{
    std::vector<BYTE> mask;
    for (int row = 0; row < 32; ++row) {
        mask.insert(mask.end(), {0x00, 0x00, 0xFF, static_cast<BYTE>(row < 16 ? 0xF0 : 0x0F)});
    }
    const HICON icon = IconWithMask(mask);
    ASSERT_NE(nullptr, icon);
    const HICON gray = QorCreateGrayIcon(icon);
    const std::vector<COLORREF> expected = MaskOf(icon);
    EXPECT_EQ(32 * 12, std::count(expected.begin(), expected.end(), RGB(255, 255, 255)));
    EXPECT_EQ(expected, MaskOf(gray));
    ::DestroyIcon(gray);
    ::DestroyIcon(icon);
}

HICON WINAPI NoIcon(ICONINFO*)
{
    return nullptr;
}

TEST(GrayIcon, ThatCannotBeMadeGivesNullAndLeavesNothingBehind)
{
    const HICON icon = ::LoadIconW(Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const ts::ReplacedImport none(L"QorUI.dll", "CreateIconIndirect", &NoIcon);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(icon)); }));
}

TEST(GrayIcon, NoIconGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayIcon(nullptr));
}

TEST(GrayIcon, BitmapsAreFreedOnEveryPath)
{
    const HICON colours = ::LoadIconW(Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    EXPECT_TRUE(ts::NoLeak([=] {
        const HICON gray = QorCreateGrayIcon(colours);
        EXPECT_NE(nullptr, gray);
        ::DestroyIcon(gray);
    }));
    const HICON monochrome = ::LoadIconW(Program(), MAKEINTRESOURCEW(IDI_MONO));
    ASSERT_NE(nullptr, monochrome);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(monochrome)); }));
}

TEST(ImageList, StripOf80By16GivesFiveSquareImages)
{
    CImageList list;
    UINT size = 0;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, Program(), RGB(255, 255, 255), &size));
    EXPECT_EQ(16u, size);
    int cx = 0;
    int cy = 0;
    ASSERT_TRUE(::ImageList_GetIconSize(list.m_hImageList, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST(ImageList, NullModuleMeansTheProgram)
{
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, nullptr, RGB(255, 255, 255), nullptr));
}

TEST(ImageList, MaskColourIsTransparent)
{
    CImageList list;
    ASSERT_EQ(5, QorCreateImageList(list, IDB_ICONS, Program(), RGB(255, 255, 255), nullptr));
    const ts::Picture picture =
        Drawn(16, 16, [&](CDC& dc) { ::ImageList_Draw(list.m_hImageList, 1, dc, 0, 0, ILD_TRANSPARENT); });
    EXPECT_EQ(kPaper, picture.At(0, 5));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(1, 5));
}

TEST(ImageList, MissingBitmapGivesNoImages)
{
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_MISSING, Program(), 0, &size));
    EXPECT_EQ(77u, size);
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(ImageList, StripWithoutHeightGivesNoImages)
{
    CImageList list;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_FLAT, Program(), 0, nullptr));
}

/** Width, height, flags, initial number and growth of the image lists that were made. */
std::vector<std::vector<UINT>> g_imageLists;

HIMAGELIST WINAPI RecordImageList(int cx, int cy, UINT flags, int initial, int grow)
{
    g_imageLists.push_back(
        {static_cast<UINT>(cx), static_cast<UINT>(cy), flags, static_cast<UINT>(initial), static_cast<UINT>(grow)});
    return ::ImageList_Create(cx, cy, flags, initial, grow);
}

TEST(ImageList, IsMadeForTheImagesOfTheStripAndGrowsByOne)
{
    const ts::ReplacedImport record(L"afx.dll", "ImageList_Create", &RecordImageList);
    g_imageLists.clear();
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, Program(), 0, nullptr));
    EXPECT_EQ((std::vector<std::vector<UINT>>{{16, 16, ILC_COLORDDB | ILC_MASK, 5, 1}}), g_imageLists);
}

HIMAGELIST WINAPI NoImageList(int, int, UINT, int, int)
{
    return nullptr;
}

TEST(ImageList, ThatCannotBeMadeGivesNoImagesAndLeavesNothingBehind)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_Create", &NoImageList);
    UINT size = 77;
    EXPECT_TRUE(ts::NoLeak([&] {
        CImageList list;
        EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, Program(), 0, &size));
        EXPECT_EQ(nullptr, list.m_hImageList);
    }));
    EXPECT_EQ(77u, size);
}

int WINAPI NoImages(HIMAGELIST, HBITMAP, COLORREF)
{
    return -1;
}

TEST(ImageList, ThatTakesNoImagesHasNoneButTheirSizeIsTold)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_AddMasked", &NoImages);
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, Program(), 0, &size));
    EXPECT_EQ(16u, size);
}

TEST(ImageList, BitmapIsFreedOnEveryPath)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CImageList list;
        EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, Program(), 0, nullptr));
        CImageList none;
        EXPECT_EQ(0, QorCreateImageList(none, IDB_FLAT, Program(), 0, nullptr));
    }));
}

TEST(WithoutGdiHandles, BoxIsNotDrawnAndNothingIsThrown)
{
    const ts::Picture picture = Drawn(60, 40, [](CDC& dc) {
        const ts::GdiShortage shortage;
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
    });
    EXPECT_EQ(60 * 40, picture.Count(kPaper));
}

TEST(WithoutGdiHandles, GreyPicturesAndImageListsAreRefused)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const HICON icon = ::LoadIconW(Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    CImageList list;
    UINT size = 77;
    const ts::GdiShortage shortage;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(nullptr, QorCreateGrayIcon(icon));
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, Program(), 0, &size));
    EXPECT_EQ(77u, size);
}

/** A tree and a list, each with items, in a window. */
class PopupPoint : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_tree.SubclassWindow(m_host.Add(WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE, 10, 20, 150, 200, 1));
        m_list.SubclassWindow(
            m_host.Add(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST | LVS_SHOWSELALWAYS, 200, 30, 150, 200, 2));
        m_tree.InsertItem(L"first");
        m_second = m_tree.InsertItem(L"second");
        m_list.InsertItem(0, L"first");
        m_list.InsertItem(1, L"second");
        m_list.InsertItem(2, L"third");
    }
    void TearDown() override
    {
        m_tree.UnsubclassWindow();
        m_list.UnsubclassWindow();
    }

    static CPoint ScreenCentre(const CWnd& wnd, CRect rect)
    {
        CPoint centre((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        ::ClientToScreen(wnd.m_hWnd, &centre);
        return centre;
    }

    ts::HostWindow m_host;
    CTreeCtrl m_tree;
    CListCtrl m_list;
    HTREEITEM m_second = nullptr;
};

TEST_F(PopupPoint, MousePointIsKept)
{
    for (const CPoint given : {CPoint(0, 0), CPoint(7, 9)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(given, point);
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(given, point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeGivesTheMiddleOfTheSelectedItem)
{
    m_tree.SelectItem(m_second);
    CRect item;
    ASSERT_TRUE(m_tree.GetItemRect(m_second, &item, TRUE));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1), CPoint(-1, -1)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(ScreenCentre(m_tree, item), point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeWithoutSelectionGivesItsCorner)
{
    m_tree.SelectItem(nullptr);
    CPoint point(-1, -1);
    QorGetTreePopupPoint(m_tree, point);
    EXPECT_EQ(ScreenCentre(m_tree, CRect(0, 0, 0, 0)), point);
}

TEST_F(PopupPoint, KeyboardOverListGivesTheMiddleOfTheFirstSelectedLabel)
{
    m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(1, &label, LVIR_LABEL));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1)}) {
        CPoint point = given;
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(ScreenCentre(m_list, label), point);
    }
}

TEST_F(PopupPoint, KeyboardOverListWithoutSelectionGivesItsCorner)
{
    CPoint point(-1, -1);
    QorGetListPopupPoint(m_list, point);
    EXPECT_EQ(ScreenCentre(m_list, CRect(0, 0, 0, 0)), point);
}

} // namespace
