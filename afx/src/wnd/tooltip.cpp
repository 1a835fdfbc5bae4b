#include "tooltip.h"

#include "ask.h"

#include <afxwin.h>

#include <memory>

namespace
{
const UINT kToolInfoSize = TTTOOLINFOW_V2_SIZE;

HWND ToolTipWindow(HWND hWndOwner)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (pState->m_hWndToolTip && !::IsWindow(pState->m_hWndToolTip)) {
        pState->m_hWndToolTip = nullptr;
    }
    if (!pState->m_hWndToolTip) {
        pState->m_hWndToolTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0,
                                                 0, 0, hWndOwner, nullptr, AfxGetInstanceHandle(), nullptr);
    }
    return pState->m_hWndToolTip;
}

void SendTool(UINT message, TOOLINFO& info)
{
    Ask(AfxGetThreadState()->m_hWndToolTip, message, 0, &info);
}

void ForgetTool()
{
    AFX_MODULE_THREAD_STATE* pModule = AfxGetModuleThreadState();
    pModule->m_pLastHit = nullptr;
    pModule->m_nLastHit = -1;
    const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
    TOOLINFO info = {};
    info.cbSize = kToolInfoSize;
    while (::IsWindow(hWndTip) && Ask(hWndTip, TTM_ENUMTOOLS, 0, &info)) {
        SendTool(TTM_DELTOOL, info);
    }
}

bool HidesTip(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || message == WM_LBUTTONDOWN ||
           message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN || message == WM_LBUTTONDBLCLK ||
           message == WM_RBUTTONDBLCLK || message == WM_NCLBUTTONDOWN || message == WM_NCRBUTTONDOWN;
}

/** Hands a mouse message to the tip as if it had gone to the tool. */
void Relay(const MSG& msg, HWND hWndTool)
{
    MSG relayed = msg;
    POINT point = {static_cast<short>(LOWORD(msg.lParam)), static_cast<short>(HIWORD(msg.lParam))};
    ::MapWindowPoints(msg.hwnd, hWndTool, &point, 1);
    relayed.hwnd = hWndTool;
    relayed.lParam = MAKELPARAM(point.x, point.y);
    Ask(AfxGetThreadState()->m_hWndToolTip, TTM_RELAYEVENT, 0, &relayed);
}
} // namespace

void AfxDestroyToolTip()
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    ForgetTool();
    const HWND hWndTip = pState->m_hWndToolTip;
    pState->m_hWndToolTip = nullptr;
    if (::IsWindow(hWndTip)) {
        ::DestroyWindow(hWndTip);
    }
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    if (bEnable) {
        m_nFlags |= WF_TOOLTIPS;
        return TRUE;
    }
    if (AfxGetModuleThreadState()->m_pLastHit == this) {
        ForgetTool();
    }
    m_nFlags &= ~static_cast<UINT>(WF_TOOLTIPS);
    return TRUE;
}

void CWnd::CancelToolTips(BOOL bKeys)
{
    UNUSED_ALWAYS(bKeys);
    const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
    if (::IsWindow(hWndTip)) {
        Ask(hWndTip, TTM_ACTIVATE, FALSE);
    }
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    if (HidesTip(pMsg->message)) {
        CancelToolTips(TRUE);
        return;
    }
    if (pMsg->message != WM_MOUSEMOVE || !(m_nFlags & WF_TOOLTIPS)) {
        return;
    }
    CPoint point(static_cast<short>(LOWORD(pMsg->lParam)), static_cast<short>(HIWORD(pMsg->lParam)));
    ::MapWindowPoints(pMsg->hwnd, m_hWnd, &point, 1);
    TOOLINFO info = {};
    info.cbSize = kToolInfoSize;
    const INT_PTR nHit = OnToolHitTest(point, &info);
    const std::unique_ptr<TCHAR, decltype(&::free)> text(info.lpszText != LPSTR_TEXTCALLBACK ? info.lpszText : nullptr,
                                                         &::free);
    AFX_MODULE_THREAD_STATE* pModule = AfxGetModuleThreadState();
    if (nHit != pModule->m_nLastHit || pModule->m_pLastHit != this) {
        ForgetTool();
        if (nHit != -1 && ToolTipWindow(m_hWnd)) {
            SendTool(TTM_ADDTOOL, info);
            Ask(AfxGetThreadState()->m_hWndToolTip, TTM_ACTIVATE, TRUE);
            pModule->m_pLastHit = this;
            pModule->m_nLastHit = nHit;
        }
    }
    if (nHit != -1) {
        Relay(*pMsg, (info.uFlags & TTF_IDISHWND) ? reinterpret_cast<HWND>(info.uId) : m_hWnd);
    }
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    const HWND hWndChild = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (!hWndChild || hWndChild == m_hWnd) {
        return -1;
    }
    const INT_PTR nHit = static_cast<WORD>(::GetDlgCtrlID(hWndChild));
    if (pTI) {
        pTI->cbSize = kToolInfoSize;
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(hWndChild);
        pTI->uFlags = TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        ::GetClientRect(hWndChild, &pTI->rect);
    }
    return nHit;
}
