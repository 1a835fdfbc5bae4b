#include <tests/support/Support.h>

#include <commctrl.h>

namespace
{

constexpr UINT kMessage = WM_USER + 3;
constexpr UINT kId = 7;

TEST(HostWindow, HasExactlyTheGivenClientSize)
{
    const ts::HostWindow host(321, 123);
    RECT client = {};
    GetClientRect(host.Hwnd(), &client);
    EXPECT_EQ(321, client.right);
    EXPECT_EQ(123, client.bottom);
}

TEST(HostWindow, IsVisibleAndInTheForeground)
{
    const ts::HostWindow host;
    EXPECT_TRUE(IsWindowVisible(host.Hwnd()));
    EXPECT_EQ(host.Hwnd(), GetForegroundWindow());
}

TEST(HostWindow, EndsWithTheObject)
{
    HWND window = nullptr;
    {
        const ts::HostWindow host;
        window = host.Hwnd();
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST(HostWindow, ShowsItsBackgroundColour)
{
    const ts::HostWindow host(50, 40, WS_POPUP | WS_VISIBLE, RGB(10, 20, 30));
    EXPECT_TRUE(ts::AreaIs(ts::CaptureWindow(host.Hwnd()), {0, 0, 50, 40}, RGB(10, 20, 30)));
}

TEST(HostWindow, RecordsTheCommandsOfItsControls)
{
    ts::HostWindow host;
    const HWND button = host.Add(L"BUTTON", L"Press", BS_PUSHBUTTON | BS_NOTIFY, 10, 10, 80, 24, kId);
    host.Restart();
    SendMessageW(button, BM_CLICK, 0, 0);
    EXPECT_TRUE(host.Log().Is({ts::Command(kId, BN_SETFOCUS), ts::Command(kId, BN_CLICKED)}));
}

TEST(HostWindow, RecordsTheNotificationsOfItsControls)
{
    ts::HostWindow host;
    const HWND tab = host.Add(WC_TABCONTROLW, L"", 0, 10, 10, 200, 100, kId);
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    wchar_t text[] = L"Page";
    item.pszText = text;
    TabCtrl_InsertItem(tab, 0, &item);
    TabCtrl_InsertItem(tab, 1, &item);
    host.Log().SetFilter(
        [](const ts::Message& message) { return message.code == TCN_SELCHANGE || message.code == TCN_SELCHANGING; });
    RECT second = {};
    TabCtrl_GetItemRect(tab, 1, &second);
    ts::Click(tab, second.left + 4, second.top + 4);
    EXPECT_TRUE(host.Log().Is({ts::Notify(kId, TCN_SELCHANGING), ts::Notify(kId, TCN_SELCHANGE)}));
}

TEST(HostWindow, AnswersInPlaceOfTheWindow)
{
    ts::HostWindow host;
    host.Log().Answer(kMessage,
                      [](const ts::Message& message) -> std::optional<LRESULT> { return LRESULT(message.wParam * 2); });
    EXPECT_EQ(42, SendMessageW(host.Hwnd(), kMessage, 21, 0));
}

WNDPROC g_before = nullptr;

LRESULT CALLBACK Swallow(HWND window, UINT id, WPARAM wParam, LPARAM lParam)
{
    return id == WM_USER ? 7 : CallWindowProcW(g_before, window, id, wParam, lParam);
}

TEST(HostWindow, LogsInFrontOfALaterSubclassOnceItsOwnLogHasEnded)
{
    ts::HostWindow host;
    host.EndLog();
    g_before =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(host.Hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Swallow)));
    const ts::MessageRecorder log(host.Hwnd());
    EXPECT_EQ(7, SendMessageW(host.Hwnd(), WM_USER, 0, 0));
    EXPECT_TRUE(log.Is({ts::Msg(WM_USER)}));
}

} // namespace
