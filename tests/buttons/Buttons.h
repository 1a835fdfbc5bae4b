#pragma once

#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>
#include <tests/support/ui/Look.h>

#include <afxwin.h>

/** @file What the tests of buttons share. */

/** A plain system button in a window, to be taken over by a control. */
inline HWND AddButton(const CWnd& parent, const wchar_t* text, const CRect& rect, UINT id, DWORD style = BS_PUSHBUTTON)
{
    return ts::AddControl(parent, L"BUTTON", rect, id, style, 0, text);
}

/** What a control looks like on the screen. */
inline ts::Picture Look(const CWnd& control)
{
    return ts::CaptureWindow(control.m_hWnd);
}

inline UINT TypeOf(HWND button)
{
    return static_cast<UINT>(::GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK);
}

/** Expects the whole control to be repainted without erasing when the mouse comes and goes. */
inline void ExpectHotChangesToRepaint(const CWnd& control)
{
    CRect all;
    control.GetClientRect(&all);
    ts::Validate(control);
    control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(all, ts::Dirty(control));
    EXPECT_FALSE(ts::IsErasedByUpdate(control));
    control.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(all, ts::Dirty(control));
    EXPECT_FALSE(ts::IsErasedByUpdate(control));
}

/** Expects a control to look untouched in a new window when the former one went under the mouse. */
template <class Control>
void ExpectNewWindowToBeCold(Control& control, const std::function<void()>& create)
{
    const ts::Picture cold = Look(control);
    ts::MoveMouse(control.m_hWnd);
    const ts::Picture hot = Look(control);
    EXPECT_FALSE(ts::SamePicture(cold, hot));
    control.DestroyWindow();
    ts::ParkMouse();
    create();
    EXPECT_TRUE(ts::SamePicture(cold, Look(control)));
    ts::MoveMouse(control.m_hWnd);
    EXPECT_TRUE(ts::SamePicture(hot, Look(control)));
}

inline std::vector<TRACKMOUSEEVENT> g_refusedTracks;

inline BOOL WINAPI RefuseTrack(LPTRACKMOUSEEVENT track)
{
    g_refusedTracks.push_back(*track);
    return FALSE;
}

/**
 * Expects a control that gets no leave notification to stay cold, and to ask for one again at the next move.
 * @param dirty what is repainted all the same.
 */
inline void ExpectColdWithoutLeaveNotification(const CWnd& control, const CRect& dirty)
{
    const ts::ReplacedImport refused(L"QorUI.dll", "_TrackMouseEvent", &RefuseTrack);
    ::InvalidateRect(control.m_hWnd, nullptr, FALSE);
    const ts::Picture cold = Look(control);
    for (int x = 3; x < 5; ++x) {
        g_refusedTracks.clear();
        ts::Validate(control);
        control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(x, 3));
        ASSERT_EQ(1u, g_refusedTracks.size());
        EXPECT_EQ(DWORD{TME_LEAVE}, g_refusedTracks[0].dwFlags);
        EXPECT_EQ(1u, g_refusedTracks[0].dwHoverTime);
        EXPECT_EQ(control.m_hWnd, g_refusedTracks[0].hwndTrack);
        EXPECT_EQ(dirty, ts::Dirty(control));
        EXPECT_TRUE(ts::SamePicture(cold, Look(control)));
    }
}

/** Expects a pressed button to come up when the mouse is dragged off it, and no click. */
inline void ExpectDragOffToRelease(const CWnd& button, const ts::MessageLog& log)
{
    const auto isPushed = [&] { return (button.SendMessage(BM_GETSTATE) & BST_PUSHED) != 0; };
    ts::MoveMouse(button.m_hWnd);
    ts::MouseDown();
    EXPECT_TRUE(isPushed());
    ts::MoveMouse(button.m_hWnd, -15, -5);
    EXPECT_FALSE(isPushed());
    ts::MouseUp();
    EXPECT_FALSE(log.Has(ts::Command(static_cast<UINT>(::GetDlgCtrlID(button.m_hWnd)), BN_CLICKED)));
}

/** The structure that an owner-drawn button is asked to draw with. */
inline DRAWITEMSTRUCT DrawRequest(const CWnd& button, HDC dc, const RECT& rect, UINT state,
                                  UINT action = ODA_DRAWENTIRE)
{
    DRAWITEMSTRUCT request = {};
    request.CtlType = ODT_BUTTON;
    request.CtlID = static_cast<UINT>(::GetDlgCtrlID(button.m_hWnd));
    request.itemAction = action;
    request.itemState = state;
    request.hwndItem = button.m_hWnd;
    request.hDC = dc;
    request.rcItem = rect;
    return request;
}

/** What a button draws when it is asked to, onto the paper. */
template <class Button>
ts::Picture DrawnItem(Button& button, int cx, int cy, UINT state, UINT action = ODA_DRAWENTIRE)
{
    return ts::Drawn(cx, cy, [&](CDC& dc) {
        DRAWITEMSTRUCT request = DrawRequest(button, dc, CRect(0, 0, cx, cy), state, action);
        button.DrawItem(&request);
    });
}
