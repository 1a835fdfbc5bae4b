#include "internal.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)
IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)

namespace
{
void GiveEnd(COleDateTime* pTime, bool bSet, const SYSTEMTIME& time)
{
    if (pTime == nullptr) {
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
    if (pTime == nullptr || pTime->GetStatus() == COleDateTime::null) {
        return true;
    }
    dwFlags |= dwFlag;
    return pTime->GetAsSystemTime(time);
}
} // namespace

BOOL CAnimateCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_ANIMATE_CLASS, 0, ANIMATE_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_ANIMATE_CLASS, dwExStyle, ANIMATE_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::Open(LPCTSTR lpszFileName)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, ACM_OPEN, 0, reinterpret_cast<LPARAM>(lpszFileName)));
}

BOOL CAnimateCtrl::Open(UINT nID)
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCE(nID), TEXT("AVI"));
    return static_cast<BOOL>(::SendMessage(m_hWnd, ACM_OPEN, reinterpret_cast<WPARAM>(hInst),
                                           reinterpret_cast<LPARAM>(MAKEINTRESOURCE(nID))));
}

BOOL CAnimateCtrl::Play(UINT nFrom, UINT nTo, UINT nRep)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo)));
}

BOOL CAnimateCtrl::Stop()
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, ACM_STOP, 0, 0));
}

BOOL CAnimateCtrl::Seek(UINT nTo)
{
    return Play(nTo, nTo, 1);
}

BOOL CAnimateCtrl::Close()
{
    return Open(static_cast<LPCTSTR>(nullptr));
}

BOOL CAnimateCtrl::IsPlaying() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, ACM_ISPLAYING, 0, 0));
}

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
    return m_hWnd != nullptr && pTimeDest != nullptr
               ? static_cast<DWORD>(::SendMessage(m_hWnd, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(pTimeDest)))
               : static_cast<DWORD>(GDT_ERROR);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    // Some versions of the control refuse a null pointer even for "no date", where they do not look at the time.
    SYSTEMTIME unused = {};
    const WPARAM wFlag = pTimeNew != nullptr ? GDT_VALID : GDT_NONE;
    LPSYSTEMTIME pTime = pTimeNew != nullptr ? pTimeNew : &unused;
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_SETSYSTEMTIME, wFlag, reinterpret_cast<LPARAM>(pTime)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_SETFORMAT, 0, reinterpret_cast<LPARAM>(pstrFormat)));
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int iColor) const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, DTM_GETMCCOLOR, static_cast<WPARAM>(iColor), 0));
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int iColor, COLORREF ref)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, DTM_SETMCCOLOR, static_cast<WPARAM>(iColor), ref));
}

HFONT CDateTimeCtrl::GetMonthCalFont() const
{
    return reinterpret_cast<HFONT>(::SendMessage(m_hWnd, DTM_GETMCFONT, 0, 0));
}

void CDateTimeCtrl::SetMonthCalFont(HFONT hFont, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, DTM_SETMCFONT, reinterpret_cast<WPARAM>(hFont), MAKELPARAM(bRedraw, 0));
}

DWORD CDateTimeCtrl::GetRange(SYSTEMTIME* pRange) const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, DTM_GETRANGE, 0, reinterpret_cast<LPARAM>(pRange)));
}

BOOL CDateTimeCtrl::SetRange(DWORD dwFlags, SYSTEMTIME* pRange)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_SETRANGE, dwFlags, reinterpret_cast<LPARAM>(pRange)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, DTM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(psize)));
}

void CDateTimeCtrl::CloseMonthCal()
{
    ::SendMessage(m_hWnd, DTM_CLOSEMONTHCAL, 0, 0);
}

BOOL CHotKeyCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_HOTKEY_CLASS, 0, HOTKEY_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CHotKeyCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_HOTKEY_CLASS, dwExStyle, HOTKEY_CLASS, dwStyle, rect, pParentWnd, nID);
}

void CHotKeyCtrl::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers)
{
    ::SendMessage(m_hWnd, HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers), 0);
}

DWORD CHotKeyCtrl::GetHotKey() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, HKM_GETHOTKEY, 0, 0));
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const
{
    const WORD wKey = LOWORD(GetHotKey());
    wVirtualKeyCode = LOBYTE(wKey);
    wModifiers = HIBYTE(wKey);
}

void CHotKeyCtrl::SetRules(WORD wInvalidComb, WORD wModifiers)
{
    ::SendMessage(m_hWnd, HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
}

CString CHotKeyCtrl::GetHotKeyName() const
{
    WORD wKey = 0;
    WORD wModifiers = 0;
    GetHotKey(wKey, wModifiers);
    CString strName;
    const struct
    {
        WORD wFlag;
        UINT nKey;
    } modifiers[] = {{HOTKEYF_CONTROL, VK_CONTROL}, {HOTKEYF_SHIFT, VK_SHIFT}, {HOTKEYF_ALT, VK_MENU}};
    for (const auto& modifier : modifiers) {
        if (wModifiers & modifier.wFlag) {
            strName += GetKeyName(modifier.nKey, FALSE) + TEXT(" + ");
        }
    }
    return wKey != 0 ? strName + GetKeyName(wKey, (wModifiers & HOTKEYF_EXT) != 0) : CString();
}

CString PASCAL CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended)
{
    constexpr LONG EXTENDED_KEY = 0x01000000;
    LONG lScan = static_cast<LONG>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC)) << 16;
    if (fExtended) {
        lScan |= EXTENDED_KEY;
    }
    TCHAR name[64] = {};
    ::GetKeyNameText(lScan, name, _countof(name));
    return name;
}

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
    return static_cast<BOOL>(::SendMessage(m_hWnd, IPM_ISBLANK, 0, 0));
}

void CIPAddressCtrl::ClearAddress()
{
    ::SendMessage(m_hWnd, IPM_CLEARADDRESS, 0, 0);
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
    return static_cast<int>(::SendMessage(m_hWnd, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&dwAddress)));
}

void CIPAddressCtrl::SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3)
{
    SetAddress(static_cast<DWORD>(MAKEIPADDRESS(nField0, nField1, nField2, nField3)));
}

void CIPAddressCtrl::SetAddress(DWORD dwAddress)
{
    ::SendMessage(m_hWnd, IPM_SETADDRESS, 0, static_cast<LPARAM>(dwAddress));
}

void CIPAddressCtrl::SetFieldFocus(WORD nField)
{
    ::SendMessage(m_hWnd, IPM_SETFOCUS, nField, 0);
}

void CIPAddressCtrl::SetFieldRange(int nField, BYTE nLower, BYTE nUpper)
{
    ::SendMessage(m_hWnd, IPM_SETRANGE, static_cast<WPARAM>(nField), MAKEIPRANGE(nLower, nUpper));
}
