#include "internal.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_UPDOWN_CLASS, 0, UPDOWN_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_UPDOWN_CLASS, dwExStyle, UPDOWN_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, UDM_SETACCEL, static_cast<WPARAM>(nAccel), reinterpret_cast<LPARAM>(pAccel)));
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return static_cast<UINT>(
        ::SendMessage(m_hWnd, UDM_GETACCEL, static_cast<WPARAM>(nAccel), reinterpret_cast<LPARAM>(pAccel)));
}

int CSpinButtonCtrl::SetBase(int nBase)
{
    return static_cast<int>(::SendMessage(m_hWnd, UDM_SETBASE, static_cast<WPARAM>(nBase), 0));
}

UINT CSpinButtonCtrl::GetBase() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, UDM_GETBASE, 0, 0));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, UDM_SETBUDDY, AfxWindowParam(pWndBuddy), 0)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, UDM_GETBUDDY, 0, 0)));
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return static_cast<short>(LOWORD(::SendMessage(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0))));
}

int CSpinButtonCtrl::GetPos() const
{
    return static_cast<short>(LOWORD(::SendMessage(m_hWnd, UDM_GETPOS, 0, 0)));
}

int CSpinButtonCtrl::SetPos32(int nPos)
{
    return static_cast<int>(::SendMessage(m_hWnd, UDM_SETPOS32, 0, nPos));
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const
{
    return static_cast<int>(::SendMessage(m_hWnd, UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(lpbError)));
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper)
{
    ::SendMessage(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper)
{
    ::SendMessage(m_hWnd, UDM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, UDM_GETRANGE, 0, 0));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD dwRange = GetRange();
    lower = static_cast<short>(HIWORD(dwRange));
    upper = static_cast<short>(LOWORD(dwRange));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    ::SendMessage(m_hWnd, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}

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
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETPOS, 0, 0));
}

void CSliderCtrl::SetPos(int nPos)
{
    ::SendMessage(m_hWnd, TBM_SETPOS, TRUE, nPos);
}

int CSliderCtrl::GetRangeMin() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETRANGEMIN, 0, 0));
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin);
}

int CSliderCtrl::GetRangeMax() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETRANGEMAX, 0, 0));
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax);
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
    nMin = static_cast<int>(::SendMessage(m_hWnd, TBM_GETSELSTART, 0, 0));
    nMax = static_cast<int>(::SendMessage(m_hWnd, TBM_GETSELEND, 0, 0));
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    ::SendMessage(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    ::SendMessage(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

void CSliderCtrl::ClearSel(BOOL bRedraw)
{
    ::SendMessage(m_hWnd, TBM_CLEARSEL, bRedraw, 0);
}

int CSliderCtrl::GetLineSize() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETLINESIZE, 0, 0));
}

int CSliderCtrl::SetLineSize(int nSize)
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_SETLINESIZE, 0, nSize));
}

int CSliderCtrl::GetPageSize() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETPAGESIZE, 0, 0));
}

int CSliderCtrl::SetPageSize(int nSize)
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_SETPAGESIZE, 0, nSize));
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    ::SendMessage(m_hWnd, TBM_SETTICFREQ, static_cast<WPARAM>(nFreq), 0);
}

BOOL CSliderCtrl::SetTic(int nTic)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TBM_SETTIC, 0, nTic));
}

UINT CSliderCtrl::GetNumTics() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TBM_GETNUMTICS, 0, 0));
}

int CSliderCtrl::GetTic(int nTic) const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETTIC, static_cast<WPARAM>(nTic), 0));
}

int CSliderCtrl::GetTicPos(int nTic) const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETTICPOS, static_cast<WPARAM>(nTic), 0));
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return reinterpret_cast<DWORD*>(::SendMessage(m_hWnd, TBM_GETPTICS, 0, 0));
}

void CSliderCtrl::ClearTics(BOOL bRedraw)
{
    ::SendMessage(m_hWnd, TBM_CLEARTICS, bRedraw, 0);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const
{
    ::SendMessage(m_hWnd, TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(lprc));
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const
{
    ::SendMessage(m_hWnd, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(lprc));
}

int CSliderCtrl::GetThumbLength() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_GETTHUMBLENGTH, 0, 0));
}

void CSliderCtrl::SetThumbLength(int nLength)
{
    ::SendMessage(m_hWnd, TBM_SETTHUMBLENGTH, static_cast<WPARAM>(nLength), 0);
}

void CSliderCtrl::VerifyPos()
{
    const int nPos = GetPos();
    SetPos((std::max)(GetRangeMin(), (std::min)(nPos, GetRangeMax())));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(
        ::SendMessage(m_hWnd, TBM_SETBUDDY, fLocation, static_cast<LPARAM>(AfxWindowParam(pWndBuddy)))));
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TBM_GETBUDDY, fLocation, 0)));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TBM_GETTOOLTIPS, 0, 0))));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    ::SendMessage(m_hWnd, TBM_SETTOOLTIPS, AfxWindowParam(pWndTip), 0);
}

int CSliderCtrl::SetTipSide(int nLocation)
{
    return static_cast<int>(::SendMessage(m_hWnd, TBM_SETTIPSIDE, static_cast<WPARAM>(nLocation), 0));
}

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
    ::SendMessage(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    ::SendMessage(m_hWnd, PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    PBRANGE range = {};
    ::SendMessage(m_hWnd, PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos() const
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_GETPOS, 0, 0));
}

int CProgressCtrl::SetPos(int nPos)
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_SETPOS, static_cast<WPARAM>(nPos), 0));
}

int CProgressCtrl::OffsetPos(int nPos)
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_DELTAPOS, static_cast<WPARAM>(nPos), 0));
}

int CProgressCtrl::SetStep(int nStep)
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_SETSTEP, static_cast<WPARAM>(nStep), 0));
}

int CProgressCtrl::GetStep() const
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_GETSTEP, 0, 0));
}

int CProgressCtrl::StepIt()
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_STEPIT, 0, 0));
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, PBM_SETBKCOLOR, 0, clrNew));
}

COLORREF CProgressCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, PBM_GETBKCOLOR, 0, 0));
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, PBM_SETBARCOLOR, 0, clrBar));
}

COLORREF CProgressCtrl::GetBarColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, PBM_GETBARCOLOR, 0, 0));
}

int CProgressCtrl::SetState(int iState)
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_SETSTATE, static_cast<WPARAM>(iState), 0));
}

int CProgressCtrl::GetState() const
{
    return static_cast<int>(::SendMessage(m_hWnd, PBM_GETSTATE, 0, 0));
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval));
}
