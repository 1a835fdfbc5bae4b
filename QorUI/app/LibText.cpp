#include "LibText.h"

#include <QorApi/QorApi.h>

LPCWSTR QorLibText(LPCWSTR key)
{
    return QorGetModuleLang(kQorUIModule, L"Strings")->GetChildData(key, 1);
}
