#include <tests/hosts/PagesFixture.h>
#include <tests/support/Imports.h>

#include <algorithm>
#include <ranges>
#include <string>
#include <vector>

namespace
{

// What holds on every page

class EveryPage : public Pages, public testing::WithParamInterface<const wchar_t*>
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(GetParam());
    }

    /** The page's controls that Tab has to stop at, in its order. */
    std::vector<HWND> TabStops()
    {
        constexpr LONG_PTR wanted = WS_TABSTOP | WS_VISIBLE;
        std::vector<HWND> stops;
        HWND child = ::GetWindow(*m_frame.CurrentPage(), GW_CHILD);
        for (; child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            if ((::GetWindowLongPtrW(child, GWL_STYLE) & (wanted | WS_DISABLED)) == wanted) {
                stops.push_back(child);
            }
        }
        return stops;
    }

    /** The page's controls that have the focus one after the other until it is in the list of pages again. */
    std::vector<HWND> Round(bool back)
    {
        std::vector<HWND> stops;
        for (int i = 0; i < kMostTabStops; ++i) {
            if (back) {
                ts::Chord({VK_SHIFT, VK_TAB});
            } else {
                ts::Key(VK_TAB);
            }
            const HWND control = FocusedControl();
            if (control == PageList()) {
                return stops;
            }
            if (::GetParent(control) == *m_frame.CurrentPage()) {
                stops.push_back(control);
            }
        }
        ADD_FAILURE() << "the focus does not come back to the list of pages";
        return stops;
    }

    /** What a failure shows of controls. */
    static std::vector<std::string> Names(const std::vector<HWND>& controls)
    {
        std::vector<std::string> names;
        names.reserve(controls.size());
        for (const HWND control : controls) {
            names.push_back(std::to_string(::GetDlgCtrlID(control)) + " " + ts::ToUtf8(TextOf(control).GetString()));
        }
        return names;
    }
};

TEST_P(EveryPage, TabGoesOnceToEveryControlAndShiftTabBack)
{
    std::vector<HWND> stops = TabStops();
    EXPECT_FALSE(stops.empty());
    EXPECT_EQ(Names(stops), Names(Round(false)));
    std::ranges::reverse(stops);
    EXPECT_EQ(Names(stops), Names(Round(true)));
}

TEST_P(EveryPage, IsLeftFromItsLastControlByKeyboard)
{
    for (int i = 0; i < kMostTabStops && ::GetParent(FocusedControl()) != *m_frame.CurrentPage(); ++i) {
        ts::Chord({VK_SHIFT, VK_TAB}); // past the buttons of the title
    }
    for (int i = 0; i < kMostTabStops && FocusedControl() != PageList(); ++i) {
        ts::Key(VK_TAB);
    }
    const HWND page = *m_frame.CurrentPage();
    const auto index = ::SendMessageW(PageList(), LB_GETCURSEL, 0, 0);
    ts::Key(index == 0 ? VK_DOWN : VK_UP);
    EXPECT_FALSE(::IsWindow(page));
    EXPECT_EQ(index == 0 ? 1 : index - 1, ::SendMessageW(PageList(), LB_GETCURSEL, 0, 0));
    EXPECT_EQ(PageList(), ::GetFocus());
}

std::vector<const wchar_t*> PageNames()
{
    std::vector<const wchar_t*> names;
    for (const PageInfo& page : AllPages()) {
        names.push_back(page.name);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Console, EveryPage, testing::ValuesIn(PageNames()),
                         [](const auto& page) { return ts::ToUtf8(page.param); });

// Buttons

class ButtonsPage : public Pages
{
  protected:
    static constexpr UINT kPush = 2201;
    static constexpr UINT kCommand = 2202;
    static constexpr UINT kCheck = 2203;
    static constexpr UINT kFirstRadio = 2204;
    static constexpr UINT kLastRadio = 2206;
    static constexpr UINT kBitmap = 2207;
    static constexpr UINT kResult = 2208;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"buttons");
    }

    void ExpectClick(const wchar_t* name)
    {
        CString text;
        text.Format(L"%s: click number %d", name, ++m_clicks);
        EXPECT_STREQ(text, Text(kResult));
    }

    bool IsChecked(UINT id) { return ::SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    int m_clicks = 0;
};

