#include "dispatch.h"

#include <afxwin.h>

#include <windowsx.h>

#include <array>

#undef SubclassWindow

namespace
{
/** One message on its way to a handler. */
struct Call
{
    CWnd* pWnd;
    AFX_PMSG pfn;
    UINT message;
    WPARAM w;
    LPARAM l;

    template <AFX_SIG sig, class... Args>
    auto To(Args... args) const
    {
        return Invoke(AfxUnpackHandler<sig>(pfn), args...);
    }

    CWnd* WndW() const { return CWnd::FromHandle(reinterpret_cast<HWND>(w)); }
    CWnd* WndL() const { return CWnd::FromHandle(reinterpret_cast<HWND>(l)); }
    CDC* DcW() const { return CDC::FromHandle(reinterpret_cast<HDC>(w)); }
    CMenu* MenuW() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(w)); }
    CMenu* MenuL() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(l)); }
    CPoint Point() const { return CPoint(GET_X_LPARAM(l), GET_Y_LPARAM(l)); }
    UINT LowW() const { return LOWORD(w); }
    UINT HighW() const { return HIWORD(w); }
    UINT LowL() const { return LOWORD(l); }
    UINT HighL() const { return HIWORD(l); }
    template <class T>
    T PtrW() const
    {
        return reinterpret_cast<T>(w);
    }
    template <class T>
    T PtrL() const
    {
        return reinterpret_cast<T>(l);
    }

  private:
    template <class R, class C, class... Params, class... Args>
    R Invoke(R (C::*handler)(Params...), Args... args) const
    {
        return (static_cast<C*>(pWnd)->*handler)(static_cast<Params>(args)...);
    }
};

typedef LRESULT (*Unpacker)(const Call&);
typedef std::array<Unpacker, AfxSig_Count> UnpackerTable;

LRESULT Handle(HGDIOBJ h)
{
    return reinterpret_cast<LRESULT>(h);
}

#define AFX_ON(sig, ...)                                                                                               \
    table[sig] = [](const Call& c) -> LRESULT {                                                                        \
        c.To<sig>(__VA_ARGS__);                                                                                        \
        return 0;                                                                                                      \
    }
#define AFX_ON_TRUE(sig, ...)                                                                                          \
    table[sig] = [](const Call& c) -> LRESULT {                                                                        \
        c.To<sig>(__VA_ARGS__);                                                                                        \
        return TRUE;                                                                                                   \
    }
#define AFX_ANSWER(sig, ...) table[sig] = [](const Call& c) -> LRESULT { return c.To<sig>(__VA_ARGS__); }

void AddPlainKinds(UnpackerTable& table)
{
    AFX_ANSWER(AfxSig_Message, c.w, c.l);
    AFX_ON(AfxSig_void, );
    AFX_ON(AfxSig_void_BOOL, c.w);
    AFX_ON(AfxSig_void_BOOL_DWORD, c.w, c.l);
    AFX_ON(AfxSig_void_BOOL_UINT, c.w, c.l);
    AFX_ON(AfxSig_void_DWORD_BOOL, c.w, c.l);
    AFX_ON(AfxSig_void_int_int, static_cast<short>(c.LowL()), static_cast<short>(c.HighL()));
    AFX_ON(AfxSig_void_Timer, c.w);
    AFX_ON(AfxSig_void_UINT, c.w);
    AFX_ON(AfxSig_void_UINT_DWORD, c.w, c.l);
    AFX_ON(AfxSig_void_UINT_LPARAM, c.w, c.l);
    AFX_ON(AfxSig_void_UINT_UINT, c.w, c.l);
    AFX_ON(AfxSig_void_UINT_Point, c.w, c.Point());
    AFX_ON(AfxSig_void_UINT_UINT_UINT, c.w, c.LowL(), c.HighL());
    AFX_ON(AfxSig_void_HotKey, c.w, c.LowL(), c.HighL());
    AFX_ON(AfxSig_void_UINT_int_int, c.w, static_cast<short>(c.LowL()), static_cast<short>(c.HighL()));
    AFX_ON(AfxSig_void_UINT_short_Point, c.LowW(), static_cast<short>(c.HighW()), c.Point());
    AFX_ON(AfxSig_void_UIState, c.LowW(), c.HighW());
    AFX_ON_TRUE(AfxSig_void_XButton, c.LowW(), c.HighW(), c.Point());
    AFX_ANSWER(AfxSig_BOOL, );
    AFX_ANSWER(AfxSig_BOOL_BOOL, c.w);
    AFX_ANSWER(AfxSig_BOOL_UINT_DWORDPTR, c.w, c.l);
    AFX_ANSWER(AfxSig_BOOL_MouseWheel, c.LowW(), static_cast<short>(c.HighW()), c.Point());
    AFX_ANSWER(AfxSig_LRESULT, );
    AFX_ANSWER(AfxSig_LRESULT_Point, c.Point());
    AFX_ANSWER(AfxSig_UINT, );
    AFX_ANSWER(AfxSig_UINT_UINT_LPARAM, c.w, c.l);
}

