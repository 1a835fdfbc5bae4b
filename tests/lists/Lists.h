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

inline void PaintNow(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

/** The client area of a control, freshly painted. */
inline ts::Picture LookOf(const CWnd& control)
{
    PaintNow(control);
    return ts::CaptureWindow(control.m_hWnd);
}

/** Paints a control while the system has no GDI objects for it, then one, two ... and looks at it afterwards. */
inline testing::AssertionResult SurvivesGdiShortage(const CWnd& control)
{
    constexpr int kMostObjects = 30;
    const ts::Picture before = LookOf(control);
    {
        ts::GdiShortage shortage;
        for (int i = 0; i < kMostObjects; ++i) {
            PaintNow(control);
            shortage.LeaveMore(1);
        }
    }
    return ts::SamePicture(before, LookOf(control));
}

inline HBITMAP WINAPI NoCompatibleBitmap(HDC /*dc*/, int /*cx*/, int /*cy*/)
{
    return nullptr;
}

inline HBITMAP WINAPI NoBitmapResource(HINSTANCE /*module*/, LPCWSTR /*name*/)
{
    return nullptr;
}