TEST_F(ButtonsPage, SpaceAndEnterPressEveryKind)
{
    struct
    {
        UINT id;
        const wchar_t* name;
    } const buttons[] = {
        {kPush, L"Press me"}, {kCommand, L"Take a snapshot"}, {kCheck, L"Check me"}, {kBitmap, L"Bitmap"}};
    for (const auto& button : buttons) {
        Press(button.id, VK_SPACE);
        ExpectClick(button.name);
        EXPECT_EQ(button.id == kCheck, IsChecked(kCheck));
        ts::Key(VK_RETURN);
        ExpectClick(button.name);
        EXPECT_FALSE(IsChecked(kCheck));
    }
}

TEST_F(ButtonsPage, ArrowKeysChooseAmongTheRadioButtons)
{
    ASSERT_TRUE(TabTo(kFirstRadio));
    m_clicks = 0;
    for (const UINT id : {kFirstRadio + 1, kLastRadio, kFirstRadio}) {
        ts::Key(VK_DOWN);
        EXPECT_EQ(Control(id), ::GetFocus());
        for (UINT other = kFirstRadio; other <= kLastRadio; ++other) {
            EXPECT_EQ(other == id, IsChecked(other)) << id << ' ' << other;
        }
    }
    EXPECT_STREQ(L"Choice 1", TextOf(::GetFocus()));
    ts::Key(VK_UP);
    EXPECT_TRUE(IsChecked(kLastRadio));
}

TEST_F(ButtonsPage, SamplesOfFocusedCheckAndRadioButtonsLookFocused)
{
    constexpr int normal = 100;
    constexpr int focused = 548;
    const ts::Picture page = ts::CaptureWindow(*m_frame.CurrentPage());
    for (const int top : {96, 122, 148, 174}) {
        EXPECT_FALSE(ts::SamePicture(page.Crop(CRect(normal, top, normal + 100, top + 18)),
                                     page.Crop(CRect(focused, top, focused + 100, top + 18))))
            << top;
    }
}

TEST_F(ButtonsPage, CommandButtonsHaveASampleOfEachLook)
{
    constexpr COLORREF hotFill = RGB(229, 244, 252);
    std::vector<HWND> samples;
    std::vector<bool> hot;
    for (const LONG x : {96, 274, 452, 630}) {
        samples.push_back(::ChildWindowFromPoint(*m_frame.CurrentPage(), {x, 318}));
        hot.push_back(ts::CaptureWindow(samples.back()).Count(hotFill) > 1000);
    }
    EXPECT_EQ((std::vector<bool>{false, true, false, false}), hot);
    EXPECT_FALSE(::IsWindowEnabled(samples[2]));
}

// Links

std::vector<std::wstring> g_opened;

HINSTANCE WINAPI TakeOpening(HWND, LPCWSTR, LPCWSTR file, LPCWSTR, LPCWSTR, INT)
{
    g_opened.emplace_back(file);
    return reinterpret_cast<HINSTANCE>(33);
}

class LinksPage : public Pages
{
  protected:
    static constexpr UINT kAddress = 3001;
    static constexpr UINT kSet = 3002;
    static constexpr UINT kOpen = 3003;
    static constexpr UINT kLink = 3004;
    static constexpr UINT kUnderlined = 3005;
    static constexpr UINT kVisited = 3006;
    static constexpr UINT kAutoSize = 3007;
    static constexpr UINT kResult = 3009;
    static constexpr UINT kClickLabel = 3010;

    void SetUp() override
    {
        Pages::SetUp();
        g_opened.clear();
        Show(L"links");
    }

    bool LinkShows(COLORREF colour)
    {
        ::UpdateWindow(Control(kLink));
        return ts::CaptureWindow(Control(kLink)).Count(colour) > 0;
    }

