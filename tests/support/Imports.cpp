#include <tests/support/Imports.h>

#include <gtest/gtest.h>

#include <cstring>

namespace ts
{
namespace
{

template <class T>
T* At(HMODULE module, ULONGLONG offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(module) + offset);
}

/** The module's table of imports; null when it has none. */
const IMAGE_IMPORT_DESCRIPTOR* Libraries(HMODULE module)
{
    if (!module) {
        return nullptr;
    }
    const auto* dos = At<const IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<const IMAGE_NT_HEADERS64>(module, static_cast<ULONGLONG>(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    return imports.Size > 0 ? At<const IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress) : nullptr;
}

/** Copies over what cannot be written to, code included. */
void Overwrite(void* place, const void* data, size_t size)
{
    DWORD protection = 0;
    VirtualProtect(place, size, PAGE_EXECUTE_READWRITE, &protection);
    std::memcpy(place, data, size);
    VirtualProtect(place, size, protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), place, size);
}

/** mov rax, target; jmp rax */
std::string JumpTo(void* target)
{
    const auto address = reinterpret_cast<ULONG_PTR>(target);
    return std::string("\x48\xB8", 2) + std::string(reinterpret_cast<const char*>(&address), sizeof(address)) +
           std::string("\xFF\xE0", 2);
}

} // namespace

void ForEachImport(HMODULE module,
                   const std::function<void(const char* library, const char* function, void** slot)>& visit)
{
    const IMAGE_IMPORT_DESCRIPTOR* library = Libraries(module);
    for (; library && library->Name != 0; ++library) {
        if (library->OriginalFirstThunk == 0) {
            continue; // bound without keeping the names
        }
        const auto* name = At<const IMAGE_THUNK_DATA64>(module, library->OriginalFirstThunk);
        auto* slot = At<IMAGE_THUNK_DATA64>(module, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (!IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal)) {
                visit(At<const char>(module, library->Name),
                      At<const IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData)->Name,
                      reinterpret_cast<void**>(&slot->u1.Function));
            }
        }
    }
}

void WriteImport(void** slot, void* address)
{
    Overwrite(slot, &address, sizeof(address));
}

std::set<std::string> ImportsOf(HMODULE module)
{
    std::set<std::string> names;
    const IMAGE_IMPORT_DESCRIPTOR* library = Libraries(module);
    for (; library && library->Name != 0; ++library) {
        std::string name(At<const char>(module, library->Name));
        names.insert(_strlwr(name.data()));
    }
    return names;
}

ReplacedImport::ReplacedImport(const wchar_t* module, const char* function, void* replacement) : m_slot(nullptr)
{
    ForEachImport(GetModuleHandleW(module), [&](const char* /*library*/, const char* name, void** slot) {
        if (strcmp(name, function) == 0) {
            m_slot = slot;
        }
    });
    if (!m_slot) {
        ADD_FAILURE() << function << " is not imported by that module";
        return;
    }
    m_original = *m_slot;
    WriteImport(m_slot, replacement);
}

ReplacedImport::~ReplacedImport()
{
    if (m_slot) {
        WriteImport(m_slot, m_original);
    }
}

ReplacedFunction::ReplacedFunction(const wchar_t* library, const char* function, void* replacement)
{
    if (const HMODULE module = LoadLibraryW(library)) {
        m_entry = reinterpret_cast<void*>(GetProcAddress(module, function));
    }
    if (!m_entry) {
        ADD_FAILURE() << function << " is not exported by that DLL";
        return;
    }
    const std::string jump = JumpTo(replacement);
    m_original.assign(static_cast<const char*>(m_entry), jump.size());
    Write(jump);
}

ReplacedFunction::~ReplacedFunction()
{
    if (m_entry) {
        Write(m_original);
    }
}

void ReplacedFunction::Write(const std::string& code)
{
    Overwrite(m_entry, code.data(), code.size());
}

} // namespace ts
