#pragma once

#include <afx/cmdtarget.h>

class CWnd;
class CDC;
class CMenu;
class CListBox;
class CScrollBar;
class CWinThread;

/** Added to a message to name its reflected form in a child's message map. */
#ifndef WM_REFLECT_BASE
#define WM_REFLECT_BASE 0xBC00
#endif
/** Stands in message maps for all WM_CTLCOLOR... messages. */
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif
/** `nMessage` of rows whose message number is only known at run time. */
#define AFX_REGISTERED_MESSAGE 0xC000u

/** Kinds of handlers; each has its type in AfxSigFn and its way of unpacking the message in the dispatcher. */
enum AFX_SIG : UINT_PTR
{
    AfxSig_end = 0,
    // Commands, notifications and their updates: handlers of any CCmdTarget.
    AfxSig_Command,
    AfxSig_CommandEx,
    AfxSig_CommandRange,
    AfxSig_CommandUI,
    AfxSig_Control,
    AfxSig_ControlEx,
    AfxSig_ControlRange,
    AfxSig_Notify,
    AfxSig_NotifyEx,
    AfxSig_NotifyRange,
    AfxSig_NotifyExRange,
    // Raw messages.
    AfxSig_Message,
    AfxSig_ThreadMessage,
    // Window messages, named result_arguments.
    AfxSig_void,
    AfxSig_void_BOOL,
    AfxSig_void_BOOL_DWORD,
    AfxSig_void_BOOL_UINT,
    AfxSig_void_BOOL_NcCalcSize,
    AfxSig_void_BOOL_Wnd_Wnd,
    AfxSig_void_CDC,
    AfxSig_void_Drop,
    AfxSig_void_DWORD_BOOL,
    AfxSig_void_HWND_HWND,
    AfxSig_void_LPCTSTR,
    AfxSig_void_LPTSTR,
    AfxSig_void_Menu,
    AfxSig_void_Menu_UINT,
    AfxSig_void_Menu_UINT_BOOL,
    AfxSig_void_MinMaxInfo,
    AfxSig_void_NextMenu,
    AfxSig_void_int_int,
    AfxSig_void_Timer,
    AfxSig_void_UINT,
    AfxSig_void_UINT_DWORD,
    AfxSig_void_UINT_LPARAM,
    AfxSig_void_UINT_LPCTSTR,
    AfxSig_void_UINT_LPTSTR,
    AfxSig_void_UINT_Menu,
    AfxSig_void_UINT_Point,
    AfxSig_void_UINT_RawInput,
    AfxSig_void_UINT_Rect,
    AfxSig_void_UINT_UINT,
    AfxSig_void_ParentNotify,
    AfxSig_void_UIState,
    AfxSig_void_UINT_UINT_HMENU,
    AfxSig_void_UINT_UINT_UINT,
    AfxSig_void_HotKey,
    AfxSig_void_UINT_Wnd,
    AfxSig_void_UINT_int_int,
    AfxSig_void_UINT_short_Point,
    AfxSig_void_USHORT_HANDLE,
    AfxSig_void_Activate,
    AfxSig_void_AppCommand,
    AfxSig_void_Scroll,
    AfxSig_void_ScrollReflect,
    AfxSig_void_Wnd,
    AfxSig_void_CapturedWnd,
    AfxSig_void_Wnd_HGLOBAL,
    AfxSig_void_Wnd_Point,
    AfxSig_void_ClipboardScroll,
    AfxSig_void_WindowPos,
    AfxSig_void_XButton,
    AfxSig_void_StyleStruct,
    AfxSig_BOOL,
    AfxSig_BOOL_BOOL,
    AfxSig_BOOL_CDC,
    AfxSig_BOOL_CopyData,
    AfxSig_BOOL_CreateStruct,
    AfxSig_BOOL_HelpInfo,
    AfxSig_BOOL_UINT_DWORDPTR,
    AfxSig_BOOL_MouseWheel,
    AfxSig_BOOL_SetCursor,
    AfxSig_HBRUSH_CtlColor,
    AfxSig_HBRUSH_CtlColorReflect,
    AfxSig_HCURSOR,
    AfxSig_int_CreateStruct,
    AfxSig_int_CompareItem,
    AfxSig_int_CompareItemReflect,
    AfxSig_int_KeyToItem,
    AfxSig_int_KeyToItemReflect,
    AfxSig_int_MouseActivate,
    AfxSig_LRESULT,
    AfxSig_LRESULT_MenuChar,
    AfxSig_LRESULT_Point,
    AfxSig_UINT,
    AfxSig_UINT_MenuGetObject,
    AfxSig_UINT_UINT_LPARAM,
    AfxSig_UINT_UINT_Menu,
    AfxSig_void_DrawItem,
    AfxSig_void_MeasureItem,
    AfxSig_void_DeleteItem,
    AfxSig_void_DrawItemReflect,
    AfxSig_void_MeasureItemReflect,
    AfxSig_void_DeleteItemReflect,
    AfxSig_Count
};

/** Gives the type that a handler of a kind must have. */
template <AFX_SIG sig>
struct AfxSigFn;

#define AFX_SIG_TYPE(sig, result, owner, arguments)                                                                    \
    template <>                                                                                                        \
    struct AfxSigFn<sig>                                                                                               \
    {                                                                                                                  \
        typedef result(owner::*type) arguments;                                                                        \
    };