    int LinkWidth()
    {
        CRect rect;
        ::GetWindowRect(Control(kLink), rect);
        return rect.Width();
    }
};

TEST_F(LinksPage, AddressIsTypedAndOpened)
{
    const ts::ReplacedFunction opening(L"shell32.dll", "ShellExecuteW", &TakeOpening);
    TypeInto(kAddress, L"http://other.example");
    Press(kOpen, VK_SPACE);
    Press(kSet, VK_RETURN);
    Press(kOpen, VK_RETURN);
    EXPECT_EQ((std::vector<std::wstring>{L"http://www.example.org/help", L"http://other.example"}), g_opened);
}

TEST_F(LinksPage, ChoicesChangeTheLink)
{
    constexpr COLORREF visited = RGB(85, 26, 139);
    EXPECT_FALSE(LinkShows(visited));
    Press(kVisited, VK_SPACE);
    EXPECT_TRUE(LinkShows(visited));
    const ts::Picture plain = ts::CaptureWindow(Control(kLink));
    Press(kUnderlined, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(plain, ts::CaptureWindow(Control(kLink))));
    const int fitted = LinkWidth();
    Press(kAutoSize, VK_SPACE);
    EXPECT_GT(LinkWidth(), fitted);
    ts::Key(VK_SPACE);
    EXPECT_EQ(fitted, LinkWidth());
}

TEST_F(LinksPage, VisitedLinkIsPaintedWithWhatIsUnderIt)
{
    constexpr COLORREF trace = RGB(255, 0, 255);
    ASSERT_TRUE(TabTo(kVisited));
    {
        CClientDC dc(CWnd::FromHandle(Control(kLink)));
        dc.FillSolidRect(CRect(0, 0, 4, 4), trace);
    }
    ASSERT_TRUE(LinkShows(trace));
    ts::Key(VK_SPACE);
    EXPECT_FALSE(LinkShows(trace));
}

TEST_F(LinksPage, AButtonClicksTheLabel)
{
    Press(kClickLabel, VK_SPACE);
    EXPECT_STREQ(L"Click this label: click number 1", Text(kResult));
}

// Layout

class LayoutPage : public Pages
{
  protected:
    static constexpr UINT kOpen = 2301;
    static constexpr UINT kResult = 2302;
    static constexpr int kStatus = 2130; // of the dialog

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"layout");
    }

    static CString StatusOf(HWND dialog) { return TextOf(::GetDlgItem(dialog, kStatus)); }
};

TEST_F(LayoutPage, DialogOpensAndClosesByKeyboard)
{
    ts::ModalDriver escape;
    escape.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    Press(kOpen, VK_SPACE);
    EXPECT_TRUE(escape.Finished());
    EXPECT_STREQ(L"Result: 2", Text(kResult));
    EXPECT_EQ(Control(kOpen), ::GetFocus());
    ts::ModalDriver accept;
    accept.InDialog([](HWND) { ts::Chord({VK_SHIFT, VK_TAB}); }).InDialog([](HWND) { ts::Chord({VK_SHIFT, VK_TAB}); });
    accept.InDialog([](HWND) { ts::Key(VK_RETURN); }); // on OK
    Press(kOpen, VK_RETURN);
    EXPECT_TRUE(accept.Finished());
    EXPECT_STREQ(L"Result: 1", Text(kResult));
    EXPECT_EQ(Control(kOpen), ::GetFocus());
}

TEST_F(LayoutPage, DialogIsWorkedByKeyboard)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Chord({VK_MENU, 'S'}); });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is hidden.", StatusOf(dialog));
        ts::Key(VK_SPACE); // the button has the focus now
    });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is shown.", StatusOf(dialog));
        ts::Key(VK_TAB);
    });
    driver.InDialog([](HWND) { ts::Key(VK_SPACE); });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is disabled.", StatusOf(dialog));
        ts::Key(VK_ESCAPE);
    });
    Press(kOpen, VK_SPACE);
    EXPECT_TRUE(driver.Finished());
}

