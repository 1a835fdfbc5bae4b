#include <afxwin.h>

namespace
{
bool IsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}
} // namespace

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_nFlags & WF_TOOLTIPS) {
        FilterToolTipMessage(pMsg);
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    return IsInput(lpMsg->message) ? IsDialogMessage(lpMsg) : FALSE;
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg)
{
    return ::IsDialogMessage(m_hWnd, lpMsg);
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        if (hWnd == hWndStop) {
            break;
        }
    }
    return FALSE;
}
