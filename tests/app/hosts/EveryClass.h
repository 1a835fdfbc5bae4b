#pragma once

#include "Checks.h"

#include <QorUI/QorUI.h>

/** @file
 * Uses every class that the library exports, as a base of one's own: compiled into programs and into another DLL.
 */

namespace host
{

constexpr UINT kOwnMessage = WM_APP + 9;

/** A class of the host on top of one of the library, with a message of its own. */
template <class Base>
class Own : public Base
{
  public:
    using Base::Base;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == kOwnMessage) {
            return static_cast<LRESULT>(wParam) + 1;
        }
        return Base::WindowProc(message, wParam, lParam);
    }
};

/** Takes over a system control, and lets it paint, with both classes' handlers in force. */
template <class Control>
void UseControl(const CWnd& parent, LPCWSTR windowClass, DWORD style = 0)
{
    const HWND plain = ::CreateWindowW(windowClass, L"Text", WS_CHILD | WS_VISIBLE | style, 10, 10, 80, 40,
                                       parent.m_hWnd, reinterpret_cast<HMENU>(5), nullptr, nullptr);
    Own<Control> control;
    HOST_CHECK(plain && control.SubclassWindow(plain));
    HOST_CHECK(control.SendMessage(kOwnMessage, 41) == 42);
    HOST_CHECK(control.RedrawWindow());
    HOST_CHECK(control.DestroyWindow());
}

inline void UseButtons(const CWnd& parent)
{
    UseControl<CQorBtn>(parent, WC_BUTTON);
    UseControl<CCmdBtn>(parent, WC_BUTTON);
    UseControl<CBmpBtn>(parent, WC_BUTTON);
    UseControl<CCheckBox>(parent, WC_BUTTON, BS_AUTOCHECKBOX);
    UseControl<CRadioBox>(parent, WC_BUTTON, BS_AUTORADIOBUTTON);
    UseControl<CQorLink>(parent, WC_STATIC, SS_NOTIFY);
    UseControl<CTextLink>(parent, WC_STATIC, SS_NOTIFY);
}

inline void UseInputs(const CWnd& parent)
{
    UseControl<CFlatEdit>(parent, WC_EDIT);
    UseControl<CFlatEditEx>(parent, WC_EDIT);
    UseControl<CIntEdit>(parent, WC_EDIT);
    UseControl<CFlatCombo>(parent, WC_COMBOBOX, CBS_DROPDOWNLIST);
    UseControl<CSearchBox>(parent, WC_COMBOBOX, CBS_DROPDOWN);
    UseControl<CFlatListBox>(parent, WC_LISTBOX);
    UseControl<CFlatChkList>(parent, WC_LISTBOX, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    UseControl<CDragLB>(parent, WC_LISTBOX);
    UseControl<CFlatHotKey>(parent, HOTKEY_CLASS);
    UseControl<CFlatDateTime>(parent, DATETIMEPICK_CLASS);
    UseControl<CFlatIPAddr>(parent, WC_IPADDRESS);
}

inline void UseListsAndIndicators(const CWnd& parent)
{
    UseControl<CFlatList>(parent, WC_LISTVIEW, LVS_REPORT);
    UseControl<CProgressList>(parent, WC_LISTVIEW, LVS_REPORT);
    UseControl<CFlatHdr>(parent, WC_HEADER);
    UseControl<CProgressBar>(parent, PROGRESS_CLASS);
    UseControl<CChartCtrl>(parent, WC_STATIC);
    UseControl<CQorInfo>(parent, WC_STATIC);
}

/** The classes that make their windows themselves, and those without one. */
inline void UseOthers()
{
    const Own<CQorFrame> frame;
    const Own<CQorStatusBar> statusBar;
    const Own<CDesktopTip> tip;
    const Own<CQorCalendar> calendar;
    const Own<CQorClock> clock;
    const Own<CFlatRichEdit> richEdit;
    const Own<CQorDialog> dialog(UINT{1}, nullptr, DWORD{0});
    const Own<CQorBaseDlg> baseDialog(UINT{1}, nullptr);
    HOST_CHECK(!frame.m_hWnd && !statusBar.m_hWnd && !tip.m_hWnd && !calendar.m_hWnd && !clock.m_hWnd);
    HOST_CHECK(!richEdit.m_hWnd && !dialog.m_hWnd && !baseDialog.m_hWnd);
    CQorBmp bitmap;
    HOST_CHECK(bitmap.Load(Program(), kOwnPicture, L"PNG"));
    CClientDC screen(nullptr);
    const CMemDC memory(&screen);
    HOST_CHECK(memory.m_hDC);
}

inline void UseEveryClass()
{
    CWnd parent;
    HOST_CHECK(
        parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0));
    UseButtons(parent);
    UseInputs(parent);
    UseListsAndIndicators(parent);
    UseOthers();
    parent.DestroyWindow();
}

} // namespace host
