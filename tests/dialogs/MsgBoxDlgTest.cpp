#include "MsgBoxes.h"

#include <QorApi/QorApi.h>
#include <tests/support/Imports.h>

// What the box shows and how it is answered.
namespace
{

constexpr UINT_PTR kTimer = 1;
const CSize kBoxSize(398, 197); // that the template has in the standard font

using Buttons = std::vector<std::pair<int, CString>>;

Buttons Expect(std::initializer_list<std::pair<int, LPCWSTR>> buttons)
{
    Buttons expected;
    for (const auto& [id, key] : buttons) {
        expected.emplace_back(id, LibString(key));
    }
    return expected;
}

struct KindCase
{
    UINT kind;
    LPCWSTR captionKey;
    LPCWSTR icon;
};

class SingleButtonBox : public testing::TestWithParam<KindCase>
{
};

TEST_P(SingleButtonBox, ShowsCaptionIconTextAndOk)
{
    const KindCase& kind = GetParam();
    const InitDialogAnswers answers;
    Shown shown;
    EXPECT_EQ(UINT{IDOK}, Answer(L"What happened", kind.kind, 0, IDOK, shown));
    EXPECT_STREQ(QorGetString(kind.captionKey), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, kind.icon), shown.icon);
    EXPECT_STREQ(L"What happened", shown.text);
    EXPECT_EQ(Expect({{IDOK, L"STR_OK"}}), shown.buttons);
    EXPECT_EQ(IDOK, shown.focus);
    EXPECT_EQ(std::vector<LRESULT>{TRUE}, answers.Answers());
    EXPECT_FALSE(shown.topmost);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SingleButtonBox,
                         testing::Values(KindCase{QOR_MSG_ERROR, L"STR_ERROR", IDI_HAND},
                                         KindCase{QOR_MSG_WARNING, L"STR_WARN", IDI_EXCLAMATION},
                                         KindCase{QOR_MSG_INFO, L"STR_INFO", IDI_ASTERISK},
                                         KindCase{9, L"STR_INFO", IDI_ASTERISK}, KindCase{6, L"STR_INFO", IDI_ASTERISK},
                                         KindCase{0x45, L"STR_INFO", IDI_ASTERISK},
                                         KindCase{0x7F, L"STR_INFO", IDI_ASTERISK}));

TEST(MsgBox, SingleButtonStandsWhereCancelWouldStand)
{
    CRect cancel;
    CRect ok;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND box) {
        cancel = RectOf(::GetDlgItem(box, IDCANCEL));
        ok = RectOf(::GetDlgItem(box, IDOK));
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr);
    EXPECT_EQ(cancel, ok);
    EXPECT_FALSE(ok.IsRectEmpty());
}

TEST(MsgBox, ConfirmHasOkAndCancel)
{
    Shown shown;
    EXPECT_EQ(UINT{IDOK}, Answer(L"Really?", QOR_MSG_CONFIRM, 0, IDOK, shown));
    EXPECT_EQ(Expect({{IDOK, L"STR_OK"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(UINT{IDCANCEL}, Answer(L"Really?", QOR_MSG_CONFIRM, 0, IDCANCEL, shown));
}

TEST(MsgBox, RetryHasRetryIgnoreAndCancel)
{
    Shown shown;
    EXPECT_EQ(UINT{IDRETRY}, Answer(L"Busy", QOR_MSG_RETRY, 0, IDRETRY, shown));
    EXPECT_EQ(Expect({{IDRETRY, L"STR_RETRY"}, {IDIGNORE, L"STR_IGNORE"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_TRUE(shown.skinned);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(IDIGNORE, shown.focus);
    EXPECT_EQ(UINT{IDIGNORE}, Answer(L"Busy", QOR_MSG_RETRY, 0, IDIGNORE, shown));
    EXPECT_EQ(UINT{IDCANCEL}, Answer(L"Busy", QOR_MSG_RETRY, 0, IDCANCEL, shown));
}

TEST(MsgBox, YesNoHasYesNoAndCancel)
{
    Shown shown;
    EXPECT_EQ(UINT{IDYES}, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDYES, shown));
    EXPECT_EQ(Expect({{IDYES, L"STR_YES"}, {IDNO, L"STR_NO"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_TRUE(shown.skinned);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(IDNO, shown.focus);
    EXPECT_EQ(UINT{IDNO}, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDNO, shown));
    EXPECT_EQ(UINT{IDCANCEL}, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDCANCEL, shown));
}

TEST(MsgBox, ThreeButtonsStandInOneBandWithEqualGaps)
{
    CRect yes;
    CRect no;
    CRect cancel;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND box) {
        yes = RectOf(::GetDlgItem(box, IDYES));
        no = RectOf(::GetDlgItem(box, IDNO));
        cancel = RectOf(::GetDlgItem(box, IDCANCEL));
        ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr);
    EXPECT_EQ(no.left - 9, yes.right);
    EXPECT_EQ(cancel.left - 9, no.right);
    EXPECT_EQ(cancel.top, yes.top);
    EXPECT_EQ(cancel.top, no.top);
    EXPECT_EQ(21, yes.Height());
}

TEST(MsgBox, CaptionCloseButtonAnswersCancelNotNo)
{
    Shown shown;
    EXPECT_EQ(UINT{IDCANCEL}, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDC_DLG_CLOSE, shown));
}

TEST(MsgBox, EscapeAnswersCancelAlsoWithOneButton)
{
    for (const UINT kind : {QOR_MSG_ERROR, QOR_MSG_INFO, QOR_MSG_CONFIRM, QOR_MSG_YESNO}) {
        ts::ModalDriver driver;
        driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
        EXPECT_EQ(UINT{IDCANCEL}, QorMsgBox(L"x", kind, 0, nullptr)) << kind;
    }
}

TEST(MsgBox, SystemMenuCloseAnswersCancel)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); });
    EXPECT_EQ(UINT{IDCANCEL}, QorMsgBox(L"x", QOR_MSG_WARNING, 0, nullptr));
}

TEST(MsgBox, EnterPressesTheFocusedButton)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(UINT{IDNO}, QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr));
    driver.InDialog([](HWND) { ts::Key(VK_TAB); }).InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(UINT{IDCANCEL}, QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr));
}

