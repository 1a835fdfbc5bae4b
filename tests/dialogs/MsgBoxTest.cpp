#include "TestDialogs.h"

#include <QorApi/QorApi.h>
#include <tests/support/Imports.h>

namespace
{

constexpr int kIcon = 1100;
constexpr int kText = 1101;
constexpr UINT kTopmost = 0x80;

LPCWSTR LibString(LPCWSTR key)
{
    return QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildData(key, 1);
}

CString TextOf(HWND wnd)
{
    CString text;
    ::GetWindowTextW(wnd, text.GetBuffer(1024), 1024);
    text.ReleaseBuffer();
    return text;
}

/** What an open box shows. */
struct Shown
{
    CString caption;
    CString text;
    HICON icon = nullptr;
    bool topmost = false;
    std::vector<std::pair<int, CString>> buttons; // id and text, from left to right
    bool skinned = true;                          // all of the buttons
    int focus = 0;
};

CRect RectOf(HWND ctrl)
{
    CRect rect;
    ::GetWindowRect(ctrl, rect);
    return rect;
}

Shown Look(HWND box)
{
    Shown shown;
    shown.caption = TextOf(box);
    shown.text = TextOf(::GetDlgItem(box, kText));
    shown.icon = reinterpret_cast<HICON>(::SendDlgItemMessageW(box, kIcon, STM_GETICON, 0, 0));
    shown.topmost = (::GetWindowLongW(box, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    shown.focus = ::GetDlgCtrlID(::GetFocus());
    std::map<int, HWND> byLeft;
    for (int id = IDOK; id <= IDNO; ++id) {
        const HWND button = ::GetDlgItem(box, id);
        if (button && ::IsWindowVisible(button)) {
            byLeft[RectOf(button).left] = button;
        }
    }
    for (const auto& [left, button] : byLeft) {
        shown.buttons.emplace_back(::GetDlgCtrlID(button), TextOf(button));
        shown.skinned = shown.skinned && (::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW;
    }
    return shown;
}

/** Keeps what the box shows that comes up next, and presses OK. */
void LookAndPressOk(ts::ModalDriver& driver, Shown& shown)
{
    driver.InDialog([&shown](HWND box) {
        shown = Look(box);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
}

/** Opens a box, looks at it, and answers with the button of that id. */
UINT Answer(LPCWSTR text, UINT type, DWORD error, int button, Shown& shown)
{
    ts::ModalDriver driver;
    driver.InDialog([&shown, button](HWND box) {
        shown = Look(box);
        ts::Click(::GetDlgItem(box, button));
    });
    const UINT result = QorMsgBox(text, type, error, nullptr);
    EXPECT_TRUE(driver.Finished());
    return result;
}

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
    const CInitDialogAnswers answers;
    Shown shown;
    EXPECT_EQ(1u, Answer(L"What happened", kind.kind, 0, IDOK, shown));
    EXPECT_STREQ(QorGetString(kind.captionKey), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, kind.icon), shown.icon);
    EXPECT_STREQ(L"What happened", shown.text);
    EXPECT_EQ(Expect({{IDOK, L"STR_OK"}}), shown.buttons);
    EXPECT_EQ(IDOK, shown.focus);
    EXPECT_EQ(std::vector<LRESULT>{TRUE}, answers.Answers());
    EXPECT_FALSE(shown.topmost);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SingleButtonBox,
                         testing::Values(KindCase{0, L"STR_ERROR", IDI_HAND}, KindCase{1, L"STR_WARN", IDI_EXCLAMATION},
                                         KindCase{2, L"STR_INFO", IDI_ASTERISK}, KindCase{9, L"STR_INFO", IDI_ASTERISK},
                                         KindCase{6, L"STR_INFO", IDI_ASTERISK},
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
    EXPECT_EQ(1u, Answer(L"Really?", QOR_MSG_CONFIRM, 0, IDOK, shown));
    EXPECT_EQ(Expect({{IDOK, L"STR_OK"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(2u, Answer(L"Really?", QOR_MSG_CONFIRM, 0, IDCANCEL, shown));
}

TEST(MsgBox, RetryHasRetryIgnoreAndCancel)
{
    Shown shown;
    EXPECT_EQ(4u, Answer(L"Busy", QOR_MSG_RETRY, 0, IDRETRY, shown));
    EXPECT_EQ(Expect({{IDRETRY, L"STR_RETRY"}, {IDIGNORE, L"STR_IGNORE"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_TRUE(shown.skinned);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(IDIGNORE, shown.focus);
    EXPECT_EQ(5u, Answer(L"Busy", QOR_MSG_RETRY, 0, IDIGNORE, shown));
    EXPECT_EQ(2u, Answer(L"Busy", QOR_MSG_RETRY, 0, IDCANCEL, shown));
}

TEST(MsgBox, YesNoHasYesNoAndCancel)
{
    Shown shown;
    EXPECT_EQ(6u, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDYES, shown));
    EXPECT_EQ(Expect({{IDYES, L"STR_YES"}, {IDNO, L"STR_NO"}, {IDCANCEL, L"STR_CANCEL"}}), shown.buttons);
    EXPECT_TRUE(shown.skinned);
    EXPECT_STREQ(QorGetString(L"STR_CONFIRM"), shown.caption);
    EXPECT_EQ(::LoadIconW(nullptr, IDI_QUESTION), shown.icon);
    EXPECT_EQ(IDNO, shown.focus);
    EXPECT_EQ(7u, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDNO, shown));
    EXPECT_EQ(2u, Answer(L"Go on?", QOR_MSG_YESNO, 0, IDCANCEL, shown));
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
    EXPECT_EQ(2u, Answer(L"Go on?", QOR_MSG_YESNO, 0, 1003, shown));
}

TEST(MsgBox, EscapeAnswersCancelAlsoWithOneButton)
{
    for (const UINT kind : {QOR_MSG_ERROR, QOR_MSG_INFO, QOR_MSG_CONFIRM, QOR_MSG_YESNO}) {
        ts::ModalDriver driver;
        driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
        EXPECT_EQ(2u, QorMsgBox(L"x", kind, 0, nullptr)) << kind;
    }
}

TEST(MsgBox, SystemMenuCloseAnswersCancel)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); });
    EXPECT_EQ(2u, QorMsgBox(L"x", QOR_MSG_WARNING, 0, nullptr));
}

TEST(MsgBox, EnterPressesTheFocusedButton)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(7u, QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr));
    driver.InDialog([](HWND) { ts::Key(VK_TAB); }).InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(2u, QorMsgBox(L"x", QOR_MSG_YESNO, 0, nullptr));
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
    EXPECT_EQ(1u, Answer(L"x", QOR_MSG_INFO | kTopmost, 0, IDOK, shown));
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
    Answer(L"x", QOR_MSG_INFO | kTopmost, 0, IDOK, shown);
    EXPECT_EQ(static_cast<UINT>(SWP_NOSIZE | SWP_NOMOVE), g_topmostFlags);
}

TEST(MsgBox, UpperBitsOfTheTypeDoNotMatter)
{
    Shown shown;
    EXPECT_EQ(7u, Answer(L"x", 0xABCD0005, 0, IDNO, shown));
    EXPECT_FALSE(shown.topmost);
    EXPECT_EQ(3u, shown.buttons.size());
}

TEST(MsgBox, EmptyErrorTextSaysThatTheOperationFailed)
{
    Shown shown;
    Answer(L"", 0, 0, IDOK, shown);
    EXPECT_STREQ(LibString(L"STR_OPERATE_FAIL"), shown.text);
    Answer(nullptr, 0, 0, IDOK, shown);
    EXPECT_STREQ(LibString(L"STR_OPERATE_FAIL"), shown.text);
}

TEST(MsgBox, EmptyTextStaysEmptyForEveryOtherType)
{
    Shown shown;
    Answer(L"", kTopmost, 0, IDOK, shown);
    EXPECT_STREQ(L"", shown.text);
    Answer(L"", QOR_MSG_WARNING, 0, IDOK, shown);
    EXPECT_STREQ(L"", shown.text);
}

CString WithCode(LPCWSTR text, DWORD code)
{
    CString whole(text);
    whole.AppendFormat(L"\r\n%s: %s", QorGetString(L"STR_ERROR"), QorFormatMsg(code).GetString());
    return whole;
}

TEST(MsgBox, AppendsTheTextOfTheErrorCode)
{
    Shown shown;
    Answer(L"It failed", 0, ERROR_ACCESS_DENIED, IDOK, shown);
    EXPECT_STREQ(WithCode(L"It failed", ERROR_ACCESS_DENIED), shown.text);
}

TEST(MsgBox, AppendsTheTextOfAnHresult)
{
    Shown shown;
    Answer(L"It failed", 0, static_cast<DWORD>(E_INVALIDARG), IDOK, shown);
    EXPECT_STREQ(WithCode(L"It failed", static_cast<DWORD>(E_INVALIDARG)), shown.text);
}

TEST(MsgBox, AllOnesStandForTheLastError)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    QorMsgBox(L"It failed", 0, 0xFFFFFFFF, nullptr);
    EXPECT_STREQ(WithCode(L"It failed", ERROR_FILE_NOT_FOUND), shown.text);
}

TEST(MsgBox, LastErrorIsTheOneAtTheTimeOfTheCall)
{
    // Texts that are looked for in vain change the last error.
    const ts::TempFolder folder;
    const ts::EnvironmentVariable texts(L"QOR_LANG_DIR", folder.Path().c_str());
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_CRC);
    QorMsgBox(L"", 0, 0xFFFFFFFF, nullptr);
    EXPECT_STREQ(WithCode(L"STR_OPERATE_FAIL", ERROR_CRC), shown.text);
}

TEST(MsgBox, LastErrorOfZeroAppendsNothing)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(0);
    QorMsgBox(L"Plain", 0, 0xFFFFFFFF, nullptr);
    EXPECT_STREQ(L"Plain", shown.text);
}

TEST(MsgBox, FormattedBoxTakesTheLastErrorToo)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    QorMsgBox(QOR_MSG_ERROR, 0xFFFFFFFF, L"It %s", L"failed");
    EXPECT_STREQ(WithCode(L"It failed", ERROR_FILE_NOT_FOUND), shown.text);
}

TEST(MsgBox, FormattedBoxWithoutAFormatIsEmpty)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    EXPECT_EQ(1u, QorMsgBox(QOR_MSG_INFO, 0, nullptr));
    EXPECT_STREQ(L"", shown.text);
}

