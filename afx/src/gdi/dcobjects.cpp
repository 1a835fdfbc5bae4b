#include "bothcontexts.h"
#include "handles.h"

#include <common/Owner.h>

#include <afxwin.h>

namespace
{
CGdiObject* SelectOnBoth(CDC& dc, HGDIOBJ hObject)
{
    if (!hObject) {
        return nullptr;
    }
    HGDIOBJ hFormer = gdi::OnBoth(dc, HGDIOBJ{nullptr}, [=](HDC hDC) { return ::SelectObject(hDC, hObject); });
    return CGdiObject::FromHandle(hFormer);
}
} // namespace

CPoint CDC::GetBrushOrg() const
{
    POINT point = {};
    ::GetBrushOrgEx(m_hDC, &point);
    return point;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT point = {};
    ::SetBrushOrgEx(m_hDC, x, y, &point);
    return point;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return SelectOnBoth(*this, ::GetStockObject(nIndex));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return static_cast<CPen*>(SelectOnBoth(*this, gdi::HandleOf(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(SelectOnBoth(*this, gdi::HandleOf(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return static_cast<CFont*>(SelectOnBoth(*this, gdi::HandleOf(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return static_cast<CBitmap*>(SelectOnBoth(*this, gdi::HandleOf(pBitmap)));
}

int CDC::SelectObject(CRgn* pRgn)
{
    HRGN hRgn = gdi::RegionOf(pRgn);
    if (!hRgn) {
        return ERROR;
    }
    return gdi::OnBoth(*this, ERROR,
                       [=](HDC hDC) { return static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(hDC, hRgn))); });
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject)
{
    return gdi::OnBoth(*this, HGDIOBJ{nullptr}, [=](HDC hDC) { return ::SelectObject(hDC, hObject); });
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    return SelectOnBoth(*this, gdi::HandleOf(pObject));
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(gdi::HandleOf(pPalette)), bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static constexpr WORD kPattern[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
    static const own::GdiObject<HBRUSH> kHalftone([] {
        CBitmap bitmap;
        bitmap.CreateBitmap(8, 8, 1, 1, kPattern);
        return bitmap.m_hObject ? ::CreatePatternBrush(bitmap) : nullptr;
    }());
    return CBrush::FromHandle(kHalftone.Get());
}
