#pragma once

/** @file What the sources of the automation dates share. */

#include <afx/oledate.h>

namespace date
{

inline constexpr int kSecondsPerDay = 86400;
inline constexpr double kHalfSecond = 1.0 / (2.0 * kSecondsPerDay); ///< in days
inline constexpr int kDaysToEpoch = 25569;                          ///< from 30 December 1899 to 1 January 1970

/** The parts of a date. */
struct Parts
{
    int year, month, day, hour, minute, second;
    int dayOfWeek; ///< 0 for Sunday
    int dayOfYear; ///< 0 for 1 January
};

/** Number of a day in the proleptic Gregorian calendar, counted from 1 January 1970. @param year 1 or later */
int DayNumber(int year, int month, int day);

bool IsDateTime(int year, int month, int day, int hour, int minute, int second);

/** Days on one line, without the automation format's way of counting the time forwards on days before its start. */
double Linear(DATE date);
/** The inverse of `Linear`. */
DATE FromLinear(double days);
bool InRange(double linear);

/** Takes a date apart. @return false unless it is valid and in range. */
bool Split(const COleDateTime& date, Parts& parts);

inline COleDateTime InvalidDate()
{
    COleDateTime date;
    date.SetStatus(COleDateTime::invalid);
    return date;
}

/** Status of the result of an operation on two values. */
template <class Status, class First, class Second>
Status ResultStatus(const First& first, const Second& second)
{
    if (first.m_status == First::null || second.m_status == Second::null) {
        return Status::null;
    }
    const bool bothValid = first.m_status == First::valid && second.m_status == Second::valid;
    return bothValid ? Status::valid : Status::invalid;
}

inline CString LoadFormat(UINT id)
{
    CString format;
    format.LoadString(id);
    return format;
}

} // namespace date
