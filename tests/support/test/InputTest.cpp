#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

#include <commctrl.h>

namespace
{

constexpr LPARAM At(int x, int y)
{
    return MAKELPARAM(x, y);
}

/** Text of an edit control. */
std::wstring TextOf(HWND window)
{
    wchar_t text[64] = {};
    GetWindowTextW(window, text, 64);
    return text;
}

TEST(Input, ClickReachesTheWindowAtTheExactPlace)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_LBUTTONDOWN, WM_LBUTTONUP});
    for (const POINT at : {POINT{0, 0}, POINT{1, 1}, POINT{37, 91}, POINT{399, 299}}) {
        host.Log().Clear();
        ts::Click(host.Hwnd(), at.x, at.y);
        EXPECT_TRUE(host.Log().Is(
            {ts::Msg(WM_LBUTTONDOWN, MK_LBUTTON, At(at.x, at.y)), ts::Msg(WM_LBUTTONUP, 0, At(at.x, at.y))}));
    }
}

TEST(Input, RightAndMiddleButtonsArrive)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MBUTTONDOWN, WM_MBUTTONUP});
    ts::Click(host.Hwnd(), 10, 10, ts::Button::Right);
    ts::Click(host.Hwnd(), 10, 10, ts::Button::Middle);
    EXPECT_TRUE(host.Log().Is(
        {ts::Msg(WM_RBUTTONDOWN), ts::Msg(WM_RBUTTONUP), ts::Msg(WM_MBUTTONDOWN), ts::Msg(WM_MBUTTONUP)}));
}

TEST(Input, DoubleClickIsOne)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK});
    ts::DoubleClick(host.Hwnd(), 20, 20);
    EXPECT_TRUE(host.Log().Is(
        {ts::Msg(WM_LBUTTONDOWN), ts::Msg(WM_LBUTTONUP), ts::Msg(WM_LBUTTONDBLCLK), ts::Msg(WM_LBUTTONUP)}));
}

TEST(Input, ClicksAtOnePlaceStayClicks)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_LBUTTONDOWN, WM_LBUTTONDBLCLK});
    for (int i = 0; i < 5; ++i) {
        ts::Click(host.Hwnd(), 20, 20);
    }
    ts::DoubleClick(host.Hwnd(), 20, 20);
    ts::Click(host.Hwnd(), 20, 20);
    EXPECT_EQ(7u, host.Log().Count(ts::Msg(WM_LBUTTONDOWN)));
    EXPECT_EQ(1u, host.Log().Count(ts::Msg(WM_LBUTTONDBLCLK)));
}

TEST(Input, DragMovesWithTheButtonHeld)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_MOUSEMOVE, WM_LBUTTONUP});
    host.Log().SetFilter(
        [](const ts::Message& message) { return message.id != WM_MOUSEMOVE || message.wParam == MK_LBUTTON; });
    ts::Drag(host.Hwnd(), {10, 10}, {70, 40});
    EXPECT_GE(host.Log().Count(ts::Msg(WM_MOUSEMOVE, MK_LBUTTON)), 6u);
    EXPECT_TRUE(host.Log().Has(ts::Msg(WM_MOUSEMOVE, MK_LBUTTON, At(70, 40))));
    EXPECT_TRUE(host.Log().Messages().back().id == WM_LBUTTONUP);
}

TEST(Input, WheelTurns)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_MOUSEWHEEL});
    ts::Wheel(host.Hwnd(), 50, 50, -2);
    EXPECT_TRUE(host.Log().Is({ts::Msg(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-240)))}));
}

TEST(Input, LeaveArrivesSoonAfterThePointerIsParked)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_MOUSELEAVE});
    ts::MoveMouse(host.Hwnd(), 30, 30);
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, host.Hwnd(), 0};
    ASSERT_TRUE(TrackMouseEvent(&track));
    ts::Settle();
    EXPECT_TRUE(host.Log().Is({}));
    ts::ParkMouse();
    EXPECT_TRUE(host.Log().Is({ts::Msg(WM_MOUSELEAVE)}));
}

TEST(Input, CaptureGetsMovesOutsideTheWindow)
{
    ts::HostWindow host(100, 100);
    ts::MoveMouse(host.Hwnd(), 50, 50);
    ts::MouseDown();
    SetCapture(host.Hwnd());
    host.Log().RecordOnly({WM_MOUSEMOVE});
    ts::MoveMouse(host.Hwnd(), 300, 400);
    ReleaseCapture();
    ts::MouseUp();
    EXPECT_TRUE(host.Log().Has(ts::Msg(WM_MOUSEMOVE, MK_LBUTTON, At(300, 400))));
}

TEST(Input, TypedTextArrivesInTheFocusedEdit)
{
    ts::HostWindow host;
    const HWND edit = host.Add(L"EDIT", L"", WS_BORDER, 10, 10, 200, 24, 3);
    ts::Click(edit);
    ASSERT_EQ(edit, GetFocus());
    ts::Type(L"Qor \x00E4\x4E2D 7");
    EXPECT_EQ(L"Qor \x00E4\x4E2D 7", TextOf(edit));
}

TEST(Input, KeysAndChordsWork)
{
    ts::HostWindow host;
    const HWND edit = host.Add(L"EDIT", L"", WS_BORDER, 10, 10, 200, 24, 3);
    SetFocus(edit);
    ts::Type(L"abc");
    ts::Key(VK_HOME);
    ts::Key(VK_DELETE);
    EXPECT_EQ(L"bc", TextOf(edit));
    ts::Chord({VK_SHIFT, VK_END});
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(0u, start);
    EXPECT_EQ(2u, end);
}

TEST(Input, ForgottenKeysAreReleased)
{
    const ts::HostWindow host;
    ts::KeyDown(VK_SHIFT);
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    ts::ReleaseInput();
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST(Input, MissingWindowFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(ts::MoveMouse(nullptr, 1, 1), "no such window");
}

} // namespace
