#include "bothcontexts.h"
#include "handles.h"

#include <afxwin.h>

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return m_hDC && ::PtVisible(m_hDC, x, y) == TRUE;
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return m_hDC && lpRect && ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    HRGN hRgn = gdi::RegionOf(pRgn);
    return gdi::OnBoth(*this, ERROR, [=](HDC hDC) { return ::SelectClipRgn(hDC, hRgn); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    HRGN hRgn = gdi::RegionOf(pRgn);
    return gdi::OnBoth(*this, ERROR, [=](HDC hDC) { return ::ExtSelectClipRgn(hDC, hRgn, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return gdi::OnBoth(*this, ERROR, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return lpRect ? ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, gdi::WindowOf(pWnd));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return gdi::OnBoth(*this, ERROR, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return lpRect ? IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::OffsetClipRgn(int x, int y)
{
    return gdi::OnBoth(*this, ERROR, [=](HDC hDC) { return ::OffsetClipRgn(hDC, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

BOOL CDC::SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}
