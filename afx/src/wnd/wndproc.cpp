#include "wndproc.h"

#include "wndaccess.h"

#include <afxwin.h>

#include <new>

namespace
{
/** Places a dialog that nobody placed: remembers where it was before WM_INITDIALOG and centres it after. */
class DialogPlacement
{
  public:
    DialogPlacement(HWND hWnd, UINT message) : m_hWnd(message == WM_INITDIALOG ? hWnd : nullptr)
    {
        if (m_hWnd && (!::GetWindowRect(m_hWnd, &m_rect) || (::GetWindowLong(m_hWnd, GWL_STYLE) & WS_VISIBLE))) {
            m_hWnd = nullptr;
        }
    }

    void CenterIfUntouched() const
    {
        RECT rect;
        CWnd* pWnd = m_hWnd ? CWnd::FromHandlePermanent(m_hWnd) : nullptr;
        if (!pWnd || !::GetWindowRect(m_hWnd, &rect) || !::EqualRect(&rect, &m_rect)) {
            return;
        }
        if ((::GetWindowLong(m_hWnd, GWL_STYLE) & (WS_VISIBLE | WS_CHILD)) == 0 && pWnd->CheckAutoCenter()) {
            pWnd->CenterWindow();
        }
    }

  private:
    HWND m_hWnd;
    RECT m_rect = {};
};

/** Makes a message the thread's current one while it is handled. */
class CurrentMessage
{
  public:
    CurrentMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_pState(AfxGetThreadState()), m_previous(m_pState->m_lastSentMsg)
    {
        m_pState->m_lastSentMsg = {hWnd, message, wParam, lParam, 0, {0, 0}};
    }
    ~CurrentMessage() { m_pState->m_lastSentMsg = m_previous; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;
    const MSG& Get() const { return m_pState->m_lastSentMsg; }

  private:
    _AFX_THREAD_STATE* m_pState;
    MSG m_previous;
};

/** Runs the object's procedure. Memory that runs out under a handler is an exception of the framework. */
LRESULT CallProcedure(CWnd* pWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    try {
        return AfxWndAccess::CallWindowProc(pWnd, nMsg, wParam, lParam);
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
    return 0;
}
} // namespace

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    return OnWndMsg(message, wParam, lParam, &lResult) ? lResult : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC pfnSuper = m_pfnSuper ? m_pfnSuper : *GetSuperWndProcAddr();
    if (pfnSuper) {
        return ::CallWindowProc(pfnSuper, m_hWnd, message, wParam, lParam);
    }
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& msg = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

const MSG* CWnd::GetCurrentMessage()
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    pState->m_lastSentMsg.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD dwPos = ::GetMessagePos();
    pState->m_lastSentMsg.pt = {static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos))};
    return &pState->m_lastSentMsg;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_QUERYAFXWNDPROC) {
        return 1;
    }
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (!pWnd || pWnd->m_hWnd != hWnd) {
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    }
    AFX_MANAGE_STATE(pWnd->m_pModuleState);
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

WNDPROC AfxGetAfxWndProc()
{
    return AfxWndProc;
}

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const CurrentMessage current(hWnd, nMsg, wParam, lParam);
    const DialogPlacement placement(hWnd, nMsg);
    LRESULT lResult = 0;
    try {
        lResult = CallProcedure(pWnd, nMsg, wParam, lParam);
        placement.CenterIfUntouched();
    } catch (CException* e) {
        const MSG msg = {hWnd, nMsg, wParam, lParam, 0, {0, 0}};
        lResult = AfxProcessWndProcException(e, &msg);
        e->Delete();
    }
    return lResult;
}
