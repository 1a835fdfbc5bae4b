#include "Buttons.h"

#include <QorUI/app/module/Messages.h>
#include <QorUI/buttons/Links.h>
#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>
#include <tests/support/ShellOpenings.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>

namespace
{

constexpr COLORREF kLink = RGB(0, 0, 238);
constexpr COLORREF kVisited = RGB(85, 26, 139);
constexpr COLORREF kBack = RGB(240, 241, 242);
/** Opens, does nothing and ends; without a console, whose window would take the foreground from the next test. */
constexpr wchar_t kProgram[] = L"C:\\windows\\system32\\rundll32.exe";
constexpr wchar_t kMissing[] = L"C:\\no such folder\\no such file.zzz";

CSize Extent(const wchar_t* text, HGDIOBJ font)
{
    CSize size(0, 0);
    ts::Drawn(1, 1, [&](CDC& dc) {
        const HGDIOBJ old = ::SelectObject(dc, font);
        ::GetTextExtentPoint32W(dc, text, static_cast<int>(wcslen(text)), &size);
        ::SelectObject(dc, old);
    });
    return size;
}

class Links : public testing::Test
{
  protected:
    void SetUp() override { ts::ParkMouse(); }

    /** A static control of 150 x 40 at (20, 10), to be taken over before it is shown, as in a dialog. */
    HWND AddStatic(const wchar_t* text, DWORD style)
    {
        const HWND control = ::CreateWindowW(L"STATIC", text, WS_CHILD | style, 20, 10, 150, 40, m_host.m_hWnd,
                                             reinterpret_cast<HMENU>(ts::kControlId), nullptr, nullptr);
        ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
        return control;
    }

    ts::AfxHost m_host{300, 160, WS_OVERLAPPEDWINDOW | WS_VISIBLE, kBack};
};

HCURSOR WINAPI NoCursor(HINSTANCE, LPCWSTR)
{
    return nullptr;
}

/** What a text looks like in a font on the background of the tests. */
ts::Picture TextPicture(CSize size, const wchar_t* text, HGDIOBJ font, COLORREF colour, COLORREF back, UINT format)
{
    return ts::DrawTo(
        size.cx, size.cy,
        [&](HDC dc) {
            const HGDIOBJ old = ::SelectObject(dc, font);
            ::SetTextColor(dc, colour);
            ::SetBkMode(dc, TRANSPARENT);
            RECT rect = {0, 0, size.cx, size.cy};
            ::DrawTextW(dc, text, -1, &rect, format);
            ::SelectObject(dc, old);
        },
        back);
}

constexpr wchar_t kLongText[] = L"A &text that is too long for one line of the control";

/** A link with the text "Text" that opens a program. */
class QorLink : public Links
{
  protected:
    void Take(DWORD style = SS_LEFT, const wchar_t* text = L"Text")
    {
        ASSERT_TRUE(m_link.SubclassWindow(AddStatic(text, style)));
        m_link.ShowWindow(SW_SHOW);
    }

    LOGFONTW Font()
    {
        LOGFONTW font = {};
        ::GetObjectW(reinterpret_cast<HFONT>(m_link.SendMessage(WM_GETFONT)), sizeof(font), &font);
        return font;
    }

    bool Shows(COLORREF colour) { return Look(m_link).Count(colour) > 0; }

    /** Whether a call leaves the link to be painted again, with its background erased. */
    bool Repaints(const std::function<void()>& call)
    {
        ::UpdateWindow(m_link);
        ts::MessageRecorder log(m_link);
        log.RecordOnly({WM_ERASEBKGND, WM_PAINT});
        call();
        ::UpdateWindow(m_link);
        return log.Has(ts::Msg(WM_PAINT)) && log.Has(ts::Msg(WM_ERASEBKGND));
    }

    /** Text that the tooltip shows. */
    std::wstring Tip()
    {
        wchar_t text[300] = L"";
        const HWND tip = FindTip();
        TOOLINFOW tool = {};
        tool.cbSize = sizeof(tool);
        tool.hwnd = m_link.m_hWnd;
        tool.uId = 1;
        tool.lpszText = text;
        ::SendMessageW(tip, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
        return text;
    }

    HWND FindTip()
    {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
            TOOLINFOW tool = {};
            tool.cbSize = sizeof(tool);
            tool.hwnd = m_link.m_hWnd;
            tool.uId = 1;
            DWORD process = 0;
            ::GetWindowThreadProcessId(tip, &process);
            if (process == ::GetCurrentProcessId() &&
                ::SendMessageW(tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool))) {
                return tip;
            }
        }
        return nullptr;
    }

