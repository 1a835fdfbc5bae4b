#pragma once

#include "TestDialogs.h"

/** @file What the tests of the message box share. */

// The numbers that are stated; the tests call them by name.
static_assert(QOR_MSG_ERROR == 0 && QOR_MSG_WARNING == 1 && QOR_MSG_INFO == 2);
static_assert(QOR_MSG_CONFIRM == 3 && QOR_MSG_RETRY == 4 && QOR_MSG_YESNO == 5);
static_assert(QOR_MSG_TOPMOST == 0x80 && QorMsgAutoClose(5) == 0x0500);
static_assert(QOR_MSG_TIMEOUT == 32000 && QOR_LAST_ERROR == 0xFFFFFFFF);

/** What an open box shows. */
struct Shown
{
    CString caption;
    CString text;
    HICON icon = nullptr;
    bool topmost = false;
    std::vector<std::pair<int, CString>> buttons; // id and text, from left to right
    bool skinned = true;                          // all of the buttons
    int focus = 0;
};

inline CRect RectOf(HWND ctrl)
{
    CRect rect;
    ::GetWindowRect(ctrl, rect);
    return rect;
}

inline Shown Look(HWND box)
{
    Shown shown;
    shown.caption = ts::TextOf(box);
    shown.text = ts::TextOf(box, IDC_BOX_TEXT);
    shown.icon = reinterpret_cast<HICON>(::SendDlgItemMessageW(box, IDC_BOX_ICON, STM_GETICON, 0, 0));
    shown.topmost = (::GetWindowLongW(box, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    shown.focus = ::GetDlgCtrlID(::GetFocus());
    std::map<int, HWND> byLeft;
    for (int id = IDOK; id <= IDNO; ++id) {
        const HWND button = ::GetDlgItem(box, id);
        if (button && ::IsWindowVisible(button)) {
            byLeft[RectOf(button).left] = button;
        }
    }
    for (const auto& [left, button] : byLeft) {
        shown.buttons.emplace_back(::GetDlgCtrlID(button), ts::TextOf(button));
        shown.skinned = shown.skinned && (::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW;
    }
    return shown;
}

/** Keeps what the box shows that comes up next, and presses OK. */
inline void LookAndPressOk(ts::ModalDriver& driver, Shown& shown)
{
    driver.InDialog([&shown](HWND box) {
        shown = Look(box);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
}

/** Opens a box, looks at it, and answers with the button of that id. */
inline UINT Answer(LPCWSTR text, UINT type, DWORD error, int button, Shown& shown)
{
    ts::ModalDriver driver;
    driver.InDialog([&shown, button](HWND box) {
        shown = Look(box);
        ts::Click(::GetDlgItem(box, button));
    });
    const UINT result = QorMsgBox(text, type, error, nullptr);
    EXPECT_TRUE(driver.Finished());
    return result;
}
