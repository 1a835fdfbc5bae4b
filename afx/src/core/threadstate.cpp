#include "stateaccess.h"

#include <new>

ThreadState* AfxStateAccess::Thread()
{
    ThreadState* const pThread = PeekThread();
    return pThread ? pThread : MakeThread();
}

ThreadState* AfxStateAccess::MakeThread()
{
    auto* const pThread = new (std::nothrow) ThreadState;
    if (!pThread) {
        AfxThrowMemoryException();
    }
    StoreThread(pThread);
    ExclusiveLock lock(s_lock);
    pThread->pNext = s_pFirstThread;
    s_pFirstThread = pThread;
    return pThread;
}

void AfxStateAccess::FreeThread(ThreadState* pThread)
{
    {
        ExclusiveLock lock(s_lock);
        ThreadState** ppLink = &s_pFirstThread;
        while (*ppLink && *ppLink != pThread) {
            ppLink = &(*ppLink)->pNext;
        }
        if (*ppLink) {
            *ppLink = pThread->pNext;
        }
    }
    delete pThread;
}

void AfxStateAccess::FreeAllThreads()
{
    while (s_pFirstThread) {
        FreeThread(s_pFirstThread);
    }
}

AFX_MODULE_THREAD_STATE* AfxStateAccess::ModuleThread(ThreadState* pThread, AFX_MODULE_STATE* pModule)
{
    ExclusiveLock lock(s_lock);
    auto& rpState = pThread->modules[pModule];
    if (!rpState) {
        rpState = std::make_unique<AFX_MODULE_THREAD_STATE>();
    }
    return rpState.get();
}

_AFX_THREAD_STATE* AFXAPI AfxGetThreadState()
{
    return AfxStateAccess::Thread();
}

AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState()
{
    return AfxStateAccess::ModuleThread(AfxStateAccess::Thread(), AfxGetModuleState());
}

void AFXAPI AfxFreeThreadState()
{
    ThreadState* const pThread = AfxStateAccess::PeekThread();
    if (!pThread) {
        return;
    }
    /* The wrappers' destructors still ask for the state of the thread, so the maps go first. */
    for (auto& rpMap : pThread->handleMaps) {
        rpMap.reset();
    }
    AfxStateAccess::StoreThread(nullptr);
    AfxStateAccess::FreeThread(pThread);
}

CHandleMap* AFXAPI AfxGetHandleMap(AFX_HANDLE_KIND nKind, const AFX_HANDLE_FACTORY* pFactory)
{
    ThreadState* const pThread = pFactory ? AfxStateAccess::Thread() : AfxStateAccess::PeekThread();
    if (!pThread) {
        return nullptr;
    }
    auto& rpMap = pThread->handleMaps[nKind];
    if (!rpMap && pFactory) {
        rpMap = std::make_unique<CHandleMap>(*pFactory);
    }
    return rpMap.get();
}

void AFXAPI AfxLockTempMaps()
{
    ++AfxGetThreadState()->m_nTempMapLock;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    ThreadState* const pThread = AfxStateAccess::Thread();
    if (pThread->m_nTempMapLock > 0 && --pThread->m_nTempMapLock == 0 && bDeleteTemps) {
        for (const auto& rpMap : pThread->handleMaps) {
            if (rpMap) {
                rpMap->DeleteTemp();
            }
        }
    }
    return pThread->m_nTempMapLock != 0;
}