void AddPointerKinds(UnpackerTable& table)
{
    AFX_ON(AfxSig_void_BOOL_NcCalcSize, c.w, c.PtrL<NCCALCSIZE_PARAMS*>());
    AFX_ON(AfxSig_void_Drop, c.PtrW<HDROP>());
    AFX_ON(AfxSig_void_HWND_HWND, c.PtrW<HWND>(), c.PtrL<HWND>());
    AFX_ON(AfxSig_void_LPCTSTR, c.PtrL<LPCTSTR>());
    AFX_ON(AfxSig_void_LPTSTR, c.PtrL<LPTSTR>());
    AFX_ON(AfxSig_void_MinMaxInfo, c.PtrL<MINMAXINFO*>());
    AFX_ON(AfxSig_void_NextMenu, c.w, c.PtrL<LPMDINEXTMENU>());
    AFX_ON(AfxSig_void_UINT_LPCTSTR, c.w, c.PtrL<LPCTSTR>());
    AFX_ON(AfxSig_void_UINT_LPTSTR, c.w, c.PtrL<LPTSTR>());
    AFX_ON(AfxSig_void_UINT_RawInput, c.w, c.PtrL<HRAWINPUT>());
    AFX_ON_TRUE(AfxSig_void_UINT_Rect, c.w, c.PtrL<LPRECT>());
    AFX_ON(AfxSig_void_UINT_UINT_HMENU, c.LowW(), c.HighW(), c.PtrL<HMENU>());
    AFX_ON(AfxSig_void_USHORT_HANDLE, c.w, c.PtrL<HANDLE>());
    AFX_ON(AfxSig_void_WindowPos, c.PtrL<WINDOWPOS*>());
    AFX_ON(AfxSig_void_StyleStruct, c.w, c.PtrL<LPSTYLESTRUCT>());
    AFX_ANSWER(AfxSig_BOOL_CreateStruct, c.PtrL<LPCREATESTRUCT>());
    AFX_ANSWER(AfxSig_BOOL_HelpInfo, c.PtrL<HELPINFO*>());
    AFX_ANSWER(AfxSig_int_CreateStruct, c.PtrL<LPCREATESTRUCT>());
    AFX_ANSWER(AfxSig_UINT_MenuGetObject, c.PtrL<MENUGETOBJECTINFO*>());
    table[AfxSig_HCURSOR] = [](const Call& c) { return reinterpret_cast<LRESULT>(c.To<AfxSig_HCURSOR>()); };
}

void AddObjectKinds(UnpackerTable& table)
{
    AFX_ON(AfxSig_void_BOOL_Wnd_Wnd, c.pWnd->m_hWnd == c.PtrL<HWND>(), c.WndL(), c.WndW());
    AFX_ON(AfxSig_void_CDC, c.DcW());
    AFX_ON(AfxSig_void_Menu, c.MenuW());
    AFX_ON(AfxSig_void_Menu_UINT, c.MenuW(), c.HighL());
    AFX_ON(AfxSig_void_Menu_UINT_BOOL, c.MenuW(), c.LowL(), c.HighL());
    AFX_ON(AfxSig_void_UINT_Menu, c.w, c.MenuL());
    AFX_ON(AfxSig_void_UINT_Wnd, c.w, c.WndL());
    AFX_ON(AfxSig_void_Activate, c.LowW(), c.WndL(), c.HighW());
    AFX_ON_TRUE(AfxSig_void_AppCommand, c.WndW(), GET_APPCOMMAND_LPARAM(c.l), GET_DEVICE_LPARAM(c.l),
                GET_KEYSTATE_LPARAM(c.l));
    AFX_ON(AfxSig_void_Wnd, c.WndW());
    AFX_ON(AfxSig_void_CapturedWnd, c.WndL());
    AFX_ON(AfxSig_void_Wnd_HGLOBAL, c.WndW(), c.PtrL<HGLOBAL>());
    AFX_ON(AfxSig_void_Wnd_Point, c.WndW(), c.Point());
    AFX_ON(AfxSig_void_ClipboardScroll, c.WndW(), c.LowL(), c.HighL());
    AFX_ANSWER(AfxSig_BOOL_CDC, c.DcW());
    AFX_ANSWER(AfxSig_BOOL_CopyData, c.WndW(), c.PtrL<COPYDATASTRUCT*>());
    AFX_ANSWER(AfxSig_BOOL_SetCursor, c.WndW(), c.LowL(), c.HighL());
    AFX_ANSWER(AfxSig_int_MouseActivate, c.WndW(), c.LowL(), c.HighL());
    AFX_ANSWER(AfxSig_LRESULT_MenuChar, c.LowW(), c.HighW(), c.MenuL());
    AFX_ANSWER(AfxSig_UINT_UINT_Menu, c.w, c.MenuL());
}

