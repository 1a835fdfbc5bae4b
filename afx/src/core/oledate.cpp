#include <afx/oledate.h>

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace
{

constexpr int kSecondsPerDay = 86400;
constexpr double kHalfSecond = 1.0 / (2.0 * kSecondsPerDay); ///< in days
constexpr double kFirstDay = -657434;                        ///< 1 January 100
constexpr double kEndDay = 2958466;                          ///< the day after 31 December 9999
constexpr int kSaturday = 6;                                 ///< 30 December 1899, Sunday being 0
constexpr int kDaysToEpoch = 25569;                          ///< from 30 December 1899 to 1 January 1970
constexpr int kFirstRuntimeYear = 1900;                      ///< what the C run-time formats
constexpr int kYearShift = 2000;                             ///< a multiple of 400 years has the same calendar
constexpr LPCTSTR kInvalidDate = _T("Invalid DateTime");
constexpr LPCTSTR kInvalidSpan = _T("Invalid DateTimeSpan");

/** The parts of a date. */
struct Parts
{
    int year, month, day, hour, minute, second;
    int dayOfWeek; ///< 0 for Sunday
    int dayOfYear; ///< 0 for 1 January
};

/** Days on one line, without the automation format's way of counting the time forwards on days before its start. */
double Linear(DATE date)
{
    return date >= 0 ? date : 2 * std::trunc(date) - date;
}

DATE FromLinear(double days)
{
    return days >= 0 ? days : 2 * std::floor(days) - days;
}

/** Number of a day in the proleptic Gregorian calendar, counted from 1 January 1970. @param year 1 or later */
int DayNumber(int year, int month, int day)
{
    year -= month <= 2 ? 1 : 0;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}

/** The inverse of `DayNumber`. */
void DateOfDay(int number, Parts& parts)
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
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : days[month - 1];
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

/** Takes a date apart. @return false unless it is valid and in range. */
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

int PartOf(const COleDateTime& date, int Parts::*part)
{
    Parts parts;
    return Split(date, parts) ? parts.*part : -1;
}

COleDateTime InvalidDate()
{
    COleDateTime date;
    date.SetStatus(COleDateTime::invalid);
    return date;
}

COleDateTime FromTm(const tm* local)
{
    return local ? COleDateTime(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min,
                                local->tm_sec)
                 : InvalidDate();
}

tm ToTm(const Parts& parts)
{
    tm result = {};
    result.tm_year = parts.year - 1900;
    result.tm_mon = parts.month - 1;
    result.tm_mday = parts.day;
    result.tm_hour = parts.hour;
    result.tm_min = parts.minute;
    result.tm_sec = parts.second;
    result.tm_wday = parts.dayOfWeek;
    result.tm_yday = parts.dayOfYear;
    return result;
}

/** What a conversion that shows the year stands for in a year that the C run-time does not format; else nothing. */
CString OldYearText(const COleDateTime& date, TCHAR conversion, int year)
{
    CString text;
    if (conversion == _T('Y')) {
        text.Format(_T("%d"), year);
    } else if (conversion == _T('y')) {
        text.Format(_T("%02d"), year % 100);
    } else if (conversion == _T('x')) {
        text = date.Format(VAR_DATEVALUEONLY);
    } else if (conversion == _T('c')) {
        text = date.Format(VAR_DATEVALUEONLY) + _T(" ") + date.Format(VAR_TIMEVALUEONLY);
    }
    return text;
}

/** Puts the year into a format, so that the rest can be formatted with a year that the C run-time knows. */
CString WithOldYear(const COleDateTime& date, LPCTSTR format, int year)
{
    CString result;
    for (LPCTSTR at = format; *at; ++at) {
        LPCTSTR conversion = at;
        if (*at == _T('%')) {
            conversion += at[1] == _T('#') ? 2 : 1;
        }
        const CString text = conversion != at ? OldYearText(date, *conversion, year) : CString();
        if (!text.IsEmpty()) {
            result += text;
            at = conversion;
            continue;
        }
        result.AppendChar(*at);
        if (*at == _T('%') && at[1] == _T('%')) {
            result.AppendChar(*++at);
        }
    }
    return result;
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

CString LoadFormat(UINT id)
{
    CString format;
    format.LoadString(id);
    return format;
}

CString SpanPart(const COleDateTimeSpan& span, TCHAR conversion)
{
    CString text;
    switch (conversion) {
    case _T('D'):
        text.Format(_T("%ld"), span.GetDays());
        break;
    case _T('H'):
        text.Format(_T("%02ld"), span.GetHours());
        break;
    case _T('M'):
        text.Format(_T("%02ld"), span.GetMinutes());
        break;
    case _T('S'):
        text.Format(_T("%02ld"), span.GetSeconds());
        break;
    default:
        text = CString(conversion);
        break;
    }
    return text;
}

} // namespace

COleDateTimeSpan::COleDateTimeSpan(double dblSpanSrc) : m_span(dblSpanSrc)
{
    CheckRange();
}

COleDateTimeSpan::COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
{
    SetDateTimeSpan(lDays, nHours, nMins, nSecs);
}

void COleDateTimeSpan::SetDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
{
    m_span = lDays + nHours / 24.0 + nMins / (24.0 * 60) + nSecs / static_cast<double>(kSecondsPerDay);
    m_status = valid;
    CheckRange();
}

void COleDateTimeSpan::CheckRange()
{
    if (!(std::fabs(m_span) <= OLE_DATETIME_MAXSPAN)) {
        m_status = invalid;
    }
}

double COleDateTimeSpan::TotalOf(double unitsPerDay) const
{
    return std::trunc((m_span + std::copysign(kHalfSecond, m_span)) * unitsPerDay);
}

double COleDateTimeSpan::GetTotalDays() const
{
    return TotalOf(1);
}

double COleDateTimeSpan::GetTotalHours() const
{
    return TotalOf(24);
}

double COleDateTimeSpan::GetTotalMinutes() const
{
    return TotalOf(24 * 60);
}

double COleDateTimeSpan::GetTotalSeconds() const
{
    return TotalOf(kSecondsPerDay);
}

LONG COleDateTimeSpan::GetDays() const
{
    return static_cast<LONG>(GetTotalDays());
}

LONG COleDateTimeSpan::GetHours() const
{
    return static_cast<LONG>(std::fmod(GetTotalHours(), 24));
}

LONG COleDateTimeSpan::GetMinutes() const
{
    return static_cast<LONG>(std::fmod(GetTotalMinutes(), 60));
}

LONG COleDateTimeSpan::GetSeconds() const
{
    return static_cast<LONG>(std::fmod(GetTotalSeconds(), 60));
}

bool COleDateTimeSpan::operator==(const COleDateTimeSpan& dateSpan) const
{
    return m_status == dateSpan.m_status && (m_status != valid || m_span == dateSpan.m_span);
}

bool COleDateTimeSpan::operator<(const COleDateTimeSpan& dateSpan) const
{
    return m_status == valid && dateSpan.m_status == valid && m_span < dateSpan.m_span;
}

bool COleDateTimeSpan::operator<=(const COleDateTimeSpan& dateSpan) const
{
    return m_status == valid && dateSpan.m_status == valid && m_span <= dateSpan.m_span;
}

COleDateTimeSpan COleDateTimeSpan::operator+(const COleDateTimeSpan& dateSpan) const
{
    COleDateTimeSpan result;
    result.m_status = ResultStatus<DateTimeSpanStatus>(*this, dateSpan);
    if (result.m_status == valid) {
        result.m_span = m_span + dateSpan.m_span;
        result.CheckRange();
    }
    return result;
}

COleDateTimeSpan COleDateTimeSpan::operator-(const COleDateTimeSpan& dateSpan) const
{
    return *this + -dateSpan;
}

COleDateTimeSpan COleDateTimeSpan::operator-() const
{
    COleDateTimeSpan result(*this);
    result.m_span = -m_span;
    return result;
}

CString COleDateTimeSpan::Format(LPCTSTR pFormat) const
{
    if (m_status == null || !pFormat) {
        return CString();
    }
    if (m_status == invalid) {
        return kInvalidSpan;
    }
    CString result;
    for (LPCTSTR at = pFormat; *at; ++at) {
        if (*at == _T('%') && at[1]) {
            result += SpanPart(*this, *++at);
        } else {
            result.AppendChar(*at);
        }
    }
    return result;
}

CString COleDateTimeSpan::Format(UINT nFormatID) const
{
    return Format(LoadFormat(nFormatID).GetString());
}

COleDateTime::COleDateTime(const VARIANT& varSrc)
{
    VARIANT date;
    ::VariantInit(&date);
    if (varSrc.vt == VT_NULL) {
        m_status = null;
    } else if (FAILED(::VariantChangeType(&date, const_cast<VARIANT*>(&varSrc), 0, VT_DATE))) {
        m_status = invalid;
    } else {
        *this = COleDateTime(date.date);
    }
}

COleDateTime::COleDateTime(DATE dtSrc) : m_dt(dtSrc), m_status(InRange(Linear(dtSrc)) ? valid : invalid) {}

COleDateTime::COleDateTime(__time32_t timeSrc) : COleDateTime(static_cast<__time64_t>(timeSrc)) {}

COleDateTime::COleDateTime(__time64_t timeSrc) : COleDateTime(FromTm(::_localtime64(&timeSrc))) {}

COleDateTime::COleDateTime(const SYSTEMTIME& systimeSrc)
{
    SetDateTime(systimeSrc.wYear, systimeSrc.wMonth, systimeSrc.wDay, systimeSrc.wHour, systimeSrc.wMinute,
                systimeSrc.wSecond);
}

COleDateTime::COleDateTime(const FILETIME& filetimeSrc)
{
    SYSTEMTIME universal;
    SYSTEMTIME local;
    if (::FileTimeToSystemTime(&filetimeSrc, &universal) &&
        ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local)) {
        *this = COleDateTime(local);
    } else {
        m_status = invalid;
    }
}

