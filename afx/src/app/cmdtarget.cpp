#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace
{
constexpr WORD kUpdateCode = static_cast<WORD>(CN_UPDATE_COMMAND_UI);

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
    static const AFX_MSGMAP_ENTRY kEnd = {0, 0, 0, 0, AfxSig_end, nullptr};
    static const AFX_MSGMAP kMap = {nullptr, &kEnd};
    return &kMap;
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
