#include "oledateparts.h"

#include <common/Owner.h>

#include <cwchar>

namespace
{
constexpr int kFirstRuntimeYear = 1900; ///< what the C run-time formats
constexpr int kYearShift = 2000;        ///< a multiple of 400 years has the same calendar
constexpr LPCTSTR kInvalidDate = _T("Invalid DateTime");

tm ToTm(const date::Parts& parts)
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
} // namespace

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid)
{
    DATE date = 0;
    const bool parsed = lpszDate && SUCCEEDED(::VarDateFromStr(const_cast<LPOLESTR>(lpszDate), lcid, dwFlags, &date));
    *this = parsed ? COleDateTime(date) : date::InvalidDate();
    return m_status == valid;
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const
{
    if (m_status == null) {
        return CString();
    }
    own::Owner<own::FreedBy<BSTR, ::SysFreeString>> text;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, text.Receive()))) {
        return kInvalidDate;
    }
    return CString(static_cast<LPCTSTR>(text.Get()));
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const
{
    if (m_status == null || !lpszFormat) {
        return CString();
    }
    date::Parts parts;
    if (!date::Split(*this, parts)) {
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
    return Format(date::LoadFormat(nFormatID).GetString());
}
