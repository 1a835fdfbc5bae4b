#include "bothcontexts.h"
#include "handles.h"

#include <afxwin.h>

namespace
{
void SyncPosition(const CDC& dc)
{
    POINT point = {};
    if (dc.m_hAttribDC && dc.m_hAttribDC != dc.m_hDC && ::GetCurrentPositionEx(dc.m_hDC, &point)) {
        ::MoveToEx(dc.m_hAttribDC, point.x, point.y, nullptr);
    }
}
} // namespace

CPoint CDC::GetCurrentPosition() const
{
    POINT point = {};
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    return gdi::OnBothFill<POINT>(*this, [=](HDC hDC, POINT* pFormer) { return ::MoveToEx(hDC, x, y, pFormer); });
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC && m_hDC != m_hAttribDC) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect &&
           Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const BOOL bOk = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    SyncPosition(*this);
    return bOk;
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect &&
           ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    return ::AngleArc(m_hDC, x, y, nRadius, fStartAngle, fSweepAngle);
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetArcDirection(hDC, nArcDirection); });
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    const BOOL bOk = ::PolylineTo(m_hDC, lpPoints, nCount);
    SyncPosition(*this);
    return bOk;
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    const BOOL bOk = ::PolyBezierTo(m_hDC, lpPoints, nCount);
    SyncPosition(*this);
    return bOk;
}
