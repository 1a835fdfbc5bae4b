#pragma once

#include <afxwin.h>

/** The parts of CWnd that the framework's own functions reach into. */
class AfxWndAccess
{
  public:
    static WNDPROC* SuperProcAddress(CWnd* pWnd) { return pWnd->GetSuperWndProcAddr(); }
    static LRESULT CallWindowProc(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return pWnd->WindowProc(message, wParam, lParam);
    }
};

/** The HWND map of this thread, made at first use. */
CHandleMap* AfxWndMap();
