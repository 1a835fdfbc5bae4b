#pragma once

#include <QorPub/QorPubDef.h>

namespace qor
{

/** The version code (see g_OsVer) of a system with these version numbers. */
constexpr WORD OsVersionCode(DWORD major, DWORD minor)
{
    if (major >= 10) {
        return 10;
    }
    if (major > 6 || (major == 6 && minor >= 2)) {
        return 8;
    }
    if (major == 6) {
        return minor == 1 ? 5 : 4;
    }
    if (major == 5) {
        return minor < 2 ? static_cast<WORD>(minor + 1) : 3;
    }
    return 0;
}

} // namespace qor