    /** Expects the tooltip's tool to cover the client rectangle. */
    void ExpectTipOverAll()
    {
        TOOLINFOW tool = {};
        tool.cbSize = sizeof(tool);
        tool.hwnd = m_link.m_hWnd;
        tool.uId = 1;
        EXPECT_TRUE(::SendMessageW(FindTip(), TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)));
        CRect client;
        m_link.GetClientRect(&client);
        EXPECT_EQ(client, CRect(tool.rect));
    }

    CQorLink m_link;
};

TEST_F(QorLink, SubclassingMakesItNotify)
{
    Take();
    EXPECT_TRUE(m_link.GetStyle() & SS_NOTIFY);
}

TEST_F(QorLink, WindowTextServesAsUrl)
{
    Take(SS_LEFT, L"http://example.org");
    EXPECT_EQ(L"http://example.org", Tip());
}

TEST_F(QorLink, UrlServesAsWindowText)
{
    m_link.SetURL(L"http://example.org");
    Take(SS_LEFT, L"");
    CString text;
    m_link.GetWindowText(text);
    EXPECT_STREQ(L"http://example.org", text);
    EXPECT_EQ(L"http://example.org", Tip());
}

TEST_F(QorLink, GivenUrlIsKeptBesideTheText)
{
    m_link.SetURL(L"http://example.org");
    Take();
    CString text;
    m_link.GetWindowText(text);
    EXPECT_STREQ(L"Text", text);
    EXPECT_EQ(L"http://example.org", Tip());
}

