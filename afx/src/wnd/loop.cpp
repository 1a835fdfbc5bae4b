#include "internal.h"

namespace
{
constexpr UINT kSystemTimer = 0x0118; // carets blink with it

bool IsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

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
                ::SendMessage(m_hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            }
            m_idle = !(m_dwFlags & MLF_NOKICKIDLE) && ::SendMessage(m_hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, m_idleCount++);
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

bool IsPushButton(HWND hWnd)
{
    const auto nCode = ::SendMessage(hWnd, WM_GETDLGCODE, 0, 0);
    if ((nCode & DLGC_BUTTON) == 0) {
        return false;
    }
    switch (::GetWindowLong(hWnd, GWL_STYLE) & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_GROUPBOX:
        return false;
    default:
        return true;
    }
}
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

// Translation of messages before they are dispatched

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

// Data exchange and command updates

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    if (!::IsWindow(m_hWnd)) {
        return FALSE;
    }
    CDataExchange dx(this, bSaveAndValidate);
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    // Filling the controls must not look like the user's input.
    const HWND hWndOldLockout = pState->m_hLockoutNotifyWindow;
    pState->m_hLockoutNotifyWindow = m_hWnd;
    BOOL bOK = FALSE;
    try {
        DoDataExchange(&dx);
        bOK = TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user has been told
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    } catch (...) {
        pState->m_hLockoutNotifyWindow = hWndOldLockout;
        throw;
    }
    pState->m_hLockoutNotifyWindow = hWndOldLockout;
    return bOK;
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    HWND hWndNext = nullptr;
    for (HWND hWnd = ::GetTopWindow(m_hWnd); hWnd; hWnd = hWndNext) {
        hWndNext = ::GetWindow(hWnd, GW_HWNDNEXT);
        CCmdUI state;
        state.m_nID = static_cast<WORD>(::GetDlgCtrlID(hWnd));
        state.m_pOther = FromHandle(hWnd);
        CWnd* pControl = FromHandlePermanent(hWnd);
        constexpr int kReflectedUpdate = static_cast<int>(MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE));
        if (pControl && pControl->OnCmdMsg(0, kReflectedUpdate, &state, nullptr)) {
            continue;
        }
        if (CWnd::OnCmdMsg(state.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &state, nullptr)) {
            continue;
        }
        state.DoUpdate(pTarget, bDisableIfNoHndler && IsPushButton(hWnd));
    }
}
