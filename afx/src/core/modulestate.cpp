#include "stateaccess.h"

#include <utility>

namespace
{
/** First to be constructed and last to be destroyed of all static objects of the library. */
struct StateRoot
{
    DWORD dwTlsIndex = TlsAlloc();
    AFX_MODULE_STATE baseState{FALSE, GetModuleHandleW(nullptr)};

    ~StateRoot()
    {
        if (AfxIsMemoryTracked()) {
            AfxStateAccess::ReportLeftHandles();
        }
        if (AfxStateAccess::s_bProcessTerminating) {
            return;
        }
        AfxStateAccess::FreeAllThreads();
        TlsFree(std::exchange(dwTlsIndex, TLS_OUT_OF_INDEXES));
    }
};
StateRoot g_root __attribute__((init_priority(102)));
} // namespace

void AfxSetProcessTerminating()
{
    AfxStateAccess::s_bProcessTerminating = true;
}

ThreadState* AfxStateAccess::PeekThread()
{
    if (g_root.dwTlsIndex == TLS_OUT_OF_INDEXES) {
        return nullptr;
    }
    const DWORD dwLastError = GetLastError();
    auto* const pThread = static_cast<ThreadState*>(TlsGetValue(g_root.dwTlsIndex));
    SetLastError(dwLastError);
    return pThread;
}

void AfxStateAccess::StoreThread(ThreadState* pThread)
{
    TlsSetValue(g_root.dwTlsIndex, pThread);
}

void AfxStateAccess::EnterState(AFX_MODULE_STATE* pState)
{
    ExclusiveLock lock(s_lock);
    pState->m_pNextState = s_pFirstState;
    s_pFirstState = pState;
}

void AfxStateAccess::LeaveState(AFX_MODULE_STATE* pState)
{
    ExclusiveLock lock(s_lock);
    AFX_MODULE_STATE** ppLink = &s_pFirstState;
    while (*ppLink && *ppLink != pState) {
        ppLink = &(*ppLink)->m_pNextState;
    }
    if (*ppLink) {
        *ppLink = pState->m_pNextState;
    }
    for (ThreadState* pThread = s_pFirstThread; pThread; pThread = pThread->pNext) {
        pThread->modules.erase(pState);
        if (pThread->m_pModuleState == pState) {
            pThread->m_pModuleState = nullptr;
        }
    }
}

AFX_MODULE_STATE::AFX_MODULE_STATE(BOOL bDLL, HINSTANCE hInstance)
    : m_hCurrentInstanceHandle(hInstance), m_hCurrentResourceHandle(hInstance), m_bDLL(bDLL)
{
    AfxStateAccess::EnterState(this);
}

AFX_MODULE_STATE::~AFX_MODULE_STATE()
{
    while (m_pFirstLibrary) {
        delete m_pFirstLibrary;
    }
    AfxStateAccess::LeaveState(this);
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    const ThreadState* const pThread = AfxStateAccess::PeekThread();
    return pThread && pThread->m_pModuleState ? pThread->m_pModuleState : &g_root.baseState;
}

AFX_MODULE_STATE* AFXAPI AfxGetBaseModuleState()
{
    return &g_root.baseState;
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState)
{
    AFX_MODULE_STATE* const pOldState = AfxGetModuleState();
    AfxGetThreadState()->m_pModuleState = pNewState;
    return pOldState;
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return &g_root.baseState;
}
