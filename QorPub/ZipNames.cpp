#include "ZipNames.h"

#include <algorithm>
#include <cwctype>
#include <iterator>
#include <string>

namespace qor
{
namespace
{

bool IsDevice(std::wstring_view part)
{
    static constexpr std::wstring_view kDevices[] = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
    std::wstring stem(part.substr(0, part.find(L'.')));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    std::transform(stem.begin(), stem.end(), stem.begin(), [](wchar_t c) { return static_cast<wchar_t>(towupper(c)); });
    if (std::find(std::begin(kDevices), std::end(kDevices), stem) != std::end(kDevices)) {
        return true;
    }
    bool port = stem.size() == 4 && (stem.substr(0, 3) == L"COM" || stem.substr(0, 3) == L"LPT");
    return port && stem[3] >= L'0' && stem[3] <= L'9';
}

bool IsSafePart(std::wstring_view part)
{
    if (part.empty() || part.back() == L'.' || part.back() == L' ' || IsDevice(part)) {
        return false;
    }
    return std::none_of(part.begin(), part.end(), [](wchar_t c) {
        return c < L' ' || std::wstring_view(L"<>:\"|?*").find(c) != std::wstring_view::npos;
    });
}

} // namespace

bool IsSafeEntryName(std::wstring_view name)
{
    if (!name.empty() && (name.back() == L'/' || name.back() == L'\\')) {
        name.remove_suffix(1);
    }
    for (;;) {
        size_t slash = name.find_first_of(L"/\\");
        if (!IsSafePart(name.substr(0, slash))) {
            return false;
        }
        if (slash == std::wstring_view::npos) {
            return true;
        }
        name.remove_prefix(slash + 1);
    }
}

} // namespace qor
