#include "modalloop.h"

#include "ask.h"

#include <afxwin.h>

namespace
{
bool NothingWaits(MSG* pMsg)
{
    return !::PeekMessage(pMsg, nullptr, 0, 0, PM_NOREMOVE);
}

/** One run of CWnd::RunModalLoop. Knows its window by handle, because the object may go away in the loop. */
class ModalLoop
{
  public:
    ModalLoop(CWnd* pWnd, DWORD dwFlags)
        : m_pWnd(pWnd),
          m_hWnd(pWnd->m_hWnd),
          m_dwFlags(dwFlags),
          m_hWndParent(::GetParent(m_hWnd)),
          m_pMsg(&AfxGetThreadState()->m_msgCur),
          m_showOnIdle((dwFlags & MLF_SHOWONIDLE) && !(pWnd->GetStyle() & WS_VISIBLE))
    {
    }

    bool IsWindowAlive() const { return CWnd::FromHandlePermanent(m_hWnd) == m_pWnd; }

    /** Uses the time until the next message. */
    void Idle()
    {
        while (m_idle && IsWindowAlive() && NothingWaits(m_pMsg)) {
            ShowOnce();
            if (!(m_dwFlags & MLF_NOIDLEMSG) && m_hWndParent && m_idleCount == 0) {
                Ask(m_hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, m_hWnd);
            }
            m_idle = !(m_dwFlags & MLF_NOKICKIDLE) && Ask(m_hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, m_idleCount++);
        }
    }

    /** Handles the messages that wait. @return false when the loop shall end. */
    bool Pump()
    {
        do {
            if (!IsWindowAlive()) {
                return false;
            }
            if (!AfxPumpMessage()) {
                ::PostQuitMessage(static_cast<int>(m_pMsg->wParam)); // the outer loops shall end too
                return false;
            }
            if (!IsWindowAlive()) {
                return false;
            }
            if (m_showOnIdle && (m_pMsg->message == kSystemTimer || m_pMsg->message == WM_SYSKEYDOWN)) {
                ShowOnce();
            }
            if (!m_pWnd->ContinueModal()) {
                return false;
            }
            if (AfxIsIdleMessage(m_pMsg)) {
                m_idle = true;
                m_idleCount = 0;
            }
        } while (!NothingWaits(m_pMsg));
        return true;
    }

  private:
    void ShowOnce()
    {
        if (!m_showOnIdle) {
            return;
        }
        m_showOnIdle = false;
        ::ShowWindow(m_hWnd, SW_SHOWNORMAL);
        ::UpdateWindow(m_hWnd);
    }

    CWnd* m_pWnd;
    HWND m_hWnd;
    DWORD m_dwFlags;
    HWND m_hWndParent;
    MSG* m_pMsg;
    bool m_showOnIdle;
    bool m_idle = true;
    LONG m_idleCount = 0;
};
} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    ASSERT(::IsWindow(m_hWnd));
    if (!::IsWindow(m_hWnd) || (m_nFlags & WF_MODALLOOP)) {
        return -1;
    }
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    ModalLoop loop(this, dwFlags);
    try {
        do {
            loop.Idle();
        } while (loop.Pump());
    } catch (...) {
        if (loop.IsWindowAlive()) {
            m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
        }
        throw;
    }
    if (!loop.IsWindowAlive()) {
        return -1; // this object may be gone as well
    }
    const bool wasEnded = !ContinueModal();
    m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
    return wasEnded ? m_nModalResult : -1;
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if ((m_nFlags & WF_CONTINUEMODAL) == 0) {
        return;
    }
    m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL);
    PostMessage(WM_NULL); // the loop may be waiting for a message
}

BOOL CWnd::CheckAutoCenter()
{
    return TRUE;
}

void CWnd::BeginModalState()
{
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState()
{
    ::EnableWindow(m_hWnd, TRUE);
}
