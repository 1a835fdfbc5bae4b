#include "stateaccess.h"

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

void AfxStateAccess::EnterLibrary(CDynLinkLibrary* pLibrary)
{
    AFX_MODULE_STATE* const pState = AfxGetModuleState();
    ExclusiveLock lock(s_lock);
    pLibrary->m_pOwnerState = pState;
    pLibrary->m_pNextDLL = pState->m_pFirstLibrary;
    pState->m_pFirstLibrary = pLibrary;
}

void AfxStateAccess::LeaveLibrary(CDynLinkLibrary* pLibrary)
{
    ExclusiveLock lock(s_lock);
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
    ExclusiveLock lock(s_lock);
    for (AFX_MODULE_STATE* pState = s_pFirstState; pState; pState = pState->m_pNextState) {
        for (CDynLinkLibrary* p = pState->m_pFirstLibrary; p; p = p->m_pNextDLL) {
            if (p->m_hModule == hModule) {
                return p;
            }
        }
    }
    return nullptr;
}

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
