#pragma once

#include <QorUI/QorUI.h>
#include <tests/support/AfxHost.h>
#include <tests/support/Support.h>

/** @file What the tests of lists and indicators share. */

constexpr UINT kControlId = 17;

inline HGDIOBJ GuiFont()
{
    return ::GetStockObject(DEFAULT_GUI_FONT);
}

/** The client area of a control, freshly painted. */
inline ts::Picture LookOf(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    return ts::CaptureWindow(control.m_hWnd);
}
