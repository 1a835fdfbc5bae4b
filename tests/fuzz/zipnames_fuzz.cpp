#include <QorPub/ZipNames.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

std::wstring ToName(const uint8_t* data, size_t size)
{
    // Most bytes become what dangerous names are made of.
    static constexpr std::wstring_view kParts = L"..//\\\\::  CcOoNnPpRrAaUuXxLlMmTtIi$019<>\"|?*_\x01\x1F\x7F\xE4";
    std::wstring name;
    for (size_t i = 0; i < size; ++i) {
        name += data[i] < 0xF0 ? kParts[data[i] % kParts.size()] : static_cast<wchar_t>(data[i]);
    }
    return name;
}

bool IsForbidden(wchar_t c)
{
    return c < L' ' || c == L':' || c == L'<' || c == L'>' || c == L'"' || c == L'|' || c == L'?' || c == L'*';
}

bool HasWrongPart(std::wstring_view name)
{
    for (;;) {
        const size_t slash = name.find(L'/');
        const std::wstring_view part = name.substr(0, slash);
        if (part.empty() || part == L"." || part == L"..") {
            return true;
        }
        if (slash == std::wstring_view::npos) {
            return false;
        }
        name.remove_prefix(slash + 1);
    }
}

} // namespace

/** A name that passes stays inside the folder and means the same however its slashes are written. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::wstring name = ToName(data, size);
    const bool safe = qor::IsSafeEntryName(name);
    std::wstring slashes = name;
    for (wchar_t& c : slashes) {
        if (safe && IsForbidden(c)) {
            abort();
        }
        c = c == L'\\' ? L'/' : c;
    }
    if (qor::IsSafeEntryName(slashes) != safe) {
        abort();
    }
    if (!safe) {
        return 0;
    }
    if (slashes.back() == L'/') {
        slashes.pop_back(); // of a folder
    }
    if (HasWrongPart(slashes)) {
        abort();
    }
    if (qor::IsSafeEntryName(L"../" + name) || qor::IsSafeEntryName(L"/" + name) ||
        qor::IsSafeEntryName(L"C:" + name)) {
        abort();
    }
    return 0;
}
