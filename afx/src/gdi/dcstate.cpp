#include "bothcontexts.h"
#include "handles.h"

#include <afxwin.h>

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hDC, lpRectBounds, flags);
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return gdi::OnBoth(*this, COLORREF{CLR_INVALID}, [=](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetPolyFillMode(hDC, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetStretchBltMode(hDC, nStretchMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return gdi::OnBoth(*this, COLORREF{CLR_INVALID}, [=](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return gdi::OnBoth(*this, FALSE, [=](HDC hDC) { return ::SetColorAdjustment(hDC, lpColorAdjust); });
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return ::SetDCBrushColor(m_hDC, crColor);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return ::SetDCPenColor(m_hDC, crColor);
}
