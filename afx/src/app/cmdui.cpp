#include "wnd/ask.h"

#include <afxwin.h>

namespace
{
constexpr UINT kBulletCheck = MFT_RADIOCHECK;
} // namespace

CCmdUI::CCmdUI()
    : m_nID(0),
      m_nIndex(0),
      m_pMenu(nullptr),
      m_pSubMenu(nullptr),
      m_pOther(nullptr),
      m_bEnableChanged(FALSE),
      m_bContinueRouting(FALSE),
      m_nIndexMax(0),
      m_pParentMenu(nullptr)
{
}

CCmdUI::~CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn)
{
    if (m_pMenu) {
        if (m_pSubMenu) {
            return; // the pop-up's own items are updated, not the item that opens it
        }
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther) {
        const HWND hWnd = m_pOther->m_hWnd;
        if (!bOn && ::GetFocus() == hWnd) {
            Ask(::GetParent(hWnd), WM_NEXTDLGCTL, 0, FALSE);
        }
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu) {
        if (!m_pSubMenu) {
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
        }
    } else if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (!m_pMenu || m_pSubMenu) {
        return;
    }
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info)) {
        return;
    }
    info.fType |= kBulletCheck;
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (!lpszText) {
        return;
    }
    if (m_pMenu) {
        if (m_pSubMenu) {
            return;
        }
        MENUITEMINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    } else if (m_pOther) {
        AfxSetWindowText(m_pOther->m_hWnd, lpszText);
    }
}

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    if (!pTarget || m_nID == 0 || LOWORD(m_nID) == 0xFFFF) {
        return TRUE; // separators and static texts
    }
    m_bEnableChanged = FALSE;
    const BOOL bResult = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {nullptr, nullptr};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}