TEST(MsgBox, FormatsItsText)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    EXPECT_EQ(1u, QorMsgBox(QOR_MSG_INFO, 0, L"%s %d%%", L"free", 12));
    EXPECT_STREQ(L"free 12%", shown.text);
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
    for (const UINT seconds : {1u, 5u, 128u, 255u}) {
        const std::vector<Timer> timers = TimersOf(0xFFFF0000 | seconds << 8);
        ASSERT_EQ(1u, timers.size()) << seconds;
        EXPECT_EQ(1u, timers[0].id);
        EXPECT_EQ(seconds * 1000, timers[0].time);
    }
}

TEST(MsgBox, WithoutSecondsThereIsNoTimer)
{
    EXPECT_TRUE(TimersOf(0).empty());
    EXPECT_TRUE(TimersOf(kTopmost | QOR_MSG_INFO).empty());
}

TEST(MsgBox, TimerEndsWithTheBox)
{
    const ts::ReplacedImport hook(L"afx.dll", "KillTimer", &RecordKill);
    g_killed.clear();
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_TIMER, 1, 0); });
    EXPECT_EQ(32000u, QorMsgBox(L"x", 0x6400, 0, nullptr));
    EXPECT_EQ(std::vector<UINT_PTR>{1}, g_killed);
}

