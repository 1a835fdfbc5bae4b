#include "private.h"

#include <new>
#include <vector>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace
{
/* One lock guards the lists of states, threads, libraries and classes. Nothing is called back while it is held. */
SRWLOCK g_lockState = SRWLOCK_INIT;
AFX_CLASSINIT* g_pFirstClass = nullptr;
AFX_MODULE_STATE* g_pFirstState = nullptr;
_AFX_THREAD_STATE* g_pFirstThread = nullptr;
bool g_bProcessTerminating = false;

constexpr UINT STRINGS_PER_BLOCK = 16;

/** Keeps the error code, which TlsGetValue resets: the state is asked for between a call and its GetLastError. */
_AFX_THREAD_STATE* PeekThreadState(DWORD dwTlsIndex)
{
    if (dwTlsIndex == TLS_OUT_OF_INDEXES) {
        return nullptr;
    }
    const DWORD dwLastError = GetLastError();
    auto* const pState = static_cast<_AFX_THREAD_STATE*>(TlsGetValue(dwTlsIndex));
    SetLastError(dwLastError);
    return pState;
}
} // namespace

/** The way of this file into the private parts of the states. */
struct AfxStateAccess
{
    static void EnterClass(AFX_CLASSINIT* pInit);
    static void LeaveClass(AFX_CLASSINIT* pInit);
    static CRuntimeClass* FindInState(const AFX_MODULE_STATE* pState, LPCSTR lpszName);
    static CRuntimeClass* FindInModule(HMODULE hModule, LPCSTR lpszName);
    static CRuntimeClass* FindClass(const AFX_MODULE_STATE* pState, LPCSTR lpszName);

    static void EnterState(AFX_MODULE_STATE* pState);
    static void LeaveState(AFX_MODULE_STATE* pState);
    static void EnterLibrary(CDynLinkLibrary* pLibrary);
    static void LeaveLibrary(CDynLinkLibrary* pLibrary);
    static CDynLinkLibrary* TakeLibrary(HMODULE hModule);

    static _AFX_THREAD_STATE* MakeThread();
    static void FreeThread(_AFX_THREAD_STATE* pThread);
    static void FreeAllThreads();
    /** @return number of handles that objects of the thread own */
    static UINT DumpHandles(const _AFX_THREAD_STATE* pThread);
    /** The last words of the framework on what was not closed. */
    static void ReportLeftHandles();
    /** Frees what this thread has when the process ends; the other threads are gone without having freed theirs. */
    static void FreeLastThread();
    static AFX_MODULE_THREAD_STATE* ModuleThread(_AFX_THREAD_STATE* pThread, AFX_MODULE_STATE* pModule);
    static std::unique_ptr<CHandleMap>& HandleMap(_AFX_THREAD_STATE* pThread, AFX_HANDLE_KIND nKind)
    {
        return pThread->m_rgpHandleMap[nKind];
    }

    /** Resource handles in search order, copied: looking into a module may need the loader's lock, which a thread that
     *  enters its library holds already. */
    static std::vector<HINSTANCE> LibraryResources(const AFX_MODULE_STATE* pState);
    /** Calls a test for every module of the search chain until one passes. */
    template <typename Test>
    static HINSTANCE SearchModules(Test test);
};

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
        if (g_bProcessTerminating) {
            return;
        }
        AfxStateAccess::FreeAllThreads();
        TlsFree(std::exchange(dwTlsIndex, TLS_OUT_OF_INDEXES));
    }
};
StateRoot g_root __attribute__((init_priority(102)));
} // namespace

HMODULE AfxModuleFromAddress(const void* p)
{
    HMODULE hModule = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(p), &hModule);
    return hModule;
}

HINSTANCE AfxFrameworkInstance()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

void AfxSetProcessTerminating()
{
    g_bProcessTerminating = true;
}

/* Classes */

void AfxStateAccess::EnterClass(AFX_CLASSINIT* pInit)
{
    CExclusiveLock lock(g_lockState);
    pInit->m_pNextInit = g_pFirstClass;
    g_pFirstClass = pInit;
}

void AfxStateAccess::LeaveClass(AFX_CLASSINIT* pInit)
{
    CExclusiveLock lock(g_lockState);
    AFX_CLASSINIT** ppLink = &g_pFirstClass;
    while (*ppLink && *ppLink != pInit) {
        ppLink = &(*ppLink)->m_pNextInit;
    }
    if (*ppLink) {
        *ppLink = pInit->m_pNextInit;
    }
}

