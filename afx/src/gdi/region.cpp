#include "core/adopt.h"
#include "handles.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn));
}

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(m_hObject);
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return AfxAdopt(*this, ::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return lpRect && AfxAdopt(*this, ::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return AfxAdopt(*this, ::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return lpRect && AfxAdopt(*this, ::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode)
{
    return AfxAdopt(*this, ::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode)
{
    return AfxAdopt(*this, ::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return AfxAdopt(*this, ::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return pDC && AfxAdopt(*this, ::PathToRegion(pDC->m_hDC));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return AfxAdopt(*this, ::ExtCreateRegion(lpXForm, nCount, pRgnData));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    if (lpRect) {
        ::SetRectRgn(*this, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, gdi::RegionOf(pRgn1), gdi::RegionOf(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc)
{
    return ::CombineRgn(*this, gdi::RegionOf(pRgnSrc), nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const
{
    return ::EqualRgn(*this, gdi::RegionOf(pRgn));
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return ::OffsetRgn(*this, point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return ::PtInRegion(*this, point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return lpRect && ::RectInRegion(*this, lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nCount) const
{
    return static_cast<int>(::GetRegionData(*this, nCount, lpRgnData));
}
