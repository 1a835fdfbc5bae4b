#include "create.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

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
    return Ask<BOOL>(*this, UDM_SETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return Ask<UINT>(*this, UDM_GETACCEL, nAccel, pAccel);
}

int CSpinButtonCtrl::SetBase(int nBase)
{
    return Ask<int>(*this, UDM_SETBASE, nBase);
}

UINT CSpinButtonCtrl::GetBase() const
{
    return Ask<UINT>(*this, UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(Ask<HWND>(*this, UDM_SETBUDDY, gdi::WindowOf(pWndBuddy)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(Ask<HWND>(*this, UDM_GETBUDDY));
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return static_cast<short>(LOWORD(Ask(*this, UDM_SETPOS, 0, MAKELPARAM(nPos, 0))));
}

int CSpinButtonCtrl::GetPos() const
{
    return static_cast<short>(LOWORD(Ask(*this, UDM_GETPOS)));
}

int CSpinButtonCtrl::SetPos32(int nPos)
{
    return Ask<int>(*this, UDM_SETPOS32, 0, nPos);
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const
{
    return Ask<int>(*this, UDM_GETPOS32, 0, lpbError);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper)
{
    Ask(*this, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper)
{
    Ask(*this, UDM_SETRANGE32, nLower, nUpper);
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return Ask<DWORD>(*this, UDM_GETRANGE);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD dwRange = GetRange();
    lower = static_cast<short>(HIWORD(dwRange));
    upper = static_cast<short>(LOWORD(dwRange));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    Ask(*this, UDM_GETRANGE32, &lower, &upper);
}