CRuntimeClass* AfxStateAccess::FindInState(const AFX_MODULE_STATE* pState, LPCSTR lpszName)
{
    for (const AFX_CLASSINIT* p = g_pFirstClass; p; p = p->m_pNextInit) {
        if (p->m_pOwnerState == pState && p->m_hModule != AfxFrameworkInstance() &&
            strcmp(p->m_pClass->m_lpszClassName, lpszName) == 0) {
            return p->m_pClass;
        }
    }
    return nullptr;
}

CRuntimeClass* AfxStateAccess::FindInModule(HMODULE hModule, LPCSTR lpszName)
{
    for (const AFX_CLASSINIT* p = g_pFirstClass; p; p = p->m_pNextInit) {
        if (p->m_hModule == hModule && strcmp(p->m_pClass->m_lpszClassName, lpszName) == 0) {
            return p->m_pClass;
        }
    }
    return nullptr;
}

CRuntimeClass* AfxStateAccess::FindClass(const AFX_MODULE_STATE* pState, LPCSTR lpszName)
{
    CExclusiveLock lock(g_lockState);
    CRuntimeClass* pClass = FindInState(pState, lpszName);
    for (const CDynLinkLibrary* p = pState->m_pFirstLibrary; p && !pClass; p = p->m_pNextDLL) {
        pClass = FindInModule(p->m_hModule, lpszName);
    }
    return pClass ? pClass : FindInModule(AfxFrameworkInstance(), lpszName);
}

CRuntimeClass* AfxFindClass(LPCSTR lpszClassName)
{
    return AfxStateAccess::FindClass(AfxGetModuleState(), lpszClassName);
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass)
    : m_pClass(pNewClass), m_hModule(AfxModuleFromAddress(this)), m_pOwnerState(AfxGetModuleState())
{
    AfxStateAccess::EnterClass(this);
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    AfxStateAccess::LeaveClass(this);
}

/* Module states and extension modules */

void AfxStateAccess::EnterState(AFX_MODULE_STATE* pState)
{
    CExclusiveLock lock(g_lockState);
    pState->m_pNextState = g_pFirstState;
    g_pFirstState = pState;
}

void AfxStateAccess::LeaveState(AFX_MODULE_STATE* pState)
{
    CExclusiveLock lock(g_lockState);
    AFX_MODULE_STATE** ppLink = &g_pFirstState;
    while (*ppLink && *ppLink != pState) {
        ppLink = &(*ppLink)->m_pNextState;
    }
    if (*ppLink) {
        *ppLink = pState->m_pNextState;
    }
    for (_AFX_THREAD_STATE* pThread = g_pFirstThread; pThread; pThread = pThread->m_pNextThread) {
        pThread->m_mapModules.erase(pState);
        if (pThread->m_pModuleState == pState) {
            pThread->m_pModuleState = nullptr;
        }
    }
}

void AfxStateAccess::EnterLibrary(CDynLinkLibrary* pLibrary)
{
    AFX_MODULE_STATE* const pState = AfxGetModuleState();
    CExclusiveLock lock(g_lockState);
    pLibrary->m_pOwnerState = pState;
    pLibrary->m_pNextDLL = pState->m_pFirstLibrary;
    pState->m_pFirstLibrary = pLibrary;
}

void AfxStateAccess::LeaveLibrary(CDynLinkLibrary* pLibrary)
{
    CExclusiveLock lock(g_lockState);
    if (!pLibrary->m_pOwnerState) {
        return;
    }
    CDynLinkLibrary** ppLink = &pLibrary->m_pOwnerState->m_pFirstLibrary;
    while (*ppLink && *ppLink != pLibrary) {
        ppLink = &(*ppLink)->m_pNextDLL;
    }
    if (*ppLink) {
        *ppLink = pLibrary->m_pNextDLL;
    }
    pLibrary->m_pOwnerState = nullptr;
}

