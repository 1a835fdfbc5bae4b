#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

namespace
{
void GiveEnd(COleDateTime* pTime, bool bSet, const SYSTEMTIME& time)
{
    if (!pTime) {
        return;
    }
    if (bSet) {
        *pTime = COleDateTime(time);
    } else {
        pTime->SetStatus(COleDateTime::null);
    }
}

bool TakeEnd(const COleDateTime* pTime, DWORD dwFlag, SYSTEMTIME& time, DWORD& dwFlags)
{
    if (!pTime || pTime->GetStatus() == COleDateTime::null) {
        return true;
    }
    dwFlags |= dwFlag;
    return pTime->GetAsSystemTime(time);
}
} // namespace

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_DATE_CLASSES, 0, DATETIMEPICK_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CDateTimeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_DATE_CLASSES, dwExStyle, DATETIMEPICK_CLASS, dwStyle, rect, pParentWnd, nID);
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME pTimeDest) const
{
    return m_hWnd && pTimeDest ? Ask<DWORD>(*this, DTM_GETSYSTEMTIME, 0, pTimeDest) : static_cast<DWORD>(GDT_ERROR);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    // Some versions of the control refuse a null pointer even for "no date", where they do not look at the time.
    SYSTEMTIME unused = {};
    const WPARAM wFlag = pTimeNew ? GDT_VALID : GDT_NONE;
    LPSYSTEMTIME pTime = pTimeNew ? pTimeNew : &unused;
    return Ask<BOOL>(*this, DTM_SETSYSTEMTIME, wFlag, pTime);
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& timeDest) const
{
    SYSTEMTIME time = {};
    const DWORD dwResult = GetTime(&time);
    if (dwResult == GDT_VALID) {
        timeDest = COleDateTime(time);
    } else {
        timeDest.SetStatus(dwResult == GDT_NONE ? COleDateTime::null : COleDateTime::invalid);
    }
    return dwResult == GDT_VALID || dwResult == GDT_NONE;
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& timeNew)
{
    if (timeNew.GetStatus() == COleDateTime::null) {
        return SetTime(static_cast<LPSYSTEMTIME>(nullptr));
    }
    SYSTEMTIME time = {};
    return timeNew.GetAsSystemTime(time) && SetTime(&time);
}

BOOL CDateTimeCtrl::SetFormat(LPCTSTR pstrFormat)
{
    return Ask<BOOL>(*this, DTM_SETFORMAT, 0, pstrFormat);
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int iColor) const
{
    return Ask<COLORREF>(*this, DTM_GETMCCOLOR, iColor);
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int iColor, COLORREF ref)
{
    return Ask<COLORREF>(*this, DTM_SETMCCOLOR, iColor, ref);
}

HFONT CDateTimeCtrl::GetMonthCalFont() const
{
    return Ask<HFONT>(*this, DTM_GETMCFONT);
}

void CDateTimeCtrl::SetMonthCalFont(HFONT hFont, BOOL bRedraw)
{
    Ask(*this, DTM_SETMCFONT, hFont, MAKELPARAM(bRedraw, 0));
}

DWORD CDateTimeCtrl::GetRange(SYSTEMTIME* pRange) const
{
    return Ask<DWORD>(*this, DTM_GETRANGE, 0, pRange);
}

BOOL CDateTimeCtrl::SetRange(DWORD dwFlags, SYSTEMTIME* pRange)
{
    return Ask<BOOL>(*this, DTM_SETRANGE, dwFlags, pRange);
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* pMinTime, COleDateTime* pMaxTime) const
{
    SYSTEMTIME range[2] = {};
    const DWORD dwFlags = GetRange(range);
    GiveEnd(pMinTime, (dwFlags & GDTR_MIN) != 0, range[0]);
    GiveEnd(pMaxTime, (dwFlags & GDTR_MAX) != 0, range[1]);
    return dwFlags;
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* pMinTime, const COleDateTime* pMaxTime)
{
    SYSTEMTIME range[2] = {};
    DWORD dwFlags = 0;
    if (!TakeEnd(pMinTime, GDTR_MIN, range[0], dwFlags) || !TakeEnd(pMaxTime, GDTR_MAX, range[1], dwFlags)) {
        return FALSE;
    }
    return SetRange(dwFlags, range);
}

BOOL CDateTimeCtrl::GetIdealSize(LPSIZE psize) const
{
    return Ask<BOOL>(*this, DTM_GETIDEALSIZE, 0, psize);
}

void CDateTimeCtrl::CloseMonthCal()
{
    Ask(*this, DTM_CLOSEMONTHCAL);
}
