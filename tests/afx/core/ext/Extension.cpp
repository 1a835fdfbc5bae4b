/* An extension DLL, built twice with different resources and class names. */

#include <afx.h>

static AFX_EXTENSION_MODULE g_extension = {};

/* The macros make names of their argument, so that it must be expanded before. */
#define DECLARE_EXPANDED(class_name) DECLARE_DYNCREATE(class_name)
#define IMPLEMENT_EXPANDED(class_name) IMPLEMENT_DYNCREATE(class_name, CObject)

class EXT_CLASS : public CObject
{
    DECLARE_EXPANDED(EXT_CLASS)
};

IMPLEMENT_EXPANDED(EXT_CLASS)

/** Leaves the list of the host without a word, as a careless DLL does. */
extern "C" {
__declspec(dllexport) bool g_bForgetToTerminate = false;
}

BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(g_extension, hInstance)) {
            return FALSE;
        }
        new CDynLinkLibrary(g_extension);
    } else if (dwReason == DLL_PROCESS_DETACH && !g_bForgetToTerminate) {
        AfxTermExtensionModule(g_extension);
    }
    return TRUE;
}
