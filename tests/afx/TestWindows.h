#pragma once

#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <afxwin.h>

#include <string>
#include <vector>

/** Control ids and templates of wnd.rc. */
#include "resource.h"

/** What happened, in order. */
typedef std::vector<std::string> Events;

/** A visible top-level window for children. */
class TopWnd : public CWnd
{
  public:
    TopWnd()
    {
        CreateEx(0, AfxRegisterWndClass(0), _T("top"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300, nullptr,
                 nullptr);
    }
    ~TopWnd() override
    {
        if (m_hWnd) {
            DestroyWindow();
        }
    }
};

/** Creates a child of a system class without an object. */
inline HWND MakeControl(HWND parent, LPCTSTR className, DWORD style, int id, LPCTSTR text = _T(""))
{
    return ::CreateWindowEx(0, className, text, WS_CHILD | WS_VISIBLE | style, 10, 10, 120, 80, parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandle(nullptr), nullptr);
}
