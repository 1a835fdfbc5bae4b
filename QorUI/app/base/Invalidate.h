#pragma once

#include <afxwin.h>

/** Lets a window be erased and painted again; does nothing while there is none. */
inline void QorInvalidate(CWnd& wnd)
{
    if (wnd.m_hWnd) {
        wnd.Invalidate(TRUE);
    }
}
