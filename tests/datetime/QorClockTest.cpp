#include "resource.h"

#include <QorUI/datetime/ClockHands.h>
#include <QorUI/datetime/QorClock.h>
#include <tests/support/ImportRedirection.h>
#include <tests/support/Imports.h>
#include <tests/support/NoWindowClasses.h>
#include <tests/support/Refusals.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Drawn.h>

#include <cmath>

namespace
{

constexpr UINT_PTR kTimer = 1;

constexpr UINT kClockId = 78;
constexpr COLORREF kBack = RGB(250, 240, 230);
constexpr COLORREF kInk = RGB(58, 58, 58);
const CPoint kCenter(80, 80);

ts::Expected News(int code)
{
    ts::Expected news = ts::Notify(kClockId, static_cast<UINT>(code));
    news.wParam = kClockId;
    return news;
}

static_assert(QCN_BEGINDRAG == -4000 && QCN_ENDDRAG == -4001);
const ts::Expected kBegin = News(QCN_BEGINDRAG);
const ts::Expected kEnd = News(QCN_ENDDRAG);

UINT g_period = 0;

UINT_PTR WINAPI RefuseTimer(HWND, UINT_PTR, UINT period, TIMERPROC)
{
    g_period = period;
    return 0;
}

int Nearest(double value)
{
    return static_cast<int>(std::floor(value + 0.5));
}

/** A clock's picture. @param radius that the hands are measured by */
ts::Picture FaceOf(UINT dialId, CPoint center, int radius, UINT hour, UINT minute)
{
    CBitmap dial;
    EXPECT_TRUE(dial.LoadBitmap(dialId));
    BITMAP bitmap = {};
    dial.GetBitmap(&bitmap);
    return ts::Drawn(bitmap.bmWidth, bitmap.bmHeight, [&](CDC& dc) {
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap* old = memory.SelectObject(&dial);
        dc.BitBlt(0, 0, bitmap.bmWidth, bitmap.bmHeight, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(old);
        dc.SetBkColor(kBack);
        dc.SetTextColor(kInk);
        dc.SelectStockObject(DEFAULT_GUI_FONT);
        dc.TextOut(4, 4, hour >= 12 ? L"PM" : L"AM", 2);
        CPen pen(PS_SOLID, 2, kInk);
        CPen* oldPen = dc.SelectObject(&pen);
        const auto drawHand = [&](double length, double angle) {
            dc.MoveTo(center);
            dc.LineTo(Nearest(center.x + sin(angle) * length), Nearest(center.y - cos(angle) * length));
        };
        drawHand(radius * 0.6, (minute / 60.0 + hour % 12) / 12 * 3.1415926535 * 2);
        drawHand(radius * 0.75, minute / 60.0 * 3.1415926535 * 2);
        dc.SelectObject(oldPen);
    });
}

class CTestClock : public CQorClock
{
  public:
    using CQorClock::OnTimer;

    std::vector<UINT> m_buttons; // messages of the left button for which the default handler was called

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONUP) {
            m_buttons.push_back(message);
        }
        return CQorClock::DefWindowProc(message, wParam, lParam);
    }
};

class Clock : public testing::Test
{
  protected:
    void SetUp() override { ts::ParkMouse(); }

    void Make()
    {
        ASSERT_TRUE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
        Show();
    }

    void Show()
    {
        m_clock.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        ts::Settle();
        m_host.Log().Clear();
    }

    ts::Picture Look() { return ts::CaptureWindow(m_clock.m_hWnd); }

    std::string Time()
    {
        char text[20];
        sprintf(text, "%u:%02u", m_clock.GetHour(), m_clock.GetMinute());
        return text;
    }

    bool NeedsPaint() { return GetUpdateRect(m_clock.m_hWnd, nullptr, FALSE) != FALSE; }

    /** Moves the mouse to where the minute hand ends for a minute; half a step on, to be inside the minute. */
    void MoveToMinute(UINT minute)
    {
        const CPoint point = QorHands::EndPoint(kCenter, 0.95, QorHands::MinuteAngle(minute) + 0.05);
        ts::MoveMouse(m_clock.m_hWnd, point.x, point.y);
    }

