#include "Attach.h"
#include "QorUIApp.h"

namespace
{

AFX_EXTENSION_MODULE g_Extension;

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE inst, DWORD reason, LPVOID)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        AfxEndModuleStaticInit();
        return QorAttach(g_QorUIApp, g_Extension, inst);
    case DLL_THREAD_DETACH:
        QorDetachThread(inst);
        break;
    case DLL_PROCESS_DETACH:
        QorDetach(g_QorUIApp, g_Extension);
        AfxBeginModuleStaticTerm();
        break;
    default:
        break;
    }
    return TRUE;
}
