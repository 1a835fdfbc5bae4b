#include "handles.h"

#include <afxwin.h>

namespace
{
void MakeFrame(const CDC& dc, CRgn& frame, const RECT& rect, SIZE size)
{
    CRect outer(rect);
    CRect inner(rect);
    inner.DeflateRect(size);
    inner.IntersectRect(inner, outer);
    // Regions clip in device units.
    dc.LPtoDP(&outer);
    dc.LPtoDP(&inner);
    CRgn inside;
    inside.CreateRectRgnIndirect(&inner);
    frame.CreateRectRgnIndirect(&outer);
    frame.CombineRgn(&frame, &inside, RGN_DIFF);
}

void InvertFrame(CDC& dc, CRgn& frame, CBrush* pBrush)
{
    const int nSaved = dc.SaveDC();
    RECT box = {};
    // PatBlt takes logical units, in which the clip box comes back.
    dc.SelectClipRgn(&frame, RGN_AND);
    dc.GetClipBox(&box);
    dc.SelectObject(pBrush);
    dc.PatBlt(box.left, box.top, box.right - box.left, box.bottom - box.top, PATINVERT);
    dc.RestoreDC(nSaved);
}
} // namespace

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, gdi::RegionOf(pRgn), gdi::BrushOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, gdi::RegionOf(pRgn), gdi::BrushOf(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    return ::InvertRgn(m_hDC, gdi::RegionOf(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, gdi::RegionOf(pRgn));
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (m_hDC && lpRect && gdi::BrushOf(pBrush)) {
        ::FillRect(m_hDC, lpRect, gdi::BrushOf(pBrush));
    }
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (m_hDC && lpRect && gdi::BrushOf(pBrush)) {
        ::FrameRect(m_hDC, lpRect, gdi::BrushOf(pBrush));
    }
}

void CDC::InvertRect(LPCRECT lpRect)
{
    if (m_hDC && lpRect) {
        ::InvertRect(m_hDC, lpRect);
    }
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect &&
           Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    if (m_hDC && lpRect) {
        ::DrawFocusRect(m_hDC, lpRect);
    }
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return lpRect && ::Ellipse(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect &&
           Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return lpRect && ::Rectangle(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return lpRect && ::RoundRect(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return m_hDC && lpRect && ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return m_hDC && lpRect && ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush, CBrush* pBrushLast)
{
    if (!lpRect) {
        return;
    }
    CBrush* pNew = pBrush ? pBrush : GetHalftoneBrush();
    CBrush* pLast = pBrushLast ? pBrushLast : pNew;
    CRgn newFrame;
    MakeFrame(*this, newFrame, *lpRect, size);
    if (!lpRectLast) {
        return InvertFrame(*this, newFrame, pNew);
    }
    CRgn lastFrame;
    MakeFrame(*this, lastFrame, *lpRectLast, sizeLast);
    if (gdi::BrushOf(pNew) != gdi::BrushOf(pLast)) {
        InvertFrame(*this, lastFrame, pLast);
        return InvertFrame(*this, newFrame, pNew);
    }
    // Drawing what differs only keeps the common part from flickering.
    CRgn changed;
    changed.CreateRectRgn(0, 0, 0, 0);
    changed.CombineRgn(&lastFrame, &newFrame, RGN_XOR);
    InvertFrame(*this, changed, pNew);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    if (!m_hDC || !lpRect) {
        return;
    }
    const COLORREF clrFormer = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrFormer);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (lpRect) {
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
                   clrBottomRight);
    }
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (cx <= 0 || cy <= 0) {
        return;
    }
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}
