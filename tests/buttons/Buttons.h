#pragma once

#include <afxwin.h>
#include <tests/app/Drawn.h>
#include <tests/app/res/resource.h>
#include <tests/support/AfxHost.h>
#include <tests/support/Support.h>

/** @file What the tests of buttons share. */

inline HINSTANCE Program()
{
    return ::GetModuleHandleW(nullptr);
}

inline HMODULE Library()
{
    return ::GetModuleHandleW(L"QorUI.dll");
}

/** A plain system button in a window, to be taken over by a control. */
inline HWND AddButton(const CWnd& parent, const wchar_t* text, const CRect& rect, int id, DWORD style = BS_PUSHBUTTON)
{
    const HWND button = ::CreateWindowW(L"BUTTON", text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, rect.left,
                                        rect.top, rect.Width(), rect.Height(), parent.m_hWnd,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    ::SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return button;
}

inline CRect PlaceIn(const CWnd& parent, HWND child)
{
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, parent.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

/** What a control looks like on the screen. */
inline ts::Picture Look(const CWnd& control)
{
    return ts::CaptureWindow(control.m_hWnd);
}

inline UINT TypeOf(HWND button)
{
    return static_cast<UINT>(::GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK);
}

/** The structure that an owner-drawn button is asked to draw with. */
inline DRAWITEMSTRUCT DrawRequest(const CWnd& button, HDC dc, const RECT& rect, UINT state,
                                  UINT action = ODA_DRAWENTIRE)
{
    DRAWITEMSTRUCT request = {};
    request.CtlType = ODT_BUTTON;
    request.CtlID = static_cast<UINT>(::GetDlgCtrlID(button.m_hWnd));
    request.itemAction = action;
    request.itemState = state;
    request.hwndItem = button.m_hWnd;
    request.hDC = dc;
    request.rcItem = rect;
    return request;
}

/** What a button draws when it is asked to, onto the paper. */
template <class Button>
ts::Picture DrawnItem(Button& button, int cx, int cy, UINT state, UINT action = ODA_DRAWENTIRE)
{
    return Drawn(cx, cy, [&](CDC& dc) {
        DRAWITEMSTRUCT request = DrawRequest(button, dc, CRect(0, 0, cx, cy), state, action);
        button.DrawItem(&request);
    });
}
