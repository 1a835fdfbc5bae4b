#include <tests/support/Support.h>

namespace
{

constexpr UINT kMessage = WM_USER + 1;
constexpr UINT kOtherMessage = WM_USER + 2;

TEST(PumpUntil, HandlesMessagesUntilTheConditionHolds)
{
    ts::HostWindow host;
    PostMessageW(host.Hwnd(), kMessage, 0, 0);
    EXPECT_TRUE(ts::PumpUntil([&] { return host.Log().Has(ts::Msg(kMessage)); }));
}

TEST(PumpUntil, GivesUpAfterTheLimit)
{
    const ULONGLONG start = GetTickCount64();
    EXPECT_FALSE(ts::PumpUntil([] { return false; }, 50));
    EXPECT_GE(GetTickCount64() - start, 50u);
}

TEST(PumpUntil, SeesAConditionThatComesTrueWithoutAMessage)
{
    const ULONGLONG end = GetTickCount64() + 30;
    EXPECT_TRUE(ts::PumpUntil([end] { return GetTickCount64() >= end; }));
}

TEST(PumpUntil, HandlesTimers)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_TIMER});
    SetTimer(host.Hwnd(), 4, 10, nullptr);
    EXPECT_TRUE(ts::PumpUntil([&] { return host.Log().Count(ts::Msg(WM_TIMER, 4)) == 3; }));
}

TEST(Settle, EndsThoughATimerGoesOn)
{
    ts::HostWindow host;
    SetTimer(host.Hwnd(), 4, 1, nullptr);
    PostMessageW(host.Hwnd(), kMessage, 0, 0);
    ts::Settle();
    EXPECT_TRUE(host.Log().Has(ts::Msg(kMessage)));
}

TEST(Settle, PaintsWhatIsInvalid)
{
    ts::HostWindow host;
    host.Log().RecordOnly({WM_PAINT});
    InvalidateRect(host.Hwnd(), nullptr, TRUE);
    ts::Settle();
    EXPECT_TRUE(host.Log().Is({ts::Msg(WM_PAINT)}));
}

TEST(Settle, LeavesTheEndOfALoopForTheLoop)
{
    PostQuitMessage(5);
    ts::Settle();
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(5u, message.wParam);
}

TEST(PreTranslate, TakesMessagesBeforeTheWindow)
{
    ts::HostWindow host;
    ts::SetPreTranslate([](MSG& message) { return message.message == kMessage; });
    PostMessageW(host.Hwnd(), kMessage, 0, 0);
    PostMessageW(host.Hwnd(), kOtherMessage, 0, 0);
    ts::Settle();
    EXPECT_TRUE(host.Log().Is({ts::Msg(kOtherMessage)}));
}

TEST(DialogKeys, TabMovesTheFocus)
{
    ts::HostWindow host;
    const HWND first = host.Add(L"BUTTON", L"1", WS_TABSTOP, 0, 0, 50, 20, 1);
    const HWND second = host.Add(L"BUTTON", L"2", WS_TABSTOP, 0, 30, 50, 20, 2);
    SetFocus(first);
    const ts::DialogKeys keys(host.Hwnd());
    ts::Key(VK_TAB);
    EXPECT_EQ(second, GetFocus());
}

} // namespace