TEST_F(QorLink, CreatedLinkWorksToo)
{
    m_link.SetURL(L"http://example.org");
    ASSERT_TRUE(m_link.Create(L"Text", WS_CHILD | WS_VISIBLE, CRect(20, 10, 170, 50), &m_host, ts::kControlId));
    EXPECT_TRUE(m_link.GetStyle() & SS_NOTIFY);
    EXPECT_EQ(L"http://example.org", Tip());
    CString text;
    m_link.GetWindowText(text);
    EXPECT_STREQ(L"Text", text);
    EXPECT_TRUE(Shows(kLink));
    ts::MoveMouse(m_link, 4, 4);
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST_F(QorLink, SetUrlChangesTheTooltip)
{
    Take();
    m_link.SetURL(L"http://other.example.org");
    EXPECT_EQ(L"http://other.example.org", Tip());
}

TEST_F(QorLink, TooltipHasOneToolOverTheClientRectangle)
{
    Take();
    ASSERT_NE(nullptr, FindTip());
    EXPECT_EQ(1, ::SendMessageW(FindTip(), TTM_GETTOOLCOUNT, 0, 0));
    ExpectTipOverAll();
}

TEST_F(QorLink, ToolFollowsTheSize)
{
    m_link.SetAutoSize(FALSE);
    Take();
    m_link.SetAutoSize(TRUE);
    ExpectTipOverAll();
    m_link.SetWindowText(L"A longer text");
    m_link.SetURL(L"x");
    ExpectTipOverAll();
    m_link.MoveWindow(CRect(5, 5, 205, 65));
    ExpectTipOverAll();
}

TEST_F(QorLink, StartsUnvisitedAndNotUnderlined)
{
    Take();
    EXPECT_TRUE(Shows(kLink));
    EXPECT_FALSE(Font().lfUnderline);
}

TEST_F(QorLink, TextThatIsOnTheScreenAlreadyGetsTheLinksColour)
{
    const HWND control = AddStatic(L"Text", SS_LEFT);
    ::ShowWindow(control, SW_SHOW);
    ::UpdateWindow(control);
    ASSERT_TRUE(m_link.SubclassWindow(control));
    EXPECT_TRUE(Shows(kLink));
}

TEST_F(QorLink, VisitedLinkHasItsColour)
{
    Take();
    m_link.SetVisited(TRUE);
    m_link.Invalidate();
    EXPECT_TRUE(Shows(kVisited));
    EXPECT_FALSE(Shows(kLink));
}

TEST_F(QorLink, SetColorsChangesAllAndRepaints)
{
    Take();
    m_link.SetColors(RGB(200, 0, 0), RGB(0, 100, 0), RGB(0, 0, 100));
    EXPECT_TRUE(Shows(RGB(200, 0, 0)));
    m_link.SetVisited(TRUE);
    m_link.Invalidate();
    EXPECT_TRUE(Shows(RGB(0, 100, 0)));
    ts::MoveMouse(m_link);
    EXPECT_TRUE(Shows(RGB(0, 0, 100)));
}

TEST_F(QorLink, HoversInTheHighlightColour)
{
    Take();
    ts::MoveMouse(m_link);
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_EQ(m_link.m_hWnd, ::GetCapture());
}

DWORD WINAPI OddColour(int)
{
    return RGB(1, 202, 3);
}

TEST_F(QorLink, HoverColourIsThatOfTheTimeWhenTheLinkWasMade)
{
    const ts::ReplacedImport later(L"QorUI.dll", "GetSysColor", &OddColour);
    Take();
    ts::MoveMouse(m_link);
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_FALSE(Shows(RGB(1, 202, 3)));
}

TEST_F(QorLink, NoHoverColourMeansTheHighlightColour)
{
    Take();
    m_link.SetColors(RGB(200, 0, 0), RGB(0, 100, 0), RGB(0, 0, 100));
    m_link.SetColors(RGB(200, 0, 0), RGB(0, 100, 0), 0xFFFFFFFF);
    ts::MoveMouse(m_link);
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_FALSE(Shows(RGB(0, 0, 100)));
}

TEST_F(QorLink, LeavingReleasesTheCaptureAndRestoresTheColour)
{
    Take();
    ts::MoveMouse(m_link);
    ASSERT_EQ(m_link.m_hWnd, ::GetCapture());
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(Shows(kLink));
}

TEST_F(QorLink, CaptureThatWasLostIsTakenAgain)
{
    Take();
    ts::MoveMouse(m_link, 4, 4);
    ::ReleaseCapture();
    ts::MoveMouse(m_link, 5, 5);
    EXPECT_EQ(m_link.m_hWnd, ::GetCapture());
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(Shows(kLink));
}

TEST_F(QorLink, NewWindowHasATooltipAndTheLinkColour)
{
    Take();
    ts::MoveMouse(m_link);
    m_link.DestroyWindow();
    ts::ParkMouse();
    Take(SS_LEFT, L"Other");
    EXPECT_NE(nullptr, FindTip());
    EXPECT_TRUE(Shows(kLink));
}

TEST_F(QorLink, TakesItsTooltipWithIt)
{
    Take();
    const HWND tip = FindTip();
    ASSERT_NE(nullptr, tip);
    m_link.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
}

TEST_F(QorLink, HasOneTooltipWhenItsWindowIsGivenBackAndTakenAgain)
{
    Take();
    const HWND tip = FindTip();
    const HWND window = m_link.UnsubclassWindow();
    EXPECT_TRUE(m_link.SubclassWindow(window));
    EXPECT_FALSE(::IsWindow(tip));
    EXPECT_NE(nullptr, FindTip());
}

TEST_F(QorLink, LeavingWhileTheButtonIsHeldRestoresTheColour)
{
    m_link.SetURL(kMissing);
    Take();
    ts::MoveMouse(m_link);
    ts::MouseDown();
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(Shows(kLink));
    ts::MouseUp();
}

TEST_F(QorLink, ShowsTheHand)
{
    Take();
    EXPECT_EQ(TRUE, m_link.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_link.m_hWnd),
                                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
}

TEST_F(QorLink, ClickOpensAndMarksItVisited)
{
    m_link.SetURL(kProgram);
    Take();
    ts::Click(m_link);
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_TRUE(Shows(kVisited));
}

TEST_F(QorLink, FailedOpenClearsTheVisitedColour)
{
    m_link.SetURL(kMissing);
    Take();
    m_link.SetVisited(TRUE);
    ts::Click(m_link);
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_TRUE(Shows(kLink));
    EXPECT_FALSE(Shows(kVisited));
}

TEST_F(QorLink, UnderlineRemakesTheFont)
{
    Take();
    const LOGFONTW before = Font();
    m_link.SetUnderline(TRUE);
    EXPECT_TRUE(Font().lfUnderline);
    EXPECT_EQ(before.lfHeight, Font().lfHeight);
    EXPECT_STREQ(before.lfFaceName, Font().lfFaceName);
    m_link.SetUnderline(FALSE);
    EXPECT_FALSE(Font().lfUnderline);
}

TEST_F(QorLink, UnderlineIsMadeFromTheFontThatTheControlHasByThen)
{
    Take();
    CFont big;
    big.CreatePointFont(200, L"Tahoma");
    LOGFONTW description = {};
    ASSERT_TRUE(big.GetLogFont(&description));
    m_link.SetFont(&big);
    m_link.SetUnderline(TRUE);
    EXPECT_EQ(description.lfHeight, Font().lfHeight);
    EXPECT_TRUE(Font().lfUnderline);
}

TEST_F(QorLink, UnderlineSetBeforeTheWindowIsUsed)
{
    m_link.SetUnderline(TRUE);
    Take();
    EXPECT_TRUE(Font().lfUnderline);
}

TEST_F(QorLink, TakesTheSizeOfItsTextAtTheTopLeft)
{
    Take();
    const CSize text = Extent(L"Text", ts::GuiFont());
    EXPECT_EQ(CRect(20, 10, 20 + text.cx, 10 + text.cy), ts::PlaceIn(m_host, m_link));
}

TEST_F(QorLink, RightAlignedLinkKeepsItsRightEdge)
{
    Take(SS_RIGHT);
    const CSize text = Extent(L"Text", ts::GuiFont());
    EXPECT_EQ(CRect(170 - text.cx, 10, 170, 10 + text.cy), ts::PlaceIn(m_host, m_link));
}

TEST_F(QorLink, CentredLinkShrinksEvenly)
{
    Take(SS_CENTER | SS_CENTERIMAGE);
    const CSize text = Extent(L"Text", ts::GuiFont());
    const CRect place = ts::PlaceIn(m_host, m_link);
    EXPECT_EQ(text, place.Size());
    EXPECT_NEAR(95, (place.left + place.right) / 2.0, 0.5);
    EXPECT_NEAR(30, (place.top + place.bottom) / 2.0, 0.5);
}

TEST_F(QorLink, WithoutAutoSizeKeepsItsSize)
{
    m_link.SetAutoSize(FALSE);
    Take();
    EXPECT_EQ(CRect(20, 10, 170, 50), ts::PlaceIn(m_host, m_link));
    m_link.SetURL(L"x");
    EXPECT_EQ(CRect(20, 10, 170, 50), ts::PlaceIn(m_host, m_link));
    m_link.SetAutoSize(TRUE);
    EXPECT_EQ(Extent(L"Text", ts::GuiFont()), ts::PlaceIn(m_host, m_link).Size());
}

TEST_F(QorLink, BackgroundIsNotPainted)
{
    Take();
    EXPECT_TRUE(Shows(kBack));
}

TEST_F(QorLink, ErasingLeavesTheDeviceContextAsItIs)
{
    Take();
    m_host.Log().Answer(WM_CTLCOLORSTATIC, [](const ts::Message&) -> std::optional<LRESULT> {
        return reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH));
    });
    const ts::Picture erased = ts::DrawTo(
        10, 10, [this](HDC dc) { m_link.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)); }, kBack);
    EXPECT_EQ(10 * 10, erased.Count(kBack));
}