// Messages

class MessagesPage : public Pages
{
  protected:
    static constexpr UINT kText = 2401;
    static constexpr UINT kFirstKind = 2402;
    static constexpr UINT kErrorCode = 2410;
    static constexpr UINT kShow = 2411;
    static constexpr UINT kResult = 2412;
    static constexpr int kBoxText = 1101;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"messages");
    }

    /** Opens the box and presses keys in it. @return the text that it showed. */
    CString Answer(WORD open, const std::vector<WORD>& keys)
    {
        ts::ModalDriver driver;
        CString text;
        for (const WORD key : keys) {
            driver.InDialog([&text, key](HWND box) {
                text = TextOf(::GetDlgItem(box, kBoxText));
                ts::Key(key);
            });
        }
        Press(kShow, open);
        EXPECT_TRUE(driver.Finished());
        return text;
    }
};

TEST_F(MessagesPage, BoxShowsTheTypedTextAndTheErrorCode)
{
    TypeInto(kText, L"Typed");
    EXPECT_STREQ(L"Typed", Answer(VK_RETURN, {VK_RETURN}));
    EXPECT_STREQ(L"Result: 1", Text(kResult));
    Press(kErrorCode, VK_SPACE);
    const CString text = Answer(VK_SPACE, {VK_ESCAPE});
    EXPECT_EQ(0, text.Find(L"Typed"));
    EXPECT_GT(text.GetLength(), 5);
    EXPECT_EQ(Control(kShow), ::GetFocus());
}

TEST_F(MessagesPage, EveryButtonOfABoxIsReachedByKeyboard)
{
    Press(kFirstKind, VK_UP); // round to the last: yes, no, cancel
    struct
    {
        std::vector<WORD> keys;
        const wchar_t* result;
    } const answers[] = {{{VK_RETURN}, L"Result: 7"},
                         {{VK_TAB, VK_TAB, VK_SPACE}, L"Result: 6"},
                         {{VK_TAB, VK_SPACE}, L"Result: 2"},
                         {{VK_ESCAPE}, L"Result: 2"}};
    for (const auto& [keys, result] : answers) {
        Answer(VK_SPACE, keys);
        EXPECT_STREQ(result, Text(kResult));
    }
}

// Drawing

TEST_F(Pages, KeysChangeTheDrawnShare)
{
    constexpr UINT less = 2501;
    constexpr UINT more = 2502;
    Show(L"drawing");
    const auto pie = [this] { return ts::CaptureWindow(*m_frame.CurrentPage()).Crop(CRect(0, 168, 190, 270)); };
    const ts::Picture before = pie();
    Press(more, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(before, pie()));
    Press(less, VK_RETURN);
    EXPECT_TRUE(ts::SamePicture(before, pie()));
}

// Account

class AccountPage : public Pages
{
  protected:
    static constexpr UINT kName = 2601;
    static constexpr UINT kPassword = 2602;
    static constexpr UINT kLogon = 2603;
    static constexpr UINT kLogoff = 2604;
    static constexpr UINT kUser = 2605;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"account");
    }

    void TearDown() override
    {
        QorLogoff();
        Pages::TearDown();
    }
};

TEST_F(AccountPage, LogsOnAndOffByKeyboard)
{
    Press(kLogon, VK_RETURN); // the account of the fresh store has no password
    EXPECT_EQ(0, Text(kUser).Find(L"Logged on: Administrator"));
    Press(kLogoff, VK_SPACE);
    EXPECT_STREQ(L"Nobody is logged on.", Text(kUser));
}

TEST_F(AccountPage, AWrongPasswordIsRefusedInABox)
{
    TypeInto(kPassword, L"wrong");
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    Press(kLogon, VK_SPACE);
    EXPECT_TRUE(driver.Finished());
    EXPECT_STREQ(L"Nobody is logged on.", Text(kUser));
    EXPECT_EQ(Control(kLogon), ::GetFocus());
    Press(kPassword, VK_DELETE);
    Press(kLogon, VK_SPACE);
    EXPECT_STRNE(L"Nobody is logged on.", Text(kUser));
}