    /** Takes hold of the minute hand. */
    void Grab()
    {
        const CPoint point = QorHands::EndPoint(kCenter, 0.5, QorHands::MinuteAngle(m_clock.GetMinute()));
        ts::MoveMouse(m_clock.m_hWnd, point.x, point.y);
        ts::MouseDown();
    }

    /** Whether a change shows as if all had been painted anew. */
    testing::AssertionResult LeavesNoTrace()
    {
        const ts::Picture changed = Look();
        Show();
        return ts::SamePicture(Look(), changed);
    }

    static HCURSOR Cursor(LPCWSTR name) { return LoadCursorW(nullptr, name); }

    ts::AfxHost m_host{300, 200};
    CTestClock m_clock;
};

} // namespace

TEST_F(Clock, NewOneShowsHalfPastOneInTheMorning)
{
    EXPECT_EQ("1:30", Time());
}

TEST_F(Clock, WindowHasTheSizeOfTheDial)
{
    Make();
    CRect rect;
    m_clock.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(CRect(0, 0, 161, 161), rect);
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE), m_clock.GetStyle() & 0xFFFF0000 & ~WS_CLIPSIBLINGS);
    EXPECT_EQ(static_cast<int>(kClockId), m_clock.GetDlgCtrlID());
}

TEST_F(Clock, WindowClassHasNothing)
{
    Make();
    EXPECT_EQ(0u, GetClassLongPtrW(m_clock.m_hWnd, GCL_STYLE));
    EXPECT_EQ(0u, GetClassLongPtrW(m_clock.m_hWnd, GCLP_HCURSOR));
    EXPECT_EQ(0u, GetClassLongPtrW(m_clock.m_hWnd, GCLP_HBRBACKGROUND));
    EXPECT_EQ(0u, GetClassLongPtrW(m_clock.m_hWnd, GCLP_HICON));
}

TEST_F(Clock, CreateRefusesToGoOnWithoutItsWindowClass)
{
    const ts::NoWindowClasses none;
    EXPECT_FALSE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
    EXPECT_EQ(nullptr, m_clock.m_hWnd);
}

TEST_F(Clock, CreateRefusesAMissingBitmapOrParent)
{
    EXPECT_FALSE(m_clock.Create(301, &m_host, kClockId, kBack));
    EXPECT_FALSE(m_clock.Create(0, &m_host, kClockId, kBack));
    EXPECT_FALSE(m_clock.Create(IDB_DIAL, nullptr, kClockId, kBack));
    CWnd noWindow;
    EXPECT_FALSE(m_clock.Create(IDB_DIAL, &noWindow, kClockId, kBack));
    EXPECT_EQ(nullptr, m_clock.m_hWnd);
    EXPECT_TRUE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
    EXPECT_FALSE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
}

TEST_F(Clock, CreateRefusesABitmapThatCannotBeRead)
{
    {
        const ts::ImportRedirection failing({ts::ImportRedirection::Of(&::GetObjectW, &ts::NothingKnown)});
        EXPECT_FALSE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
    }
    EXPECT_EQ(nullptr, m_clock.m_hWnd);
    EXPECT_TRUE(m_clock.Create(IDB_DIAL, &m_host, kClockId, kBack));
}

TEST_F(Clock, TimesAreTakenIntoTheDay)
{
    m_clock.SetTime(13, 5);
    EXPECT_EQ("13:05", Time());
    m_clock.SetTime(25, 61);
    EXPECT_EQ("1:01", Time());
    m_clock.SetTime(12, 0);
    EXPECT_EQ("12:00", Time());
    m_clock.SetTime(24, 60);
    EXPECT_EQ("0:00", Time());
    m_clock.SetTime(0xFFFFFFFF, 0xFFFFFFFF);
    EXPECT_EQ("15:15", Time());
}