/** A link in a font that is smoothed, which gets bolder when it is drawn over itself. */
class SmoothLink : public QorLink
{
  protected:
    void SetUp() override
    {
        QorLink::SetUp();
        m_font.CreateFont(24, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, ANTIALIASED_QUALITY, 0, L"Tahoma");
        const HWND control = AddStatic(L"Text", SS_LEFT | WS_VISIBLE);
        ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.GetSafeHandle()), TRUE);
        ::UpdateWindow(control);
        ASSERT_TRUE(m_link.SubclassWindow(control));
    }

    /** Paints what is to be painted, and nothing more. */
    void Update() { m_host.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

    /** What is on the screen at the link, once what was asked for has been painted. */
    ts::Picture Shown()
    {
        Update();
        return Look(m_link);
    }

    ts::Picture Expected(COLORREF colour)
    {
        CRect client;
        m_link.GetClientRect(&client);
        const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(m_link.SendMessage(WM_GETFONT));
        return TextPicture(client.Size(), L"Text", font, colour, kBack, DT_WORDBREAK | DT_EDITCONTROL);
    }

    CFont m_font;
};

TEST_F(SmoothLink, LeavesNoTraceOfTheControlThatItTakesOver)
{
    EXPECT_TRUE(ts::SamePicture(Expected(kLink), Shown()));
}

TEST_F(SmoothLink, LooksTheSameHoweverOftenTheMouseComes)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(ts::SamePicture(Expected(kLink), Shown()));
        ts::MoveMouse(m_link);
        EXPECT_TRUE(ts::SamePicture(Expected(::GetSysColor(COLOR_HIGHLIGHT)), Shown()));
        ts::MoveMouse(m_host.m_hWnd, 250, 140);
    }
}

TEST_F(SmoothLink, NewColoursLeaveNoTraceOfTheFormerOnes)
{
    m_link.SetColors(RGB(200, 0, 0), kVisited, CLR_NONE);
    EXPECT_TRUE(ts::SamePicture(Expected(RGB(200, 0, 0)), Shown()));
}

