#pragma once

#include <QorUI/app/look/SysLook.h>
#include <QorUI/QorUI.h>
#include <tests/support/AfxHost.h>
#include <tests/support/Support.h>

#include <utility>
#include <vector>

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

/** Counts faults while it lives: the system may go on after one in a window procedure as if nothing had happened. */
class FaultCounter
{
  public:
    FaultCounter() : m_noting(::AddVectoredExceptionHandler(TRUE, &Note)) { s_faults = 0; }
    ~FaultCounter() { ::RemoveVectoredExceptionHandler(m_noting); }
    FaultCounter(const FaultCounter&) = delete;
    FaultCounter& operator=(const FaultCounter&) = delete;

    int Count() const { return s_faults; }

  private:
    static LONG CALLBACK Note(EXCEPTION_POINTERS* exception)
    {
        s_faults += exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline int s_faults = 0;

    void* m_noting;
};

/** Other colours in the library's look until the end of the scope. */
class OtherColours
{
  public:
    /** @param fields of `QorSysLook`. */
    explicit OtherColours(const std::vector<std::pair<COLORREF*, COLORREF>>& fields)
    {
        for (const auto& [field, colour] : fields) {
            m_former.emplace_back(field, *field);
            *field = colour;
        }
    }
    ~OtherColours()
    {
        for (const auto& [field, colour] : m_former) {
            *field = colour;
        }
    }
    OtherColours(const OtherColours&) = delete;
    OtherColours& operator=(const OtherColours&) = delete;

  private:
    std::vector<std::pair<COLORREF*, COLORREF>> m_former;
};

/** Draws a part of a line of text that is centred in an area, as in a progress bar. */
inline void DrawTextPart(HDC dc, const CRect& part, CRect area, const wchar_t* text, COLORREF colour)
{
    CRgn clip;
    clip.CreateRectRgnIndirect(&part);
    ::SelectClipRgn(dc, clip);
    ::SetTextColor(dc, colour);
    ::DrawTextW(dc, text, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    ::SelectClipRgn(dc, nullptr);
}

inline int WINAPI NothingKnown(HANDLE /*object*/, int /*size*/, LPVOID /*data*/)
{
    return 0;
}

inline HBITMAP WINAPI NoCompatibleBitmap(HDC /*dc*/, int /*cx*/, int /*cy*/)
{
    return nullptr;
}

inline HBITMAP WINAPI NoBitmapResource(HINSTANCE /*module*/, LPCWSTR /*name*/)
{
    return nullptr;
}