CDynLinkLibrary* AfxStateAccess::TakeLibrary(HMODULE hModule)
{
    CExclusiveLock lock(g_lockState);
    for (AFX_MODULE_STATE* pState = g_pFirstState; pState; pState = pState->m_pNextState) {
        for (CDynLinkLibrary* p = pState->m_pFirstLibrary; p; p = p->m_pNextDLL) {
            if (p->m_hModule == hModule) {
                return p;
            }
        }
    }
    return nullptr;
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

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

CDynLinkLibrary::CDynLinkLibrary(const AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem)
{
    AfxStateAccess::EnterLibrary(this);
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE)
{
    AfxStateAccess::EnterLibrary(this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    AfxStateAccess::LeaveLibrary(this);
}

void CDynLinkLibrary::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << L"m_hModule = " << static_cast<const void*>(m_hModule) << L"\n";
}

AFX_EXTENSION_MODULE::~AFX_EXTENSION_MODULE()
{
    if (bInitialized) {
        AfxTermExtensionModule(*this);
    }
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (!hModule) {
        return FALSE;
    }
    state.hModule = hModule;
    state.hResource = hModule;
    state.bInitialized = TRUE;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL)
{
    if (!state.bInitialized) {
        return;
    }
    while (CDynLinkLibrary* const pLibrary = AfxStateAccess::TakeLibrary(state.hModule)) {
        delete pLibrary;
    }
    state.bInitialized = FALSE;
    state.hModule = state.hResource = nullptr;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    const _AFX_THREAD_STATE* const pThread = PeekThreadState(g_root.dwTlsIndex);
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

/* Threads */

_AFX_THREAD_STATE::_AFX_THREAD_STATE() = default;
_AFX_THREAD_STATE::~_AFX_THREAD_STATE() = default;

_AFX_THREAD_STATE* AfxStateAccess::MakeThread()
{
    auto* const pThread = new (std::nothrow) _AFX_THREAD_STATE;
    if (!pThread) {
        AfxThrowMemoryException();
    }
    TlsSetValue(g_root.dwTlsIndex, pThread);
    CExclusiveLock lock(g_lockState);
    pThread->m_pNextThread = g_pFirstThread;
    g_pFirstThread = pThread;
    return pThread;
}

void AfxStateAccess::FreeThread(_AFX_THREAD_STATE* pThread)
{
    {
        CExclusiveLock lock(g_lockState);
        _AFX_THREAD_STATE** ppLink = &g_pFirstThread;
        while (*ppLink && *ppLink != pThread) {
            ppLink = &(*ppLink)->m_pNextThread;
        }
        if (*ppLink) {
            *ppLink = pThread->m_pNextThread;
        }
    }
    delete pThread;
}

void AfxStateAccess::FreeAllThreads()
{
    while (g_pFirstThread) {
        FreeThread(g_pFirstThread);
    }
}

UINT AfxStateAccess::DumpHandles(const _AFX_THREAD_STATE* pThread)
{
    static constexpr LPCWSTR KIND_NAMES[AFX_HANDLE_KINDS] = {L"window",     L"menu",       L"device context",
                                                             L"GDI object", L"image list", L"socket"};
    size_t nCount = 0;
    for (int nKind = 0; nKind < AFX_HANDLE_KINDS; ++nKind) {
        const CHandleMap* const pMap = pThread->m_rgpHandleMap[nKind].get();
        if (!pMap) {
            continue;
        }
        pMap->DumpPermanent(KIND_NAMES[nKind]);
        nCount += pMap->GetPermanentCount();
    }
    return static_cast<UINT>(nCount);
}

void AfxStateAccess::ReportLeftHandles()
{
    AfxSetTraceHook(nullptr);
    UINT nCount = 0;
    for (const _AFX_THREAD_STATE* pThread = g_pFirstThread; pThread; pThread = pThread->m_pNextThread) {
        nCount += DumpHandles(pThread);
    }
    if (nCount > 0) {
        AfxTrace(L"%u handles are left when the framework ends\n", nCount);
    }
    if (g_bProcessTerminating) {
        FreeLastThread();
    }
}

void AfxStateAccess::FreeLastThread()
{
    AfxFreeThreadState();
    if (g_pFirstThread) {
        AfxOmitBlockReport();
    }
}

UINT AFXAPI AfxDumpHandles()
{
    return AfxStateAccess::DumpHandles(AfxGetThreadState());
}

void CHandleState::Checkpoint()
{
    static constexpr AFX_HANDLE_KIND KINDS[nHandleKinds] = {AFX_HANDLE_HWND, AFX_HANDLE_HMENU, AFX_HANDLE_HDC,
                                                            AFX_HANDLE_HGDIOBJ, AFX_HANDLE_HIMAGELIST};
    for (int nKind = 0; nKind < nHandleKinds; ++nKind) {
        const CHandleMap* const pMap = AfxGetHandleMap(KINDS[nKind], nullptr);
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

AFX_MODULE_THREAD_STATE* AfxStateAccess::ModuleThread(_AFX_THREAD_STATE* pThread, AFX_MODULE_STATE* pModule)
{
    CExclusiveLock lock(g_lockState);
    auto& rpState = pThread->m_mapModules[pModule];
    if (!rpState) {
        rpState = std::make_unique<AFX_MODULE_THREAD_STATE>();
    }
    return rpState.get();
}

_AFX_THREAD_STATE* AFXAPI AfxGetThreadState()
{
    _AFX_THREAD_STATE* const pThread = PeekThreadState(g_root.dwTlsIndex);
    return pThread ? pThread : AfxStateAccess::MakeThread();
}

AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState()
{
    return AfxStateAccess::ModuleThread(AfxGetThreadState(), AfxGetModuleState());
}

void AFXAPI AfxFreeThreadState()
{
    _AFX_THREAD_STATE* const pThread = PeekThreadState(g_root.dwTlsIndex);
    if (!pThread) {
        return;
    }
    /* The wrappers' destructors still ask for the state of the thread, so the maps go first. */
    for (int nKind = 0; nKind < AFX_HANDLE_KINDS; ++nKind) {
        AfxStateAccess::HandleMap(pThread, static_cast<AFX_HANDLE_KIND>(nKind)).reset();
    }
    TlsSetValue(g_root.dwTlsIndex, nullptr);
    AfxStateAccess::FreeThread(pThread);
}

CHandleMap* AFXAPI AfxGetHandleMap(AFX_HANDLE_KIND nKind, const AFX_HANDLE_FACTORY* pFactory)
{
    _AFX_THREAD_STATE* const pThread = pFactory ? AfxGetThreadState() : PeekThreadState(g_root.dwTlsIndex);
    if (!pThread) {
        return nullptr;
    }
    auto& rpMap = AfxStateAccess::HandleMap(pThread, nKind);
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
    _AFX_THREAD_STATE* const pThread = AfxGetThreadState();
    if (pThread->m_nTempMapLock > 0 && --pThread->m_nTempMapLock == 0 && bDeleteTemps) {
        for (int nKind = 0; nKind < AFX_HANDLE_KINDS; ++nKind) {
            if (auto& rpMap = AfxStateAccess::HandleMap(pThread, static_cast<AFX_HANDLE_KIND>(nKind))) {
                rpMap->DeleteTemp();
            }
        }
    }
    return pThread->m_nTempMapLock != 0;
}

/* Resources */

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return hInstance ? hInstance : GetModuleHandleW(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    const HINSTANCE hInstance = AfxGetModuleState()->m_hCurrentResourceHandle;
    return hInstance ? hInstance : GetModuleHandleW(nullptr);
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

std::vector<HINSTANCE> AfxStateAccess::LibraryResources(const AFX_MODULE_STATE* pState)
{
    std::vector<HINSTANCE> handles;
    CExclusiveLock lock(g_lockState);
    for (const bool bSystem : {false, true}) {
        for (const CDynLinkLibrary* p = pState->m_pFirstLibrary; p; p = p->m_pNextDLL) {
            if (p->m_hResource && (p->m_bSystem != FALSE) == bSystem) {
                handles.push_back(p->m_hResource);
            }
        }
    }
    return handles;
}

template <typename Test>
HINSTANCE AfxStateAccess::SearchModules(Test test)
{
    const HINSTANCE hFirst = AfxGetResourceHandle();
    if (test(hFirst)) {
        return hFirst;
    }
    for (const HINSTANCE hLibrary : LibraryResources(AfxGetModuleState())) {
        if (test(hLibrary)) {
            return hLibrary;
        }
    }
    return test(AfxFrameworkInstance()) ? AfxFrameworkInstance() : nullptr;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType)
{
    const HINSTANCE hFound = AfxStateAccess::SearchModules(
        [=](HINSTANCE hModule) { return FindResourceW(hModule, lpszName, lpszType) != nullptr; });
    return hFound ? hFound : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID)
{
    constexpr WORD wNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
    return AfxStateAccess::SearchModules(
        [=](HINSTANCE hModule) { return AfxLocateString(hModule, nID, wNeutral).lpsz != nullptr; });
}

AfxStringResource AfxLocateString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    if (nID > 0xFFFF) {
        return {};
    }
    const HRSRC hResource = FindResourceExW(hInstance, reinterpret_cast<LPCWSTR>(RT_STRING),
                                            MAKEINTRESOURCEW(nID / STRINGS_PER_BLOCK + 1), wLanguageID);
    const HGLOBAL hGlobal = hResource ? LoadResource(hInstance, hResource) : nullptr;
    const auto* p = hGlobal ? static_cast<const wchar_t*>(LockResource(hGlobal)) : nullptr;
    if (!p) {
        return {};
    }
    const wchar_t* const pEnd = p + SizeofResource(hInstance, hResource) / sizeof(wchar_t);
    for (UINT i = 0; p < pEnd; ++i) {
        const int nLength = static_cast<WORD>(*p++);
        if (nLength > pEnd - p) {
            break;
        }
        if (i == nID % STRINGS_PER_BLOCK) {
            return nLength > 0 ? AfxStringResource{p, nLength} : AfxStringResource{};
        }
        p += nLength;
    }
    return {};
}