TEST_F(SmoothLink, VisitedTextLeavesNoTraceOfTheUnvisitedOne)
{
    ts::ShellOpenings openings;
    m_host.SendMessage(WM_COMMAND, MAKEWPARAM(ts::kControlId, STN_CLICKED), reinterpret_cast<LPARAM>(m_link.m_hWnd));
    EXPECT_TRUE(ts::SamePicture(Expected(kVisited), Shown()));
}

TEST_F(SmoothLink, NewTextTakesTheFormerOnesPlace)
{
    m_link.SetWindowText(L"New");
    EXPECT_FALSE(ts::SamePicture(Expected(kLink), Shown()));
    m_link.SetWindowText(L"Text");
    EXPECT_TRUE(ts::SamePicture(Expected(kLink), Shown()));
}

TEST_F(SmoothLink, TextKeepsTheLinkFont)
{
    const ts::Picture before = Shown();
    CFont other;
    other.CreatePointFont(100, L"Tahoma");
    m_link.SetFont(&other);
    EXPECT_TRUE(ts::SamePicture(before, Shown()));
}

TEST_F(SmoothLink, LineUnderTheTextGoesWithoutATrace)
{
    const ts::Picture before = Shown();
    m_link.SetUnderline(TRUE);
    EXPECT_FALSE(ts::SamePicture(before, Shown()));
    m_link.SetUnderline(FALSE);
    EXPECT_TRUE(ts::SamePicture(before, Shown()));
}

TEST_F(SmoothLink, NeighboursOnTheSamePlaceStay)
{
    CStatic frame;
    ASSERT_TRUE(
        frame.Create(L"", WS_CHILD | WS_VISIBLE | SS_BLACKFRAME, CRect(30, 2, 200, 100), &m_host, ts::kOtherId));
    m_host.RedrawWindow();
    const ts::Picture before = Look(m_host);
    m_link.SetColors(RGB(200, 0, 0), kVisited, CLR_NONE);
    Update();
    m_link.SetColors(kLink, kVisited, CLR_NONE);
    Update();
    EXPECT_TRUE(ts::SamePicture(before, Look(m_host)));
}

TEST_F(QorLink, SettersWorkBeforeTheWindow)
{
    CQorLink link;
    link.SetURL(nullptr);
    link.SetURL(L"x");
    link.SetColors(1, 2, 3);
    link.SetVisited(TRUE);
    link.SetAutoSize(TRUE);
    link.SetUnderline(TRUE);
    EXPECT_EQ(nullptr, link.m_hWnd);
}

TEST_F(QorLink, TextIsBrokenIntoLinesInTheLinkFont)
{
    m_link.SetAutoSize(FALSE);
    m_link.SetUnderline(TRUE);
    Take(SS_LEFT, kLongText);
    const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(m_link.SendMessage(WM_GETFONT));
    const ts::Picture expected = TextPicture({150, 40}, kLongText, font, kLink, kBack, DT_WORDBREAK | DT_EDITCONTROL);
    EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
    EXPECT_GT(CRect(expected.BoundsOf(kLink)).Height(), 2 * Extent(L"x", ts::GuiFont()).cy - 4) << "two lines at least";
}

TEST_F(QorLink, WithoutTextNothingIsDrawn)
{
    m_link.SetAutoSize(FALSE);
    Take(SS_LEFT, L"");
    EXPECT_EQ(150 * 40, Look(m_link).Count(kBack));
    m_link.SetAutoSize(TRUE);
    EXPECT_EQ(CSize(0, 0), ts::PlaceIn(m_host, m_link).Size());
}

TEST_F(QorLink, SetUrlFitsTheSizeToATextThatHasChanged)
{
    Take();
    m_link.SetWindowText(L"A longer text");
    m_link.SetURL(L"x");
    EXPECT_EQ(Extent(L"A longer text", ts::GuiFont()), ts::PlaceIn(m_host, m_link).Size());
}

TEST_F(QorLink, CentringInHeightAloneKeepsTheLeftEdge)
{
    Take(SS_LEFT | SS_CENTERIMAGE);
    const CSize text = Extent(L"Text", ts::GuiFont());
    const int top = 10 + (40 - text.cy) / 2;
    EXPECT_EQ(CRect(20, top, 20 + text.cx, top + text.cy), ts::PlaceIn(m_host, m_link));
}

