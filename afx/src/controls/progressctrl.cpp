#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_PROGRESS_CLASS, 0, PROGRESS_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_PROGRESS_CLASS, dwExStyle, PROGRESS_CLASS, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    Ask(*this, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    Ask(*this, PBM_SETRANGE32, nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    PBRANGE range = {};
    Ask(*this, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos() const
{
    return Ask<int>(*this, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int nPos)
{
    return Ask<int>(*this, PBM_SETPOS, nPos);
}

int CProgressCtrl::OffsetPos(int nPos)
{
    return Ask<int>(*this, PBM_DELTAPOS, nPos);
}

int CProgressCtrl::SetStep(int nStep)
{
    return Ask<int>(*this, PBM_SETSTEP, nStep);
}

int CProgressCtrl::GetStep() const
{
    return Ask<int>(*this, PBM_GETSTEP);
}

int CProgressCtrl::StepIt()
{
    return Ask<int>(*this, PBM_STEPIT);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew)
{
    return Ask<COLORREF>(*this, PBM_SETBKCOLOR, 0, clrNew);
}

COLORREF CProgressCtrl::GetBkColor() const
{
    return Ask<COLORREF>(*this, PBM_GETBKCOLOR);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar)
{
    return Ask<COLORREF>(*this, PBM_SETBARCOLOR, 0, clrBar);
}

COLORREF CProgressCtrl::GetBarColor() const
{
    return Ask<COLORREF>(*this, PBM_GETBARCOLOR);
}

int CProgressCtrl::SetState(int iState)
{
    return Ask<int>(*this, PBM_SETSTATE, iState);
}

int CProgressCtrl::GetState() const
{
    return Ask<int>(*this, PBM_GETSTATE);
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return Ask<BOOL>(*this, PBM_SETMARQUEE, fMarqueeMode, nInterval);
}