TEST_F(Clock, OnlyAnotherTimeIsPainted)
{
    Make();
    m_clock.SetTime(1, 30);
    EXPECT_FALSE(NeedsPaint());
    m_clock.SetTime(13, 30);
    EXPECT_TRUE(NeedsPaint());
    Show();
    m_clock.SetTime(13, 31);
    EXPECT_TRUE(NeedsPaint());
    Show();
    m_clock.SetTime(14, 31);
    EXPECT_TRUE(NeedsPaint());
}

TEST_F(Clock, FormerTimeIsErased)
{
    Make();
    m_clock.SetTime(4, 10);
    EXPECT_TRUE(LeavesNoTrace());
    m_clock.SetTimeAnimate(9, 55, TRUE);
    m_clock.OnTimer(kTimer);
    m_clock.KillTimer(kTimer);
    EXPECT_TRUE(LeavesNoTrace());
    Grab();
    MoveToMinute(50);
    EXPECT_TRUE(LeavesNoTrace());
    ts::MouseUp();
}

TEST_F(Clock, ErasingDrawsTheDial)
{
    Make();
    const ts::Picture dial = ts::ResourcePicture(ts::Program(), IDB_DIAL);
    const ts::Picture erased = ts::Drawn(161, 161, [this](CDC& dc) {
        EXPECT_EQ(1, m_clock.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)));
    });
    EXPECT_TRUE(ts::SamePicture(dial, erased));
    EXPECT_EQ(1, m_clock.SendMessage(WM_ERASEBKGND, 0));
}

TEST_F(Clock, ErasingWithoutAMemoryDcDrawsNothingAndIsDone)
{
    Make();
    const ts::ReplacedImport none(L"QorUI.dll", "CreateCompatibleDC", &ts::NoMemoryDc);
    const ts::Picture erased = ts::DrawTo(
        161, 161, [this](HDC dc) { EXPECT_EQ(1, m_clock.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc))); },
        ts::kPaper);
    EXPECT_EQ(161 * 161, erased.Count(ts::kPaper));
}

TEST_F(Clock, PaintsTheHandsAndTheHalfOfTheDay)
{
    Make();
    const std::pair<UINT, UINT> times[] = {{1, 30}, {3, 0}, {16, 45}, {22, 8}, {12, 0}};
    for (const auto& time : times) {
        m_clock.SetTime(time.first, time.second);
        Show();
        const ts::Picture expected = FaceOf(IDB_DIAL, kCenter, 80, time.first, time.second);
        EXPECT_TRUE(ts::SamePicture(expected, Look())) << time.first << ":" << time.second;
    }
}

TEST_F(Clock, DialNeedNotBeSquare)
{
    ASSERT_TRUE(m_clock.Create(IDB_FLAT_DIAL, &m_host, kClockId, kBack));
    m_clock.SetTime(4, 50);
    Show();
    CRect rect;
    m_clock.GetWindowRect(rect);
    EXPECT_EQ(CSize(78, 13), rect.Size());
    EXPECT_TRUE(ts::SamePicture(FaceOf(IDB_FLAT_DIAL, CPoint(39, 6), 6, 4, 50), Look()));
}

TEST_F(Clock, HandsAreInkOnTheDial)
{
    Make();
    m_clock.SetTime(3, 0);
    Show();
    const ts::Picture look = Look();
    EXPECT_TRUE(ts::PixelIs(look, 80, 30, kInk));
    EXPECT_TRUE(ts::PixelIs(look, 120, 80, kInk));
    EXPECT_TRUE(ts::PixelIs(look, 4, 4, kBack));
}

TEST_F(Clock, CursorTellsWhereTheHandIs)
{
    Make();
    ts::MoveMouse(m_clock.m_hWnd, 80, 120);
    EXPECT_EQ(Cursor(IDC_HAND), GetCursor());
    ts::MoveMouse(m_clock.m_hWnd, 80, 40);
    EXPECT_EQ(Cursor(IDC_ARROW), GetCursor());
}

