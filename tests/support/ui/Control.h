#pragma once

#include <afxwin.h>

#include <windows.h>

/** @file System controls to be taken over, and what is asked of any control. */

namespace ts
{

constexpr UINT kControlId = 17; ///< of the control that a test is about
constexpr UINT kOtherId = 18;   ///< of another one beside it

inline HGDIOBJ GuiFont()
{
    return ::GetStockObject(DEFAULT_GUI_FONT);
}

/** A plain system control in a window, without an object, in the font above. */
inline HWND AddControl(const CWnd& parent, const wchar_t* className, const CRect& rect, UINT id, DWORD style,
                       DWORD exStyle = 0, const wchar_t* text = L"")
{
    const HWND control = ::CreateWindowExW(exStyle, className, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                                           rect.left, rect.top, rect.Width(), rect.Height(), parent.m_hWnd,
                                           reinterpret_cast<HMENU>(UINT_PTR{id}), nullptr, nullptr);
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GuiFont()), FALSE);
    return control;
}

/** Where a control stands in a window. */
inline CRect PlaceIn(const CWnd& parent, HWND child)
{
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, parent.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

inline CString TextOf(HWND window)
{
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text;
}

/** Text of a control in a window. */
inline CString TextOf(HWND window, UINT id)
{
    return TextOf(::GetDlgItem(window, static_cast<int>(id)));
}

/** Width of a text in a font, pixels. */
inline int TextWidth(HGDIOBJ font, const wchar_t* text)
{
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ old = font ? ::SelectObject(dc, font) : nullptr;
    SIZE size = {};
    ::GetTextExtentPoint32W(dc, text, ::lstrlenW(text), &size);
    if (old) {
        ::SelectObject(dc, old);
    }
    ::ReleaseDC(nullptr, dc);
    return size.cx;
}

} // namespace ts
