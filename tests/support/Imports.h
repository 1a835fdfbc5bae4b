#pragma once

#include <set>
#include <string>
#include <windows.h>

namespace ts
{

/** The DLLs, in lower case, that the system loads together with a module; those loaded at first use are not among them.
 */
inline std::set<std::string> ImportsOf(HMODULE module)
{
    std::set<std::string> names;
    const auto* base = reinterpret_cast<const BYTE*>(module);
    if (!base)
        return names;
    const auto* header =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD imports = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* one = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); one->Name != 0; ++one) {
        std::string name(reinterpret_cast<const char*>(base + one->Name));
        names.insert(_strlwr(name.data()));
    }
    return names;
}

} // namespace ts
