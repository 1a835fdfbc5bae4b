#include "oledateparts.h"

namespace
{
int PartOf(const COleDateTime& date, int date::Parts::*part)
{
    date::Parts parts;
    return date::Split(date, parts) ? parts.*part : -1;
}

COleDateTime FromTm(const tm* local)
{
    return local ? COleDateTime(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min,
                                local->tm_sec)
                 : date::InvalidDate();
}
} // namespace

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

COleDateTime::COleDateTime(DATE dtSrc) : m_dt(dtSrc), m_status(date::InRange(date::Linear(dtSrc)) ? valid : invalid) {}

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
    date::Parts parts;
    if (!date::Split(*this, parts)) {
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
    return PartOf(*this, &date::Parts::year);
}

int COleDateTime::GetMonth() const
{
    return PartOf(*this, &date::Parts::month);
}

int COleDateTime::GetDay() const
{
    return PartOf(*this, &date::Parts::day);
}

int COleDateTime::GetHour() const
{
    return PartOf(*this, &date::Parts::hour);
}

int COleDateTime::GetMinute() const
{
    return PartOf(*this, &date::Parts::minute);
}

int COleDateTime::GetSecond() const
{
    return PartOf(*this, &date::Parts::second);
}

int COleDateTime::GetDayOfWeek() const
{
    const int day = PartOf(*this, &date::Parts::dayOfWeek);
    return day < 0 ? -1 : day + 1;
}

int COleDateTime::GetDayOfYear() const
{
    const int day = PartOf(*this, &date::Parts::dayOfYear);
    return day < 0 ? -1 : day + 1;
}

bool COleDateTime::operator==(const COleDateTime& date) const
{
    return m_status == date.m_status && (m_status != valid || m_dt == date.m_dt);
}

bool COleDateTime::operator<(const COleDateTime& date) const
{
    return m_status == valid && date.m_status == valid && date::Linear(m_dt) < date::Linear(date.m_dt);
}

bool COleDateTime::operator<=(const COleDateTime& date) const
{
    return m_status == valid && date.m_status == valid && date::Linear(m_dt) <= date::Linear(date.m_dt);
}

COleDateTime COleDateTime::operator+(const COleDateTimeSpan& dateSpan) const
{
    COleDateTime result;
    result.m_status = date::ResultStatus<DateTimeStatus>(*this, dateSpan);
    if (result.m_status == valid) {
        result = COleDateTime(date::FromLinear(date::Linear(m_dt) + dateSpan.m_span));
    }
    return result;
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& date) const
{
    COleDateTimeSpan result;
    result.m_status = date::ResultStatus<COleDateTimeSpan::DateTimeSpanStatus>(*this, date);
    if (result.m_status == COleDateTimeSpan::valid) {
        result = COleDateTimeSpan(date::Linear(m_dt) - date::Linear(date.m_dt));
    }
    return result;
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec)
{
    if (!date::IsDateTime(nYear, nMonth, nDay, nHour, nMin, nSec)) {
        m_status = invalid;
        return m_status;
    }
    const double days = date::DayNumber(nYear, nMonth, nDay) + date::kDaysToEpoch;
    const int seconds = (nHour * 60 + nMin) * 60 + nSec;
    m_dt = date::FromLinear(days + seconds / static_cast<double>(date::kSecondsPerDay));
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