TEST_F(Clock, DragTellsTheParentItsBeginningAndEnd)
{
    Make();
    Grab();
    EXPECT_EQ(m_clock.m_hWnd, GetCapture());
    EXPECT_TRUE(m_host.Log().Is({kBegin}));
    MoveToMinute(35);
    EXPECT_EQ(Cursor(IDC_HAND), GetCursor());
    EXPECT_EQ("1:35", Time());
    ts::MouseUp();
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_TRUE(m_host.Log().Is({kBegin, kEnd}));
}

TEST_F(Clock, ParentIsToldWithTheMouseCapturedAndWhenItIsFreeAgain)
{
    Make();
    std::vector<HWND> captures;
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& message) {
        captures.push_back(GetCapture());
        EXPECT_EQ(m_clock.m_hWnd, message.from);
        return std::nullopt;
    });
    Grab();
    ts::MouseUp();
    EXPECT_EQ((std::vector<HWND>{m_clock.m_hWnd, nullptr}), captures);
}

TEST_F(Clock, DefaultHandlerGetsTheButtonAfterTheParentIsTold)
{
    Make();
    std::vector<UINT>& order = m_clock.m_buttons;
    m_host.Log().Answer(WM_NOTIFY, [&order](const ts::Message& message) {
        order.push_back(message.id);
        return std::nullopt;
    });
    Grab();
    ts::MouseUp();
    EXPECT_EQ((std::vector<UINT>{WM_NOTIFY, WM_LBUTTONDOWN, WM_NOTIFY, WM_LBUTTONUP}), order);
    order.clear();
    ts::Click(m_clock.m_hWnd, 80, 40);
    EXPECT_EQ((std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONUP}), order) << "beside the hand";
}

TEST_F(Clock, HandStaysTakenUntilTheNextMoveWithoutAButton)
{
    Make();
    Grab();
    MoveToMinute(10); // beyond the end of the hand
    // By messages: the system tells of a move when the capture is given back.
    for (const UINT message : {WM_LBUTTONUP, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE, WM_LBUTTONDOWN}) {
        m_clock.SendMessage(message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(80, 5));
    }
    EXPECT_TRUE(m_host.Log().Is({kBegin, kEnd, kBegin, kEnd}));
    ts::MouseUp();
}

TEST_F(Clock, CursorIsTheHandAgainWhenTheParentChangedIt)
{
    Make();
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& /*message*/) {
        SetCursor(Cursor(IDC_CROSS));
        return std::nullopt;
    });
    Grab();
    EXPECT_EQ(Cursor(IDC_HAND), GetCursor());
    ts::MouseUp();
}

TEST_F(Clock, PassingTwelveIsSeenFromTheMinuteOfTheLastDrag)
{
    Make();
    m_clock.SetTime(11, 58); // no drag: half past was dragged last
    Show();
    Grab();
    MoveToMinute(3);
    EXPECT_EQ("11:03", Time());
    MoveToMinute(58);
    EXPECT_EQ("10:58", Time());
    MoveToMinute(2);
    EXPECT_EQ("11:02", Time());
    ts::MouseUp();
}

TEST_F(Clock, EveryStepOfADragIsPainted)
{
    Make();
    Grab();
    const ts::Picture half = Look();
    MoveToMinute(35);
    const ts::Picture later = Look();
    EXPECT_FALSE(ts::SamePicture(half, later));
    m_clock.ValidateRect(nullptr);
    m_clock.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(10, 80));
    EXPECT_TRUE(NeedsPaint());
    m_clock.ValidateRect(nullptr);
    m_clock.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(11, 80));
    EXPECT_FALSE(NeedsPaint()) << "the same minute";
    ts::MouseUp();
}

