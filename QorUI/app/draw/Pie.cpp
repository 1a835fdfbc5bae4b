#include "Pie.h"

#include "GdiPlusFlat.h"

#include <cmath>

using namespace Gdiplus::DllExports;
using Gdiplus::ARGB;

namespace
{

constexpr int kDiscWidth = 160;
constexpr int kDiscHeight = 60;
constexpr int kRimHeight = 16;
constexpr float kFullTurn = 360.0F;
constexpr float kHalfTurn = 180.0F;
constexpr ARGB kOutline = 0xFF808080;
constexpr ARGB kSheenFrom = 0x64808080;
constexpr ARGB kSheenTo = 0x64FFFFFF;
constexpr float kSheenAngle = -180.0F;
constexpr float kSheenFocus = 0.7F;
constexpr float kSheenScale = 1.0F;

/** What every share of a pie is drawn with. */
struct PieTools
{
    QorGdip::Graphics graphics;
    QorGdip::Pen outline;
    QorGdip::LineBrush sheen;

    explicit operator bool() const { return graphics && outline && sheen; }
};

QorGdip::LineBrush MakeSheen(int x, int y)
{
    const Gdiplus::GpRect bounds(x, y, kDiscWidth, kDiscHeight + kRimHeight);
    Gdiplus::GpLineGradient* brush = nullptr;
    GdipCreateLineBrushFromRectWithAngleI(&bounds, kSheenFrom, kSheenTo, kSheenAngle, FALSE, Gdiplus::WrapModeTile,
                                          &brush);
    QorGdip::LineBrush sheen(brush);
    if (sheen) {
        GdipSetLineSigmaBlend(sheen.Get(), kSheenFocus, kSheenScale);
    }
    return sheen;
}

PieTools MakeTools(HDC dc, int x, int y)
{
    PieTools tools = {QorGdip::GraphicsOn(dc), QorGdip::SolidPen(kOutline, 1.0F), MakeSheen(x, y)};
    if (tools.graphics) {
        GdipSetSmoothingMode(tools.graphics.Get(), Gdiplus::SmoothingModeAntiAlias);
    }
    return tools;
}

ARGB Darkened(ARGB colour)
{
    ARGB result = colour & 0xFF000000U;
    for (int shift = 0; shift <= 16; shift += 8) {
        const auto channel = static_cast<int>((colour >> shift) & 0xFF);
        const int half = channel / 2;
        const auto dark = static_cast<int>(channel * 0.8 * 0.5 + half);
        result |= static_cast<ARGB>(dark & 0xFF) << shift;
    }
    return result;
}

/** Draws the rim of a share from `start` degrees over `sweep` degrees of the front half. */
void DrawRim(const PieTools& tools, int x, int y, ARGB colour, float start, float sweep)
{
    const QorGdip::Path path = QorGdip::NewPath();
    const QorGdip::SolidBrush brush = QorGdip::Solid(colour);
    if (!path || !brush) {
        return;
    }
    GdipAddPathArcI(path.Get(), x, y, kDiscWidth, kDiscHeight, start, sweep);
    GdipAddPathArcI(path.Get(), x, y + kRimHeight, kDiscWidth, kDiscHeight, start + sweep, -sweep);
    GdipClosePathFigure(path.Get());
    GdipFillPath(tools.graphics.Get(), brush.Get(), path.Get());
    GdipFillPath(tools.graphics.Get(), tools.sheen.Get(), path.Get());
    GdipDrawPath(tools.graphics.Get(), tools.outline.Get(), path.Get());
}

void DrawTop(const PieTools& tools, int x, int y, ARGB colour, float start, float sweep)
{
    const QorGdip::SolidBrush brush = QorGdip::Solid(Darkened(colour));
    if (!brush) {
        return;
    }
    GdipFillPieI(tools.graphics.Get(), brush.Get(), x, y, kDiscWidth, kDiscHeight, start, sweep);
    GdipDrawPieI(tools.graphics.Get(), tools.outline.Get(), x, y, kDiscWidth, kDiscHeight, start, sweep);
}

} // namespace

void QorDrawPie(HDC dc, int x, int y, COLORREF usedColour, COLORREF freeColour, double ratio)
{
    const PieTools tools = MakeTools(dc, x, y);
    if (!tools) {
        return;
    }
    const double used = ratio > 0 ? std::fmin(ratio, 1.0) : 0.0;
    const auto angle = static_cast<float>(used * kFullTurn);
    const float front = std::fmin(angle, kHalfTurn);
    const ARGB usedArgb = QorGdip::Opaque(usedColour);
    const ARGB freeArgb = QorGdip::Opaque(freeColour);
    DrawRim(tools, x, y, usedArgb, 0, front);
    if (front < kHalfTurn) {
        DrawRim(tools, x, y, freeArgb, front, kHalfTurn - front);
    }
    DrawTop(tools, x, y, usedArgb, 0, angle);
    DrawTop(tools, x, y, freeArgb, angle, kFullTurn - angle);
}