TEST_F(QorLink, PlaceInTheZOrderIsKept)
{
    Take();
    const HWND above = AddStatic(L"above", SS_LEFT);
    ::SetWindowPos(above, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    m_link.SetWindowText(L"A longer text");
    m_link.SetURL(L"x");
    EXPECT_EQ(above, ::GetWindow(m_link, GW_HWNDPREV));
}

TEST_F(QorLink, MessagesAreRelayedToTheTooltip)
{
    Take();
    ts::MessageRecorder log(FindTip());
    log.RecordOnly({TTM_RELAYEVENT});
    MSG move = {m_link.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
    EXPECT_FALSE(m_link.PreTranslateMessage(&move));
    EXPECT_TRUE(log.Is({ts::Msg(TTM_RELAYEVENT)}));
}

TEST_F(QorLink, TooltipComesUpOverTheLink)
{
    Take(SS_LEFT, L"http://example.org");
    ts::SetPreTranslate([this](MSG& msg) { return CWnd::WalkPreTranslateTree(m_host.m_hWnd, &msg) != FALSE; });
    ts::BringToFront(m_host); // a tooltip comes up over active windows only
    ::SendMessageW(FindTip(), TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    ts::MoveMouse(m_link, 4, 4);
    ts::MoveMouse(m_link, 5, 5);
    EXPECT_TRUE(ts::PumpUntil([this] { return ::IsWindowVisible(FindTip()) != FALSE; }));
}

TEST_F(QorLink, ChangesOfTheLookAreRepainted)
{
    Take();
    EXPECT_TRUE(Repaints([this] { m_link.SetColors(1, 2, 3); }));
    EXPECT_TRUE(Repaints([this] { m_link.SetUnderline(TRUE); }));
}

TEST_F(QorLink, HoverIsShownAtOnce)
{
    Take();
    ::UpdateWindow(m_link);
    ts::MessageRecorder log(m_link);
    log.RecordOnly({WM_ERASEBKGND, WM_PAINT});
    m_link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    EXPECT_TRUE(log.Is({ts::Msg(WM_PAINT), ts::Msg(WM_ERASEBKGND)}));
    m_link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
    EXPECT_EQ(2u, log.Messages().size()) << "a move over the link changes nothing";
    m_link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-1, 1));
    EXPECT_TRUE(log.Is({ts::Msg(WM_PAINT), ts::Msg(WM_ERASEBKGND), ts::Msg(WM_PAINT), ts::Msg(WM_ERASEBKGND)}));
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(QorLink, IsRedrawnWhileItHasNoCapture)
{
    Take();
    ::UpdateWindow(m_link);
    std::vector<HWND> captures; // of the paintings
    ts::MessageRecorder log(m_link);
    log.Answer(WM_PAINT, [&captures](const ts::Message&) -> std::optional<LRESULT> {
        captures.push_back(::GetCapture());
        return std::nullopt;
    });
    m_link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(std::vector<HWND>{nullptr}, captures) << "taken afterwards";
    EXPECT_EQ(m_link.m_hWnd, ::GetCapture());
    m_link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-1, 1));
    EXPECT_EQ(std::vector<HWND>(2), captures) << "released before";
}

TEST_F(QorLink, NewTextTakesTheFormerOnesPlace)
{
    m_link.SetAutoSize(FALSE);
    Take(SS_LEFT, L"A former text");
    Look(m_link);
    const auto expectText = [this](const wchar_t* text) {
        const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(m_link.SendMessage(WM_GETFONT));
        const ts::Picture expected = TextPicture({150, 40}, text, font, kLink, kBack, DT_WORDBREAK | DT_EDITCONTROL);
        EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
    };
    m_link.SetWindowText(L"Text");
    expectText(L"Text");
    m_link.EnableWindow(FALSE);
    expectText(L"Text");
    m_link.SetWindowText(L"");
    expectText(L"");
}

TEST_F(QorLink, VisitedLinkHoversToo)
{
    Take();
    m_link.SetVisited(TRUE);
    ts::MoveMouse(m_link);
    EXPECT_TRUE(Shows(::GetSysColor(COLOR_HIGHLIGHT)));
    ts::MoveMouse(m_host.m_hWnd, 250, 140);
    EXPECT_TRUE(Shows(kVisited));
}

TEST_F(QorLink, ClickAsksTheShellToOpenTheUrl)
{
    ts::ShellOpenings openings;
    Take(SS_LEFT, L"http://example.org");
    ts::Click(m_link);
    ASSERT_EQ(1u, openings.Taken().size());
    EXPECT_EQ(nullptr, openings.Taken()[0].owner);
    EXPECT_EQ(L"open", openings.Taken()[0].verb);
    EXPECT_EQ(L"http://example.org", openings.Taken()[0].file);
    EXPECT_FALSE(openings.Taken()[0].extras);
    EXPECT_EQ(SW_SHOW, openings.Taken()[0].show);
}

