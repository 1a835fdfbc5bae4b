#include "family.h"

#include <afxwin.h>

namespace
{
HWND FindDescendant(HWND hWnd, int nID)
{
    if (const HWND hWndChild = ::GetDlgItem(hWnd, nID)) {
        return hWndChild;
    }
    for (HWND hWndChild = ::GetTopWindow(hWnd); hWndChild; hWndChild = ::GetWindow(hWndChild, GW_HWNDNEXT)) {
        if (const HWND hWndFound = FindDescendant(hWndChild, nID)) {
            return hWndFound;
        }
    }
    return nullptr;
}

void SendToDescendants(HWND hWnd, const MSG& msg, BOOL bDeep, BOOL bOnlyPerm)
{
    HWND hWndNext = nullptr;
    for (HWND hWndChild = ::GetTopWindow(hWnd); hWndChild; hWndChild = hWndNext) {
        hWndNext = ::GetWindow(hWndChild, GW_HWNDNEXT);
        if (!bOnlyPerm) {
            ::SendMessage(hWndChild, msg.message, msg.wParam, msg.lParam);
        } else if (CWnd* pWnd = CWnd::FromHandlePermanent(hWndChild)) {
            AfxCallWndProc(pWnd, hWndChild, msg.message, msg.wParam, msg.lParam);
        }
        if (bDeep && ::IsWindow(hWndChild) && ::GetTopWindow(hWndChild)) {
            SendToDescendants(hWndChild, msg, bDeep, bOnlyPerm);
        }
    }
}

HWND TopLevelAncestor(HWND hWnd)
{
    for (HWND hWndParent = hWnd; hWndParent; hWndParent = ::GetParent(hWndParent)) {
        hWnd = hWndParent;
    }
    return hWnd;
}
} // namespace

bool AfxHasChildStyle(HWND hWnd)
{
    return (::GetWindowLong(hWnd, GWL_STYLE) & WS_CHILD) != 0;
}

HWND AfxGetParentOwner(HWND hWnd)
{
    return AfxHasChildStyle(hWnd) ? ::GetParent(hWnd) : ::GetWindow(hWnd, GW_OWNER);
}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd)
{
    m_hWndOwner = pOwnerWnd->GetSafeHwnd();
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

CWnd* CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    const HWND hWnd = m_hWnd ? FindDescendant(m_hWnd, nID) : nullptr;
    return bOnlyPerm ? FromHandlePermanent(hWnd) : FromHandle(hWnd);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    if (m_hWnd) {
        SendToDescendants(m_hWnd, {m_hWnd, message, wParam, lParam, 0, {0, 0}}, bDeep, bOnlyPerm);
    }
}

BOOL CWnd::IsFrameWnd() const
{
    return FALSE;
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (HWND hWnd = m_hWnd ? ::GetParent(m_hWnd) : nullptr; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->IsFrameWnd()) {
            return reinterpret_cast<CFrameWnd*>(pWnd);
        }
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    CFrameWnd* pTop = nullptr;
    for (HWND hWnd = m_hWnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->IsFrameWnd()) {
            pTop = reinterpret_cast<CFrameWnd*>(pWnd);
        }
    }
    return pTop;
}

CWnd* CWnd::GetTopLevelOwner() const
{
    HWND hWnd = m_hWnd;
    if (!hWnd) {
        return nullptr;
    }
    while (const HWND hWndOwner = ::GetWindow(hWnd, GW_OWNER)) {
        hWnd = hWndOwner;
    }
    return FromHandle(hWnd);
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND hWnd = GetSafeHwnd();
    if (!hWnd) {
        return nullptr;
    }
    while (const HWND hWndParent = AfxGetParentOwner(hWnd)) {
        hWnd = hWndParent;
    }
    return FromHandle(hWnd);
}

CWnd* CWnd::GetParentOwner() const
{
    HWND hWnd = GetSafeHwnd();
    if (!hWnd) {
        return nullptr;
    }
    HWND hWndParent = hWnd;
    while (AfxHasChildStyle(hWndParent) && (hWnd = ::GetParent(hWndParent)) != nullptr) {
        hWndParent = hWnd;
    }
    return FromHandle(hWndParent == m_hWnd ? ::GetWindow(m_hWnd, GW_OWNER) : hWndParent);
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}

CWnd* CWnd::GetAncestor(UINT gaFlags) const
{
    return FromHandle(::GetAncestor(m_hWnd, gaFlags));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, pWnd->GetSafeHwnd());
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow)
{
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

CWnd* CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

CWnd* CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

CWnd* CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}

CWnd* CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}

CWnd* CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop)
{
    HWND hWnd = pParent->GetSafeHwnd();
    const bool parentGiven = hWnd != nullptr;
    if (!hWnd) {
        hWnd = AfxGetMainWnd()->GetSafeHwnd();
    }
    while (hWnd && AfxHasChildStyle(hWnd)) {
        hWnd = ::GetParent(hWnd);
    }
    const HWND hWndTop = TopLevelAncestor(hWnd);
    if (!parentGiven && hWnd) {
        hWnd = ::GetLastActivePopup(hWnd);
    }
    if (pWndTop) {
        const bool lock = !parentGiven && hWndTop && hWndTop != hWnd && ::IsWindowEnabled(hWndTop);
        *pWndTop = lock ? hWndTop : nullptr;
        if (lock) {
            ::EnableWindow(hWndTop, FALSE);
        }
    }
    return FromHandle(hWnd);
}

BOOL CWnd::IsTopParentActive() const
{
    CWnd* pTop = GetTopLevelParent();
    return pTop && ::GetForegroundWindow() == ::GetLastActivePopup(pTop->m_hWnd);
}

void CWnd::ActivateTopParent()
{
    CWnd* pTop = GetTopLevelParent();
    const HWND hWndActive = ::GetForegroundWindow();
    if (pTop && hWndActive != pTop->m_hWnd && ::GetLastActivePopup(pTop->m_hWnd) != hWndActive) {
        pTop->SetForegroundWindow();
    }
}
