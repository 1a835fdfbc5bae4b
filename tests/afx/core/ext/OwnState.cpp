/* A DLL with a module state of its own, which it leaves to the host's lookups as an extension module. */

#include <afx.h>

namespace
{
/** Stands for the global application object: remembers which state it was constructed in. */
struct GlobalObject
{
    AFX_MODULE_STATE* pStateAtStart = AfxGetModuleState();
    HINSTANCE hResourceAtStart = AfxGetResourceHandle();
    void (*pfnAtEnd)(bool bInOwnState) = nullptr;

    ~GlobalObject()
    {
        if (pfnAtEnd) {
            pfnAtEnd(AfxGetModuleState() == pStateAtStart);
        }
    }
};
GlobalObject g_object;
AFX_EXTENSION_MODULE g_extension;
} // namespace

class CModuleAnimal : public CObject
{
    DECLARE_DYNCREATE(CModuleAnimal)
};
IMPLEMENT_DYNCREATE(CModuleAnimal, CObject)

extern "C" {
__declspec(dllexport) AFX_MODULE_STATE* ModuleStateAtStart()
{
    return g_object.pStateAtStart;
}
__declspec(dllexport) HINSTANCE ModuleResourceAtStart()
{
    return g_object.hResourceAtStart;
}
__declspec(dllexport) AFX_MODULE_STATE* ModuleStaticState()
{
    return AfxGetStaticModuleState();
}
__declspec(dllexport) void ModuleNotifyEnd(void (*pfn)(bool))
{
    g_object.pfnAtEnd = pfn;
}
/** Loads a string with the DLL's own state managed. */
__declspec(dllexport) BOOL ModuleLoadOwnString(UINT nID, CString* pstr)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return pstr->LoadString(nID);
}
/** Makes the data of the calling thread. */
__declspec(dllexport) void ModuleTouch()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    AfxGetModuleThreadState()->m_nLastHit = 5;
}
/** Throws with the DLL's own state managed. */
__declspec(dllexport) void ModuleThrow()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    AfxThrowUserException();
}
}

BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        AfxEndModuleStaticInit();
        if (!AfxInitExtensionModule(g_extension, hInstance)) {
            return FALSE;
        }
        new CDynLinkLibrary(g_extension);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_extension);
        AfxBeginModuleStaticTerm();
    }
    return TRUE;
}
