#include "Box.h"

#include "GdiSavers.h"

namespace
{

constexpr COLORREF kBoxOuterLight = RGB(168, 168, 152);
constexpr COLORREF kBoxOuterDark = RGB(248, 252, 248);
constexpr COLORREF kBoxInnerLight = RGB(112, 108, 96);
constexpr COLORREF kBoxInnerDark = RGB(240, 236, 224);

void DrawLine(HDC dc, POINT from, POINT to)
{
    ::MoveToEx(dc, from.x, from.y, nullptr);
    ::LineTo(dc, to.x, to.y);
}

/** Draws two lines that meet in a corner; nothing when there is no pen to be had. */
void DrawCorner(HDC dc, POINT corner, POINT oneEnd, POINT otherEnd, COLORREF colour)
{
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, colour);
    const SelectSaver select(dc, pen.GetSafeHandle());
    if (select) {
        DrawLine(dc, corner, oneEnd);
        DrawLine(dc, corner, otherEnd);
    }
}

void DrawEdge(HDC dc, const CRect& rect, COLORREF topLeft, COLORREF bottomRight)
{
    const POINT rightTop = {rect.right, rect.top};
    const POINT leftBottom = {rect.left, rect.bottom};
    DrawCorner(dc, {rect.left, rect.top}, rightTop, leftBottom, topLeft);
    DrawCorner(dc, {rect.right, rect.bottom}, rightTop, leftBottom, bottomRight);
}

} // namespace

void QorDrawBox(HDC dc, int x, int y, int cx, int cy, COLORREF fill)
{
    CRect rect(x, y, x + cx, y + cy);
    DrawEdge(dc, rect, kBoxOuterLight, kBoxOuterDark);
    rect.DeflateRect(1, 1);
    DrawEdge(dc, rect, kBoxInnerLight, kBoxInnerDark);
    rect.DeflateRect(1, 1);
    CBrush brush;
    if (brush.CreateSolidBrush(fill)) {
        ::FillRect(dc, &rect, brush);
    }
}
