#include "gdi/handles.h"

#include <afxwin.h>

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const
{
    return ::GetScrollPos(m_hWnd, nBar);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, gdi::RegionOf(prgnUpdate), lpRectUpdate, flags);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    const int nPage = info.nPage > 0 ? static_cast<int>(info.nPage) - 1 : 0;
    return info.nMax - nPage;
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    psbi->cbSize = sizeof *psbi;
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}
