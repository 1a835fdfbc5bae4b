#include "TimeRecord.h"

namespace
{

constexpr WORD kFirstYear = 1601;
constexpr WORD kLastYear = 9999;

// The system tells the day of the week. Some versions of it move days that do not exist into the next month, so that
// only a date that comes back as it went in is one.
bool Complete(SYSTEMTIME& time)
{
    FILETIME fileTime = {};
    SYSTEMTIME back = {};
    if (time.wYear < kFirstYear || time.wYear > kLastYear || !SystemTimeToFileTime(&time, &fileTime) ||
        !FileTimeToSystemTime(&fileTime, &back) || back.wDay != time.wDay || back.wMonth != time.wMonth) {
        return false;
    }
    time = back;
    return true;
}

} // namespace

BOOL QorTime2SysTime(const _QORTIME& time, SYSTEMTIME& sysTime)
{
    constexpr BYTE kEveryDay = 7;
    SYSTEMTIME result = {};
    result.wYear = time.wYear;
    result.wMonth = time.nMonth;
    result.wDay = time.nDay;
    result.wHour = time.nHour;
    result.wMinute = time.nMinute;
    result.wSecond = time.nSecond;
    const bool valid = time.nDayOfWeek <= kEveryDay && Complete(result);
    sysTime = valid ? result : SYSTEMTIME();
    return valid;
}

BOOL SysTime2QorTime(const SYSTEMTIME& sysTime, _QORTIME& time)
{
    SYSTEMTIME complete = sysTime;
    time = _QORTIME();
    if (!Complete(complete)) {
        return FALSE;
    }
    time.wYear = complete.wYear;
    time.nMonth = static_cast<BYTE>(complete.wMonth);
    time.nDayOfWeek = static_cast<BYTE>(complete.wDayOfWeek);
    time.nDay = static_cast<BYTE>(complete.wDay);
    time.nHour = static_cast<BYTE>(complete.wHour);
    time.nMinute = static_cast<BYTE>(complete.wMinute);
    time.nSecond = static_cast<BYTE>(complete.wSecond);
    return TRUE;
}
