#pragma once

#include <QorUI/app/look/SysLook.h>
#include <tests/support/AfxHost.h>
#include <tests/support/Support.h>

#include <afxcmn.h>
#include <afxwin.h>

/** @file What the tests of input controls share. */

constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr int kControlId = 17;

inline const CRect kPlace(10, 10, 130, 40);

inline HGDIOBJ GuiFont()
{
    return ::GetStockObject(DEFAULT_GUI_FONT);
}

/** A plain system control in a window, to be taken over. */
inline HWND AddSystem(const CWnd& parent, const wchar_t* className, DWORD style, DWORD exStyle = WS_EX_CLIENTEDGE,
                      const CRect& rect = kPlace, const wchar_t* text = L"")
{
    const HWND control = ::CreateWindowExW(exStyle, className, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                                           rect.left, rect.top, rect.Width(), rect.Height(), parent.m_hWnd,
                                           reinterpret_cast<HMENU>(kControlId), nullptr, nullptr);
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GuiFont()), FALSE);
    return control;
}

/** A control with its border, freshly painted. */
inline ts::Picture FrameOf(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    return ts::CaptureFrame(control.m_hWnd);
}

/** The client area of a control, freshly painted. */
inline ts::Picture LookOf(const CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    return ts::CaptureWindow(control.m_hWnd);
}

/** Gives the shared look colours that nothing else has, as long as it lives. */
class OddLook
{
  public:
    OddLook()
    {
        QorSysLook.m_clrWindow = kWindow;
        QorSysLook.m_clrBtnFace = kFace;
        QorSysLook.m_clrGrayText = kGrayText;
    }
    ~OddLook()
    {
        QorSysLook.m_clrWindow = m_window;
        QorSysLook.m_clrBtnFace = m_face;
        QorSysLook.m_clrGrayText = m_grayText;
    }
    OddLook(const OddLook&) = delete;
    OddLook& operator=(const OddLook&) = delete;

    static constexpr COLORREF kWindow = RGB(250, 201, 12);
    static constexpr COLORREF kFace = RGB(12, 202, 251);
    static constexpr COLORREF kGrayText = RGB(203, 13, 101);

  private:
    COLORREF m_window = QorSysLook.m_clrWindow;
    COLORREF m_face = QorSysLook.m_clrBtnFace;
    COLORREF m_grayText = QorSysLook.m_clrGrayText;
};

/** Whether the two lines of the flat border surround a control. */
inline testing::AssertionResult HasFlatBorder(const CWnd& control)
{
    const OddLook odd;
    const ts::Picture picture = FrameOf(control);
    const CRect outer(0, 0, picture.Width(), picture.Height());
    if (const auto grey = ts::FrameIs(picture, outer, kGrey); !grey) {
        return grey;
    }
    return ts::FrameIs(picture, CRect(1, 1, outer.right - 1, outer.bottom - 1), OddLook::kWindow);
}

/** Whether a control with a vertical scroll bar in its frame paints that with the frame. */
inline testing::AssertionResult PaintsItsScrollBar(CWnd& control)
{
    constexpr COLORREF marked = RGB(200, 10, 200);
    const ts::Picture before = FrameOf(control);
    CRect bar(0, 0, before.Width(), before.Height());
    bar.DeflateRect(2, 2);
    bar.left = bar.right - ::GetSystemMetrics(SM_CXVSCROLL);
    {
        CWindowDC dc(&control);
        dc.FillSolidRect(&bar, marked);
    }
    control.SendMessage(WM_NCPAINT, 1);
    const int left = ts::CaptureFrame(control.m_hWnd).Crop(bar).Count(marked);
    return left == 0 ? testing::AssertionSuccess() : testing::AssertionFailure() << left << " pixels are not painted";
}

inline CString TextOf(const CWnd& control)
{
    CString text;
    control.GetWindowText(text);
    return text;
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
