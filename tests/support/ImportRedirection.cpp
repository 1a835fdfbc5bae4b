#include <tests/support/ImportRedirection.h>

#include <psapi.h>
#include <utility>

namespace ts
{
namespace
{
std::vector<HMODULE> Modules()
{
    DWORD bytes = 0;
    K32EnumProcessModules(GetCurrentProcess(), nullptr, 0, &bytes);
    std::vector<HMODULE> modules(bytes / sizeof(HMODULE));
    K32EnumProcessModules(GetCurrentProcess(), modules.data(), bytes, &bytes);
    return modules;
}

template <class T>
T* At(HMODULE module, DWORD offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(module) + offset);
}
} // namespace

ImportRedirection::ImportRedirection(std::vector<Function> functions) : m_functions(std::move(functions))
{
    for (const HMODULE module : Modules())
        Redirect(module);
}

ImportRedirection::~ImportRedirection()
{
    for (const Slot& slot : m_slots)
        Write(slot.place, slot.original);
}

void ImportRedirection::Redirect(HMODULE module)
{
    const auto* dos = At<const IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<const IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.Size == 0)
        return;
    const auto* library = At<const IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress);
    for (; library->Name != 0; ++library)
        RedirectImports(At<void*>(module, library->FirstThunk));
}

void ImportRedirection::RedirectImports(void** place)
{
    for (; *place; ++place) {
        for (const Function& function : m_functions) {
            if (*place == function.original) {
                m_slots.push_back({place, *place});
                Write(place, function.replacement);
                break;
            }
        }
    }
}

void ImportRedirection::Write(void** place, void* value)
{
    DWORD protection = 0;
    VirtualProtect(place, sizeof(*place), PAGE_READWRITE, &protection);
    *place = value;
    VirtualProtect(place, sizeof(*place), protection, &protection);
}

} // namespace ts
