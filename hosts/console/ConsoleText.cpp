#include "ConsoleText.h"

#include <QorApi/QorApi.h>

LPCWSTR ConText(LPCWSTR key)
{
    return QorGetModuleLang(L"QorConsole.exe", L"Strings")->GetChildData(key, 1);
}
