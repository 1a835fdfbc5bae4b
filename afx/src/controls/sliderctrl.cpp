#include "create.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_BAR_CLASSES, 0, TRACKBAR_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_BAR_CLASSES, dwExStyle, TRACKBAR_CLASS, dwStyle, rect, pParentWnd, nID);
}

int CSliderCtrl::GetPos() const
{
    return Ask<int>(*this, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int nPos)
{
    Ask(*this, TBM_SETPOS, TRUE, nPos);
}

int CSliderCtrl::GetRangeMin() const
{
    return Ask<int>(*this, TBM_GETRANGEMIN);
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw)
{
    Ask(*this, TBM_SETRANGEMIN, bRedraw, nMin);
}

int CSliderCtrl::GetRangeMax() const
{
    return Ask<int>(*this, TBM_GETRANGEMAX);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw)
{
    Ask(*this, TBM_SETRANGEMAX, bRedraw, nMax);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = Ask<int>(*this, TBM_GETSELSTART);
    nMax = Ask<int>(*this, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    Ask(*this, TBM_SETSELSTART, FALSE, nMin);
    Ask(*this, TBM_SETSELEND, TRUE, nMax);
}

void CSliderCtrl::ClearSel(BOOL bRedraw)
{
    Ask(*this, TBM_CLEARSEL, bRedraw);
}

int CSliderCtrl::GetLineSize() const
{
    return Ask<int>(*this, TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int nSize)
{
    return Ask<int>(*this, TBM_SETLINESIZE, 0, nSize);
}

int CSliderCtrl::GetPageSize() const
{
    return Ask<int>(*this, TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int nSize)
{
    return Ask<int>(*this, TBM_SETPAGESIZE, 0, nSize);
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    Ask(*this, TBM_SETTICFREQ, nFreq);
}

BOOL CSliderCtrl::SetTic(int nTic)
{
    return Ask<BOOL>(*this, TBM_SETTIC, 0, nTic);
}

UINT CSliderCtrl::GetNumTics() const
{
    return Ask<UINT>(*this, TBM_GETNUMTICS);
}

int CSliderCtrl::GetTic(int nTic) const
{
    return Ask<int>(*this, TBM_GETTIC, nTic);
}

int CSliderCtrl::GetTicPos(int nTic) const
{
    return Ask<int>(*this, TBM_GETTICPOS, nTic);
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return Ask<DWORD*>(*this, TBM_GETPTICS);
}

void CSliderCtrl::ClearTics(BOOL bRedraw)
{
    Ask(*this, TBM_CLEARTICS, bRedraw);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const
{
    Ask(*this, TBM_GETCHANNELRECT, 0, lprc);
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const
{
    Ask(*this, TBM_GETTHUMBRECT, 0, lprc);
}

int CSliderCtrl::GetThumbLength() const
{
    return Ask<int>(*this, TBM_GETTHUMBLENGTH);
}

void CSliderCtrl::SetThumbLength(int nLength)
{
    Ask(*this, TBM_SETTHUMBLENGTH, nLength);
}

void CSliderCtrl::VerifyPos()
{
    const int nPos = GetPos();
    SetPos((std::max)(GetRangeMin(), (std::min)(nPos, GetRangeMax())));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return CWnd::FromHandle(Ask<HWND>(*this, TBM_SETBUDDY, fLocation, gdi::WindowOf(pWndBuddy)));
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return CWnd::FromHandle(Ask<HWND>(*this, TBM_GETBUDDY, fLocation));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, TBM_GETTOOLTIPS));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    Ask(*this, TBM_SETTOOLTIPS, gdi::WindowOf(pWndTip));
}

int CSliderCtrl::SetTipSide(int nLocation)
{
    return Ask<int>(*this, TBM_SETTIPSIDE, nLocation);
}
