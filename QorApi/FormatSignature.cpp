#include "FormatSignature.h"

namespace
{

using Text = std::wstring_view;

bool IsOneOf(wchar_t ch, Text set)
{
    return set.find(ch) != Text::npos;
}

bool IsDigit(wchar_t ch)
{
    return ch >= L'0' && ch <= L'9';
}

/** Digits, or an asterisk that takes its number from the arguments. */
void SkipNumber(Text text, size_t& pos, std::wstring& item)
{
    if (pos < text.size() && text[pos] == L'*') {
        item += L'*';
        ++pos;
        return;
    }
    while (pos < text.size() && IsDigit(text[pos])) {
        ++pos;
    }
}

struct SizePrefix
{
    Text prefix;
    wchar_t size;
};

// Longer prefixes first. "l" and "w" name the usual size of numbers and of texts in wide formats.
constexpr SizePrefix kSizePrefixes[] = {{L"I64", L'q'}, {L"I32", 0},  {L"ll", L'q'}, {L"hh", L'b'},
                                        {L"h", L'h'},   {L"l", 0},    {L"w", 0},     {L"L", 0},
                                        {L"j", L'q'},   {L"z", L'z'}, {L"t", L'z'},  {L"I", L'z'}};

wchar_t SkipSize(Text text, size_t& pos)
{
    const Text rest = text.substr(pos);
    for (const SizePrefix& candidate : kSizePrefixes) {
        if (rest.substr(0, candidate.prefix.size()) == candidate.prefix) {
            pos += candidate.prefix.size();
            return candidate.size;
        }
    }
    return 0;
}

/** The kind of a conversion character with its size; empty when the character is none. */
std::wstring KindOf(wchar_t ch, wchar_t size)
{
    if (IsOneOf(ch, L"diuoxX")) {
        std::wstring kind(1, ch == L'i' ? L'd' : ch == L'X' ? L'x' : ch);
        return size ? size + kind : kind;
    }
    if (IsOneOf(ch, L"eEfFgGaA")) {
        return L"f";
    }
    if (IsOneOf(ch, L"sc")) {
        return (size == L'h' ? L"n" : L"") + std::wstring(1, ch);
    }
    if (IsOneOf(ch, L"SC")) {
        return ch == L'S' ? L"ns" : L"nc";
    }
    if (ch == L'p') {
        return L"p";
    }
    return {};
}

/** One placeholder; pos stands behind its percent sign. False for "%n". */
bool ParsePlaceholder(Text text, size_t& pos, std::wstring& signature)
{
    const size_t start = pos;
    std::wstring item;
    while (pos < text.size() && IsOneOf(text[pos], L"-+ #0")) {
        ++pos;
    }
    SkipNumber(text, pos, item);
    if (pos < text.size() && text[pos] == L'.') {
        ++pos;
        SkipNumber(text, pos, item);
    }
    const wchar_t size = SkipSize(text, pos);
    const wchar_t ch = pos < text.size() ? text[pos] : 0;
    if (ch == L'n') {
        return false;
    }
    const std::wstring kind = KindOf(ch, size);
    if (kind.empty()) {
        pos = start;
        signature += L'?';
        if (start < text.size()) {
            signature += text[start];
        }
        signature += L';';
        return true;
    }
    ++pos;
    signature += item + kind + L';';
    return true;
}

} // namespace

bool GetFormatSignature(std::wstring_view text, std::wstring& signature)
{
    signature.clear();
    size_t pos = 0;
    while ((pos = text.find(L'%', pos)) != Text::npos) {
        ++pos;
        if (pos < text.size() && text[pos] == L'%') {
            ++pos;
        } else if (!ParsePlaceholder(text, pos, signature)) {
            return false;
        }
    }
    return true;
}

bool HaveSameFormat(std::wstring_view text, std::wstring_view model)
{
    std::wstring own;
    std::wstring wanted;
    return GetFormatSignature(text, own) && GetFormatSignature(model, wanted) && own == wanted;
}