// Edit controls

class EditsPage : public Pages
{
  protected:
    static constexpr UINT kPlain = 2701;
    static constexpr UINT kName = 2702;
    static constexpr UINT kNameState = 2703;
    static constexpr UINT kSecret = 2704;
    static constexpr UINT kHours = 2705;
    static constexpr UINT kDays = 2706;
    static constexpr UINT kNumber = 2707;
    static constexpr UINT kNumbers = 2708;
    static constexpr UINT kLog = 2709;
    static constexpr UINT kAddLine = 2710;
    static constexpr UINT kAddWarning = 2711;
    static constexpr UINT kAddLink = 2712;
    static constexpr UINT kClear = 2713;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"edits");
    }

    bool LogHas(const wchar_t* line) { return Text(kLog).Find(line) >= 0; }
};

TEST_F(EditsPage, TextsAreTypedAndCharactersRefused)
{
    TypeInto(kPlain, L"some text");
    EXPECT_STREQ(L"some text", Text(kPlain));
    TypeInto(kName, L"a:");
    EXPECT_STREQ(L"The name has a refused character.", Text(kNameState));
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"The name is valid.", Text(kNameState));
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"The name is empty.", Text(kNameState));
    TypeInto(kSecret, L"word");
    EXPECT_STREQ(L"word", Text(kSecret));
}

TEST_F(EditsPage, NumbersAreTypedIntoTheirRange)
{
    TypeInto(kHours, L"99");
    EXPECT_STREQ(L"Hours 23, days 7, number 0", Text(kNumbers));
    TypeInto(kDays, L"6");
    EXPECT_STREQ(L"Hours 23, days 6, number 0", Text(kNumbers));
    TypeInto(kNumber, L"42");
    EXPECT_STREQ(L"Hours 23, days 6, number 42", Text(kNumbers));
    EXPECT_FALSE(LogHas(L"You entered"));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(LogHas(L"You entered 42."));
}

TEST_F(EditsPage, LinesAreAddedReadAndCleared)
{
    Press(kAddLine, VK_RETURN);
    Press(kAddWarning, VK_SPACE);
    EXPECT_TRUE(LogHas(L"3. A snapshot was taken."));
    EXPECT_TRUE(LogHas(L"4. The disk is nearly full."));
    const int length = Text(kLog).GetLength();
    Press(kAddLink, VK_RETURN);
    EXPECT_GT(Text(kLog).GetLength(), length);
    ASSERT_TRUE(TabTo(kLog));
    ts::Chord({VK_CONTROL, VK_HOME});
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, ::SendMessageW(Control(kLog), EM_LINEFROMCHAR, static_cast<WPARAM>(-1), 0));
    Press(kClear, VK_SPACE);
    EXPECT_STREQ(L"", Text(kLog));
}

// Pickers and list boxes

class PickersPage : public Pages
{
  protected:
    static constexpr UINT kKind = 2801;
    static constexpr UINT kKindData = 2802;
    static constexpr UINT kFree = 2804;
    static constexpr UINT kHotKey = 2805;
    static constexpr UINT kDate = 2806;
    static constexpr UINT kTime = 2807;
    static constexpr UINT kAddress = 2808;
    static constexpr UINT kSearch = 2809;
    static constexpr UINT kTexts = 2810;
    static constexpr UINT kChecks = 2811;
    static constexpr UINT kDrag = 2812;
    static constexpr UINT kDragOn = 2813;
    static constexpr UINT kAdd = 2814;
    static constexpr UINT kDelete = 2815;
    static constexpr UINT kChecked = 2816;
    static constexpr UINT kUp = 2817;
    static constexpr UINT kDown = 2818;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"pickers");
    }

    /** The texts of the list with items to move, the selected one in brackets. */
    std::wstring Items()
    {
        auto& list = ControlAs<CDragLB>(kDrag);
        std::wstring items;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            items += list.GetCurSel() == i ? L"[" + std::wstring(text) + L"]" : std::wstring(text);
            items += L'|';
        }
        return items;
    }

    LRESULT Ask(UINT id, UINT message) { return ::SendMessageW(Control(id), message, 0, 0); }

    SYSTEMTIME Time(UINT id)
    {
        SYSTEMTIME time = {};
        ::SendMessageW(Control(id), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        return time;
    }

    DWORD Address()
    {
        DWORD address = 0;
        ::SendMessageW(Control(kAddress), IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&address));
        return address;
    }
};

