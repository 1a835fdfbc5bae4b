#pragma once

#include <QorPub/QorPubDef.h>

#include <cstring>
#include <cwchar>

/** A name as it is compared: without regard to letter case, the same in every locale. */
CString FoldName(LPCWSTR name);

/** Text of a record's field, without blanks around it. @return false when the field has no terminating zero. */
template <size_t count>
bool ReadField(const WCHAR (&field)[count], CString& text)
{
    const bool ended = wmemchr(field, 0, count) != nullptr;
    text = ended ? field : L"";
    text.Trim();
    return ended;
}

/** Writes a text into a record's field, cut to fit, the rest of the field zero. */
template <size_t count>
void WriteField(WCHAR (&field)[count], LPCWSTR text)
{
    const size_t length = wcsnlen(text, count - 1);
    wmemset(field, 0, count);
    wmemcpy(field, text, length);
}
