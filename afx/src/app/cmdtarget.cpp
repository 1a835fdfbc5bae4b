#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace
{
constexpr WORD kUpdateCode = static_cast<WORD>(CN_UPDATE_COMMAND_UI);
constexpr UINT kBulletCheck = MFT_RADIOCHECK;

bool IsUpdateCode(int nCode)
{
    return static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI;
}

bool CallUpdate(CCmdTarget* pTarget, AFX_PMSG pfn, void* pExtra)
{
    auto* pCmdUI = static_cast<CCmdUI*>(pExtra);
    pCmdUI->m_bContinueRouting = FALSE;
    (pTarget->*AfxUnpackHandler<AfxSig_CommandUI>(pfn))(pCmdUI);
    const bool handled = !pCmdUI->m_bContinueRouting;
    pCmdUI->m_bContinueRouting = FALSE;
    return handled;
}

BOOL CallNotify(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, const AFX_NOTIFY& notify)
{
    switch (entry.nSig) {
    case AfxSig_Notify:
        (pTarget->*AfxUnpackHandler<AfxSig_Notify>(entry.pfn))(notify.pNMHDR, notify.pResult);
        return TRUE;
    case AfxSig_NotifyEx:
        return (pTarget->*AfxUnpackHandler<AfxSig_NotifyEx>(entry.pfn))(notify.pNMHDR, notify.pResult);
    case AfxSig_NotifyRange:
        (pTarget->*AfxUnpackHandler<AfxSig_NotifyRange>(entry.pfn))(nID, notify.pNMHDR, notify.pResult);
        return TRUE;
    case AfxSig_NotifyExRange:
        return (pTarget->*AfxUnpackHandler<AfxSig_NotifyExRange>(entry.pfn))(nID, notify.pNMHDR, notify.pResult);
    default:
        return FALSE;
    }
}

BOOL CallCommand(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY& entry, UINT nID, void* pExtra)
{
    switch (entry.nSig) {
    case AfxSig_Command:
    case AfxSig_Control:
        (pTarget->*AfxUnpackHandler<AfxSig_Command>(entry.pfn))();
        return TRUE;
    case AfxSig_ControlEx:
        return (pTarget->*AfxUnpackHandler<AfxSig_ControlEx>(entry.pfn))();
    case AfxSig_CommandEx:
        return (pTarget->*AfxUnpackHandler<AfxSig_CommandEx>(entry.pfn))(nID);
    case AfxSig_CommandRange:
    case AfxSig_ControlRange:
        (pTarget->*AfxUnpackHandler<AfxSig_CommandRange>(entry.pfn))(nID);
        return TRUE;
    case AfxSig_CommandUI:
        return CallUpdate(pTarget, entry.pfn, pExtra);
    default:
        return pExtra ? CallNotify(pTarget, entry, nID, *static_cast<AFX_NOTIFY*>(pExtra)) : FALSE;
    }
}

bool Matches(const AFX_MSGMAP_ENTRY& entry, UINT nMessage, WORD nCode, UINT nID)
{
    return entry.nMessage == nMessage && static_cast<WORD>(entry.nCode) == nCode && entry.nID <= nID &&
           nID <= entry.nLastID;
}
} // namespace

CCmdTarget::CCmdTarget() : m_pModuleState(AfxGetModuleState()) {}

CCmdTarget::~CCmdTarget() = default;

void CCmdTarget::OnFinalRelease()
{
    delete this;
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY end = {0, 0, 0, 0, AfxSig_end, nullptr};
    static const AFX_MSGMAP map = {nullptr, &end};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const bool wholeCode = IsUpdateCode(nCode) || static_cast<UINT>(nCode) == CN_EVENT;
    const UINT nMessage = wholeCode || HIWORD(nCode) == 0 ? WM_COMMAND : HIWORD(nCode);
    const WORD nShortCode = LOWORD(nCode);
    if (nShortCode == kUpdateCode && nMessage != WM_NOTIFY && nMessage != WM_NOTIFY + WM_REFLECT_BASE && !pExtra) {
        return FALSE; // an update without its CCmdUI
    }
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nSig != AfxSig_end; ++pEntry) {
            if (!Matches(*pEntry, nMessage, nShortCode, nID)) {
                continue;
            }
            if (pHandlerInfo) {
                *pHandlerInfo = {this, pEntry->pfn};
                return TRUE;
            }
            return CallCommand(this, *pEntry, nID, pExtra);
        }
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor()
{
    AfxDoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    AfxDoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    AfxDoWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    AfxDoWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    AfxDoWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    AfxDoWaitCursor(0);
}

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
            ::SendMessage(::GetParent(hWnd), WM_NEXTDLGCTL, 0, FALSE);
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
