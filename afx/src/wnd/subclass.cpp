#include "wndaccess.h"

#include <afxwin.h>

#include <utility>

namespace
{
/** The step by which every object takes its window over, one that exists as well as one that is being made. */
void TakeOver(CWnd& wnd, HWND hWnd)
{
    wnd.Attach(hWnd);
    wnd.PreSubclassWindow();
    WNDPROC* ppfnSuper = AfxWndAccess::SuperProcAddress(&wnd);
    const auto pfnOld =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (pfnOld != AfxWndProc) {
        *ppfnSuper = pfnOld;
    }
}

bool IsImeWindow(const CREATESTRUCT& cs)
{
    return !IS_INTRESOURCE(cs.lpszClass) && ::lstrcmpi(cs.lpszClass, _T("IME")) == 0;
}

LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (nCode == HCBT_CREATEWND && pState->m_pWndInit) {
        const auto* pCreate = reinterpret_cast<CBT_CREATEWND*>(lParam);
        if (!IsImeWindow(*pCreate->lpcs)) {
            TakeOver(*std::exchange(pState->m_pWndInit, nullptr), reinterpret_cast<HWND>(wParam));
        }
    }
    return ::CallNextHookEx(pState->m_hHookOldCbtFilter, nCode, wParam, lParam);
}
} // namespace

void CWnd::PreSubclassWindow() {}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (m_hWnd || !::IsWindow(hWnd) || ::GetWindowThreadProcessId(hWnd, nullptr) != ::GetCurrentThreadId()) {
        return FALSE;
    }
    const CWnd* pOther = FromHandlePermanent(hWnd);
    if (pOther && pOther->m_hWnd == hWnd) {
        return FALSE; // two objects cannot share a window
    }
    TakeOver(*this, hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND hWndControl = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    return hWndControl ? SubclassWindow(hWndControl) : FALSE;
}

HWND CWnd::UnsubclassWindow()
{
    if (!::IsWindow(m_hWnd)) {
        return Detach();
    }
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
    }
    *ppfnSuper = nullptr;
    return Detach();
}

void AfxHookWindowCreate(CWnd* pWnd)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (pState->m_pWndInit == pWnd) {
        return;
    }
    if (!pState->m_hHookOldCbtFilter) {
        pState->m_hHookOldCbtFilter = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
        if (!pState->m_hHookOldCbtFilter) {
            AfxThrowMemoryException();
        }
    }
    pState->m_pWndInit = pWnd;
}

BOOL AfxUnhookWindowCreate()
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (pState->m_hHookOldCbtFilter) {
        ::UnhookWindowsHookEx(pState->m_hHookOldCbtFilter);
        pState->m_hHookOldCbtFilter = nullptr;
    }
    const BOOL bBound = pState->m_pWndInit == nullptr;
    pState->m_pWndInit = nullptr;
    return bBound;
}