TEST_F(Clock, PressBesideTheHandDoesNothing)
{
    Make();
    ts::MoveMouse(m_clock.m_hWnd, 80, 40);
    ts::MouseDown();
    EXPECT_EQ(nullptr, GetCapture());
    MoveToMinute(10);
    ts::MouseUp();
    EXPECT_EQ("1:30", Time());
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(Clock, MovesWithoutAButtonChangeNothing)
{
    Make();
    ts::MoveMouse(m_clock.m_hWnd, 80, 120);
    MoveToMinute(10);
    EXPECT_EQ("1:30", Time());
}

TEST_F(Clock, DragToThePointsOnTheAxes)
{
    Make();
    Grab();
    ts::MoveMouse(m_clock.m_hWnd, 10, 80);
    EXPECT_EQ("1:45", Time());
    ts::MoveMouse(m_clock.m_hWnd, 80, 150);
    EXPECT_EQ("1:30", Time());
    ts::MouseUp();
}

TEST_F(Clock, DragClockwisePastTwelveGoesFromMorningToAfternoonAndBack)
{
    Make();
    m_clock.SetTime(11, 50);
    Show();
    Grab();
    MoveToMinute(55);
    MoveToMinute(3);
    EXPECT_EQ("12:03", Time());
    MoveToMinute(57);
    EXPECT_EQ("11:57", Time());
    ts::MouseUp();
}

TEST_F(Clock, DragPastTwelveAtMidnight)
{
    Make();
    m_clock.SetTime(23, 50);
    Show();
    Grab();
    MoveToMinute(55);
    MoveToMinute(3);
    EXPECT_EQ("0:03", Time());
    MoveToMinute(57);
    EXPECT_EQ("23:57", Time());
    ts::MouseUp();
}

TEST_F(Clock, DragPastTwelveInTheMiddleOfTheMorningKeepsTheHalf)
{
    Make();
    m_clock.SetTime(12, 50);
    Show();
    Grab();
    MoveToMinute(55);
    MoveToMinute(3);
    EXPECT_EQ("13:03", Time());
    MoveToMinute(57);
    EXPECT_EQ("12:57", Time());
    ts::MouseUp();
}

TEST_F(Clock, DragGoesRoundAndRound)
{
    Make();
    m_clock.SetTime(10, 50);
    Show();
    Grab();
    for (const char* expected : {"11:03", "12:03", "13:03"}) {
        for (const UINT minute : {50u, 57u, 3u}) {
            MoveToMinute(minute);
        }
        EXPECT_EQ(expected, Time());
        for (const UINT minute : {20u, 35u}) {
            MoveToMinute(minute);
        }
    }
    for (const UINT minute : {20u, 3u, 57u, 35u, 20u, 3u, 57u}) {
        MoveToMinute(minute);
    }
    EXPECT_EQ("11:57", Time());
    ts::MouseUp();
}

TEST_F(Clock, DragGoesOnWithTheMouseOutside)
{
    Make();
    Grab();
    ts::MoveMouse(m_clock.m_hWnd, 250, 80);
    EXPECT_EQ("1:15", Time());
    ts::MouseUp();
}

TEST_F(Clock, ParentMayDestroyTheClockWhenTold)
{
    Make();
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& /*message*/) {
        m_clock.DestroyWindow();
        return std::nullopt;
    });
    Grab();
    EXPECT_EQ(nullptr, m_clock.m_hWnd);
    ts::MouseUp();
}

