#pragma once

#include <tests/support/Imports.h>

namespace ts
{

/** Lets the framework find and register no window class while it lives. */
class NoWindowClasses
{
  private:
    static BOOL WINAPI Unknown(HINSTANCE, LPCWSTR, WNDCLASSW*) { return FALSE; }
    static ATOM WINAPI Refused(const WNDCLASSW*)
    {
        ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return 0;
    }

    const ReplacedImport m_unknown{L"afx.dll", "GetClassInfoW", &Unknown};
    const ReplacedImport m_refused{L"afx.dll", "RegisterClassW", &Refused};
};

} // namespace ts
