#pragma once

#include "TestDialogs.h"

#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>

/** @file What the system refuses to dialogs and frame windows. */

inline HWND WINAPI RefuseButtons(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int cx,
                                 int cy, HWND parent, HMENU menu, HINSTANCE inst, void* param)
{
    if (!IS_INTRESOURCE(className) && ::lstrcmpiW(className, L"Button") == 0) {
        return nullptr;
    }
    return ::CreateWindowExW(exStyle, className, text, style, x, y, cx, cy, parent, menu, inst, param);
}

inline int g_buttons = 0;

inline HWND WINAPI CountButtons(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int cx,
                                int cy, HWND parent, HMENU menu, HINSTANCE inst, void* param)
{
    g_buttons += !IS_INTRESOURCE(className) && ::lstrcmpiW(className, L"Button") == 0;
    return ::CreateWindowExW(exStyle, className, text, style, x, y, cx, cy, parent, menu, inst, param);
}

/** A window whose default processing refuses its creation. */
template <class Window>
class CRefused : public Window
{
  public:
    using Window::Window;

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_CREATE ? -1 : Window::DefWindowProc(message, wParam, lParam);
    }
};
