#include "oledateparts.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double kFirstDay = -657434; ///< 1 January 100
constexpr double kEndDay = 2958466;   ///< the day after 31 December 9999
constexpr int kSaturday = 6;          ///< 30 December 1899, Sunday being 0

/** The inverse of `DayNumber`. */
void DateOfDay(int number, date::Parts& parts)
{
    number += 719468;
    const int era = number / 146097;
    const int dayOfEra = number - era * 146097;
    const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int shiftedMonth = (5 * dayOfYear + 2) / 153;
    parts.day = dayOfYear - (153 * shiftedMonth + 2) / 5 + 1;
    parts.month = shiftedMonth + (shiftedMonth < 10 ? 3 : -9);
    parts.year = yearOfEra + era * 400 + (parts.month <= 2 ? 1 : 0);
}

bool IsLeapYear(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysInMonth(int year, int month)
{
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}
} // namespace

namespace date
{

double Linear(DATE date)
{
    return date >= 0 ? date : 2 * std::trunc(date) - date;
}

DATE FromLinear(double days)
{
    return days >= 0 ? days : 2 * std::floor(days) - days;
}

int DayNumber(int year, int month, int day)
{
    year -= month <= 2 ? 1 : 0;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}

bool InRange(double linear)
{
    return linear >= kFirstDay && linear < kEndDay;
}

bool IsDateTime(int year, int month, int day, int hour, int minute, int second)
{
    return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= DaysInMonth(year, month) &&
           hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
}

bool Split(const COleDateTime& date, Parts& parts)
{
    double linear = Linear(date.m_dt);
    if (date.m_status != COleDateTime::valid || !InRange(linear)) {
        return false;
    }
    if (linear + kHalfSecond < kEndDay) {
        linear += kHalfSecond;
    }
    const double wholeDays = std::floor(linear);
    const int days = static_cast<int>(wholeDays);
    const int seconds = (std::min)(static_cast<int>((linear - wholeDays) * kSecondsPerDay), kSecondsPerDay - 1);
    DateOfDay(days - kDaysToEpoch, parts);
    parts.hour = seconds / 3600;
    parts.minute = seconds / 60 % 60;
    parts.second = seconds % 60;
    parts.dayOfWeek = ((days + kSaturday) % 7 + 7) % 7;
    parts.dayOfYear = DayNumber(parts.year, parts.month, parts.day) - DayNumber(parts.year, 1, 1);
    return true;
}

} // namespace date
