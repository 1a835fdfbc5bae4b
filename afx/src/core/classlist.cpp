#include "stateaccess.h"

namespace
{
AFX_CLASSINIT* g_pFirstClass = nullptr;
} // namespace

void AfxStateAccess::EnterClass(AFX_CLASSINIT* pInit)
{
    ExclusiveLock lock(s_lock);
    pInit->m_pNextInit = g_pFirstClass;
    g_pFirstClass = pInit;
}

void AfxStateAccess::LeaveClass(AFX_CLASSINIT* pInit)
{
    ExclusiveLock lock(s_lock);
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
    ExclusiveLock lock(s_lock);
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
