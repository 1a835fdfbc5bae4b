#include <QorApi/FormatSignature.h>

#include <cstdint>
#include <cstdlib>

namespace
{

std::wstring ToText(const uint8_t* data, size_t size)
{
    // Most bytes become what formats are made of.
    static constexpr std::wstring_view kParts = L"%%%%*.-+ #0123456789hlLwjztI3264diouxXeEfFgGaAcCsSpn;?";
    std::wstring text;
    for (size_t i = 0; i < size; ++i) {
        text += data[i] < 0xF0 ? kParts[data[i] % kParts.size()] : static_cast<wchar_t>(data[i]);
    }
    return text;
}

std::wstring_view SizeOf(wchar_t letter)
{
    switch (letter) {
    case L'b':
        return L"hh";
    case L'q':
        return L"I64";
    case L'z':
        return L"I";
    default:
        return L"h"; // also of narrow texts
    }
}

/** A format with the placeholders that a signature without "?" tells of. */
std::wstring MakeFormat(std::wstring_view signature)
{
    std::wstring format;
    while (!signature.empty()) {
        const size_t end = signature.find(L';');
        if (end == std::wstring_view::npos || end == 0) {
            abort();
        }
        std::wstring_view item = signature.substr(0, end);
        signature.remove_prefix(end + 1);
        format += L'%';
        size_t stars = 0;
        for (; !item.empty() && item.front() == L'*'; item.remove_prefix(1)) {
            format += ++stars == 2 ? L".*" : L"*";
        }
        if (stars > 2 || item.empty() || item.size() > 2) {
            abort();
        }
        if (item.size() == 2) {
            format += SizeOf(item.front());
        }
        format += item.back();
    }
    return format;
}

} // namespace

/** A format made from a text's signature has the same one, and percent signs for themselves change nothing. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::wstring text = ToText(data, size);
    std::wstring signature;
    std::wstring other;
    const bool taken = GetFormatSignature(text, signature);
    if (GetFormatSignature(L"100%% " + text, other) != taken || (taken && other != signature)) {
        abort();
    }
    if (!taken || signature.find(L'?') != std::wstring::npos) {
        return 0;
    }
    if (!GetFormatSignature(MakeFormat(signature), other) || other != signature) {
        abort();
    }
    return 0;
}
