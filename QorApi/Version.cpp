#include "Version.h"

#include <array>

namespace
{

constexpr size_t kParts = 4;
constexpr size_t kMaxDigits = 5;

using Parts = std::array<int, kParts>;

bool ParsePart(std::wstring_view text, int& part)
{
    if (text.empty() || text.size() > kMaxDigits) {
        return false;
    }
    part = 0;
    for (const wchar_t ch : text) {
        if (ch < L'0' || ch > L'9') {
            return false;
        }
        part = part * 10 + (ch - L'0');
    }
    return true;
}

bool ParseVersion(std::wstring_view text, Parts& parts)
{
    parts = {};
    for (size_t i = 0; i < kParts; ++i) {
        const size_t dot = text.find(L'.');
        if (!ParsePart(text.substr(0, dot), parts[i])) {
            return false;
        }
        if (dot == std::wstring_view::npos) {
            return true;
        }
        text.remove_prefix(dot + 1);
    }
    return false;
}

} // namespace

bool CompareVersions(std::wstring_view first, std::wstring_view second, int& order)
{
    Parts left;
    Parts right;
    order = 0;
    if (!ParseVersion(first, left) || !ParseVersion(second, right)) {
        return false;
    }
    order = left < right ? -1 : left == right ? 0 : 1;
    return true;
}
