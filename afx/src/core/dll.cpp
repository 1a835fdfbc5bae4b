#include "private.h"

BOOL WINAPI DllMain(HINSTANCE, DWORD dwReason, LPVOID lpReserved)
{
    if (dwReason == DLL_THREAD_DETACH) {
        AfxFreeThreadState();
    } else if (dwReason == DLL_PROCESS_DETACH && lpReserved) {
        AfxSetProcessTerminating();
    }
    return TRUE;
}
