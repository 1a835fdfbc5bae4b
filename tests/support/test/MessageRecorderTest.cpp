#include <tests/support/Support.h>

namespace
{

constexpr UINT kMessage = WM_USER + 1;

TEST(MessageRecorder, RecordsOnlyWhatWasChosen)
{
    const ts::HostWindow host;
    ts::MessageRecorder recorder(host.Hwnd());
    recorder.RecordOnly({WM_SETTEXT});
    SendMessageW(host.Hwnd(), WM_GETTEXTLENGTH, 0, 0);
    SetWindowTextW(host.Hwnd(), L"x");
    SendMessageW(host.Hwnd(), kMessage, 0, 0);
    EXPECT_TRUE(recorder.Is({ts::Msg(WM_SETTEXT)}));
}

TEST(MessageRecorder, ComparesOnlyTheNamedMessagesWhenAsked)
{
    const ts::HostWindow host;
    ts::MessageRecorder recorder(host.Hwnd());
    recorder.RecordAll();
    SetWindowTextW(host.Hwnd(), L"x");
    SendMessageW(host.Hwnd(), kMessage, 0, 0);
    EXPECT_TRUE(recorder.IsAmong({ts::Msg(WM_SETTEXT), ts::Msg(kMessage)}));
    EXPECT_FALSE(recorder.IsAmong({ts::Msg(kMessage), ts::Msg(WM_SETTEXT)}));
}

TEST(MessageRecorder, OutlivesItsWindow)
{
    auto host = std::make_unique<ts::HostWindow>();
    ts::MessageRecorder recorder(host->Hwnd());
    recorder.RecordOnly({WM_NCDESTROY});
    host.reset();
    EXPECT_TRUE(recorder.Is({ts::Msg(WM_NCDESTROY)}));
}

TEST(MessageRecorder, TakesAnAnswerBack)
{
    const ts::HostWindow host;
    ts::MessageRecorder recorder(host.Hwnd());
    recorder.Answer(kMessage, [](const ts::Message&) -> std::optional<LRESULT> { return 5; });
    EXPECT_EQ(5, SendMessageW(host.Hwnd(), kMessage, 0, 0));
    recorder.Answer(kMessage, nullptr);
    EXPECT_EQ(0, SendMessageW(host.Hwnd(), kMessage, 0, 0));
}

} // namespace
