#include "ConsoleText.h"

#include <QorApi/QorApi.h>

LPCWSTR ConText(LPCWSTR key)
{
    return QorGetModuleLang(L"QorConsole.exe", L"Strings")->GetChildData(key, 1);
}

LPCWSTR ConFit(LPCWSTR text, LPCWSTR model)
{
    return QorIsSameFormat(text, model) ? text : model;
}

LPCWSTR ConFormat(LPCWSTR key, LPCWSTR model)
{
    return ConFit(ConText(key), model);
}
