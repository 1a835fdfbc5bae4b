#include "Environment.h"

#include <windows.h>

std::wstring ReadEnvironment(const wchar_t* name)
{
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), 0);
    value.resize(value.empty() ? 0 : GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}