TEST_F(PickersPage, CombosAreChosenFromAndDroppedDown)
{
    Press(kKind, VK_DOWN);
    EXPECT_STREQ(L"Its item data: 200", Text(kKindData));
    ts::Key(VK_F4);
    EXPECT_TRUE(Ask(kKind, CB_GETDROPPEDSTATE));
    ts::Key(VK_DOWN);
    ts::Key(VK_RETURN);
    EXPECT_FALSE(Ask(kKind, CB_GETDROPPEDSTATE));
    EXPECT_STREQ(L"Its item data: 300", Text(kKindData));
    ts::Chord({VK_MENU, VK_DOWN});
    EXPECT_TRUE(Ask(kKind, CB_GETDROPPEDSTATE));
    ts::Chord({VK_MENU, VK_UP});
    EXPECT_FALSE(Ask(kKind, CB_GETDROPPEDSTATE));
    TypeInto(kFree, L"Never");
    EXPECT_STREQ(L"Never", Text(kFree));
    ts::Key(VK_UP);
    EXPECT_NE(CB_ERR, Ask(kFree, CB_GETCURSEL));
}

TEST_F(PickersPage, PickersTakeKeys)
{
    ASSERT_TRUE(TabTo(kHotKey));
    ts::Chord({VK_CONTROL, VK_SHIFT, 'K'});
    EXPECT_EQ(MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_SHIFT), Ask(kHotKey, HKM_GETHOTKEY));
    Press(kDate, VK_RIGHT); // the system may select no field before
    ts::Key(VK_UP);
    EXPECT_NE(std::pair(WORD{5}, WORD{17}), std::pair(Time(kDate).wMonth, Time(kDate).wDay));
    ts::Key(VK_DOWN);
    EXPECT_EQ(std::pair(WORD{5}, WORD{17}), std::pair(Time(kDate).wMonth, Time(kDate).wDay));
    Press(kTime, VK_RIGHT);
    ts::Key(VK_UP);
    EXPECT_NE(std::pair(WORD{13}, WORD{30}), std::pair(Time(kTime).wHour, Time(kTime).wMinute));
    TypeInto(kAddress, L"10.1.2.3");
    EXPECT_EQ(static_cast<DWORD>(MAKEIPADDRESS(10, 1, 2, 3)), Address());
}

TEST_F(PickersPage, SearchedTextsAreAddedAndDeleted)
{
    const LRESULT count = Ask(kTexts, LB_GETCOUNT);
    TypeInto(kSearch, L"A new text");
    Press(kAdd, VK_RETURN);
    EXPECT_EQ(count + 1, Ask(kTexts, LB_GETCOUNT));
    EXPECT_EQ(count, Ask(kTexts, LB_GETCURSEL));
    Press(kDelete, VK_SPACE);
    EXPECT_EQ(count, Ask(kTexts, LB_GETCOUNT));
    Press(kTexts, VK_DOWN); // the first key only selects where the caret is
    ts::Key(VK_HOME);
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, Ask(kTexts, LB_GETCURSEL));
}

