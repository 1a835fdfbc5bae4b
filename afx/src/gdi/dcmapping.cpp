#include "bothcontexts.h"
#include "handles.h"

#include <common/Owner.h>

#include <afxwin.h>

#include <algorithm>

namespace
{
constexpr int kHimetricPerInch = 2540;

void ConvertSize(HDC hDC, LPSIZE lpSize, BOOL(WINAPI* convert)(HDC, LPPOINT, int))
{
    if (!lpSize) {
        return;
    }
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    convert(hDC, points, 2);
    lpSize->cx = abs(points[1].x - points[0].x);
    lpSize->cy = abs(points[1].y - points[0].y);
}

CSize Density(HDC hDC)
{
    // Without a device the screen's density is the only sensible one, and never a division by zero.
    const own::DisplayDc screen(hDC ? nullptr : ::GetDC(nullptr));
    HDC hAsked = hDC ? hDC : screen.Get();
    return CSize((std::max)(1, ::GetDeviceCaps(hAsked, LOGPIXELSX)),
                 (std::max)(1, ::GetDeviceCaps(hAsked, LOGPIXELSY)));
}
} // namespace

int CDC::SetGraphicsMode(int iMode)
{
    return ::SetGraphicsMode(m_hDC, iMode);
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hDC);
}

BOOL CDC::SetWorldTransform(const XFORM* pXform)
{
    return ::SetWorldTransform(m_hDC, pXform);
}

BOOL CDC::ModifyWorldTransform(const XFORM* pXform, DWORD iMode)
{
    return ::ModifyWorldTransform(m_hDC, pXform, iMode);
}

BOOL CDC::GetWorldTransform(XFORM* pXform) const
{
    return ::GetWorldTransform(m_hDC, pXform);
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hDC);
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return ::SetLayout(m_hDC, dwLayout);
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

CPoint CDC::GetViewportOrg() const
{
    POINT point = {};
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

int CDC::SetMapMode(int nMapMode)
{
    return gdi::OnBoth(*this, 0, [=](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return gdi::OnBothFill<POINT>(*this,
                                  [=](HDC hDC, POINT* pFormer) { return ::SetViewportOrgEx(hDC, x, y, pFormer); });
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return gdi::OnBothFill<POINT>(
        *this, [=](HDC hDC, POINT* pFormer) { return ::OffsetViewportOrgEx(hDC, nWidth, nHeight, pFormer); });
}

CSize CDC::GetViewportExt() const
{
    SIZE size = {};
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return gdi::OnBothFill<SIZE>(*this,
                                 [=](HDC hDC, SIZE* pFormer) { return ::SetViewportExtEx(hDC, cx, cy, pFormer); });
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return gdi::OnBothFill<SIZE>(
        *this, [=](HDC hDC, SIZE* pFormer) { return ::ScaleViewportExtEx(hDC, xNum, xDenom, yNum, yDenom, pFormer); });
}

CPoint CDC::GetWindowOrg() const
{
    POINT point = {};
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return gdi::OnBothFill<POINT>(*this, [=](HDC hDC, POINT* pFormer) { return ::SetWindowOrgEx(hDC, x, y, pFormer); });
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    return gdi::OnBothFill<POINT>(
        *this, [=](HDC hDC, POINT* pFormer) { return ::OffsetWindowOrgEx(hDC, nWidth, nHeight, pFormer); });
}

CSize CDC::GetWindowExt() const
{
    SIZE size = {};
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return gdi::OnBothFill<SIZE>(*this, [=](HDC hDC, SIZE* pFormer) { return ::SetWindowExtEx(hDC, cx, cy, pFormer); });
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return gdi::OnBothFill<SIZE>(
        *this, [=](HDC hDC, SIZE* pFormer) { return ::ScaleWindowExtEx(hDC, xNum, xDenom, yNum, yDenom, pFormer); });
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    ConvertSize(m_hAttribDC, lpSize, ::DPtoLP);
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    ConvertSize(m_hAttribDC, lpSize, ::LPtoDP);
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    if (!lpSize) {
        return;
    }
    const CSize density = Density(m_hAttribDC);
    lpSize->cx = ::MulDiv(lpSize->cx, kHimetricPerInch, density.cx);
    lpSize->cy = ::MulDiv(lpSize->cy, kHimetricPerInch, density.cy);
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    if (!lpSize) {
        return;
    }
    const CSize density = Density(m_hAttribDC);
    lpSize->cx = ::MulDiv(lpSize->cx, density.cx, kHimetricPerInch);
    lpSize->cy = ::MulDiv(lpSize->cy, density.cy, kHimetricPerInch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}
