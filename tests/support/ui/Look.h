#pragma once

#include <tests/support/Support.h>

#include <afxwin.h>

/** @file What a control looks like, and what it has to paint. */

namespace ts
{

inline void PaintNow(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

/** The client area of a control, freshly painted. */
inline Picture LookOf(const CWnd& control)
{
    PaintNow(control);
    return CaptureWindow(control.m_hWnd);
}

/** A control with its border, freshly painted. */
inline Picture FrameOf(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    return CaptureFrame(control.m_hWnd);
}

/** Makes everything of a control valid, so that what a call makes invalid is seen. */
inline void Validate(const CWnd& control)
{
    ::UpdateWindow(control.m_hWnd);
    ::ValidateRect(control.m_hWnd, nullptr);
}

/** What has to be painted; empty when nothing has. */
inline CRect Dirty(const CWnd& control)
{
    CRect dirty(0, 0, 0, 0);
    ::GetUpdateRect(control.m_hWnd, &dirty, FALSE);
    return dirty;
}

/** Paints what is invalid. @return whether the control was asked to erase it first. */
inline bool IsErasedByUpdate(const CWnd& control)
{
    MessageRecorder recorder(control.m_hWnd);
    recorder.RecordOnly({WM_ERASEBKGND});
    ::UpdateWindow(control.m_hWnd);
    return recorder.Has(Msg(WM_ERASEBKGND));
}

/** Paints a control while the system has no GDI objects for it, then one, two ... and looks at it afterwards. */
inline testing::AssertionResult SurvivesGdiShortage(const CWnd& control)
{
    constexpr int kMostObjects = 30;
    const Picture before = LookOf(control);
    {
        GdiShortage shortage;
        for (int i = 0; i < kMostObjects; ++i) {
            PaintNow(control);
            shortage.LeaveMore(1);
        }
    }
    return SamePicture(before, LookOf(control));
}

} // namespace ts