TEST_F(QorLink, OpeningCountsFromThirtyThreeOn)
{
    ts::ShellOpenings openings;
    Take();
    const auto click = [this] {
        m_host.SendMessage(WM_COMMAND, MAKEWPARAM(ts::kControlId, STN_CLICKED),
                           reinterpret_cast<LPARAM>(m_link.m_hWnd));
    };
    EXPECT_TRUE(Repaints(click));
    EXPECT_TRUE(Shows(kVisited));
    openings.Answer(ts::ShellOpenings::kLeastSuccess - 1);
    EXPECT_FALSE(Repaints(click));
    m_link.RedrawWindow();
    EXPECT_TRUE(Shows(kLink));
}

TEST_F(QorLink, WithoutAHandTheDefaultCursorIsLeft)
{
    Take();
    const ts::ReplacedImport none(L"QorUI.dll", "LoadCursorW", &NoCursor);
    const HCURSOR before = ::LoadCursorW(nullptr, IDC_CROSS);
    ::SetCursor(before);
    EXPECT_EQ(FALSE, m_link.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_link.m_hWnd),
                                        MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(before, ::GetCursor());
}

HFONT WINAPI NoFont(const LOGFONTW*)
{
    return nullptr;
}

TEST_F(QorLink, WithoutAFontOfItsOwnTheControlsIsUsed)
{
    const ts::ReplacedImport none(L"afx.dll", "CreateFontIndirectW", &NoFont);
    Take();
    const CSize size = Extent(L"Text", ts::GuiFont());
    EXPECT_EQ(size, ts::PlaceIn(m_host, m_link).Size());
    const ts::Picture expected = TextPicture(size, L"Text", ts::GuiFont(), kLink, kBack, DT_WORDBREAK | DT_EDITCONTROL);
    EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
}

TEST_F(QorLink, WithoutADeviceContextTheSizeStays)
{
    Take();
    const CRect place = ts::PlaceIn(m_host, m_link);
    const ts::ReplacedImport ours(L"QorUI.dll", "GetDC", &ts::NoDc);
    const ts::ReplacedImport frameworks(L"afx.dll", "GetDC", &ts::NoDc);
    m_link.SetWindowText(L"A longer text");
    m_link.SetURL(L"x");
    EXPECT_EQ(place, ts::PlaceIn(m_host, m_link));
}

TEST_F(QorLink, HugeTextAndUrlAreNoHarm)
{
    m_link.SetURL(CString(L'u', 100000));
    const CString huge(L'm', 3000);
    Take(SS_LEFT, huge);
    EXPECT_EQ(Extent(huge, ts::GuiFont()).cx, ts::PlaceIn(m_host, m_link).Width());
    Look(m_link);
    m_link.SetURL(L"");
    EXPECT_EQ(L"", Tip());
}

TEST_F(QorLink, LinkWithoutAParentIsPlacedOnTheScreen)
{
    const HWND lone =
        ::CreateWindowW(L"STATIC", L"Text", WS_POPUP | SS_RIGHT, 40, 30, 150, 40, nullptr, nullptr, nullptr, nullptr);
    ::SendMessageW(lone, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
    ASSERT_TRUE(m_link.SubclassWindow(lone));
    const CSize text = Extent(L"Text", ts::GuiFont());
    CRect place;
    m_link.GetWindowRect(&place);
    EXPECT_EQ(CRect(190 - text.cx, 30, 190, 30 + text.cy), place);
    m_link.DestroyWindow();
}

TEST_F(QorLink, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CQorLink link;
        link.SubclassWindow(AddStatic(L"Text", SS_LEFT));
        link.SetUnderline(TRUE);
        link.RedrawWindow();
        link.DestroyWindow();
    }));
}

/** A text link and the background that its parent paints for it. */
class TextLink : public Links
{
  protected:
    void Take(const wchar_t* text)
    {
        ASSERT_TRUE(m_link.SubclassWindow(AddStatic(text, SS_NOTIFY)));
        m_link.ShowWindow(SW_SHOW);
        m_host.Log().Answer(WM_DRAWPARENTBACK, [this](const ts::Message& message) -> std::optional<LRESULT> {
            m_sender = reinterpret_cast<CWnd*>(message.lParam);
            CRect client;
            ::GetClientRect(m_link.m_hWnd, &client);
            reinterpret_cast<CDC*>(message.wParam)->FillSolidRect(&client, RGB(0, 90, 0));
            return 0;
        });
    }

    CTextLink m_link;
    CWnd* m_sender = nullptr;
};

