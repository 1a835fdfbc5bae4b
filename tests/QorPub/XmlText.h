#pragma once

#include <QorPub/QorPub.h>
#include <tests/support/Status.h>

#include <gtest/gtest.h>

#include <string>

/** Documents for tests. */

inline DWORD LoadText(CQorXml& xml, std::string_view text)
{
    return xml.LoadMemory(text.data(), text.size());
}

inline std::string ToUtf16(std::wstring_view text, bool lowFirst)
{
    std::string bytes;
    for (wchar_t c : text) {
        char low = static_cast<char>(c & 0xFF);
        char high = static_cast<char>(c >> 8);
        bytes += lowFirst ? low : high;
        bytes += lowFirst ? high : low;
    }
    return bytes;
}
