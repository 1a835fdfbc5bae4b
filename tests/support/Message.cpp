#include <tests/support/Message.h>

#include <commctrl.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>

namespace ts
{
namespace
{
struct Name
{
    UINT id;
    const char* text;
};

#define NAMED(id)                                                                                                      \
    {                                                                                                                  \
        id, #id                                                                                                        \
    }

constexpr Name kNames[] = {
    NAMED(WM_NULL),
    NAMED(WM_CREATE),
    NAMED(WM_DESTROY),
    NAMED(WM_MOVE),
    NAMED(WM_SIZE),
    NAMED(WM_ACTIVATE),
    NAMED(WM_SETFOCUS),
    NAMED(WM_KILLFOCUS),
    NAMED(WM_ENABLE),
    NAMED(WM_SETREDRAW),
    NAMED(WM_SETTEXT),
    NAMED(WM_GETTEXT),
    NAMED(WM_GETTEXTLENGTH),
    NAMED(WM_PAINT),
    NAMED(WM_CLOSE),
    NAMED(WM_QUIT),
    NAMED(WM_ERASEBKGND),
    NAMED(WM_SYSCOLORCHANGE),
    NAMED(WM_SHOWWINDOW),
    NAMED(WM_SETTINGCHANGE),
    NAMED(WM_ACTIVATEAPP),
    NAMED(WM_TIMECHANGE),
    NAMED(WM_CANCELMODE),
    NAMED(WM_SETCURSOR),
    NAMED(WM_MOUSEACTIVATE),
    NAMED(WM_GETMINMAXINFO),
    NAMED(WM_DRAWITEM),
    NAMED(WM_MEASUREITEM),
    NAMED(WM_DELETEITEM),
    NAMED(WM_VKEYTOITEM),
    NAMED(WM_SETFONT),
    NAMED(WM_GETFONT),
    NAMED(WM_COMPAREITEM),
    NAMED(WM_WINDOWPOSCHANGING),
    NAMED(WM_WINDOWPOSCHANGED),
    NAMED(WM_NOTIFY),
    NAMED(WM_HELP),
    NAMED(WM_NOTIFYFORMAT),
    NAMED(WM_CONTEXTMENU),
    NAMED(WM_STYLECHANGING),
    NAMED(WM_STYLECHANGED),
    NAMED(WM_SETICON),
    NAMED(WM_NCCREATE),
    NAMED(WM_NCDESTROY),
    NAMED(WM_NCCALCSIZE),
    NAMED(WM_NCHITTEST),
    NAMED(WM_NCPAINT),
    NAMED(WM_NCACTIVATE),
    NAMED(WM_GETDLGCODE),
    NAMED(WM_NCMOUSEMOVE),
    NAMED(WM_NCLBUTTONDOWN),
    NAMED(WM_NCLBUTTONUP),
    NAMED(WM_KEYDOWN),
    NAMED(WM_KEYUP),
    NAMED(WM_CHAR),
    NAMED(WM_SYSKEYDOWN),
    NAMED(WM_SYSKEYUP),
    NAMED(WM_SYSCHAR),
    NAMED(WM_INITDIALOG),
    NAMED(WM_COMMAND),
    NAMED(WM_SYSCOMMAND),
    NAMED(WM_TIMER),
    NAMED(WM_HSCROLL),
    NAMED(WM_VSCROLL),
    NAMED(WM_INITMENU),
    NAMED(WM_INITMENUPOPUP),
    NAMED(WM_MENUSELECT),
    NAMED(WM_MENUCHAR),
    NAMED(WM_ENTERIDLE),
    NAMED(WM_UNINITMENUPOPUP),
    NAMED(WM_CTLCOLOREDIT),
    NAMED(WM_CTLCOLORLISTBOX),
    NAMED(WM_CTLCOLORBTN),
    NAMED(WM_CTLCOLORDLG),
    NAMED(WM_CTLCOLORSCROLLBAR),
    NAMED(WM_CTLCOLORSTATIC),
    NAMED(WM_MOUSEMOVE),
    NAMED(WM_LBUTTONDOWN),
    NAMED(WM_LBUTTONUP),
    NAMED(WM_LBUTTONDBLCLK),
    NAMED(WM_RBUTTONDOWN),
    NAMED(WM_RBUTTONUP),
    NAMED(WM_RBUTTONDBLCLK),
    NAMED(WM_MBUTTONDOWN),
    NAMED(WM_MBUTTONUP),
    NAMED(WM_MOUSEWHEEL),
    NAMED(WM_PARENTNOTIFY),
    NAMED(WM_ENTERMENULOOP),
    NAMED(WM_EXITMENULOOP),
    NAMED(WM_SIZING),
    NAMED(WM_CAPTURECHANGED),
    NAMED(WM_MOVING),
    NAMED(WM_ENTERSIZEMOVE),
    NAMED(WM_EXITSIZEMOVE),
    NAMED(WM_MOUSEHOVER),
    NAMED(WM_MOUSELEAVE),
    NAMED(WM_CUT),
    NAMED(WM_COPY),
    NAMED(WM_PASTE),
    NAMED(WM_CLEAR),
    NAMED(WM_UNDO),
    NAMED(WM_HOTKEY),
    NAMED(WM_PRINT),
    NAMED(WM_PRINTCLIENT),
    NAMED(WM_THEMECHANGED),
    NAMED(WM_UPDATEUISTATE),
    NAMED(WM_CHANGEUISTATE),
    NAMED(WM_QUERYUISTATE),
    NAMED(WM_NEXTDLGCTL),
    NAMED(WM_QUERYENDSESSION),
    NAMED(WM_ENDSESSION),
    NAMED(BM_CLICK),
    NAMED(WM_DEVICECHANGE),
    NAMED(WM_POWERBROADCAST),
    NAMED(WM_DISPLAYCHANGE),
};

constexpr UINT kOcmBase = WM_USER + 0x1c00;
constexpr UINT kFirstRegistered = 0xC000;

std::string Number(ULONG_PTR value)
{
    std::ostringstream text;
    if (value > 0xFFFF) {
        text << "0x" << std::hex;
    }
    text << value;
    return text.str();
}

std::string Code(UINT code)
{
    return std::to_string(static_cast<int>(code));
}

template <class T>
bool Fits(const std::optional<T>& wanted, T value)
{
    return !wanted || *wanted == value;
}
} // namespace

std::string MessageName(UINT id)
{
    for (const Name& name : kNames) {
        if (name.id == id) {
            return name.text;
        }
    }
    if (id >= kFirstRegistered && id <= 0xFFFF) {
        char name[128] = {};
        if (GetClipboardFormatNameA(id, name, sizeof(name)) > 0) {
            return std::string("registered '") + name + "'";
        }
        return "registered " + Number(id);
    }
    if (id >= WM_APP) {
        return "WM_APP+" + std::to_string(id - WM_APP);
    }
    if (id >= kOcmBase) {
        return "reflected " + MessageName(id - kOcmBase);
    }
    if (id >= WM_USER) {
        return "WM_USER+" + std::to_string(id - WM_USER);
    }
    return "message " + Number(id);
}

Message Message::Make(HWND window, UINT id, WPARAM wParam, LPARAM lParam)
{
    Message message;
    message.window = window;
    message.id = id;
    message.wParam = wParam;
    message.lParam = lParam;
    if (id == WM_COMMAND) {
        message.control = LOWORD(wParam);
        message.code = HIWORD(wParam);
        message.from = reinterpret_cast<HWND>(lParam);
    } else if (id == WM_NOTIFY && lParam != 0) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        message.control = header->idFrom;
        message.code = header->code;
        message.from = header->hwndFrom;
    }
    return message;
}