UINT CtlColorType(UINT message)
{
    return (message >= WM_REFLECT_BASE ? message - WM_REFLECT_BASE : message) - WM_CTLCOLORMSGBOX;
}

void AddControlKinds(UnpackerTable& table)
{
    AFX_ON(AfxSig_void_Scroll, c.LowW(), c.HighW(), static_cast<CScrollBar*>(c.WndL()));
    AFX_ON(AfxSig_void_ScrollReflect, c.LowW(), c.HighW());
    AFX_ON(AfxSig_void_ParentNotify, c.w, c.l);
    AFX_ANSWER(AfxSig_int_CompareItem, c.w, c.PtrL<LPCOMPAREITEMSTRUCT>());
    AFX_ANSWER(AfxSig_int_CompareItemReflect, c.PtrL<LPCOMPAREITEMSTRUCT>());
    AFX_ANSWER(AfxSig_int_KeyToItem, c.LowW(), static_cast<CListBox*>(c.WndL()), c.HighW());
    AFX_ANSWER(AfxSig_int_KeyToItemReflect, c.LowW(), c.HighW());
    AFX_ON_TRUE(AfxSig_void_DrawItem, c.w, c.PtrL<LPDRAWITEMSTRUCT>());
    AFX_ON_TRUE(AfxSig_void_MeasureItem, c.w, c.PtrL<LPMEASUREITEMSTRUCT>());
    AFX_ON_TRUE(AfxSig_void_DeleteItem, c.w, c.PtrL<LPDELETEITEMSTRUCT>());
    AFX_ON_TRUE(AfxSig_void_DrawItemReflect, c.PtrL<LPDRAWITEMSTRUCT>());
    AFX_ON_TRUE(AfxSig_void_MeasureItemReflect, c.PtrL<LPMEASUREITEMSTRUCT>());
    AFX_ON_TRUE(AfxSig_void_DeleteItemReflect, c.PtrL<LPDELETEITEMSTRUCT>());
    table[AfxSig_HBRUSH_CtlColor] = [](const Call& c) {
        return Handle(c.To<AfxSig_HBRUSH_CtlColor>(c.DcW(), c.WndL(), CtlColorType(c.message)));
    };
    table[AfxSig_HBRUSH_CtlColorReflect] = [](const Call& c) {
        return Handle(c.To<AfxSig_HBRUSH_CtlColorReflect>(c.DcW(), CtlColorType(c.message)));
    };
}
#undef AFX_ON
#undef AFX_ON_TRUE
#undef AFX_ANSWER

const UnpackerTable& Unpackers()
{
    static const UnpackerTable kTable = [] {
        UnpackerTable t = {};
        AddPlainKinds(t);
        AddPointerKinds(t);
        AddObjectKinds(t);
        AddControlKinds(t);
        return t;
    }();
    return kTable;
}

/** The number that stands for the message in message maps. */
UINT MapMessage(UINT message)
{
    if (AfxIsCtlColor(message)) {
        return WM_CTLCOLOR;
    }
    if (message >= WM_REFLECT_BASE && AfxIsCtlColor(message - WM_REFLECT_BASE)) {
        return WM_CTLCOLOR + WM_REFLECT_BASE;
    }
    return message;
}

const AFX_MSGMAP_ENTRY* FindRow(const AFX_MSGMAP_ENTRY* pEntry, UINT message)
{
    const UINT mapMessage = MapMessage(message);
    for (; pEntry->nSig != AfxSig_end; ++pEntry) {
        const bool isRegistered = pEntry->nMessage == AFX_REGISTERED_MESSAGE;
        if (isRegistered
                ? message > AFX_REGISTERED_MESSAGE - 1 && *reinterpret_cast<const UINT*>(pEntry->nSig) == message
                : pEntry->nMessage == message || pEntry->nMessage == mapMessage) {
            return pEntry;
        }
    }
    return nullptr;
}

