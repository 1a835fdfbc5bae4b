#include "LibText.h"

#include <QorApi/QorApi.h>

LPCWSTR QorLibText(LPCWSTR key)
{
    return QorGetModuleLang(kQorUIModule, L"Strings")->GetChildData(key, 1);
}

CString QorLibFormat(LPCWSTR key, LPCWSTR value)
{
    CString text;
    for (LPCWSTR at = QorLibText(key); *at != 0; ++at) {
        const bool isPlaceholder = at[0] == L'%' && (at[1] == L's' || at[1] == L'%');
        if (!isPlaceholder) {
            text += *at;
            continue;
        }
        ++at;
        text += *at == L's' ? value : L"%";
    }
    return text;
}