TEST_F(PickersPage, ItemsAreCheckedByKeyboard)
{
    Press(kChecks, VK_HOME);
    EXPECT_STREQ(L"Checked items: 1", Text(kChecked));
    ts::Key(VK_SPACE);
    EXPECT_STREQ(L"Checked items: 2", Text(kChecked));
    Press(kDrag, VK_DOWN);
    ts::Key(VK_END);
    EXPECT_EQ(3, Ask(kDrag, LB_GETCURSEL));
    Press(kDragOn, VK_SPACE);
    EXPECT_EQ(BST_UNCHECKED, Ask(kDragOn, BM_GETCHECK));
}

TEST_F(PickersPage, ItemsAreMovedByKeyboard)
{
    const std::wstring none = L"Every day|Every week|Every month|At start-up|";
    Press(kUp, VK_SPACE);
    Press(kDown, VK_SPACE);
    EXPECT_EQ(none, Items());
    Press(kDrag, VK_HOME);
    ts::Key(VK_DOWN);
    Press(kUp, VK_SPACE);
    EXPECT_EQ(L"[Every week]|Every day|Every month|At start-up|", Items());
    ts::Key(VK_SPACE); // at the top already
    EXPECT_EQ(L"[Every week]|Every day|Every month|At start-up|", Items());
    Press(kDown, VK_RETURN);
    for (int i = 0; i < 3; ++i) {
        ts::Key(VK_RETURN);
    }
    EXPECT_EQ(L"Every day|Every month|At start-up|[Every week]|", Items());
    ts::Chord({VK_MENU, 'U'});
    EXPECT_EQ(L"Every day|Every month|[Every week]|At start-up|", Items());
}

// Calendar

class CalendarPage : public Pages
{
  protected:
    static constexpr UINT kCalendar = 2601;
    static constexpr UINT kFourMonths = 2603;
    static constexpr UINT kSevenDays = 2607;
    static constexpr UINT kSunday = 2608;
    static constexpr UINT kMarks = 2610;
    static constexpr UINT kEarlier = 2611;
    static constexpr UINT kLater = 2612;
    static constexpr UINT kToday = 2613;
    static constexpr UINT kResult = 2614;
    static constexpr UINT kPrevious = 2615;
    static constexpr UINT kNext = 2616;
    static constexpr UINT kLonger = 2617;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"calendar");
    }

    CSize CalendarSize()
    {
        CRect rect;
        ::GetWindowRect(Control(kCalendar), rect);
        return rect.Size();
    }

    ts::Picture Calendar() { return ts::CaptureWindow(Control(kCalendar)); }

    /** Whether these days of March 2009 are selected, and the page says so. */
    testing::AssertionResult IsSelected(int first, int last)
    {
        COleDateTime end;
        const COleDateTime start = ControlAs<CQorCalendar>(kCalendar).GetSelDate(&end);
        const CString text = L"selected: " + start.Format(VAR_DATEVALUEONLY) + L" to " + end.Format(VAR_DATEVALUEONLY);
        if (start == COleDateTime(2009, 3, first, 0, 0, 0) && end == COleDateTime(2009, 3, last, 0, 0, 0) &&
            Text(kResult).Find(text) >= 0) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << ts::ToUtf8(Text(kResult).GetString());
    }
};

TEST_F(CalendarPage, OptionsAreChosenByKeyboard)
{
    m_frame.CurrentPage()->ShowState(0);
    const CSize four = CalendarSize();
    Press(kFourMonths, VK_UP);
    EXPECT_LT(CalendarSize().cx, four.cx);
    ts::Key(VK_UP); // round to twelve months
    EXPECT_GT(CalendarSize().cx, four.cx);
    EXPECT_GT(CalendarSize().cy, four.cy);
    ts::Picture before = Calendar();
    Press(kSunday, VK_DOWN);
    EXPECT_FALSE(ts::SamePicture(before, Calendar()));
    before = Calendar();
    Press(kMarks, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(before, Calendar()));
    Press(kMarks, VK_RETURN);
    EXPECT_TRUE(ts::SamePicture(before, Calendar()));
}