TEST_F(TextLink, ParentPaintsTheBackgroundBeforeTheText)
{
    Take(kLongText);
    const ts::Picture expected = TextPicture({150, 40}, kLongText, ts::GuiFont(), RGB(255, 255, 255), RGB(0, 90, 0),
                                             DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX);
    EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
    EXPECT_NE(0, expected.Count(RGB(255, 255, 255)));
    EXPECT_EQ(&m_link, m_sender);
}

UINT g_textFormat = 0;

int WINAPI NoteTextFormat(HDC dc, LPCWSTR text, int length, RECT* rect, UINT format)
{
    g_textFormat = format;
    return ::DrawTextW(dc, text, length, rect, format);
}

// The platform draws prefixes the same way with and without the flag.
TEST_F(TextLink, HidesPrefixes)
{
    Take(L"&Label");
    const ts::ReplacedImport noted(L"afx.dll", "DrawTextW", &NoteTextFormat);
    g_textFormat = 0;
    Look(m_link);
    EXPECT_EQ(UINT{DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX}, g_textFormat);
}

TEST_F(TextLink, NewTextTakesTheFormerOnesPlace)
{
    Take(L"A former text");
    Look(m_link);
    m_link.SetWindowText(L"Text");
    const ts::Picture expected = TextPicture({150, 40}, L"Text", ts::GuiFont(), RGB(255, 255, 255), RGB(0, 90, 0),
                                             DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX);
    EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
    m_link.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(expected, Look(m_link)));
}

TEST_F(TextLink, EmptyTextStillAsksForTheBackground)
{
    Take(L"");
    EXPECT_EQ(150 * 40, Look(m_link).Count(RGB(0, 90, 0)));
}

TEST_F(TextLink, MessageHasItsNumber)
{
    Take(L"Text");
    m_host.Log().Clear();
    m_link.RedrawWindow();
    EXPECT_EQ(1u, m_host.Log().Count(ts::Msg(WM_DRAWPARENTBACK)));
}

TEST_F(TextLink, ShowsTheHand)
{
    Take(L"Text");
    EXPECT_EQ(TRUE, m_link.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_link.m_hWnd),
                                       MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
}

TEST_F(TextLink, ExtentIsThatOfTheTextInTheGuiFont)
{
    Take(L"Some text");
    CFont big;
    big.CreatePointFont(200, L"Tahoma");
    m_link.SetFont(&big);
    CSize size(7, 7);
    EXPECT_EQ(TRUE, m_link.GetExtent(size));
    EXPECT_EQ(Extent(L"Some text", ts::GuiFont()), size);
}

TEST_F(TextLink, ExtentWithoutWindowIsZeroAndFalse)
{
    CSize size(7, 7);
    EXPECT_EQ(FALSE, m_link.GetExtent(size));
    EXPECT_EQ(CSize(0, 0), size);
}

TEST_F(TextLink, ExtentWithoutADeviceContextIsZeroAndFalse)
{
    Take(L"Some text");
    const ts::ReplacedImport ours(L"QorUI.dll", "GetDC", &ts::NoDc);
    const ts::ReplacedImport frameworks(L"afx.dll", "GetDC", &ts::NoDc);
    CSize size(7, 7);
    EXPECT_EQ(FALSE, m_link.GetExtent(size));
    EXPECT_EQ(CSize(0, 0), size);
}

TEST_F(TextLink, ClickReachesTheParent)
{
    Take(L"Text");
    ts::Click(m_link);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, STN_CLICKED)));
}

TEST_F(TextLink, WithoutAParentNobodyIsAsked)
{
    CTextLink link;
    ASSERT_TRUE(link.SubclassWindow(::CreateWindowW(L"STATIC", L"Text", WS_POPUP | WS_VISIBLE, 40, 30, 150, 40, nullptr,
                                                    nullptr, nullptr, nullptr)));
    link.RedrawWindow();
    CSize size;
    EXPECT_TRUE(link.GetExtent(size));
    EXPECT_EQ(Extent(L"Text", ts::GuiFont()), size);
    link.DestroyWindow();
}

TEST_F(TextLink, HugeTextIsMeasuredAndPainted)
{
    const CString huge(L'm', 30000);
    Take(huge);
    CSize size;
    EXPECT_TRUE(m_link.GetExtent(size));
    EXPECT_EQ(Extent(huge, ts::GuiFont()), size);
    EXPECT_NE(0, Look(m_link).Count(RGB(255, 255, 255)));
}

TEST_F(TextLink, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CTextLink link;
        link.SubclassWindow(AddStatic(L"Text", SS_NOTIFY | WS_VISIBLE));
        CSize size;
        link.GetExtent(size);
        link.RedrawWindow();
        link.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(link.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        link.DestroyWindow();
    }));
}

} // namespace
