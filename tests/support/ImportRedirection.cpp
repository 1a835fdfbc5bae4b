#include <tests/support/ImportRedirection.h>
#include <tests/support/Imports.h>

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
} // namespace

ImportRedirection::ImportRedirection(std::vector<Function> functions) : m_functions(std::move(functions))
{
    for (const HMODULE module : Modules()) {
        ForEachImport(module, [this](const char*, const char*, void** slot) { Redirect(slot); });
    }
}

ImportRedirection::~ImportRedirection()
{
    for (const Slot& slot : m_slots) {
        WriteImport(slot.place, slot.original);
    }
}

void ImportRedirection::Redirect(void** place)
{
    for (const Function& function : m_functions) {
        if (*place == function.original) {
            m_slots.push_back({place, *place});
            WriteImport(place, function.replacement);
            return;
        }
    }
}

} // namespace ts
