#include "stateaccess.h"

namespace
{
constexpr UINT kStringsPerBlock = 16;

/** Calls a test for every module of the search chain until one passes. */
template <typename Test>
HINSTANCE SearchModules(Test test)
{
    const HINSTANCE hFirst = AfxGetResourceHandle();
    if (test(hFirst)) {
        return hFirst;
    }
    for (const HINSTANCE hLibrary : AfxStateAccess::LibraryResources(AfxGetModuleState())) {
        if (test(hLibrary)) {
            return hLibrary;
        }
    }
    return test(AfxFrameworkInstance()) ? AfxFrameworkInstance() : nullptr;
}
} // namespace

std::vector<HINSTANCE> AfxStateAccess::LibraryResources(const AFX_MODULE_STATE* pState)
{
    std::vector<HINSTANCE> handles;
    ExclusiveLock lock(s_lock);
    for (const bool bSystem : {false, true}) {
        for (const CDynLinkLibrary* p = pState->m_pFirstLibrary; p; p = p->m_pNextDLL) {
            if (p->m_hResource && (p->m_bSystem != FALSE) == bSystem) {
                handles.push_back(p->m_hResource);
            }
        }
    }
    return handles;
}

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

HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType)
{
    const HINSTANCE hFound =
        SearchModules([=](HINSTANCE hModule) { return FindResourceW(hModule, lpszName, lpszType) != nullptr; });
    return hFound ? hFound : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID)
{
    constexpr WORD kNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
    return SearchModules([=](HINSTANCE hModule) { return AfxLocateString(hModule, nID, kNeutral).lpsz != nullptr; });
}

AfxStringResource AfxLocateString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    if (nID > 0xFFFF) {
        return {};
    }
    const HRSRC hResource = FindResourceExW(hInstance, reinterpret_cast<LPCWSTR>(RT_STRING),
                                            MAKEINTRESOURCEW(nID / kStringsPerBlock + 1), wLanguageID);
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
        if (i == nID % kStringsPerBlock) {
            return nLength > 0 ? AfxStringResource{p, nLength} : AfxStringResource{};
        }
        p += nLength;
    }
    return {};
}
