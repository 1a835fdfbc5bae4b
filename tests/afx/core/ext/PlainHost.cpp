/* A program that knows nothing of the framework: it loads a library that stands on it, uses it on two threads, frees it
 * while both live, and does it again. The exit status is the number of the step that failed. */

#include <windows.h>

namespace
{
constexpr DWORD kLimit = 10000;

struct Worker
{
    HANDLE hUsed = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE hFreed = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    FARPROC pfnUse = nullptr;
};

/** Stays alive until the library is gone; only then its thread ends. */
DWORD WINAPI UseAndWait(LPVOID pParameter)
{
    const auto* const pWorker = static_cast<Worker*>(pParameter);
    pWorker->pfnUse();
    SetEvent(pWorker->hUsed);
    return WaitForSingleObject(pWorker->hFreed, kLimit);
}

int Round()
{
    const HMODULE hModule = LoadLibraryW(L"afx_core_module.dll");
    if (!hModule) {
        return 1;
    }
    if (!GetModuleHandleW(L"afx.dll")) {
        return 2;
    }
    Worker worker;
    worker.pfnUse = GetProcAddress(hModule, "ModuleTouch");
    if (!worker.pfnUse) {
        return 3;
    }
    worker.pfnUse();
    const HANDLE hThread = CreateThread(nullptr, 0, UseAndWait, &worker, 0, nullptr);
    if (WaitForSingleObject(worker.hUsed, kLimit) != WAIT_OBJECT_0) {
        return 4;
    }
    FreeLibrary(hModule);
    if (GetModuleHandleW(L"afx_core_module.dll")) {
        return 5;
    }
    if (GetModuleHandleW(L"afx.dll")) {
        return 6;
    }
    SetEvent(worker.hFreed);
    if (WaitForSingleObject(hThread, kLimit) != WAIT_OBJECT_0) {
        return 7;
    }
    CloseHandle(hThread);
    return 0;
}
} // namespace

int wmain()
{
    const int nFirst = Round();
    return nFirst ? nFirst : Round() * 10;
}