TEST_F(Clock, DragEndsWithTheWindow)
{
    Make();
    Grab();
    m_clock.DestroyWindow();
    Make();
    MoveToMinute(50);
    ts::MouseUp();
    EXPECT_EQ("1:30", Time());
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(Clock, AnimationEndsWithTheWindow)
{
    Make();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    m_clock.DestroyWindow();
    Make();
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("1:30", Time());
}

TEST_F(Clock, AnimationForwardsPassesMidnight)
{
    Make();
    m_clock.SetTime(23, 50);
    m_clock.SetTimeAnimate(0, 10, TRUE);
    EXPECT_EQ("23:50", Time());
    for (int tick = 0; tick < 5; ++tick) {
        m_clock.OnTimer(kTimer);
    }
    EXPECT_EQ("0:00", Time());
    for (int tick = 0; tick < 5; ++tick) {
        m_clock.OnTimer(kTimer);
    }
    EXPECT_EQ("0:10", Time());
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("0:10", Time());
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
}

TEST_F(Clock, AnimationBackwardsPassesMidnight)
{
    Make();
    m_clock.SetTime(1, 0);
    m_clock.SetTimeAnimate(23, 0, FALSE);
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("0:48", Time());
    for (int tick = 0; tick < 9; ++tick) {
        m_clock.OnTimer(kTimer);
    }
    EXPECT_EQ("23:00", Time());
}

TEST_F(Clock, ShortAnimationTakesOneTick)
{
    Make();
    m_clock.SetTimeAnimate(1, 35, TRUE);
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("1:35", Time());
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
}

TEST_F(Clock, AnimationRunsByItself)
{
    Make();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    EXPECT_TRUE(ts::PumpUntil([this] { return Time() == "14:00"; }));
    EXPECT_TRUE(ts::PumpUntil([this] { return !m_clock.KillTimer(kTimer); }));
}

TEST_F(Clock, AnimationTakesAboutHalfASecond)
{
    Make();
    const ULONGLONG start = GetTickCount64();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    EXPECT_TRUE(ts::PumpUntil([this] { return Time() == "14:00"; }));
    EXPECT_GE(GetTickCount64() - start, 400u);
}

TEST_F(Clock, WithoutATimerTheTimeIsShownAtOnce)
{
    Make();
    const ts::ReplacedImport refuse(L"afx.dll", "SetTimer", &RefuseTimer);
    m_clock.SetTimeAnimate(14, 5, TRUE);
    EXPECT_EQ(50u, g_period);
    EXPECT_EQ("14:05", Time());
    EXPECT_TRUE(NeedsPaint());
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("14:05", Time());
}

TEST_F(Clock, NewAnimationTakesTheOthersPlace)
{
    Make();
    m_clock.SetTime(23, 50);
    m_clock.SetTimeAnimate(0, 10, TRUE);
    m_clock.SetTimeAnimate(20, 30, FALSE);
    for (int tick = 0; tick < 10; ++tick) {
        m_clock.OnTimer(kTimer);
    }
    EXPECT_EQ("20:30", Time());
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
}

TEST_F(Clock, AnimationToTheShownTimeSetsNoTimer)
{
    Make();
    m_clock.SetTimeAnimate(25, 90, TRUE);
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
}

TEST_F(Clock, SettingTheTimeEndsAnAnimation)
{
    Make();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    m_clock.SetTime(5, 6);
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("5:06", Time());
}

TEST_F(Clock, TimerThatComesWithoutAnAnimationIsEnded)
{
    Make();
    m_clock.SetTimer(kTimer, 10000, nullptr);
    m_clock.OnTimer(kTimer);
    EXPECT_EQ("1:30", Time());
    EXPECT_FALSE(m_clock.KillTimer(kTimer));
}

TEST_F(Clock, TimersOfOthersMoveNothing)
{
    Make();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    m_clock.SendMessage(WM_TIMER, kTimer + 1, 0);
    EXPECT_EQ("1:30", Time());
    m_clock.SendMessage(WM_TIMER, kTimer, 0);
    EXPECT_NE("1:30", Time());
}

TEST_F(Clock, WithoutAWindowAnimationShowsTheTimeAtOnce)
{
    m_clock.SetTimeAnimate(14, 5, TRUE);
    EXPECT_EQ("14:05", Time());
    m_clock.SetTime(3, 4);
    EXPECT_EQ("3:04", Time());
}

TEST_F(Clock, SurvivesItsParent)
{
    Make();
    m_clock.SetTimeAnimate(14, 0, TRUE);
    m_host.DestroyWindow();
    m_clock.SetTime(3, 4);
    EXPECT_EQ("3:04", Time());
}

TEST_F(Clock, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak(
        [this] {
            CQorClock clock;
            clock.Create(IDB_DIAL, &m_host, kClockId, kBack);
            clock.SetTimeAnimate(5, 6, TRUE);
            clock.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            clock.DestroyWindow();
        },
        200));
}
