#include "Names.h"

CString FoldName(LPCWSTR name)
{
    const int length = static_cast<int>(wcslen(name));
    CString folded(name);
    if (length > 0) {
        LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, name, length, folded.GetBuffer(length), length, nullptr,
                      nullptr, 0);
        folded.ReleaseBuffer(length);
    }
    return folded;
}
