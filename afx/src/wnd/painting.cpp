#include "ask.h"
#include "gdi/handles.h"

#include <afxwin.h>

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, gdi::RegionOf(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, gdi::HandleOf(pDC));
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    Ask(*this, WM_PRINT, gdi::HandleOf(pDC), dwFlags);
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    Ask(*this, WM_PRINTCLIENT, gdi::HandleOf(pDC), dwFlags);
}

BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const
{
    return ::PrintWindow(m_hWnd, gdi::HandleOf(pDC), nFlags);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    Ask(*this, WM_SETREDRAW, bRedraw);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, gdi::RegionOf(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase)
{
    if (m_hWnd) { // a null window would mean every window on the screen
        ::InvalidateRect(m_hWnd, nullptr, bErase);
    }
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    if (m_hWnd) {
        ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    if (m_hWnd) {
        ::InvalidateRgn(m_hWnd, gdi::RegionOf(pRgn), bErase);
    }
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    if (m_hWnd) {
        ::ValidateRect(m_hWnd, lpRect);
    }
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    if (m_hWnd) {
        ::ValidateRgn(m_hWnd, gdi::RegionOf(pRgn));
    }
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

void CWnd::ShowOwnedPopups(BOOL bShow)
{
    ::ShowOwnedPopups(m_hWnd, bShow);
}

BOOL CWnd::LockWindowUpdate()
{
    return m_hWnd ? ::LockWindowUpdate(m_hWnd) : FALSE;
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(nullptr);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return m_hWnd ? ::RedrawWindow(m_hWnd, lpRectUpdate, gdi::RegionOf(prgnUpdate), flags) : FALSE;
}

BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, gdi::HandleOf(pDC), lprc, uFlags);
}

BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags)
{
    return ::AnimateWindow(m_hWnd, dwTime, dwFlags);
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO info = {sizeof info, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                               BLENDFUNCTION* pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, gdi::HandleOf(pDCDst), pptDst, psize, gdi::HandleOf(pDCSrc), pptSrc, crKey,
                                 pblend, dwFlags);
}

BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}
