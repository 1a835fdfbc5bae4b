#include <tests/support/ImportHook.h>

#include <cstring>
#include <gtest/gtest.h>

namespace ts
{
namespace
{

/** Where a module keeps the address of a function that it imports; null when it does not import it. */
ULONG_PTR* FindSlot(HMODULE module, const char* function)
{
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.Size == 0) {
        return nullptr;
    }
    const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; dll->Name != 0; ++dll) {
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA64*>(base + dll->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA64*>(base + dll->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL64(names->u1.Ordinal)) {
                continue;
            }
            const auto* name = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(name->Name, function) == 0) {
                return &slots->u1.Function;
            }
        }
    }
    return nullptr;
}

void Write(ULONG_PTR* slot, ULONG_PTR address)
{
    DWORD protection = 0;
    ::VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection);
    *slot = address;
    ::VirtualProtect(slot, sizeof(*slot), protection, &protection);
}

} // namespace

ImportHook::ImportHook(const wchar_t* module, const char* function, ULONG_PTR replacement)
    : m_slot(nullptr), m_original(0)
{
    if (const HMODULE loaded = ::GetModuleHandleW(module)) {
        m_slot = FindSlot(loaded, function);
    }
    if (!m_slot) {
        ADD_FAILURE() << "the module does not import " << function;
        return;
    }
    m_original = *m_slot;
    Write(m_slot, replacement);
}

ImportHook::~ImportHook()
{
    if (m_slot) {
        Write(m_slot, m_original);
    }
}

} // namespace ts
