#include "wndaccess.h"

#include <afxwin.h>

#include <exception>
#include <utility>
#include <vector>

namespace
{
/** An object that waits for its window, or has it since the creation hook ran. */
struct Binding
{
    CWnd* pWnd;
    HWND hWnd = nullptr;
    std::exception_ptr error; ///< What the object threw when it was bound.
};

/** Creations of this thread, the innermost last: a window that is being made may make others. */
std::vector<Binding>& Bindings()
{
    static thread_local std::vector<Binding> bindings;
    return bindings;
}

/** Lets an object go whose window is gone although no message told it so. @return whether there was one. */
bool ReleaseDeadWindow(const Binding& binding)
{
    // The object may be gone; as long as the map has it, it is not.
    if (!binding.hWnd || ::IsWindow(binding.hWnd) || CWnd::FromHandlePermanent(binding.hWnd) != binding.pWnd) {
        return false;
    }
    *AfxWndAccess::SuperProcAddress(binding.pWnd) = nullptr;
    binding.pWnd->Detach();
    return true;
}

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

/** Binds the waiting object to its window. @return whether it could be; what it threw is kept. */
bool Bind(_AFX_THREAD_STATE& state, HWND hWnd)
{
    CWnd* pWnd = std::exchange(state.m_pWndInit, nullptr);
    Binding& binding = Bindings().back();
    binding.hWnd = hWnd;
    try {
        TakeOver(*pWnd, hWnd);
        return true;
    } catch (...) {
        Bindings().back().error = std::current_exception();
        return false;
    }
}

LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (nCode == HCBT_CREATEWND && pState->m_pWndInit) {
        const auto* pCreate = reinterpret_cast<CBT_CREATEWND*>(lParam);
        if (!IsImeWindow(*pCreate->lpcs) && !Bind(*pState, reinterpret_cast<HWND>(wParam))) {
            return 1; // refuses the window: no exception may cross the system's code
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
    Bindings().push_back({pWnd, nullptr, nullptr});
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
    if (Bindings().empty()) {
        return bBound;
    }
    const Binding binding = std::move(Bindings().back());
    Bindings().pop_back();
    const bool isDead = ReleaseDeadWindow(binding);
    if (binding.error) {
        std::rethrow_exception(binding.error);
    }
    return bBound && !isDead;
}
