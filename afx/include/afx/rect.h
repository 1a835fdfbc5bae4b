#pragma once

/** @file
 *  Points, sizes and rectangles: the system's structures with operations. Units are those of the caller (pixels
 * mostly). */

#include <afx/config.h>

class CPoint;
class CRect;

/** A width and a height. */
class CSize : public tagSIZE
{
  public:
    CSize() noexcept
    {
        cx = 0;
        cy = 0;
    }
    CSize(int initCX, int initCY) noexcept
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept
    {
        cx = initPt.x;
        cy = initPt.y;
    }
    /** @param dwSize width in the low word, height in the high word, both signed */
    CSize(DWORD dwSize) noexcept
    {
        cx = static_cast<short>(LOWORD(dwSize));
        cy = static_cast<short>(HIWORD(dwSize));
    }

    bool operator==(const CSize& size) const noexcept { return cx == size.cx && cy == size.cy; }
    bool operator!=(const CSize& size) const noexcept { return !(*this == size); }
    bool operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept
    {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) noexcept
    {
        cx -= size.cx;
        cy -= size.cy;
    }
    void SetSize(int CX, int CY) noexcept
    {
        cx = CX;
        cy = CY;
    }
    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/** A place. */
class CPoint : public tagPOINT
{
  public:
    CPoint() noexcept
    {
        x = 0;
        y = 0;
    }
    CPoint(int initX, int initY) noexcept
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept
    {
        x = initSize.cx;
        y = initSize.cy;
    }
    /** @param dwPoint x in the low word, y in the high word, both signed, as in a mouse message */
    CPoint(LPARAM dwPoint) noexcept
    {
        x = static_cast<short>(LOWORD(dwPoint));
        y = static_cast<short>(HIWORD(dwPoint));
    }

    void Offset(int xOffset, int yOffset) noexcept
    {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) noexcept
    {
        x = X;
        y = Y;
    }
    bool operator==(const CPoint& point) const noexcept { return x == point.x && y == point.y; }
    bool operator!=(const CPoint& point) const noexcept { return !(*this == point); }
    bool operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/** A rectangle. Functions that need left <= right and top <= bottom say so; NormalizeRect makes it so. */
class CRect : public tagRECT
{
  public:
    CRect() noexcept { SetRectEmpty(); }
    CRect(int l, int t, int r, int b) noexcept { SetRect(l, t, r, b); }
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept { SetRect(point.x, point.y, point.x + size.cx, point.y + size.cy); }
    CRect(POINT topLeft, POINT bottomRight) noexcept { SetRect(topLeft, bottomRight); }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    /** The left and top edges belong to the rectangle, the right and bottom ones do not. */
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept
    {
        left = x1;
        top = y1;
        right = x2;
        bottom = y2;
    }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept
    {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT lpSrcRect) noexcept
    {
        SetRect(lpSrcRect->left, lpSrcRect->top, lpSrcRect->right, lpSrcRect->bottom);
    }

    /** Moves every side outwards by the given distances. */
    void InflateRect(int l, int t, int r, int b) noexcept { SetRect(left - l, top - t, right + r, bottom + b); }
    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept { InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept { DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }

    void OffsetRect(int x, int y) noexcept { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT pt) noexcept { MoveToXY(pt.x, pt.y); }

    /** Swaps sides until left <= right and top <= bottom. */
    void NormalizeRect() noexcept
    {
        if (left > right) {
            SwapLeftRight(this);
        }
        if (top > bottom) {
            const LONG old = top;
            top = bottom;
            bottom = old;
        }
    }
    void SwapLeftRight() noexcept { SwapLeftRight(this); }
    static void SwapLeftRight(LPRECT lpRect) noexcept
    {
        const LONG old = lpRect->left;
        lpRect->left = lpRect->right;
        lpRect->right = old;
    }

    /** @return zero when the result is empty */
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::IntersectRect(this, lpRect1, lpRect2); }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    CRect& operator=(const RECT& srcRect) noexcept
    {
        CopyRect(&srcRect);
        return *this;
    }
    bool operator==(const CRect& rect) const noexcept { return EqualRect(&rect) != FALSE; }
    bool operator!=(const CRect& rect) const noexcept { return !EqualRect(&rect); }
    bool operator==(const RECT& rect) const noexcept { return EqualRect(&rect) != FALSE; }
    bool operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(CRect(*this), &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(CRect(*this), &rect); }

    CRect operator+(POINT point) const noexcept
    {
        return Changed([&](CRect& rect) { rect += point; });
    }
    CRect operator-(POINT point) const noexcept
    {
        return Changed([&](CRect& rect) { rect -= point; });
    }
    CRect operator+(SIZE size) const noexcept
    {
        return Changed([&](CRect& rect) { rect += size; });
    }
    CRect operator-(SIZE size) const noexcept
    {
        return Changed([&](CRect& rect) { rect -= size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept
    {
        return Changed([&](CRect& rect) { rect += lpRect; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept
    {
        return Changed([&](CRect& rect) { rect -= lpRect; });
    }
    CRect operator&(const RECT& rect2) const noexcept
    {
        return Changed([&](CRect& rect) { rect &= rect2; });
    }
    CRect operator|(const RECT& rect2) const noexcept
    {
        return Changed([&](CRect& rect) { rect |= rect2; });
    }
    /** Scales every side by nMultiplier / nDivisor. */
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept
    {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }

  private:
    template <typename Change>
    CRect Changed(Change change) const noexcept
    {
        CRect rect(*this);
        change(rect);
        return rect;
    }
};

inline CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(cx + point.x, cy + point.y);
}

inline CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(cx - point.x, cy - point.y);
}

inline CRect CSize::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CSize::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

inline CRect CPoint::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CPoint::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}
