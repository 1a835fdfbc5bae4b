#include "private.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

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

BOOL WINAPI DllMain(HINSTANCE, DWORD dwReason, LPVOID lpReserved)
{
    if (dwReason == DLL_THREAD_DETACH) {
        AfxFreeThreadState();
    } else if (dwReason == DLL_PROCESS_DETACH && lpReserved) {
        AfxSetProcessTerminating();
    }
    return TRUE;
}