TEST(MsgBox, ClosesItselfWhenTheTimeIsUp)
{
    const DWORD start = ::GetTickCount();
    EXPECT_EQ(32000u, QorMsgBox(L"x", 0x0102, 0, nullptr));
    EXPECT_GE(::GetTickCount() - start, 950u);
}

TEST(MsgBox, AnyTimerMessageEndsItAsTimedOut)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND box) { ::PostMessageW(box, WM_TIMER, 99, 0); });
    EXPECT_EQ(32000u, QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr));
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
        EXPECT_EQ(CSize(398, 197), client.Size());
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
    EXPECT_EQ(398 - 18, cancel.right);
    EXPECT_EQ(cancel.left - 9, ok.right);
    EXPECT_EQ(197 - 49 + (40 - 21) / 2 + 1, cancel.top);
    EXPECT_EQ(cancel.top, ok.top);
}

TEST(MsgBox, ComesFromTheLibraryThoughTheHostHasADialogOfThatNumber)
{
    ASSERT_NE(nullptr, ::FindResourceW(nullptr, MAKEINTRESOURCEW(IDD_OF_THE_HOST), RT_DIALOG));
    Shown shown;
    EXPECT_EQ(1u, Answer(L"What happened", QOR_MSG_INFO, 0, IDOK, shown));
    EXPECT_STREQ(L"What happened", shown.text);
}

TEST(MsgBox, AParentWithoutAWindowIsNone)
{
    CWnd none;
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(2u, QorMsgBox(L"x", QOR_MSG_INFO, 0, &none));
    EXPECT_TRUE(driver.Finished());
}

TEST(MsgBox, ResourcesComeFromTheHostWhileItIsOpenAndAfterwards)
{
    const HINSTANCE host = ::GetModuleHandleW(nullptr);
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"kernel32.dll");
    HINSTANCE during = nullptr;
    ts::ModalDriver driver;
    driver.InDialog([&during](HWND box) {
        during = AfxGetModuleState()->m_hCurrentResourceHandle;
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    QorMsgBox(L"x", QOR_MSG_INFO, 0, nullptr);
    EXPECT_EQ(host, during);
    EXPECT_EQ(host, AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
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
    EXPECT_EQ(1u, QorMsgBox(L"outer", QOR_MSG_INFO, 0, &owner));
    EXPECT_EQ(6u, owner.m_inner);
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
