#include <QorUI/app/draw/GradientLine.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

#include <span>

namespace
{

TEST(DrawGradientLine, IsTheRowAboveItsStart)
{
    const ts::Picture picture = ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    EXPECT_EQ(CRect(10, 4, 110, 5), CRect(picture.BoundsOfOthers(ts::kPaper)));
}

TEST(DrawGradientLine, FadesFromBlueToWhite)
{
    const ts::Picture picture = ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
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
    ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    const Gradient rule = {
        {{10, 4, 0, 0, 0xC800, 0}, {110, 5, 0xFF00, 0xFF00, 0xFF00, 0}}, {{0, 1}}, GRADIENT_FILL_RECT_H};
    EXPECT_EQ(std::vector{rule}, g_gradients);
}

TEST(DrawGradientLine, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC&) { QorDrawGradientLine(nullptr, CPoint(1, 1), 10); });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

} // namespace
