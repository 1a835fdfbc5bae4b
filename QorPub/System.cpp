#include "OsVersion.h"
#include "QorPub.h"

namespace
{

OSVERSIONINFOEXW SystemVersion()
{
    using RtlGetVersionFn = LONG(WINAPI*)(OSVERSIONINFOEXW*);
    OSVERSIONINFOEXW info = {};
    info.dwOSVersionInfoSize = sizeof(info);
    HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    auto getVersion =
        ntdll ? reinterpret_cast<RtlGetVersionFn>(reinterpret_cast<void*>(GetProcAddress(ntdll, "RtlGetVersion")))
              : nullptr;
    if (getVersion) {
        getVersion(&info);
    }
    return info;
}

WORD FindOsVersion()
{
    OSVERSIONINFOEXW info = SystemVersion();
    return qor::OsVersionCode(info.dwMajorVersion, info.dwMinorVersion);
}

HWND FindVisibleWindow(LPCWSTR className, LPCWSTR title)
{
    HWND found = nullptr;
    do {
        found = FindWindowExW(nullptr, found, className, title);
    } while (found && !IsWindowVisible(found));
    return found;
}

} // namespace

WORD g_OsVer = FindOsVersion();
WORD g_SpVer = SystemVersion().wServicePackMajor;

BOOL QorShowPreInstanceWnd(LPCWSTR className, LPCWSTR title)
{
    if (!title || *title == 0) {
        return FALSE;
    }
    HWND found = FindVisibleWindow(className && *className != 0 ? className : nullptr, title);
    if (!found) {
        return FALSE;
    }
    if (IsIconic(found)) {
        ShowWindow(found, SW_RESTORE);
    }
    SetForegroundWindow(GetLastActivePopup(found));
    return TRUE;
}