TEST_F(CalendarPage, DaysAreSelectedByKeyboard)
{
    m_frame.CurrentPage()->ShowState(0);
    EXPECT_TRUE(IsSelected(10, 16));
    Press(kLonger, VK_SPACE);
    EXPECT_TRUE(IsSelected(10, 16)); // seven days are the most
    Press(kNext, VK_RETURN);
    EXPECT_TRUE(IsSelected(11, 17));
    Press(kPrevious, VK_SPACE);
    ts::Key(VK_SPACE);
    EXPECT_TRUE(IsSelected(9, 15));
    Press(kSevenDays, VK_UP); // a single day
    EXPECT_TRUE(IsSelected(9, 9));
    ts::Key(VK_DOWN);
    Press(kLonger, VK_SPACE);
    EXPECT_TRUE(IsSelected(9, 10));
}

TEST_F(CalendarPage, ButtonsPageAndGoToToday)
{
    m_frame.CurrentPage()->ShowState(0);
    Press(kLater, VK_SPACE);
    EXPECT_EQ(0, Text(kResult).Find(L"From July 2009;"));
    Press(kEarlier, VK_RETURN);
    EXPECT_EQ(0, Text(kResult).Find(L"From March 2009;"));
    Press(kToday, VK_SPACE);
    const COleDateTime today = COleDateTime::GetCurrentTime();
    const COleDateTime selected = ControlAs<CQorCalendar>(kCalendar).GetSelDate(nullptr);
    EXPECT_STREQ(today.Format(VAR_DATEVALUEONLY), selected.Format(VAR_DATEVALUEONLY));
    EXPECT_EQ(-1, Text(kResult).Find(L"March 2009"));
}

// Clock

class ClockPage : public Pages
{
  protected:
    static constexpr UINT kClock = 2701;
    static constexpr UINT kHour = 2702;
    static constexpr UINT kMinute = 2703;
    static constexpr UINT kSet = 2704;
    static constexpr UINT kForward = 2705;
    static constexpr UINT kBackward = 2706;
    static constexpr UINT kNow = 2707;
    static constexpr UINT kTime = 2708;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"clock");
    }

    bool Shows(const wchar_t* time)
    {
        CString text;
        text.Format(L"The clock shows %s.", time);
        return ts::PumpUntil([&] { return Text(kTime) == text; });
    }
};

TEST_F(ClockPage, TimeIsTypedAndSet)
{
    TypeInto(kHour, L"7");
    TypeInto(kMinute, L"5");
    Press(kSet, VK_RETURN);
    EXPECT_TRUE(Shows(L"07:05"));
    const ts::Picture before = ts::CaptureWindow(Control(kClock));
    TypeInto(kMinute, L"x35"); // a letter is no digit
    Press(kSet, VK_SPACE);
    EXPECT_TRUE(Shows(L"07:35"));
    EXPECT_FALSE(ts::SamePicture(before, ts::CaptureWindow(Control(kClock))));
}

TEST_F(ClockPage, HandsRunByKeyboard)
{
    TypeInto(kHour, L"7");
    TypeInto(kMinute, L"5");
    Press(kSet, VK_SPACE);
    ASSERT_TRUE(Shows(L"07:05"));
    TypeInto(kMinute, L"25");
    Press(kForward, VK_SPACE);
    EXPECT_TRUE(Shows(L"07:25"));
    TypeInto(kMinute, L"15");
    Press(kBackward, VK_RETURN);
    EXPECT_TRUE(Shows(L"07:15"));
}

TEST_F(ClockPage, HandsRunToTheTimeOfDay)
{
    const auto shown = [] { return COleDateTime::GetCurrentTime().Format(L"The clock shows %H:%M."); };
    const int hour = COleDateTime::GetCurrentTime().GetHour();
    TypeInto(kHour, std::to_wstring((hour + 23) % 24));
    Press(kSet, VK_SPACE);
    const CString before = shown();
    Press(kNow, VK_SPACE);
    const CString after = shown();
    EXPECT_TRUE(ts::PumpUntil([&] { return Text(kTime) == before || Text(kTime) == after; }));
}

} // namespace
