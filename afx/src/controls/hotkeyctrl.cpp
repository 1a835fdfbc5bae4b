#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

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
    Ask(*this, HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
}

DWORD CHotKeyCtrl::GetHotKey() const
{
    return Ask<DWORD>(*this, HKM_GETHOTKEY);
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const
{
    const WORD wKey = LOWORD(GetHotKey());
    wVirtualKeyCode = LOBYTE(wKey);
    wModifiers = HIBYTE(wKey);
}

void CHotKeyCtrl::SetRules(WORD wInvalidComb, WORD wModifiers)
{
    Ask(*this, HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
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
    constexpr LONG kExtendedKey = 0x01000000;
    LONG lScan = static_cast<LONG>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC)) << 16;
    if (fExtended) {
        lScan |= kExtendedKey;
    }
    TCHAR name[64] = {};
    ::GetKeyNameText(lScan, name, _countof(name));
    return name;
}
