#pragma once

#include <QorUI/app/look/SysLook.h>
#include <tests/support/OtherColours.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <afxcmn.h>
#include <afxwin.h>

/** @file What the tests of input controls share. */

constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);
inline const CRect kPlace(10, 10, 130, 40);

/** A plain system control in a window, to be taken over. */
inline HWND AddSystem(const CWnd& parent, const wchar_t* className, DWORD style, DWORD exStyle = WS_EX_CLIENTEDGE,
                      const CRect& rect = kPlace, const wchar_t* text = L"")
{
    return ts::AddControl(parent, className, rect, ts::kControlId, style, exStyle, text);
}

/** Gives the shared look colours that nothing else has, as long as it lives. */
class OddLook
{
  public:
    static constexpr COLORREF kWindow = RGB(250, 201, 12);
    static constexpr COLORREF kFace = RGB(12, 202, 251);
    static constexpr COLORREF kGrayText = RGB(203, 13, 101);

  private:
    ts::OtherColours m_colours{{{&QorSysLook.m_clrWindow, kWindow},
                                {&QorSysLook.m_clrBtnFace, kFace},
                                {&QorSysLook.m_clrGrayText, kGrayText}}};
};

/** Whether the two lines of the flat border surround a control. */
inline testing::AssertionResult HasFlatBorder(const CWnd& control)
{
    const OddLook odd;
    const ts::Picture picture = ts::FrameOf(control);
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
    const ts::Picture before = ts::FrameOf(control);
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
