#pragma once

/** @file
 * Time records.
 */

#include <QorApi/QorApiDef.h>

#pragma pack(push, 1)

/** The product's time record: local time with a resolution of one second. */
struct _QORTIME
{
    WORD wYear;      ///< 1601 to 9999
    BYTE nMonth;     ///< 1 to 12
    BYTE nDayOfWeek; ///< 0 Sunday to 6 Saturday; 7 every day (schedules only)
    BYTE nDay;       ///< 1 to 31
    BYTE nHour;      ///< 0 to 23
    BYTE nMinute;    ///< 0 to 59
    BYTE nSecond;    ///< 0 to 59
};

#pragma pack(pop)

static_assert(sizeof(_QORTIME) == 8);

/**
 * @param time the record; its day of the week is not used: the result's follows from the date.
 * @param[out] sysTime the same moment; all zero when the record is no valid date and time.
 * @return TRUE when the record is valid.
 */
QORAPI_API BOOL QorTime2SysTime(const _QORTIME& time, SYSTEMTIME& sysTime);

/**
 * @param sysTime the moment; its day of the week is not used, milliseconds are cut off.
 * @param[out] time the record, its day of the week from the date; all zero when @p sysTime is not valid.
 * @return TRUE when @p sysTime is a valid date and time in the years 1601 to 9999.
 */
QORAPI_API BOOL SysTime2QorTime(const SYSTEMTIME& sysTime, _QORTIME& time);