TEST(MsgBox, TabGoesThroughTheButtonsInTheirOrder)
{
    std::vector<int> visited;
    ts::ModalDriver driver;
    for (int i = 0; i < 3; ++i) {
        driver.InDialog([&visited](HWND) {
            visited.push_back(::GetDlgCtrlID(::GetFocus()));
            ts::Key(VK_TAB);
        });
    }
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr);
    EXPECT_EQ((std::vector<int>{IDNO, IDCANCEL, IDYES}), visited);
}

TEST(MsgBox, TopmostBitKeepsItAbove)
{
    Shown shown;
    EXPECT_EQ(UINT{IDOK}, Answer(L"x", QOR_MSG_INFO | QOR_MSG_TOPMOST, 0, IDOK, shown));
    EXPECT_TRUE(shown.topmost);
    EXPECT_EQ(Expect({{IDOK, L"STR_OK"}}), shown.buttons);
}

UINT g_topmostFlags = 0;

BOOL WINAPI RecordTopmost(HWND wnd, HWND after, int x, int y, int cx, int cy, UINT flags)
{
    if (after == HWND_TOPMOST) {
        g_topmostFlags = flags;
    }
    return ::SetWindowPos(wnd, after, x, y, cx, cy, flags);
}

TEST(MsgBox, TopmostBitLeavesPlaceAndSize)
{
    const ts::ReplacedImport hook(L"afx.dll", "SetWindowPos", &RecordTopmost);
    g_topmostFlags = 0;
    Shown shown;
    Answer(L"x", QOR_MSG_INFO | QOR_MSG_TOPMOST, 0, IDOK, shown);
    EXPECT_EQ(static_cast<UINT>(SWP_NOSIZE | SWP_NOMOVE), g_topmostFlags);
}

TEST(MsgBox, UpperBitsOfTheTypeDoNotMatter)
{
    Shown shown;
    EXPECT_EQ(UINT{IDNO}, Answer(L"x", 0xABCD0000 | QOR_MSG_YESNO, 0, IDNO, shown));
    EXPECT_FALSE(shown.topmost);
    EXPECT_EQ(3u, shown.buttons.size());
}

struct Timer
{
    UINT_PTR id;
    UINT time;
};

std::vector<Timer> g_timers;
std::vector<UINT_PTR> g_killed;

UINT_PTR WINAPI RecordTimer(HWND, UINT_PTR id, UINT time, TIMERPROC)
{
    g_timers.push_back({id, time});
    return id;
}

BOOL WINAPI RecordKill(HWND wnd, UINT_PTR id)
{
    g_killed.push_back(id);
    return ::KillTimer(wnd, id);
}

/** The timers that a box of that type sets. */
std::vector<Timer> TimersOf(UINT type)
{
    const ts::ReplacedImport hook(L"afx.dll", "SetTimer", &RecordTimer);
    g_timers.clear();
    Shown shown;
    Answer(L"x", type, 0, IDOK, shown);
    return g_timers;
}

TEST(MsgBox, ClosingTimeIsTheSecondByteInSeconds)
{
    for (const BYTE seconds : {BYTE{1}, BYTE{5}, BYTE{128}, BYTE{255}}) {
        const std::vector<Timer> timers = TimersOf(0xFFFF0000 | QorMsgAutoClose(seconds));
        ASSERT_EQ(1u, timers.size()) << int{seconds};
        EXPECT_EQ(kTimer, timers[0].id);
        EXPECT_EQ(UINT{seconds} * 1000, timers[0].time);
    }
}

TEST(MsgBox, WithoutSecondsThereIsNoTimer)
{
    EXPECT_TRUE(TimersOf(QOR_MSG_ERROR).empty());
    EXPECT_TRUE(TimersOf(QOR_MSG_TOPMOST | QOR_MSG_INFO).empty());
}

