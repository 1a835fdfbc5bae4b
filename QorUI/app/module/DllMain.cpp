#include "Attach.h"
#include "QorUIApp.h"

namespace
{

AFX_EXTENSION_MODULE g_Extension;

// afx makes and destroys the library's static objects in the library's own module state; MFC needs no call for that.
#ifndef AFX_HAS_STATIC_MODULE_INIT
void EndStaticInit() {}
void BeginStaticTerm() {}
#else
void EndStaticInit()
{
    AfxEndModuleStaticInit();
}

void BeginStaticTerm()
{
    AfxBeginModuleStaticTerm();
}
#endif

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE inst, DWORD reason, LPVOID)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        EndStaticInit();
        return QorAttach(g_QorUIApp, g_Extension, inst);
    case DLL_THREAD_DETACH:
        QorDetachThread(inst);
        break;
    case DLL_PROCESS_DETACH:
        QorDetach(g_QorUIApp, g_Extension);
        BeginStaticTerm();
        break;
    default:
        break;
    }
    return TRUE;
}
