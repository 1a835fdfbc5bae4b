#include "ask.h"

#include <afxwin.h>

namespace
{
bool IsPushButton(HWND hWnd)
{
    const auto nCode = Ask(hWnd, WM_GETDLGCODE);
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