AFX_SIG_TYPE(AfxSig_Command, void, CCmdTarget, ())
AFX_SIG_TYPE(AfxSig_CommandEx, BOOL, CCmdTarget, (UINT))
AFX_SIG_TYPE(AfxSig_CommandRange, void, CCmdTarget, (UINT))
AFX_SIG_TYPE(AfxSig_CommandUI, void, CCmdTarget, (CCmdUI*))
AFX_SIG_TYPE(AfxSig_Control, void, CCmdTarget, ())
AFX_SIG_TYPE(AfxSig_ControlEx, BOOL, CCmdTarget, ())
AFX_SIG_TYPE(AfxSig_ControlRange, void, CCmdTarget, (UINT))
AFX_SIG_TYPE(AfxSig_Notify, void, CCmdTarget, (NMHDR*, LRESULT*))
AFX_SIG_TYPE(AfxSig_NotifyEx, BOOL, CCmdTarget, (NMHDR*, LRESULT*))
AFX_SIG_TYPE(AfxSig_NotifyRange, void, CCmdTarget, (UINT, NMHDR*, LRESULT*))
AFX_SIG_TYPE(AfxSig_NotifyExRange, BOOL, CCmdTarget, (UINT, NMHDR*, LRESULT*))
AFX_SIG_TYPE(AfxSig_Message, LRESULT, CWnd, (WPARAM, LPARAM))
AFX_SIG_TYPE(AfxSig_ThreadMessage, void, CWinThread, (WPARAM, LPARAM))
AFX_SIG_TYPE(AfxSig_void, void, CWnd, ())
AFX_SIG_TYPE(AfxSig_void_BOOL, void, CWnd, (BOOL))
AFX_SIG_TYPE(AfxSig_void_BOOL_DWORD, void, CWnd, (BOOL, DWORD))
AFX_SIG_TYPE(AfxSig_void_BOOL_UINT, void, CWnd, (BOOL, UINT))
AFX_SIG_TYPE(AfxSig_void_BOOL_NcCalcSize, void, CWnd, (BOOL, NCCALCSIZE_PARAMS*))
AFX_SIG_TYPE(AfxSig_void_BOOL_Wnd_Wnd, void, CWnd, (BOOL, CWnd*, CWnd*))
AFX_SIG_TYPE(AfxSig_void_CDC, void, CWnd, (CDC*))
AFX_SIG_TYPE(AfxSig_void_Drop, void, CWnd, (HDROP))
AFX_SIG_TYPE(AfxSig_void_DWORD_BOOL, void, CWnd, (DWORD, BOOL))
AFX_SIG_TYPE(AfxSig_void_HWND_HWND, void, CWnd, (HWND, HWND))
AFX_SIG_TYPE(AfxSig_void_LPCTSTR, void, CWnd, (LPCTSTR))
AFX_SIG_TYPE(AfxSig_void_LPTSTR, void, CWnd, (LPTSTR))
AFX_SIG_TYPE(AfxSig_void_Menu, void, CWnd, (CMenu*))
AFX_SIG_TYPE(AfxSig_void_Menu_UINT, void, CWnd, (CMenu*, UINT))
AFX_SIG_TYPE(AfxSig_void_Menu_UINT_BOOL, void, CWnd, (CMenu*, UINT, BOOL))
AFX_SIG_TYPE(AfxSig_void_MinMaxInfo, void, CWnd, (MINMAXINFO*))
AFX_SIG_TYPE(AfxSig_void_NextMenu, void, CWnd, (UINT, LPMDINEXTMENU))
AFX_SIG_TYPE(AfxSig_void_int_int, void, CWnd, (int, int))
AFX_SIG_TYPE(AfxSig_void_Timer, void, CWnd, (UINT_PTR))
AFX_SIG_TYPE(AfxSig_void_UINT, void, CWnd, (UINT))
AFX_SIG_TYPE(AfxSig_void_UINT_DWORD, void, CWnd, (UINT, DWORD))
AFX_SIG_TYPE(AfxSig_void_UINT_LPARAM, void, CWnd, (UINT, LPARAM))
AFX_SIG_TYPE(AfxSig_void_UINT_LPCTSTR, void, CWnd, (UINT, LPCTSTR))
AFX_SIG_TYPE(AfxSig_void_UINT_LPTSTR, void, CWnd, (UINT, LPTSTR))
AFX_SIG_TYPE(AfxSig_void_UINT_Menu, void, CWnd, (UINT, CMenu*))
AFX_SIG_TYPE(AfxSig_void_UINT_Point, void, CWnd, (UINT, CPoint))
AFX_SIG_TYPE(AfxSig_void_UINT_RawInput, void, CWnd, (UINT, HRAWINPUT))
AFX_SIG_TYPE(AfxSig_void_UINT_Rect, void, CWnd, (UINT, LPRECT))
AFX_SIG_TYPE(AfxSig_void_UINT_UINT, void, CWnd, (UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_ParentNotify, void, CWnd, (UINT, LPARAM))
AFX_SIG_TYPE(AfxSig_void_UIState, void, CWnd, (UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_UINT_UINT_HMENU, void, CWnd, (UINT, UINT, HMENU))
AFX_SIG_TYPE(AfxSig_void_UINT_UINT_UINT, void, CWnd, (UINT, UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_HotKey, void, CWnd, (UINT, UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_UINT_Wnd, void, CWnd, (UINT, CWnd*))
AFX_SIG_TYPE(AfxSig_void_UINT_int_int, void, CWnd, (UINT, int, int))
AFX_SIG_TYPE(AfxSig_void_UINT_short_Point, void, CWnd, (UINT, short, CPoint))
AFX_SIG_TYPE(AfxSig_void_USHORT_HANDLE, void, CWnd, (unsigned short, HANDLE))
AFX_SIG_TYPE(AfxSig_void_Activate, void, CWnd, (UINT, CWnd*, BOOL))
AFX_SIG_TYPE(AfxSig_void_AppCommand, void, CWnd, (CWnd*, UINT, UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_Scroll, void, CWnd, (UINT, UINT, CScrollBar*))
AFX_SIG_TYPE(AfxSig_void_ScrollReflect, void, CWnd, (UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_Wnd, void, CWnd, (CWnd*))
AFX_SIG_TYPE(AfxSig_void_CapturedWnd, void, CWnd, (CWnd*))
AFX_SIG_TYPE(AfxSig_void_Wnd_HGLOBAL, void, CWnd, (CWnd*, HGLOBAL))
AFX_SIG_TYPE(AfxSig_void_Wnd_Point, void, CWnd, (CWnd*, CPoint))
AFX_SIG_TYPE(AfxSig_void_ClipboardScroll, void, CWnd, (CWnd*, UINT, UINT))
AFX_SIG_TYPE(AfxSig_void_WindowPos, void, CWnd, (WINDOWPOS*))
AFX_SIG_TYPE(AfxSig_void_XButton, void, CWnd, (UINT, UINT, CPoint))
AFX_SIG_TYPE(AfxSig_void_StyleStruct, void, CWnd, (int, LPSTYLESTRUCT))
AFX_SIG_TYPE(AfxSig_BOOL, BOOL, CWnd, ())
AFX_SIG_TYPE(AfxSig_BOOL_BOOL, BOOL, CWnd, (BOOL))
AFX_SIG_TYPE(AfxSig_BOOL_CDC, BOOL, CWnd, (CDC*))
AFX_SIG_TYPE(AfxSig_BOOL_CopyData, BOOL, CWnd, (CWnd*, COPYDATASTRUCT*))
AFX_SIG_TYPE(AfxSig_BOOL_CreateStruct, BOOL, CWnd, (LPCREATESTRUCT))
AFX_SIG_TYPE(AfxSig_BOOL_HelpInfo, BOOL, CWnd, (HELPINFO*))
AFX_SIG_TYPE(AfxSig_BOOL_UINT_DWORDPTR, BOOL, CWnd, (UINT, DWORD_PTR))
AFX_SIG_TYPE(AfxSig_BOOL_MouseWheel, BOOL, CWnd, (UINT, short, CPoint))
AFX_SIG_TYPE(AfxSig_BOOL_SetCursor, BOOL, CWnd, (CWnd*, UINT, UINT))
AFX_SIG_TYPE(AfxSig_HBRUSH_CtlColor, HBRUSH, CWnd, (CDC*, CWnd*, UINT))
AFX_SIG_TYPE(AfxSig_HBRUSH_CtlColorReflect, HBRUSH, CWnd, (CDC*, UINT))
AFX_SIG_TYPE(AfxSig_HCURSOR, HCURSOR, CWnd, ())
AFX_SIG_TYPE(AfxSig_int_CreateStruct, int, CWnd, (LPCREATESTRUCT))
AFX_SIG_TYPE(AfxSig_int_CompareItem, int, CWnd, (int, LPCOMPAREITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_int_CompareItemReflect, int, CWnd, (LPCOMPAREITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_int_KeyToItem, int, CWnd, (UINT, CListBox*, UINT))
AFX_SIG_TYPE(AfxSig_int_KeyToItemReflect, int, CWnd, (UINT, UINT))
AFX_SIG_TYPE(AfxSig_int_MouseActivate, int, CWnd, (CWnd*, UINT, UINT))
AFX_SIG_TYPE(AfxSig_LRESULT, LRESULT, CWnd, ())
AFX_SIG_TYPE(AfxSig_LRESULT_MenuChar, LRESULT, CWnd, (UINT, UINT, CMenu*))
AFX_SIG_TYPE(AfxSig_LRESULT_Point, LRESULT, CWnd, (CPoint))
AFX_SIG_TYPE(AfxSig_UINT, UINT, CWnd, ())
AFX_SIG_TYPE(AfxSig_UINT_MenuGetObject, UINT, CWnd, (MENUGETOBJECTINFO*))
AFX_SIG_TYPE(AfxSig_UINT_UINT_LPARAM, UINT, CWnd, (UINT, LPARAM))
AFX_SIG_TYPE(AfxSig_UINT_UINT_Menu, UINT, CWnd, (UINT, CMenu*))
AFX_SIG_TYPE(AfxSig_void_DrawItem, void, CWnd, (int, LPDRAWITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_void_MeasureItem, void, CWnd, (int, LPMEASUREITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_void_DeleteItem, void, CWnd, (int, LPDELETEITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_void_DrawItemReflect, void, CWnd, (LPDRAWITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_void_MeasureItemReflect, void, CWnd, (LPMEASUREITEMSTRUCT))
AFX_SIG_TYPE(AfxSig_void_DeleteItemReflect, void, CWnd, (LPDELETEITEMSTRUCT))
#undef AFX_SIG_TYPE

#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
#endif
/** Stores a handler in the neutral type of the map. */
template <class Handler>
inline AFX_PMSG AfxPackHandler(Handler pfn)
{
    return reinterpret_cast<AFX_PMSG>(pfn);
}

/** Gives a stored handler its own type back. */
template <AFX_SIG sig>
inline typename AfxSigFn<sig>::type AfxUnpackHandler(AFX_PMSG pfn)
{
    return reinterpret_cast<typename AfxSigFn<sig>::type>(pfn);
}
#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

/** The static_cast refuses a handler whose arguments or result are not those of the kind. */
#define AFX_HANDLER(sig, memberFxn) AfxPackHandler(static_cast<AfxSigFn<sig>::type>(memberFxn))

#define AFX_MESSAGE_MAP_BODY(theClass, baseClass)                                                                      \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {
/** Opens the message map of a class in its source file. */
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap() AFX_MESSAGE_MAP_BODY(theClass, baseClass)

/** Opens the message map of a class template with one type argument. */
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                                       \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* theClass<type_name>::GetThisMessageMap() AFX_MESSAGE_MAP_BODY(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, AfxSig_end, nullptr                                                                                \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, &entries[0]};                                     \
    return &map;                                                                                                       \
    }

#define AFX_WM_ENTRY(message, sig, memberFxn) {message, 0, 0, 0, sig, AFX_HANDLER(sig, memberFxn)},
#define AFX_COMMAND_ENTRY(message, code, first, last, sig, memberFxn)                                                  \
    {message, static_cast<UINT>(code),    static_cast<UINT>(first), static_cast<UINT>(last),                           \
     sig,     AFX_HANDLER(sig, memberFxn)},

// Commands
#define ON_COMMAND(id, memberFxn) AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSig_Command, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSig_CommandRange, memberFxn)
#define ON_COMMAND_EX(id, memberFxn) AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSig_CommandEx, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSig_CommandEx, memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSig_CommandUI, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSig_CommandUI, memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, CN_UPDATE_COMMAND_UI, 0, 0xffff, AfxSig_CommandUI, memberFxn)

// Control notifications
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_COMMAND_ENTRY(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, id, AfxSig_Control, memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_COMMAND_ENTRY(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, idLast, AfxSig_ControlRange, memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0xffff, AfxSig_Control,         \
                      memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_COMMAND_ENTRY(WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0xffff, AfxSig_ControlEx,       \
                      memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_COMMAND_ENTRY(WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), id, id, AfxSig_Notify, memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_COMMAND_ENTRY(WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), id, idLast, AfxSig_NotifyRange,     \
                      memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                                       \
    AFX_COMMAND_ENTRY(WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), id, id, AfxSig_NotifyExRange,       \
                      memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_COMMAND_ENTRY(WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), id, idLast, AfxSig_NotifyExRange,   \
                      memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_COMMAND_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, static_cast<WORD>(static_cast<int>(wNotifyCode)), 0, 0xffff,        \
                      AfxSig_Notify, memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_COMMAND_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, static_cast<WORD>(static_cast<int>(wNotifyCode)), 0, 0xffff,        \
                      AfxSig_NotifyEx, memberFxn)

// User-defined messages
#define ON_MESSAGE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_Message, memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    {AFX_REGISTERED_MESSAGE,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(static_cast<const UINT*>(&nMessageVariable)),                                          \
     AFX_HANDLER(AfxSig_Message, memberFxn)},
#define ON_THREAD_MESSAGE(message, memberFxn) AFX_WM_ENTRY(message, AfxSig_ThreadMessage, memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    {AFX_REGISTERED_MESSAGE,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(static_cast<const UINT*>(&nMessageVariable)),                                          \
     AFX_HANDLER(AfxSig_ThreadMessage, memberFxn)},

// Buttons
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)

// Edit controls
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ALIGN_LTR_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_LTR_EC, id, memberFxn)
#define ON_EN_ALIGN_RTL_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_RTL_EC, id, memberFxn)
#define ON_EN_IMECHANGE(id, memberFxn) ON_CONTROL(EN_IMECHANGE, id, memberFxn)

// List boxes
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
/** Sent by check list boxes when an item's box was clicked. */
#ifndef CLBN_CHKCHANGE
#define CLBN_CHKCHANGE 40
#endif
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)

// Combo boxes
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)

// Static controls
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)

// Window messages
#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_int_CreateStruct, &ThisClass::OnCreate)
#define ON_WM_NCCREATE() AFX_WM_ENTRY(WM_NCCREATE, AfxSig_BOOL_CreateStruct, &ThisClass::OnNcCreate)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_void, &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_void, &ThisClass::OnNcDestroy)
#define ON_WM_MOVE() AFX_WM_ENTRY(WM_MOVE, AfxSig_void_int_int, &ThisClass::OnMove)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_void_UINT_int_int, &ThisClass::OnSize)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, AfxSig_void_Activate, &ThisClass::OnActivate)
#define ON_WM_ACTIVATEAPP() AFX_WM_ENTRY(WM_ACTIVATEAPP, AfxSig_void_BOOL_DWORD, &ThisClass::OnActivateApp)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_void_Wnd, &ThisClass::OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_void_Wnd, &ThisClass::OnKillFocus)
#define ON_WM_ENABLE() AFX_WM_ENTRY(WM_ENABLE, AfxSig_void_BOOL, &ThisClass::OnEnable)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_void, &ThisClass::OnPaint)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_void, &ThisClass::OnClose)
#define ON_WM_QUERYENDSESSION() AFX_WM_ENTRY(WM_QUERYENDSESSION, AfxSig_BOOL, &ThisClass::OnQueryEndSession)
#define ON_WM_ENDSESSION() AFX_WM_ENTRY(WM_ENDSESSION, AfxSig_void_BOOL, &ThisClass::OnEndSession)
#define ON_WM_QUERYOPEN() AFX_WM_ENTRY(WM_QUERYOPEN, AfxSig_BOOL, &ThisClass::OnQueryOpen)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_BOOL_CDC, &ThisClass::OnEraseBkgnd)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_void, &ThisClass::OnSysColorChange)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY(WM_SHOWWINDOW, AfxSig_void_BOOL_UINT, &ThisClass::OnShowWindow)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_HBRUSH_CtlColor, &ThisClass::OnCtlColor)
#define ON_WM_WININICHANGE() AFX_WM_ENTRY(WM_WININICHANGE, AfxSig_void_LPCTSTR, &ThisClass::OnWinIniChange)
#define ON_WM_SETTINGCHANGE() AFX_WM_ENTRY(WM_SETTINGCHANGE, AfxSig_void_UINT_LPCTSTR, &ThisClass::OnSettingChange)
#define ON_WM_DEVMODECHANGE() AFX_WM_ENTRY(WM_DEVMODECHANGE, AfxSig_void_LPTSTR, &ThisClass::OnDevModeChange)
#define ON_WM_FONTCHANGE() AFX_WM_ENTRY(WM_FONTCHANGE, AfxSig_void, &ThisClass::OnFontChange)
#define ON_WM_TIMECHANGE() AFX_WM_ENTRY(WM_TIMECHANGE, AfxSig_void, &ThisClass::OnTimeChange)
#define ON_WM_CANCELMODE() AFX_WM_ENTRY(WM_CANCELMODE, AfxSig_void, &ThisClass::OnCancelMode)
#define ON_WM_SETCURSOR() AFX_WM_ENTRY(WM_SETCURSOR, AfxSig_BOOL_SetCursor, &ThisClass::OnSetCursor)
#define ON_WM_MOUSEACTIVATE() AFX_WM_ENTRY(WM_MOUSEACTIVATE, AfxSig_int_MouseActivate, &ThisClass::OnMouseActivate)
#define ON_WM_CHILDACTIVATE() AFX_WM_ENTRY(WM_CHILDACTIVATE, AfxSig_void, &ThisClass::OnChildActivate)
#define ON_WM_GETMINMAXINFO() AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_void_MinMaxInfo, &ThisClass::OnGetMinMaxInfo)
#define ON_WM_ICONERASEBKGND() AFX_WM_ENTRY(WM_ICONERASEBKGND, AfxSig_void_CDC, &ThisClass::OnIconEraseBkgnd)
#define ON_WM_SPOOLERSTATUS() AFX_WM_ENTRY(WM_SPOOLERSTATUS, AfxSig_void_UINT_UINT, &ThisClass::OnSpoolerStatus)
#define ON_WM_DRAWITEM() AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_void_DrawItem, &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_WM_ENTRY(WM_MEASUREITEM, AfxSig_void_MeasureItem, &ThisClass::OnMeasureItem)
#define ON_WM_DELETEITEM() AFX_WM_ENTRY(WM_DELETEITEM, AfxSig_void_DeleteItem, &ThisClass::OnDeleteItem)
#define ON_WM_CHARTOITEM() AFX_WM_ENTRY(WM_CHARTOITEM, AfxSig_int_KeyToItem, &ThisClass::OnCharToItem)
#define ON_WM_VKEYTOITEM() AFX_WM_ENTRY(WM_VKEYTOITEM, AfxSig_int_KeyToItem, &ThisClass::OnVKeyToItem)
#define ON_WM_QUERYDRAGICON() AFX_WM_ENTRY(WM_QUERYDRAGICON, AfxSig_HCURSOR, &ThisClass::OnQueryDragIcon)
#define ON_WM_COMPAREITEM() AFX_WM_ENTRY(WM_COMPAREITEM, AfxSig_int_CompareItem, &ThisClass::OnCompareItem)
#define ON_WM_COMPACTING() AFX_WM_ENTRY(WM_COMPACTING, AfxSig_void_UINT, &ThisClass::OnCompacting)
#define ON_WM_COPYDATA() AFX_WM_ENTRY(WM_COPYDATA, AfxSig_BOOL_CopyData, &ThisClass::OnCopyData)
#define ON_WM_NCCALCSIZE() AFX_WM_ENTRY(WM_NCCALCSIZE, AfxSig_void_BOOL_NcCalcSize, &ThisClass::OnNcCalcSize)
#define ON_WM_NCHITTEST() AFX_WM_ENTRY(WM_NCHITTEST, AfxSig_LRESULT_Point, &ThisClass::OnNcHitTest)
#define ON_WM_NCPAINT() AFX_WM_ENTRY(WM_NCPAINT, AfxSig_void, &ThisClass::OnNcPaint)
#define ON_WM_NCACTIVATE() AFX_WM_ENTRY(WM_NCACTIVATE, AfxSig_BOOL_BOOL, &ThisClass::OnNcActivate)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY(WM_GETDLGCODE, AfxSig_UINT, &ThisClass::OnGetDlgCode)
#define ON_WM_NCMOUSEMOVE() AFX_WM_ENTRY(WM_NCMOUSEMOVE, AfxSig_void_UINT_Point, &ThisClass::OnNcMouseMove)
#define ON_WM_NCMOUSEHOVER() AFX_WM_ENTRY(WM_NCMOUSEHOVER, AfxSig_void_UINT_Point, &ThisClass::OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() AFX_WM_ENTRY(WM_NCMOUSELEAVE, AfxSig_void, &ThisClass::OnNcMouseLeave)
#define ON_WM_NCLBUTTONDOWN() AFX_WM_ENTRY(WM_NCLBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_WM_ENTRY(WM_NCLBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_WM_ENTRY(WM_NCRBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFX_WM_ENTRY(WM_NCRBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnNcRButtonUp)
#define ON_WM_NCRBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnNcRButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() AFX_WM_ENTRY(WM_NCMBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFX_WM_ENTRY(WM_NCMBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnNcMButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnNcMButtonDblClk)
#define ON_WM_NCXBUTTONDOWN() AFX_WM_ENTRY(WM_NCXBUTTONDOWN, AfxSig_void_XButton, &ThisClass::OnNcXButtonDown)
#define ON_WM_NCXBUTTONUP() AFX_WM_ENTRY(WM_NCXBUTTONUP, AfxSig_void_XButton, &ThisClass::OnNcXButtonUp)
#define ON_WM_NCXBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCXBUTTONDBLCLK, AfxSig_void_XButton, &ThisClass::OnNcXButtonDblClk)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFX_WM_ENTRY(WM_KEYUP, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnKeyUp)
#define ON_WM_CHAR() AFX_WM_ENTRY(WM_CHAR, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnChar)
#define ON_WM_DEADCHAR() AFX_WM_ENTRY(WM_DEADCHAR, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnDeadChar)
#define ON_WM_UNICHAR() AFX_WM_ENTRY(WM_UNICHAR, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnUniChar)
#define ON_WM_SYSKEYDOWN() AFX_WM_ENTRY(WM_SYSKEYDOWN, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_WM_ENTRY(WM_SYSKEYUP, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_WM_ENTRY(WM_SYSCHAR, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnSysChar)
#define ON_WM_SYSDEADCHAR() AFX_WM_ENTRY(WM_SYSDEADCHAR, AfxSig_void_UINT_UINT_UINT, &ThisClass::OnSysDeadChar)
#define ON_WM_SYSCOMMAND() AFX_WM_ENTRY(WM_SYSCOMMAND, AfxSig_void_UINT_LPARAM, &ThisClass::OnSysCommand)
#define ON_WM_TCARD() AFX_WM_ENTRY(WM_TCARD, AfxSig_void_UINT_DWORD, &ThisClass::OnTCard)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_void_Timer, &ThisClass::OnTimer)
#define ON_WM_HSCROLL() AFX_WM_ENTRY(WM_HSCROLL, AfxSig_void_Scroll, &ThisClass::OnHScroll)
#define ON_WM_VSCROLL() AFX_WM_ENTRY(WM_VSCROLL, AfxSig_void_Scroll, &ThisClass::OnVScroll)
#define ON_WM_INITMENU() AFX_WM_ENTRY(WM_INITMENU, AfxSig_void_Menu, &ThisClass::OnInitMenu)
#define ON_WM_INITMENUPOPUP() AFX_WM_ENTRY(WM_INITMENUPOPUP, AfxSig_void_Menu_UINT_BOOL, &ThisClass::OnInitMenuPopup)
#define ON_WM_UNINITMENUPOPUP() AFX_WM_ENTRY(WM_UNINITMENUPOPUP, AfxSig_void_Menu_UINT, &ThisClass::OnUnInitMenuPopup)
#define ON_WM_MENUSELECT() AFX_WM_ENTRY(WM_MENUSELECT, AfxSig_void_UINT_UINT_HMENU, &ThisClass::OnMenuSelect)
#define ON_WM_MENUCHAR() AFX_WM_ENTRY(WM_MENUCHAR, AfxSig_LRESULT_MenuChar, &ThisClass::OnMenuChar)
#define ON_WM_MENUDRAG() AFX_WM_ENTRY(WM_MENUDRAG, AfxSig_UINT_UINT_Menu, &ThisClass::OnMenuDrag)
#define ON_WM_MENUGETOBJECT() AFX_WM_ENTRY(WM_MENUGETOBJECT, AfxSig_UINT_MenuGetObject, &ThisClass::OnMenuGetObject)
#define ON_WM_MENURBUTTONUP() AFX_WM_ENTRY(WM_MENURBUTTONUP, AfxSig_void_UINT_Menu, &ThisClass::OnMenuRButtonUp)
#define ON_WM_ENTERIDLE() AFX_WM_ENTRY(WM_ENTERIDLE, AfxSig_void_UINT_Wnd, &ThisClass::OnEnterIdle)
#define ON_WM_ENTERMENULOOP() AFX_WM_ENTRY(WM_ENTERMENULOOP, AfxSig_void_BOOL, &ThisClass::OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() AFX_WM_ENTRY(WM_EXITMENULOOP, AfxSig_void_BOOL, &ThisClass::OnExitMenuLoop)
#define ON_WM_NEXTMENU() AFX_WM_ENTRY(WM_NEXTMENU, AfxSig_void_NextMenu, &ThisClass::OnNextMenu)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, AfxSig_void_UINT_Point, &ThisClass::OnMouseMove)
#define ON_WM_MOUSEHOVER() AFX_WM_ENTRY(WM_MOUSEHOVER, AfxSig_void_UINT_Point, &ThisClass::OnMouseHover)
#define ON_WM_MOUSELEAVE() AFX_WM_ENTRY(WM_MOUSELEAVE, AfxSig_void, &ThisClass::OnMouseLeave)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_BOOL_MouseWheel, &ThisClass::OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() AFX_WM_ENTRY(WM_MOUSEHWHEEL, AfxSig_void_UINT_short_Point, &ThisClass::OnMouseHWheel)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_ENTRY(WM_LBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WM_ENTRY(WM_RBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WM_ENTRY(WM_RBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_WM_ENTRY(WM_RBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WM_ENTRY(WM_MBUTTONDOWN, AfxSig_void_UINT_Point, &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WM_ENTRY(WM_MBUTTONUP, AfxSig_void_UINT_Point, &ThisClass::OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_WM_ENTRY(WM_MBUTTONDBLCLK, AfxSig_void_UINT_Point, &ThisClass::OnMButtonDblClk)
#define ON_WM_XBUTTONDOWN() AFX_WM_ENTRY(WM_XBUTTONDOWN, AfxSig_void_XButton, &ThisClass::OnXButtonDown)
#define ON_WM_XBUTTONUP() AFX_WM_ENTRY(WM_XBUTTONUP, AfxSig_void_XButton, &ThisClass::OnXButtonUp)
#define ON_WM_XBUTTONDBLCLK() AFX_WM_ENTRY(WM_XBUTTONDBLCLK, AfxSig_void_XButton, &ThisClass::OnXButtonDblClk)
#define ON_WM_PARENTNOTIFY() AFX_WM_ENTRY(WM_PARENTNOTIFY, AfxSig_void_ParentNotify, &ThisClass::OnParentNotify)
#define ON_WM_MDIACTIVATE() AFX_WM_ENTRY(WM_MDIACTIVATE, AfxSig_void_BOOL_Wnd_Wnd, &ThisClass::OnMDIActivate)
#define ON_WM_RENDERFORMAT() AFX_WM_ENTRY(WM_RENDERFORMAT, AfxSig_void_UINT, &ThisClass::OnRenderFormat)
#define ON_WM_RENDERALLFORMATS() AFX_WM_ENTRY(WM_RENDERALLFORMATS, AfxSig_void, &ThisClass::OnRenderAllFormats)
#define ON_WM_DESTROYCLIPBOARD() AFX_WM_ENTRY(WM_DESTROYCLIPBOARD, AfxSig_void, &ThisClass::OnDestroyClipboard)
#define ON_WM_DRAWCLIPBOARD() AFX_WM_ENTRY(WM_DRAWCLIPBOARD, AfxSig_void, &ThisClass::OnDrawClipboard)
#define ON_WM_CLIPBOARDUPDATE() AFX_WM_ENTRY(WM_CLIPBOARDUPDATE, AfxSig_void, &ThisClass::OnClipboardUpdate)
#define ON_WM_PAINTCLIPBOARD() AFX_WM_ENTRY(WM_PAINTCLIPBOARD, AfxSig_void_Wnd_HGLOBAL, &ThisClass::OnPaintClipboard)
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_ENTRY(WM_VSCROLLCLIPBOARD, AfxSig_void_ClipboardScroll, &ThisClass::OnVScrollClipboard)
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_ENTRY(WM_HSCROLLCLIPBOARD, AfxSig_void_ClipboardScroll, &ThisClass::OnHScrollClipboard)
#define ON_WM_SIZECLIPBOARD() AFX_WM_ENTRY(WM_SIZECLIPBOARD, AfxSig_void_Wnd_HGLOBAL, &ThisClass::OnSizeClipboard)
#define ON_WM_ASKCBFORMATNAME() AFX_WM_ENTRY(WM_ASKCBFORMATNAME, AfxSig_void_UINT_LPTSTR, &ThisClass::OnAskCbFormatName)
#define ON_WM_CHANGECBCHAIN() AFX_WM_ENTRY(WM_CHANGECBCHAIN, AfxSig_void_HWND_HWND, &ThisClass::OnChangeCbChain)
#define ON_WM_QUERYNEWPALETTE() AFX_WM_ENTRY(WM_QUERYNEWPALETTE, AfxSig_BOOL, &ThisClass::OnQueryNewPalette)
#define ON_WM_PALETTECHANGED() AFX_WM_ENTRY(WM_PALETTECHANGED, AfxSig_void_Wnd, &ThisClass::OnPaletteChanged)
#define ON_WM_PALETTEISCHANGING() AFX_WM_ENTRY(WM_PALETTEISCHANGING, AfxSig_void_Wnd, &ThisClass::OnPaletteIsChanging)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_void_Drop, &ThisClass::OnDropFiles)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_void_WindowPos, &ThisClass::OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_void_WindowPos, &ThisClass::OnWindowPosChanged)
#define ON_WM_EXITSIZEMOVE() AFX_WM_ENTRY(WM_EXITSIZEMOVE, AfxSig_void, &ThisClass::OnExitSizeMove)
#define ON_WM_ENTERSIZEMOVE() AFX_WM_ENTRY(WM_ENTERSIZEMOVE, AfxSig_void, &ThisClass::OnEnterSizeMove)
#define ON_WM_SIZING() AFX_WM_ENTRY(WM_SIZING, AfxSig_void_UINT_Rect, &ThisClass::OnSizing)
#define ON_WM_MOVING() AFX_WM_ENTRY(WM_MOVING, AfxSig_void_UINT_Rect, &ThisClass::OnMoving)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_void_CapturedWnd, &ThisClass::OnCaptureChanged)
#define ON_WM_DEVICECHANGE() AFX_WM_ENTRY(WM_DEVICECHANGE, AfxSig_BOOL_UINT_DWORDPTR, &ThisClass::OnDeviceChange)
#define ON_WM_POWERBROADCAST() AFX_WM_ENTRY(WM_POWERBROADCAST, AfxSig_UINT_UINT_LPARAM, &ThisClass::OnPowerBroadcast)
#define ON_WM_USERCHANGED() AFX_WM_ENTRY(WM_USERCHANGED, AfxSig_void, &ThisClass::OnUserChanged)
#define ON_WM_INPUTLANGCHANGE() AFX_WM_ENTRY(WM_INPUTLANGCHANGE, AfxSig_void_UINT_UINT, &ThisClass::OnInputLangChange)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    AFX_WM_ENTRY(WM_INPUTLANGCHANGEREQUEST, AfxSig_void_UINT_UINT, &ThisClass::OnInputLangChangeRequest)
#define ON_WM_INPUT() AFX_WM_ENTRY(WM_INPUT, AfxSig_void_UINT_RawInput, &ThisClass::OnRawInput)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                                    \
    AFX_WM_ENTRY(WM_INPUT_DEVICE_CHANGE, AfxSig_void_USHORT_HANDLE, &ThisClass::OnInputDeviceChange)
#define ON_WM_APPCOMMAND() AFX_WM_ENTRY(WM_APPCOMMAND, AfxSig_void_AppCommand, &ThisClass::OnAppCommand)
#define ON_WM_HELPINFO() AFX_WM_ENTRY(WM_HELP, AfxSig_BOOL_HelpInfo, &ThisClass::OnHelpInfo)
#define ON_WM_CONTEXTMENU() AFX_WM_ENTRY(WM_CONTEXTMENU, AfxSig_void_Wnd_Point, &ThisClass::OnContextMenu)
#define ON_WM_STYLECHANGED() AFX_WM_ENTRY(WM_STYLECHANGED, AfxSig_void_StyleStruct, &ThisClass::OnStyleChanged)
#define ON_WM_STYLECHANGING() AFX_WM_ENTRY(WM_STYLECHANGING, AfxSig_void_StyleStruct, &ThisClass::OnStyleChanging)
#define ON_WM_HOTKEY() AFX_WM_ENTRY(WM_HOTKEY, AfxSig_void_HotKey, &ThisClass::OnHotKey)
#define ON_WM_CHANGEUISTATE() AFX_WM_ENTRY(WM_CHANGEUISTATE, AfxSig_void_UIState, &ThisClass::OnChangeUIState)
#define ON_WM_UPDATEUISTATE() AFX_WM_ENTRY(WM_UPDATEUISTATE, AfxSig_void_UIState, &ThisClass::OnUpdateUIState)
#define ON_WM_QUERYUISTATE() AFX_WM_ENTRY(WM_QUERYUISTATE, AfxSig_UINT, &ThisClass::OnQueryUIState)
#define ON_WM_SESSIONCHANGE() AFX_WM_ENTRY(WM_WTSSESSION_CHANGE, AfxSig_void_UINT_UINT, &ThisClass::OnSessionChange)
#define ON_WM_THEMECHANGED() AFX_WM_ENTRY(WM_THEMECHANGED, AfxSig_LRESULT, &ThisClass::OnThemeChanged)
#define ON_WM_COMPOSITIONCHANGED() AFX_WM_ENTRY(WM_DWMCOMPOSITIONCHANGED, AfxSig_void, &ThisClass::OnCompositionChanged)
#define ON_WM_NCRENDERINGCHANGED()                                                                                     \
    AFX_WM_ENTRY(WM_DWMNCRENDERINGCHANGED, AfxSig_void_BOOL, &ThisClass::OnNcRenderingChanged)
#define ON_WM_COLORIZATIONCOLORCHANGED()                                                                               \
    AFX_WM_ENTRY(WM_DWMCOLORIZATIONCOLORCHANGED, AfxSig_void_DWORD_BOOL, &ThisClass::OnColorizationColorChanged)
#define ON_WM_WINDOWMAXIMIZEDCHANGE()                                                                                  \
    AFX_WM_ENTRY(WM_DWMWINDOWMAXIMIZEDCHANGE, AfxSig_void_BOOL, &ThisClass::OnWindowMaximizedChanged)

// Reflected window messages
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_HBRUSH_CtlColorReflect, &ThisClass::CtlColor)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_DRAWITEM + WM_REFLECT_BASE, AfxSig_void_DrawItemReflect, &ThisClass::DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_WM_ENTRY(WM_MEASUREITEM + WM_REFLECT_BASE, AfxSig_void_MeasureItemReflect, &ThisClass::MeasureItem)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_DELETEITEM + WM_REFLECT_BASE, AfxSig_void_DeleteItemReflect, &ThisClass::DeleteItem)
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_CHARTOITEM + WM_REFLECT_BASE, AfxSig_int_KeyToItemReflect, &ThisClass::CharToItem)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_VKEYTOITEM + WM_REFLECT_BASE, AfxSig_int_KeyToItemReflect, &ThisClass::VKeyToItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_WM_ENTRY(WM_COMPAREITEM + WM_REFLECT_BASE, AfxSig_int_CompareItemReflect, &ThisClass::CompareItem)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    AFX_WM_ENTRY(WM_HSCROLL + WM_REFLECT_BASE, AfxSig_void_ScrollReflect, &ThisClass::HScroll)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    AFX_WM_ENTRY(WM_VSCROLL + WM_REFLECT_BASE, AfxSig_void_ScrollReflect, &ThisClass::VScroll)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_WM_ENTRY(WM_PARENTNOTIFY + WM_REFLECT_BASE, AfxSig_void_ParentNotify, &ThisClass::ParentNotify)