bool IsReflectedAsItStands(UINT message)
{
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return true;
    default:
        return false;
    }
}

/** Asks only whether a command is enabled. */
class CommandProbe : public CCmdUI
{
  public:
    BOOL m_bEnabled = TRUE;

    void Enable(BOOL bOn) override
    {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};
} // namespace

const AFX_MSGMAP_ENTRY* AfxFindHandler(const AFX_MSGMAP* pMap, UINT message)
{
    for (; pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr) {
        if (const AFX_MSGMAP_ENTRY* pEntry = FindRow(pMap->lpEntries, message)) {
            return pEntry;
        }
    }
    return nullptr;
}

bool AfxIsCtlColor(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

LRESULT AfxCallHandler(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto sig = entry.nMessage == AFX_REGISTERED_MESSAGE ? static_cast<UINT_PTR>(AfxSig_Message) : entry.nSig;
    const Unpacker unpack = sig < AfxSig_Count ? Unpackers()[sig] : nullptr;
    ASSERT(unpack);
    return unpack ? unpack({pWnd, entry.pfn, message, wParam, lParam}) : 0;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) {
            return FALSE;
        }
        lResult = 1;
    } else if (message == WM_NOTIFY) {
        if (!lParam || !OnNotify(wParam, lParam, &lResult)) {
            return FALSE;
        }
    } else {
        if (message == WM_INITMENUPOPUP) {
            AfxGetThreadState()->m_hTrackingMenu = reinterpret_cast<HMENU>(wParam);
        }
        const AFX_MSGMAP_ENTRY* pEntry = AfxFindHandler(GetMessageMap(), message);
        if (!pEntry) {
            return FALSE;
        }
        lResult = AfxCallHandler(this, *pEntry, message, wParam, lParam);
    }
    if (pResult) {
        *pResult = lResult;
    }
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nID = LOWORD(wParam);
    const auto hWndCtrl = reinterpret_cast<HWND>(lParam);
    if (!hWndCtrl) {
        if (nID == 0) {
            return FALSE;
        }
        CommandProbe probe;
        probe.m_nID = nID;
        OnCmdMsg(nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, nullptr);
        if (!probe.m_bEnabled) {
            return TRUE; // a menu or accelerator command that is disabled goes nowhere
        }
        return OnCmdMsg(nID, CN_COMMAND, nullptr, nullptr);
    }
    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd) {
        return TRUE;
    }
    if (ReflectLastMsg(hWndCtrl)) {
        return TRUE;
    }
    if (nID == 0) {
        return FALSE;
    }
    return OnCmdMsg(nID, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    const HWND hWndCtrl = pNMHDR->hwndFrom;
    const bool isWindow = ::IsWindow(hWndCtrl);
    const auto nID = static_cast<UINT>(isWindow ? static_cast<WORD>(::GetDlgCtrlID(hWndCtrl)) : pNMHDR->idFrom);
    if (AfxGetThreadState()->m_hLockoutNotifyWindow == m_hWnd) {
        return TRUE;
    }
    if (isWindow && ReflectLastMsg(hWndCtrl, pResult)) {
        return TRUE;
    }
    AFX_NOTIFY notify = {pResult, pNMHDR};
    return OnCmdMsg(nID, MAKELONG(static_cast<WORD>(pNMHDR->code), WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* pWnd = FromHandlePermanent(hWndChild);
    return pWnd ? pWnd->SendChildNotifyLastMsg(pResult) : FALSE;
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG msg = AfxGetThreadState()->m_lastSentMsg;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return ReflectChildNotify(message, wParam, lParam, pLResult);
}

BOOL CWnd::ReflectChildNotify(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lIgnored = 0;
    LRESULT* pAnswer = pResult ? pResult : &lIgnored;
    if (IsReflectedAsItStands(uMsg)) {
        return CWnd::OnWndMsg(WM_REFLECT_BASE + uMsg, wParam, lParam, pAnswer);
    }
    if (AfxIsCtlColor(uMsg)) {
        // No brush means that the parent shall choose one.
        return CWnd::OnWndMsg(WM_REFLECT_BASE + uMsg, wParam, lParam, pAnswer) && *pAnswer != 0;
    }
    if (uMsg == WM_COMMAND) {
        return OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr);
    }
    if (uMsg == WM_NOTIFY) {
        auto* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify = {pAnswer, pNMHDR};
        return OnCmdMsg(0, MAKELONG(static_cast<WORD>(pNMHDR->code), WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    return FALSE;
}
