#include <afxwin.h>

/* Children that share the client area of their parent. */

namespace
{

bool IsInRange(UINT nID, UINT nFirst, UINT nLast)
{
    return nID >= nFirst && nID <= nLast;
}

void MoveTo(HDWP& hDWP, HWND hWnd, const RECT& rect)
{
    hDWP = ::DeferWindowPos(hDWP, hWnd, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                            SWP_NOACTIVATE | SWP_NOZORDER);
}

} // namespace

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient) {
        layout.rect = *lpRectClient;
    } else {
        GetClientRect(&layout.rect);
    }
    const UINT nMode = nFlag & ~static_cast<UINT>(reposNoPosLeftOver);
    const bool bMove = nMode != reposQuery;
    if (bMove) {
        layout.hDWP = ::BeginDeferWindowPos(8); // a first size only
    }
    HWND hWndLeftOver = nullptr;
    for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        const auto nID = static_cast<UINT>(::GetDlgCtrlID(hWnd)) & 0xFFFF;
        if (nID == nIDLeftOver) {
            hWndLeftOver = hWnd;
        } else if (IsInRange(nID, nIDFirst, nIDLast) && CWnd::FromHandlePermanent(hWnd)) {
            ::SendMessage(hWnd, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
        }
    }
    if (!bMove) {
        ASSERT(lpRectParam);
        if (bStretch) {
            *lpRectParam = layout.rect;
        } else {
            ::SetRect(lpRectParam, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
        }
        return;
    }
    if (nIDLeftOver != 0 && hWndLeftOver && !(nFlag & reposNoPosLeftOver) && layout.hDWP) {
        if (nMode == reposExtra) {
            ASSERT(lpRectParam);
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        MoveTo(layout.hDWP, hWndLeftOver, layout.rect);
    }
    if (layout.hDWP) {
        ::EndDeferWindowPos(layout.hDWP);
    }
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    if (nBar == SB_BOTH) {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
        return;
    }
    if (CScrollBar* pControl = GetScrollBarCtrl(nBar)) {
        pControl->EnableWindow(bEnable);
        pControl->ShowWindow(SW_SHOWNA);
        return;
    }
    EnableScrollBar(nBar, bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}
