#include "oledateparts.h"

#include <cmath>

namespace
{
constexpr LPCTSTR kInvalidSpan = _T("Invalid DateTimeSpan");

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
    m_span = lDays + nHours / 24.0 + nMins / (24.0 * 60) + nSecs / static_cast<double>(date::kSecondsPerDay);
    m_status = valid;
    CheckRange();
}

void COleDateTimeSpan::CheckRange()
{
    if (!(std::fabs(m_span) <= kMaxDateTimeSpan)) {
        m_status = invalid;
    }
}

double COleDateTimeSpan::TotalOf(double unitsPerDay) const
{
    return std::trunc((m_span + std::copysign(date::kHalfSecond, m_span)) * unitsPerDay);
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
    return TotalOf(date::kSecondsPerDay);
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
    result.m_status = date::ResultStatus<DateTimeSpanStatus>(*this, dateSpan);
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
    return Format(date::LoadFormat(nFormatID).GetString());
}
