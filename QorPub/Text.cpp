#include "QorPub.h"

namespace
{

constexpr ULONGLONG kUnitStep = 1024;

CString LocaleText(LCTYPE type, LPCWSTR fallback)
{
    WCHAR text[8] = {};
    return GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, ARRAYSIZE(text)) != 0 ? text : fallback;
}

/** Digits with a separator before each group of three. */
CString GroupDigits(ULONGLONG number)
{
    CString digits;
    digits.Format(L"%I64u", number);
    CString separator = LocaleText(LOCALE_STHOUSAND, L",");
    for (int pos = digits.GetLength() - 3; pos > 0; pos -= 3) {
        digits.Insert(pos, separator);
    }
    return digits;
}

/** A size of at least one unit, in hundredths of the unit that were cut off and not rounded. */
CString FormatUnits(ULONGLONG whole, unsigned hundredths)
{
    CString text = GroupDigits(whole);
    if (whole >= 100) {
        return text;
    }
    CString decimals;
    if (whole >= 10) {
        decimals.Format(L"%u", hundredths / 10);
    } else {
        decimals.Format(L"%02u", hundredths);
    }
    return text + LocaleText(LOCALE_SDECIMAL, L".") + decimals;
}

CString NormalExtension(CString extension)
{
    extension.Trim();
    extension.TrimLeft(L'*');
    if (!extension.IsEmpty() && extension[0] != L'.') {
        extension.Insert(0, L'.');
    }
    return extension.GetLength() > 1 ? extension : CString();
}

CString LastComponent(LPCWSTR path)
{
    CString name = path;
    int slash = name.FindOneOf(L"\\/:");
    while (slash >= 0) {
        name = name.Mid(slash + 1);
        slash = name.FindOneOf(L"\\/:");
    }
    return name;
}

} // namespace

CStringA WStrToUTF8(LPCWSTR text)
{
    return WStrToUTF8(text, text ? static_cast<int>(wcslen(text)) : 0);
}

CStringA WStrToUTF8(LPCWSTR text, int length)
{
    CStringA utf8;
    if (!text || length <= 0) {
        return utf8;
    }
    int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    if (size > 0) {
        WideCharToMultiByte(CP_UTF8, 0, text, length, utf8.GetBuffer(size), size, nullptr, nullptr);
        utf8.ReleaseBuffer(size);
    }
    return utf8;
}

CString UTF8ToWStr(LPCSTR text)
{
    return UTF8ToWStr(text, text ? static_cast<int>(strlen(text)) : 0);
}

CString UTF8ToWStr(LPCSTR text, int length)
{
    CString wide;
    if (!text || length <= 0) {
        return wide;
    }
    int size = MultiByteToWideChar(CP_UTF8, 0, text, length, nullptr, 0);
    if (size > 0) {
        MultiByteToWideChar(CP_UTF8, 0, text, length, wide.GetBuffer(size), size);
        wide.ReleaseBuffer(size);
    }
    return wide;
}

CString QorFormatSize(ULONGLONG size)
{
    static constexpr LPCWSTR kUnits[] = {L" KB", L" MB", L" GB", L" TB", L" PB", L" EB"};
    if (size < kUnitStep) {
        return GroupDigits(size) + (size == 1 ? L" byte" : L" bytes");
    }
    size_t unit = 0;
    ULONGLONG divisor = kUnitStep;
    while (size / divisor >= kUnitStep) {
        divisor *= kUnitStep;
        ++unit;
    }
    ULONGLONG whole = size / divisor;
    ULONGLONG rest = size % divisor;
    if (divisor > ~0ULL / 100) {
        // A hundred times the rest would overflow; ten bits fewer change nothing that is shown.
        rest /= kUnitStep;
        divisor /= kUnitStep;
    }
    return FormatUnits(whole, static_cast<unsigned>(rest * 100 / divisor)) + kUnits[unit];
}

BOOL QorFindExtName(LPCWSTR filter, LPCWSTR path)
{
    CString list = filter;
    CString name = LastComponent(path);
    for (int start = 0; start < list.GetLength();) {
        int end = list.Find(L';', start);
        if (end < 0) {
            end = list.GetLength();
        }
        CString extension = NormalExtension(list.Mid(start, end - start));
        if (!extension.IsEmpty() && name.Right(extension.GetLength()).CompareNoCase(extension) == 0) {
            return TRUE;
        }
        start = end + 1;
    }
    return FALSE;
}
