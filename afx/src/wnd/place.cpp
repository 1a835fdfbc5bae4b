#include "family.h"
#include "gdi/handles.h"

#include <afxwin.h>

namespace
{
/** Moves a rectangle so that it lies within another; the left and top edges win when it is too big. */
void KeepWithin(CRect& rect, const CRect& area)
{
    if (rect.right > area.right) {
        rect.OffsetRect(area.right - rect.right, 0);
    }
    if (rect.left < area.left) {
        rect.OffsetRect(area.left - rect.left, 0);
    }
    if (rect.bottom > area.bottom) {
        rect.OffsetRect(0, area.bottom - rect.bottom);
    }
    if (rect.top < area.top) {
        rect.OffsetRect(0, area.top - rect.top);
    }
}

CRect WorkArea(HWND hWnd)
{
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

bool IsPlaceToCenterOn(HWND hWnd)
{
    return hWnd && ::IsWindowVisible(hWnd) && !::IsIconic(hWnd);
}

/** The areas for CenterWindow: what to centre on, and what to stay within. */
void CenterAreas(HWND hWnd, HWND hWndCenter, CRect& rcCenter, CRect& rcArea)
{
    if (AfxHasChildStyle(hWnd)) {
        const HWND hWndParent = ::GetParent(hWnd);
        ::GetClientRect(hWndParent, &rcArea);
        ::GetClientRect(hWndCenter, &rcCenter);
        ::MapWindowPoints(hWndCenter, hWndParent, reinterpret_cast<POINT*>(&rcCenter), 2);
        return;
    }
    rcArea = WorkArea(hWndCenter ? hWndCenter : hWnd);
    if (IsPlaceToCenterOn(hWndCenter)) {
        ::GetWindowRect(hWndCenter, &rcCenter);
    } else {
        rcCenter = rcArea;
    }
}
} // namespace

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, gdi::WindowOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof placement;
    return ::SetWindowPlacement(m_hWnd, &placement);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    DWORD dwExStyle = GetExStyle();
    if (nAdjustType == adjustBorder) {
        dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    }
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, dwExStyle);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, gdi::WindowOf(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, gdi::WindowOf(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    if (!::IsWindow(m_hWnd)) {
        return;
    }
    const HWND hWndCenter = pAlternateOwner ? pAlternateOwner->GetSafeHwnd() : AfxGetParentOwner(m_hWnd);
    CRect rect;
    CRect rcCenter;
    CRect rcArea;
    ::GetWindowRect(m_hWnd, &rect);
    CenterAreas(m_hWnd, hWndCenter, rcCenter, rcArea);
    const CSize size = rect.Size();
    rect.left = (rcCenter.left + rcCenter.right) / 2 - size.cx / 2;
    rect.top = (rcCenter.top + rcCenter.bottom) / 2 - size.cy / 2;
    rect.right = rect.left + size.cx;
    rect.bottom = rect.top + size.cy;
    KeepWithin(rect, rcArea);
    SetWindowPos(nullptr, rect.left, rect.top, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