COleDateTime::COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec)
{
    SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
}

COleDateTime::COleDateTime(WORD wDosDate, WORD wDosTime)
{
    SetDateTime(1980 + (wDosDate >> 9), wDosDate >> 5 & 15, wDosDate & 31, wDosTime >> 11, wDosTime >> 5 & 63,
                (wDosTime & 31) * 2);
}

COleDateTime& COleDateTime::operator=(const UDATE& udate)
{
    return *this = COleDateTime(udate.st);
}

COleDateTime COleDateTime::GetCurrentTime()
{
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    return COleDateTime(now);
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const
{
    Parts parts;
    if (!Split(*this, parts)) {
        return false;
    }
    sysTime = {static_cast<WORD>(parts.year),      static_cast<WORD>(parts.month),
               static_cast<WORD>(parts.dayOfWeek), static_cast<WORD>(parts.day),
               static_cast<WORD>(parts.hour),      static_cast<WORD>(parts.minute),
               static_cast<WORD>(parts.second),    0};
    return true;
}

bool COleDateTime::GetAsUDATE(UDATE& udate) const
{
    if (!GetAsSystemTime(udate.st)) {
        return false;
    }
    udate.wDayOfYear = static_cast<USHORT>(GetDayOfYear());
    return true;
}

int COleDateTime::GetYear() const
{
    return PartOf(*this, &Parts::year);
}

int COleDateTime::GetMonth() const
{
    return PartOf(*this, &Parts::month);
}

int COleDateTime::GetDay() const
{
    return PartOf(*this, &Parts::day);
}

int COleDateTime::GetHour() const
{
    return PartOf(*this, &Parts::hour);
}

int COleDateTime::GetMinute() const
{
    return PartOf(*this, &Parts::minute);
}

int COleDateTime::GetSecond() const
{
    return PartOf(*this, &Parts::second);
}

int COleDateTime::GetDayOfWeek() const
{
    const int day = PartOf(*this, &Parts::dayOfWeek);
    return day < 0 ? -1 : day + 1;
}

int COleDateTime::GetDayOfYear() const
{
    const int day = PartOf(*this, &Parts::dayOfYear);
    return day < 0 ? -1 : day + 1;
}

bool COleDateTime::operator==(const COleDateTime& date) const
{
    return m_status == date.m_status && (m_status != valid || m_dt == date.m_dt);
}

bool COleDateTime::operator<(const COleDateTime& date) const
{
    return m_status == valid && date.m_status == valid && Linear(m_dt) < Linear(date.m_dt);
}

bool COleDateTime::operator<=(const COleDateTime& date) const
{
    return m_status == valid && date.m_status == valid && Linear(m_dt) <= Linear(date.m_dt);
}

COleDateTime COleDateTime::operator+(const COleDateTimeSpan& dateSpan) const
{
    COleDateTime result;
    result.m_status = ResultStatus<DateTimeStatus>(*this, dateSpan);
    if (result.m_status == valid) {
        result = COleDateTime(FromLinear(Linear(m_dt) + dateSpan.m_span));
    }
    return result;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const
{
    COleDateTimeSpan result;
    result.m_status = ResultStatus<COleDateTimeSpan::DateTimeSpanStatus>(*this, date);
    if (result.m_status == COleDateTimeSpan::valid) {
        result = COleDateTimeSpan(Linear(m_dt) - Linear(date.m_dt));
    }
    return result;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec)
{
    if (!IsDateTime(nYear, nMonth, nDay, nHour, nMin, nSec)) {
        m_status = invalid;
        return m_status;
    }
    const double days = DayNumber(nYear, nMonth, nDay) + kDaysToEpoch;
    const int seconds = (nHour * 60 + nMin) * 60 + nSec;
    m_dt = FromLinear(days + seconds / static_cast<double>(kSecondsPerDay));
    m_status = valid;
    return m_status;
}

int COleDateTime::SetDate(int nYear, int nMonth, int nDay)
{
    return SetDateTime(nYear, nMonth, nDay, 0, 0, 0);
}

int COleDateTime::SetTime(int nHour, int nMin, int nSec)
{
    return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid)
{
    DATE date = 0;
    const bool parsed = lpszDate && SUCCEEDED(::VarDateFromStr(const_cast<LPOLESTR>(lpszDate), lcid, dwFlags, &date));
    *this = parsed ? COleDateTime(date) : InvalidDate();
    return m_status == valid;
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const
{
    if (m_status == null) {
        return CString();
    }
    BSTR text = nullptr;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, &text))) {
        return kInvalidDate;
    }
    CString result(text);
    ::SysFreeString(text);
    return result;
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const
{
    if (m_status == null || !lpszFormat) {
        return CString();
    }
    Parts parts;
    if (!Split(*this, parts)) {
        return kInvalidDate;
    }
    CString format(lpszFormat);
    if (parts.year < kFirstRuntimeYear) {
        format = WithOldYear(*this, lpszFormat, parts.year);
        parts.year += kYearShift;
    }
    const tm fields = ToTm(parts);
    // No conversion gives more characters than this per character of the format.
    constexpr int kLongest = 128;
    CString result;
    const int room = (format.GetLength() + 1) * kLongest;
    const size_t length = ::wcsftime(result.GetBuffer(room), static_cast<size_t>(room), format, &fields);
    result.ReleaseBuffer(static_cast<int>(length));
    return result;
}

CString COleDateTime::Format(UINT nFormatID) const
{
    return Format(LoadFormat(nFormatID).GetString());
}