std::string Message::Text() const
{
    if (id == WM_COMMAND || id == WM_NOTIFY) {
        return MessageName(id) + " control=" + Number(control) + " code=" + Code(code);
    }
    return MessageName(id) + " wParam=" + Number(wParam) + " lParam=" + Number(static_cast<ULONG_PTR>(lParam));
}

bool Expected::Matches(const Message& message) const
{
    return id == message.id && Fits(wParam, message.wParam) && Fits(lParam, message.lParam) &&
           Fits(control, message.control) && Fits(code, message.code);
}

std::string Expected::Text() const
{
    std::string text = MessageName(id);
    if (control) {
        text += " control=" + Number(*control);
    }
    if (code) {
        text += " code=" + Code(*code);
    }
    if (wParam) {
        text += " wParam=" + Number(*wParam);
    }
    if (lParam) {
        text += " lParam=" + Number(static_cast<ULONG_PTR>(*lParam));
    }
    return text;
}

Expected Msg(UINT id, std::optional<WPARAM> wParam, std::optional<LPARAM> lParam)
{
    Expected expected;
    expected.id = id;
    expected.wParam = wParam;
    expected.lParam = lParam;
    return expected;
}

Expected Command(UINT_PTR control, UINT code)
{
    Expected expected;
    expected.id = WM_COMMAND;
    expected.control = control;
    expected.code = code;
    return expected;
}

Expected Notify(UINT_PTR control, UINT code)
{
    Expected expected;
    expected.id = WM_NOTIFY;
    expected.control = control;
    expected.code = code;
    return expected;
}

testing::AssertionResult SameSequence(const std::vector<Message>& recorded, const std::vector<Expected>& expected)
{
    const size_t lines = (std::max)(recorded.size(), expected.size());
    size_t first = 0;
    while (first < recorded.size() && first < expected.size() && expected[first].Matches(recorded[first])) {
        ++first;
    }
    if (first == lines) {
        return testing::AssertionSuccess();
    }

    std::ostringstream text;
    text << "the sequences differ from line " << first << " on:\n" << std::left;
    for (size_t i = 0; i < lines; ++i) {
        const std::string want = i < expected.size() ? expected[i].Text() : "(nothing)";
        const std::string have = i < recorded.size() ? recorded[i].Text() : "(nothing)";
        const bool same = i < expected.size() && i < recorded.size() && expected[i].Matches(recorded[i]);
        text << (same ? "    " : "  ! ") << std::setw(3) << i << " expected " << std::setw(40) << want << " got "
             << have << "\n";
    }
    return testing::AssertionFailure() << text.str();
}

} // namespace ts
