#include "stateaccess.h"

UINT AfxStateAccess::DumpHandles(const ThreadState* pThread)
{
    static constexpr LPCWSTR kKindNames[AFX_HANDLE_KINDS] = {L"window",     L"menu",       L"device context",
                                                             L"GDI object", L"image list", L"socket"};
    size_t nCount = 0;
    for (int nKind = 0; nKind < AFX_HANDLE_KINDS; ++nKind) {
        const CHandleMap* const pMap = pThread->handleMaps[nKind].get();
        if (!pMap) {
            continue;
        }
        pMap->DumpPermanent(kKindNames[nKind]);
        nCount += pMap->GetPermanentCount();
    }
    return static_cast<UINT>(nCount);
}

void AfxStateAccess::ReportLeftHandles()
{
    AfxSetTraceHook(nullptr);
    UINT nCount = 0;
    for (const ThreadState* pThread = s_pFirstThread; pThread; pThread = pThread->pNext) {
        nCount += DumpHandles(pThread);
    }
    if (nCount > 0) {
        AfxTrace(L"%u handles are left when the framework ends\n", nCount);
    }
    if (s_bProcessTerminating) {
        FreeLastThread();
    }
}

void AfxStateAccess::FreeLastThread()
{
    AfxFreeThreadState();
    if (s_pFirstThread) {
        AfxOmitBlockReport();
    }
}

UINT AFXAPI AfxDumpHandles()
{
    return AfxStateAccess::DumpHandles(AfxStateAccess::Thread());
}

void CHandleState::Checkpoint()
{
    static constexpr AFX_HANDLE_KIND kKinds[nHandleKinds] = {AFX_HANDLE_HWND, AFX_HANDLE_HMENU, AFX_HANDLE_HDC,
                                                             AFX_HANDLE_HGDIOBJ, AFX_HANDLE_HIMAGELIST};
    for (int nKind = 0; nKind < nHandleKinds; ++nKind) {
        const CHandleMap* const pMap = AfxGetHandleMap(kKinds[nKind], nullptr);
        m_lCounts[nKind] = pMap ? static_cast<LONG>(pMap->GetPermanentCount()) : 0;
    }
}

BOOL CHandleState::Difference(const CHandleState& oldState, const CHandleState& newState)
{
    BOOL bDifferent = FALSE;
    for (int nKind = 0; nKind < nHandleKinds; ++nKind) {
        m_lCounts[nKind] = newState.m_lCounts[nKind] - oldState.m_lCounts[nKind];
        if (m_lCounts[nKind] != 0) {
            bDifferent = TRUE;
        }
    }
    return bDifferent;
}

void CHandleState::DumpStatistics() const
{
    AfxTrace(L"%d windows, %d menus, %d device contexts, %d GDI objects, %d image lists\n", m_lCounts[windows],
             m_lCounts[menus], m_lCounts[deviceContexts], m_lCounts[gdiObjects], m_lCounts[imageLists]);
}
