#include "Triangle.h"

#include "GdiSavers.h"

#include <array>
#include <optional>

namespace
{

/** Corners of a triangle; none for an unknown direction. */
std::optional<std::array<POINT, 3>> TriangleCorners(const RECT& rect, int direction)
{
    const LONG midX = (rect.left + rect.right) / 2;
    const LONG midY = (rect.top + rect.bottom) / 2;
    switch (direction) {
    case kTriangleUp:
        return {{{{midX, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}}}};
    case kTriangleDown:
        return {{{{rect.left, rect.top}, {rect.right, rect.top}, {midX, rect.bottom}}}};
    case kTriangleLeft:
        return {{{{rect.right, rect.top}, {rect.left, midY}, {rect.right, rect.bottom}}}};
    case kTriangleRight:
        return {{{{rect.left, rect.top}, {rect.right, midY}, {rect.left, rect.bottom}}}};
    default:
        return std::nullopt;
    }
}

} // namespace

void QorDrawTriangle(CDC* dc, const RECT& rect, int direction, COLORREF colour)
{
    const auto corners = TriangleCorners(rect, direction);
    if (!dc || !corners) {
        return;
    }
    CBrush brush;
    brush.CreateSolidBrush(colour);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, colour);
    const SelectSaver selectBrush(dc->m_hDC, brush.GetSafeHandle());
    const SelectSaver selectPen(dc->m_hDC, pen.GetSafeHandle());
    if (!selectBrush || !selectPen) {
        return;
    }
    const int fillMode = ::SetPolyFillMode(dc->m_hDC, WINDING);
    ::Polygon(dc->m_hDC, corners->data(), static_cast<int>(corners->size()));
    ::SetPolyFillMode(dc->m_hDC, fillMode);
}
