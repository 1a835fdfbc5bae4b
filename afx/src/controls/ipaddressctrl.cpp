#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)

BOOL CIPAddressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_INTERNET_CLASSES, 0, WC_IPADDRESS, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_INTERNET_CLASSES, dwExStyle, WC_IPADDRESS, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::IsBlank() const
{
    return Ask<BOOL>(*this, IPM_ISBLANK);
}

void CIPAddressCtrl::ClearAddress()
{
    Ask(*this, IPM_CLEARADDRESS);
}

int CIPAddressCtrl::GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const
{
    DWORD dwAddress = 0;
    const int nFields = GetAddress(dwAddress);
    nField0 = static_cast<BYTE>(FIRST_IPADDRESS(dwAddress));
    nField1 = static_cast<BYTE>(SECOND_IPADDRESS(dwAddress));
    nField2 = static_cast<BYTE>(THIRD_IPADDRESS(dwAddress));
    nField3 = static_cast<BYTE>(FOURTH_IPADDRESS(dwAddress));
    return nFields;
}

int CIPAddressCtrl::GetAddress(DWORD& dwAddress) const
{
    return Ask<int>(*this, IPM_GETADDRESS, 0, &dwAddress);
}

void CIPAddressCtrl::SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3)
{
    SetAddress(static_cast<DWORD>(MAKEIPADDRESS(nField0, nField1, nField2, nField3)));
}

void CIPAddressCtrl::SetAddress(DWORD dwAddress)
{
    Ask(*this, IPM_SETADDRESS, 0, dwAddress);
}

void CIPAddressCtrl::SetFieldFocus(WORD nField)
{
    Ask(*this, IPM_SETFOCUS, nField);
}

void CIPAddressCtrl::SetFieldRange(int nField, BYTE nLower, BYTE nUpper)
{
    Ask(*this, IPM_SETRANGE, nField, MAKEIPRANGE(nLower, nUpper));
}
