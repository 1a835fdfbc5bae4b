#pragma once

/** @file
 *  Dates and spans of time in the system's automation format: days since 30 December 1899, with the time of day as the
 *  fraction. Dates go from 1 January 100 to 31 December 9999 and are exact to the second. */

#include <afx/config.h>
#include <afx/str.h>

#include <ctime>

// A macro of the system headers would take the name of the function.
#undef GetCurrentTime

/** Largest span in days, in both directions. */
inline constexpr double kMaxDateTimeSpan = 3615897.0;

/** A length of time in days and their fraction. */
class AFX_LIB COleDateTimeSpan
{
  public:
    enum DateTimeSpanStatus
    {
        valid = 0,
        invalid = 1,
        null = 2
    };

    double m_span = 0;                   ///< days
    DateTimeSpanStatus m_status = valid; ///< whether `m_span` counts

    COleDateTimeSpan() = default;
    /** @param dblSpanSrc days; a span that is too long is invalid */
    COleDateTimeSpan(double dblSpanSrc);
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    DateTimeSpanStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeSpanStatus status) { m_status = status; }

    /** @name The whole span in one unit, rounded to half a second and cut to whole units
     *  @{ */
    double GetTotalDays() const;
    double GetTotalHours() const;
    double GetTotalMinutes() const;
    double GetTotalSeconds() const;
    /** @} */

    /** @name The parts of the span: days, then hours -23 to 23, minutes and seconds -59 to 59
     *  @{ */
    LONG GetDays() const;
    LONG GetHours() const;
    LONG GetMinutes() const;
    LONG GetSeconds() const;
    /** @} */

    bool operator==(const COleDateTimeSpan& dateSpan) const;
    bool operator!=(const COleDateTimeSpan& dateSpan) const { return !(*this == dateSpan); }
    /** @name Order of two valid spans; false when one is not valid
     *  @{ */
    bool operator<(const COleDateTimeSpan& dateSpan) const;
    bool operator>(const COleDateTimeSpan& dateSpan) const { return dateSpan < *this; }
    bool operator<=(const COleDateTimeSpan& dateSpan) const;
    bool operator>=(const COleDateTimeSpan& dateSpan) const { return dateSpan <= *this; }
    /** @} */

    /** A null operand makes the result null, otherwise an invalid one makes it invalid. */
    COleDateTimeSpan operator+(const COleDateTimeSpan& dateSpan) const;
    COleDateTimeSpan operator-(const COleDateTimeSpan& dateSpan) const;
    COleDateTimeSpan& operator+=(const COleDateTimeSpan& dateSpan) { return *this = *this + dateSpan; }
    COleDateTimeSpan& operator-=(const COleDateTimeSpan& dateSpan) { return *this = *this - dateSpan; }
    COleDateTimeSpan operator-() const;

    operator double() const { return m_span; }

    void SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    /** @param pFormat text with `%D` (days), `%H`, `%M`, `%S` (two digits each) and `%%`
     *  @return empty for a null span, "Invalid DateTimeSpan" for an invalid one */
    CString Format(LPCTSTR pFormat) const;
    CString Format(UINT nFormatID) const;

  private:
    double TotalOf(double unitsPerDay) const;
    void CheckRange();
};

/** A date with the time of day. What is not valid answers -1 for its parts. */
class AFX_LIB COleDateTime
{
  public:
    enum DateTimeStatus
    {
        error = -1,
        valid = 0,
        invalid = 1,
        null = 2
    };

    DATE m_dt = 0;                   ///< days since 30 December 1899
    DateTimeStatus m_status = valid; ///< whether `m_dt` counts

    /** Midnight of 30 December 1899, valid. */
    COleDateTime() = default;
    /** A value that cannot become a date makes an invalid one, VT_NULL a null one. */
    COleDateTime(const VARIANT& varSrc);
    COleDateTime(DATE dtSrc);
    /** Seconds since 1970 in universal time; becomes local time. */
    COleDateTime(__time32_t timeSrc);
    COleDateTime(__time64_t timeSrc);
    /** Milliseconds are left out. */
    COleDateTime(const SYSTEMTIME& systimeSrc);
    /** Universal time; becomes local time. */
    COleDateTime(const FILETIME& filetimeSrc);
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    COleDateTime(WORD wDosDate, WORD wDosTime);

    COleDateTime& operator=(const VARIANT& varSrc) { return *this = COleDateTime(varSrc); }
    COleDateTime& operator=(DATE dtSrc) { return *this = COleDateTime(dtSrc); }
    COleDateTime& operator=(__time32_t timeSrc) { return *this = COleDateTime(timeSrc); }
    COleDateTime& operator=(__time64_t timeSrc) { return *this = COleDateTime(timeSrc); }
    COleDateTime& operator=(const SYSTEMTIME& systimeSrc) { return *this = COleDateTime(systimeSrc); }
    COleDateTime& operator=(const FILETIME& filetimeSrc) { return *this = COleDateTime(filetimeSrc); }
    COleDateTime& operator=(const UDATE& udate);

    /** The local time now. */
    static COleDateTime GetCurrentTime();

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }

    /** @return false, and an unchanged structure, unless the date is valid */
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const;
    bool GetAsUDATE(UDATE& udate) const;

    /** @name Parts, rounded to the second; -1 unless the date is valid
     *  @{ */
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    /** 1 for Sunday to 7 for Saturday. */
    int GetDayOfWeek() const;
    /** 1 for 1 January. */
    int GetDayOfYear() const;
    /** @} */

    bool operator==(const COleDateTime& date) const;
    bool operator!=(const COleDateTime& date) const { return !(*this == date); }
    /** @name Order of two valid dates; false when one is not valid
     *  @{ */
    bool operator<(const COleDateTime& date) const;
    bool operator>(const COleDateTime& date) const { return date < *this; }
    bool operator<=(const COleDateTime& date) const;
    bool operator>=(const COleDateTime& date) const { return date <= *this; }
    /** @} */

    /** A null operand makes the result null, otherwise an invalid one or leaving the range makes it invalid. */
    COleDateTime operator+(const COleDateTimeSpan& dateSpan) const;
    COleDateTime operator-(const COleDateTimeSpan& dateSpan) const { return *this + -dateSpan; }
    COleDateTime& operator+=(const COleDateTimeSpan& dateSpan) { return *this = *this + dateSpan; }
    COleDateTime& operator-=(const COleDateTimeSpan& dateSpan) { return *this = *this - dateSpan; }
    COleDateTimeSpan operator-(const COleDateTime& date) const;

    operator DATE() const { return m_dt; }

    /** Each sets the value and the status. @return the status: 0 for valid, 1 for invalid */
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    int SetDate(int nYear, int nMonth, int nDay);
    /** Sets the time on 30 December 1899. */
    int SetTime(int nHour, int nMin, int nSec);

    /** Reads a date, a time or both as a user of the locale writes them.
     *  @param dwFlags LOCALE_NOUSEROVERRIDE, VAR_TIMEVALUEONLY, VAR_DATEVALUEONLY
     *  @return false, and an invalid date, for what is none */
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT);

    /** @name Text; empty for a null date, "Invalid DateTime" for an invalid one
     *  @{ */
    /** @param dwFlags as for ParseDateTime */
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    /** @param lpszFormat as for wcsftime; names come from the LC_TIME locale of the C run-time. A format that the
     *  run-time refuses gives an empty text. */
    CString Format(LPCTSTR lpszFormat) const;
    CString Format(UINT nFormatID) const;
    /** @} */
};
