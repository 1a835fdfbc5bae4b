#include "CalendarNames.h"

#include <afxdisp.h>

#include <clocale>
#include <cwchar>

namespace
{

constexpr int kSunday = 1;
constexpr int kSaturday = 7;

/** A locale without an ANSI code page: the C run-time cannot hold its names. */
bool IsUnicodeOnly(LPCWSTR locale)
{
    DWORD page = 0;
    const int got = ::GetLocaleInfoEx(locale, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                      reinterpret_cast<LPWSTR>(&page), sizeof(page) / sizeof(WCHAR));
    return got != 0 && page == CP_ACP;
}

CString SystemMonthName(LPCWSTR locale, int month)
{
    WCHAR name[80] = L"";
    ::GetLocaleInfoEx(locale, LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(month - 1), name, _countof(name));
    return name;
}

} // namespace

QorMonthNames QorGetMonthNames(const char* runtimeLocale, LPCWSTR systemLocale)
{
    const bool known = setlocale(LC_ALL, runtimeLocale) && !IsUnicodeOnly(systemLocale);
    QorMonthNames names;
    int month = 0;
    for (CString& name : names) {
        ++month;
        name = known ? COleDateTime(2000, month, 1, 0, 0, 0).Format(L"%B") : SystemMonthName(systemLocale, month);
    }
    return names;
}

QorDayInitials QorGetDayInitials(int firstDayOfWeek)
{
    setlocale(LC_TIME, "English");
    const COleDateTimeSpan oneDay(1);
    COleDateTime day = COleDateTime::GetCurrentTime();
    while (day.GetDayOfWeek() != firstDayOfWeek) {
        day += oneDay;
    }
    QorDayInitials initials;
    for (CString& initial : initials) {
        initial = day.Format(L"%A").Left(1);
        day += oneDay;
    }
    return initials;
}

int QorGetFirstDayOfWeek(LCID locale)
{
    WCHAR value[8] = L"";
    ::GetLocaleInfoW(locale, LOCALE_IFIRSTDAYOFWEEK, value, _countof(value));
    return QorFirstDayOfWeekOf(_wtoi(value));
}

int QorFirstDayOfWeekOf(int systemValue)
{
    const int day = systemValue + 2;
    return day >= kSunday && day <= kSaturday ? day : kSunday;
}