TEST(MsgBox, TimerEndsWithTheBox)
{
    const ts::ReplacedImport hook(L"afx.dll", "KillTimer", &RecordKill);
    g_killed.clear();
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_TIMER, kTimer, 0); });
    EXPECT_EQ(QOR_MSG_TIMEOUT, QorMsgBox(L"x", QorMsgAutoClose(100), 0, nullptr));
    EXPECT_EQ(std::vector<UINT_PTR>{kTimer}, g_killed);
}

TEST(MsgBox, ClosesItselfWhenTheTimeIsUp)
{
    const DWORD start = ::GetTickCount();
    EXPECT_EQ(QOR_MSG_TIMEOUT, QorMsgBox(L"x", QorMsgAutoClose(1) | QOR_MSG_INFO, 0, nullptr));
    EXPECT_GE(::GetTickCount() - start, 950u);
}

TEST(MsgBox, AnyTimerMessageEndsItAsTimedOut)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_TIMER, kTimer + 98, 0); });
    EXPECT_EQ(QOR_MSG_TIMEOUT, QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr));
}

TEST(MsgBox, StandsOnItsParentAndDisablesIt)
{
    ts::HostWindow host;
    bool disabled = false;
    HWND owner = nullptr;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND box) {
        disabled = !::IsWindowEnabled(host.Hwnd());
        owner = ::GetWindow(box, GW_OWNER);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    QorMsgBox(L"x", QOR_MSG_INFO, 0, CWnd::FromHandle(host.Hwnd()));
    EXPECT_TRUE(disabled);
    EXPECT_EQ(host.Hwnd(), owner);
    EXPECT_TRUE(::IsWindowEnabled(host.Hwnd()));
}

TEST(MsgBox, HasTheSizeOfItsTemplateWhateverItsText)
{
    ASSERT_TRUE(ts::HasStandardDialogFont());
    for (const CString& text : {CString(L"x"), CString(L'W', 100000)}) {
        CRect client;
        ts::ModalDriver driver;
        driver.InDialog([&client](HWND box) {
            ::GetClientRect(box, client);
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        QorMsgBox(text, QOR_MSG_INFO, 0, nullptr);
        EXPECT_EQ(kBoxSize, client.Size());
    }
}

TEST(MsgBox, ButtonsStandInTheBand)
{
    CRect ok;
    CRect cancel;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND box) {
        CWnd* wnd = CWnd::FromHandle(box);
        QorGetCtrlRect(wnd, IDOK, ok);
        QorGetCtrlRect(wnd, IDCANCEL, cancel);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    QorMsgBox(L"x", QOR_MSG_CONFIRM, 0, nullptr);
    EXPECT_EQ(kBoxSize.cx - 18, cancel.right);
    EXPECT_EQ(cancel.left - 9, ok.right);
    EXPECT_EQ(BandY(kBoxSize.cy), cancel.top);
    EXPECT_EQ(cancel.top, ok.top);
}

TEST(MsgBox, AParentWithoutAWindowIsNone)
{
    CWnd none;
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(UINT{IDCANCEL}, QorMsgBox(L"x", QOR_MSG_INFO, 0, &none));
    EXPECT_TRUE(driver.Finished());
}

/** Opens a second box while the first is idle, answers it with Yes, and then the first with OK. */
class CNestingOwner : public CWnd
{
  public:
    UINT m_inner = 0;

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE) {
            OnIdle(reinterpret_cast<HWND>(lParam));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

  private:
    void OnIdle(HWND box)
    {
        if (m_depth++ == 0) {
            m_inner = QorMsgBox(L"inner", QOR_MSG_YESNO, 0, this);
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        } else if (m_inner == 0) {
            ::PostMessageW(box, WM_COMMAND, IDYES, 0);
        }
    }

    int m_depth = 0;
};

TEST(MsgBox, NestedBoxesAnswerOneByOne)
{
    ts::HostWindow host;
    CNestingOwner owner;
    ASSERT_TRUE(owner.SubclassWindow(host.Hwnd()));
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(L"outer", QOR_MSG_INFO, 0, &owner));
    EXPECT_EQ(UINT{IDYES}, owner.m_inner);
    EXPECT_TRUE(::IsWindowEnabled(host.Hwnd()));
    owner.UnsubclassWindow();
}

TEST(MsgBox, LeavesNothingBehind)
{
    ts::HostWindow host;
    // Closed from the idle message, which comes when everything was painted.
    class COwner : public CWnd
    {
      protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_ENTERIDLE) {
                ::PostMessageW(reinterpret_cast<HWND>(lParam), WM_COMMAND, IDCANCEL, 0);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    COwner owner;
    ASSERT_TRUE(owner.SubclassWindow(host.Hwnd()));
    EXPECT_TRUE(ts::NoLeak([&owner] {
        QorMsgBox(L"x", QOR_MSG_YESNO, 0, &owner);
        QorMsgBox(L"x", QOR_MSG_ERROR, 5, &owner);
    }));
    owner.UnsubclassWindow();
}

} // namespace
