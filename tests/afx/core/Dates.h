#pragma once

/** @file
 * What the tests of automation dates share.
 */

#include <afxdisp.h>

#include <vector>

inline COleDateTime Date(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return COleDateTime(year, month, day, hour, minute, second);
}

inline std::vector<int> PartsOf(const COleDateTime& date)
{
    return {date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHour(), date.GetMinute(), date.GetSecond()};
}

inline COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime date(40000.0);
    date.SetStatus(status);
    return date;
}

inline const COleDateTime kInvalid = WithStatus(COleDateTime::invalid);

inline const COleDateTime kNull = WithStatus(COleDateTime::null);
