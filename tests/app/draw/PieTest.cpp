#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/draw/Pie.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr COLORREF kUsed = RGB(200, 100, 50);
constexpr COLORREF kFree = RGB(40, 80, 240);

// Tops are darkened channel by channel: trunc(c x 0.4 + floor(c / 2)).
constexpr COLORREF kUsedTop = RGB(180, 90, 45);
constexpr COLORREF kFreeTop = RGB(36, 72, 216);
constexpr COLORREF kPieOutline = RGB(128, 128, 128);

/** A pie whose box has its corner at the origin. */
ts::Picture DrawnPie(double ratio)
{
    return ts::Drawn(161, 77, [ratio](CDC& dc) { QorDrawPie(dc, 0, 0, kUsed, kFree, ratio); });
}

TEST(DrawPie, FillsABoxOf160By76)
{
    const ts::Picture picture = ts::Drawn(200, 120, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.5); });
    const CRect bounds = CRect(picture.BoundsOfOthers(ts::kPaper));
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
    return ts::Drawn(181, 97, [share](CDC& dc) {
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
    const ts::Picture picture = ts::Drawn(181, 97, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.25); });
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
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC&) { QorDrawPie(nullptr, 0, 0, kUsed, kFree, 0.5); });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
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
    ts::Drawn(181, 97, [](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, 0.25); });
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
    ts::Drawn(181, 97, [=](CDC& dc) { QorDrawPie(dc, 10, 20, kUsed, kFree, ratio); });
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
    EXPECT_EQ(161 * 77, picture.Count(ts::kPaper));
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

} // namespace
