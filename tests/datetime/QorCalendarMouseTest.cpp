#include "Calendar.h"

namespace
{

class CalendarMouse : public CalendarFixture
{
  protected:
    void SetUp() override { ts::ParkMouse(); }

    void Begin(UINT days, int rows = 1, int cols = 1)
    {
        m_calendar.SetMaxSelDays(days);
        Make(rows, cols);
        m_host.Log().Clear();
    }

    void Press(const RECT& rect)
    {
        MoveTo(rect);
        ts::MouseDown();
    }
};

const ts::Expected kClick = ts::Notify(kCalendarId, NM_CLICK);
const ts::Expected kDoubleClick = ts::Notify(kCalendarId, NM_DBLCLK);

} // namespace

TEST_F(CalendarMouse, ClickSelectsADayAndTellsTheParentOnRelease)
{
    Begin(1);
    PressOn(Date(2009, 3, 10));
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    EXPECT_EQ(m_calendar.m_hWnd, GetCapture());
    EXPECT_EQ(m_calendar.m_hWnd, GetFocus());
    EXPECT_TRUE(m_host.Log().Is({}));
    ts::MouseUp();
    EXPECT_EQ(nullptr, GetCapture());
    ASSERT_TRUE(m_host.Log().Is({kClick}));
    const ts::Message& click = m_host.Log().Messages().front();
    EXPECT_EQ(m_calendar.m_hWnd, click.from);
    EXPECT_EQ(kCalendarId, click.wParam);
}

TEST_F(CalendarMouse, SingleDayFollowsTheDrag)
{
    Begin(1);
    Drag(Date(2009, 3, 10), Date(2009, 3, 20));
    EXPECT_EQ(L"2009-03-20 to 2009-03-20", Selection(m_calendar));
}

TEST_F(CalendarMouse, DragForwardsSelectsAtMostSevenDays)
{
    Begin(7);
    Drag(Date(2009, 3, 10), Date(2009, 3, 20));
    EXPECT_EQ(L"2009-03-10 to 2009-03-16", Selection(m_calendar));
    EXPECT_TRUE(m_host.Log().Is({kClick}));
}

TEST_F(CalendarMouse, DragBackwardsSelectsAtMostSevenDays)
{
    Begin(7);
    Drag(Date(2009, 3, 20), Date(2009, 3, 1));
    EXPECT_EQ(L"2009-03-14 to 2009-03-20", Selection(m_calendar));
}

TEST_F(CalendarMouse, DragBackOverTheAnchorTurnsTheRange)
{
    Begin(7);
    PressOn(Date(2009, 3, 10));
    MoveTo(Date(2009, 3, 13));
    EXPECT_EQ(L"2009-03-10 to 2009-03-13", Selection(m_calendar));
    MoveTo(Date(2009, 3, 8));
    EXPECT_EQ(L"2009-03-08 to 2009-03-10", Selection(m_calendar));
    ts::MouseUp();
    EXPECT_EQ(L"2009-03-08 to 2009-03-10", Selection(m_calendar));
}

TEST_F(CalendarMouse, DragAcrossMonthsSelectsOnlyDaysThatAreHit)
{
    Begin(7, 1, 2);
    PressOn(Date(2009, 3, 30));
    MoveTo(Date(2009, 4, 2));
    EXPECT_EQ(L"2009-03-30 to 2009-04-02", Selection(m_calendar));
    ts::MoveMouse(m_calendar.m_hWnd, m_calendar.m_nCellWidth + 1, m_calendar.m_nCellHeight - 2);
    EXPECT_EQ(L"2009-03-30 to 2009-04-02", Selection(m_calendar));
    ts::MouseUp();
}

TEST_F(CalendarMouse, BlankSlotsAreNoTargets)
{
    Begin(7);
    RECT blank = *PlaceOf(Date(2009, 3, 31));
    OffsetRect(&blank, m_calendar.m_nDayWidth + 5, 0);
    Press(blank);
    EXPECT_EQ(L"none", Selection(m_calendar));
    EXPECT_EQ(nullptr, GetCapture());
    ts::MouseUp();
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(CalendarMouse, ForbiddenSelectionIgnoresPresses)
{
    Begin(0);
    PressOn(Date(2009, 3, 10));
    EXPECT_EQ(nullptr, GetCapture());
    ts::MouseUp();
    EXPECT_EQ(L"none", Selection(m_calendar));
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(CalendarMouse, SelectionForbiddenDuringADragIsNotExtended)
{
    Begin(7);
    PressOn(Date(2009, 3, 10));
    m_calendar.SetMaxSelDays(0);
    MoveTo(Date(2009, 3, 12));
    EXPECT_EQ(L"none", Selection(m_calendar));
    ts::MouseUp();
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(CalendarMouse, MovesWithoutAPressSelectNothing)
{
    Begin(7);
    MoveTo(Date(2009, 3, 10));
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(CalendarMouse, DoubleClickSelectsTheDay)
{
    Begin(7);
    MoveTo(Date(2009, 3, 10));
    const CPoint point = CRect(PlaceOf(Date(2009, 3, 10))).CenterPoint();
    ts::DoubleClick(m_calendar.m_hWnd, point.x, point.y);
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    EXPECT_TRUE(m_host.Log().Is({kClick, kDoubleClick}));
}

TEST_F(CalendarMouse, DoubleClickSelectsEvenWhereSelectingIsForbidden)
{
    Begin(0);
    const CPoint point = CRect(PlaceOf(Date(2009, 3, 10))).CenterPoint();
    ts::DoubleClick(m_calendar.m_hWnd, point.x, point.y);
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    EXPECT_TRUE(m_host.Log().Is({kDoubleClick}));
}

TEST_F(CalendarMouse, DoubleClickBesideTheDaysTellsNothing)
{
    Begin(1);
    ts::DoubleClick(m_calendar.m_hWnd, 1, m_calendar.m_nHdrHeight + 3);
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(CalendarMouse, ArrowsPageByTheWholeGridWithoutNotification)
{
    Begin(1, 2, 2);
    Press(m_calendar.m_rcRightArrow);
    EXPECT_EQ(7, m_calendar.m_nMonth);
    EXPECT_TRUE(m_calendar.m_bTrackArrow);
    EXPECT_EQ(nullptr, GetCapture());
    ts::MouseUp();
    EXPECT_FALSE(m_calendar.m_bTrackArrow);
    Press(m_calendar.m_rcLeftArrow);
    ts::MouseUp();
    EXPECT_EQ(3, m_calendar.m_nMonth);
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(CalendarMouse, PagingGoesAcrossTheYear)
{
    Begin(1, 2, 2);
    m_calendar.ScrollLeft(1);
    EXPECT_EQ(11, m_calendar.m_nMonth);
    EXPECT_EQ(2008, m_calendar.m_nYear);
    m_calendar.ScrollRight(3);
    EXPECT_EQ(11, m_calendar.m_nMonth);
    EXPECT_EQ(2009, m_calendar.m_nYear);
    m_calendar.ScrollRight(0);
    m_calendar.ScrollLeft(-5);
    EXPECT_EQ(11, m_calendar.m_nMonth);
}

TEST_F(CalendarMouse, PagingClearsTheDaysOfTheFormerMonth)
{
    Begin(1);
    m_calendar.ScrollLeft(1);
    EXPECT_TRUE(IsRectEmpty(&m_calendar.m_pCells[0].days[28].rc));
    EXPECT_TRUE(m_calendar.m_pCells[0].days[27].date == Date(2009, 2, 28));
}

TEST_F(CalendarMouse, HeldArrowPagesWithEveryMove)
{
    Begin(1);
    const CPoint middle = CRect(m_calendar.m_rcRightArrow).CenterPoint();
    Press(m_calendar.m_rcRightArrow);
    EXPECT_EQ(4, m_calendar.m_nMonth);
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y + 1);
    EXPECT_EQ(5, m_calendar.m_nMonth);
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y);
    EXPECT_EQ(6, m_calendar.m_nMonth);
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y + 40);
    EXPECT_EQ(6, m_calendar.m_nMonth);
    MoveTo(m_calendar.m_rcLeftArrow);
    EXPECT_EQ(5, m_calendar.m_nMonth);
    ts::MouseUp();
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y);
    EXPECT_EQ(5, m_calendar.m_nMonth);
}

TEST_F(CalendarMouse, HeldArrowPagesByTheWholeGrid)
{
    Begin(1, 2, 2);
    const CPoint middle = CRect(m_calendar.m_rcRightArrow).CenterPoint();
    Press(m_calendar.m_rcRightArrow);
    EXPECT_EQ(3 + 4, m_calendar.m_nMonth);
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y + 1);
    EXPECT_EQ(3 + 2 * 4, m_calendar.m_nMonth);
    MoveTo(m_calendar.m_rcLeftArrow);
    EXPECT_EQ(3 + 4, m_calendar.m_nMonth);
    ts::MouseUp();
}

TEST_F(CalendarMouse, WaitCursorIsShownUntilAPageIsPainted)
{
    HCURSOR whilePainting = nullptr;
    Make(
        1, 1,
        [](COleDateTime& /*date*/, void* data) {
            *static_cast<HCURSOR*>(data) = GetCursor();
            return 0;
        },
        &whilePainting);
    const HCURSOR wait = LoadCursorW(nullptr, IDC_WAIT);
    Press(m_calendar.m_rcRightArrow);
    EXPECT_EQ(wait, whilePainting);
    EXPECT_NE(wait, GetCursor());
    const CPoint middle = CRect(m_calendar.m_rcRightArrow).CenterPoint();
    whilePainting = nullptr;
    ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y + 1);
    EXPECT_EQ(wait, whilePainting);
    ts::MouseUp();
    EXPECT_NE(wait, whilePainting);
    m_calendar.ScrollLeft(1);
    EXPECT_EQ(wait, whilePainting);
    m_calendar.ScrollRight(0);
    EXPECT_NE(wait, whilePainting);
    m_calendar.ScrollRight(2);
    EXPECT_EQ(wait, whilePainting);
}

TEST_F(CalendarMouse, EveryStepIsPaintedAtOnce)
{
    int days = 0;
    Make(
        1, 1,
        [](COleDateTime& /*date*/, void* data) {
            ++*static_cast<int*>(data);
            return 0;
        },
        &days);
    const auto paints = [&](UINT message, CPoint point) {
        days = 0;
        m_calendar.SendMessage(message, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        return days >= 28;
    };
    const CPoint day = CRect(PlaceOf(Date(2009, 3, 10))).CenterPoint();
    const CPoint beside(day.x, m_calendar.m_nHdrHeight + 1);
    EXPECT_TRUE(paints(WM_LBUTTONDOWN, day));
    EXPECT_TRUE(paints(WM_MOUSEMOVE, day));
    EXPECT_FALSE(paints(WM_MOUSEMOVE, beside)) << "no day is hit";
    EXPECT_TRUE(paints(WM_LBUTTONUP, beside));
    EXPECT_FALSE(paints(WM_LBUTTONUP, beside)) << "nothing was pressed";
    EXPECT_TRUE(paints(WM_LBUTTONDBLCLK, day));
    const CPoint arrow = CRect(m_calendar.m_rcRightArrow).CenterPoint();
    EXPECT_TRUE(paints(WM_LBUTTONDOWN, arrow));
    EXPECT_TRUE(paints(WM_MOUSEMOVE, arrow));
    EXPECT_FALSE(paints(WM_MOUSEMOVE, beside));
    EXPECT_TRUE(paints(WM_LBUTTONUP, beside));
    const CPoint header = CRect(m_calendar.m_pCells[0].rcHdr).CenterPoint();
    paints(WM_LBUTTONDOWN, header);
    EXPECT_TRUE(paints(WM_LBUTTONUP, header));
}

TEST_F(CalendarMouse, ArrowsWinOverTheHeader)
{
    Begin(1);
    CPoint inArrow(m_calendar.m_rcLeftArrow.right - 1, m_calendar.m_rcLeftArrow.top + 1);
    ts::MoveMouse(m_calendar.m_hWnd, inArrow.x, inArrow.y);
    ts::MouseDown();
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(2, m_calendar.m_nMonth);
    ts::MouseUp();
}

TEST_F(CalendarMouse, HitTestsFindHeadersAndDays)
{
    Begin(1, 2, 2);
    CPoint inHeader(m_calendar.m_nCellWidth + 12, m_calendar.m_nCellHeight + 3);
    EXPECT_EQ(&m_calendar.m_pCells[3], m_calendar.HdrHitTest(inHeader));
    EXPECT_TRUE(m_calendar.InCellHdr(inHeader));
    EXPECT_FALSE(m_calendar.InCellDay(inHeader));
    CPoint inDay = CRect(PlaceOf(Date(2009, 6, 15))).CenterPoint();
    const CalendarDay* day = m_calendar.DayHitTest(inDay);
    ASSERT_NE(nullptr, day);
    EXPECT_TRUE(day->date == Date(2009, 6, 15));
    EXPECT_TRUE(m_calendar.InCellDay(inDay));
    EXPECT_FALSE(m_calendar.InCellHdr(inDay));
    CPoint outside(-1, -1);
    EXPECT_EQ(nullptr, m_calendar.DayHitTest(outside));
    EXPECT_EQ(nullptr, m_calendar.HdrHitTest(outside));
    EXPECT_FALSE(m_calendar.InCellDay(outside));
}

TEST_F(CalendarMouse, FirstOfTwoHeadersAtOnePlaceIsHit)
{
    Begin(1, 1, 2);
    const RECT both = {10, 10, 20, 20};
    m_calendar.SetCellHdrPos(1, 2, both);
    m_calendar.SetCellHdrPos(1, 1, both);
    CPoint point(15, 15);
    EXPECT_EQ(&m_calendar.m_pCells[0], m_calendar.HdrHitTest(point));
}

TEST_F(CalendarMouse, DaysAreHitWithinTheWeeksOnly)
{
    Begin(1);
    const CRect sunday(PlaceOf(Date(2009, 3, 8)));
    CPoint inside(m_calendar.m_pCells[0].rcCell.left, sunday.CenterPoint().y);
    ASSERT_EQ(sunday.left + 3, inside.x);
    ASSERT_NE(nullptr, m_calendar.DayHitTest(inside));
    CPoint beside(inside.x - 1, inside.y);
    EXPECT_EQ(nullptr, m_calendar.DayHitTest(beside));
    Press(CRect(beside, CSize(1, 1)));
    EXPECT_EQ(L"none", Selection(m_calendar));
    ts::MouseUp();
}

TEST_F(CalendarMouse, StaleSlotCanStillBeHit)
{
    Begin(1);
    m_calendar.SetCurrentYearMonth(2009, 2);
    Show();
    PressOn(Date(2009, 3, 29));
    ts::MouseUp();
    EXPECT_EQ(L"2009-03-29 to 2009-03-29", Selection(m_calendar));
}

TEST_F(CalendarMouse, TrackingWithoutADayIsIgnored)
{
    Begin(7);
    m_calendar.TrackCellDay(nullptr);
    m_calendar.TrackCellDay(&m_calendar.m_pCells[0].days[3]);
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(CalendarMouse, SingleDayNeedsNoBeginningToFollowTheMouse)
{
    Begin(1);
    m_calendar.TrackCellDay(&m_calendar.m_pCells[0].days[3]);
    EXPECT_EQ(L"2009-03-04 to 2009-03-04", Selection(m_calendar));
}

TEST_F(CalendarMouse, EveryPressForgetsWhereTheLastDragBegan)
{
    Begin(7);
    Drag(Date(2009, 3, 10), Date(2009, 3, 12));
    EXPECT_EQ(L"2009-03-10 00:00", Text(m_calendar.m_dtAnchor));
    Press(m_calendar.m_rcRightArrow);
    EXPECT_EQ(L"none", Text(m_calendar.m_dtAnchor));
    ts::MouseUp();
    EXPECT_EQ(L"2009-03-10 to 2009-03-12", Selection(m_calendar)) << "the selection stays";
}

TEST_F(CalendarMouse, CaptureIsGivenBackBeforeTheParentIsTold)
{
    Begin(7);
    HWND capture = m_host.m_hWnd;
    std::wstring selection;
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& /*message*/) {
        capture = GetCapture();
        selection = Selection(m_calendar);
        return std::nullopt;
    });
    Drag(Date(2009, 3, 10), Date(2009, 3, 12));
    EXPECT_EQ(nullptr, capture);
    EXPECT_EQ(L"2009-03-10 to 2009-03-12", selection);
}

TEST_F(CalendarMouse, DragEndsWithTheWindow)
{
    Begin(7);
    PressOn(Date(2009, 3, 10));
    m_calendar.DestroyWindow();
    Begin(7);
    MoveTo(Date(2009, 3, 12));
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    ts::MouseUp();
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(CalendarMouse, HeldArrowIsLetGoWithTheWindow)
{
    Begin(1);
    Press(m_calendar.m_rcRightArrow);
    m_calendar.DestroyWindow();
    Begin(1);
    MoveTo(m_calendar.m_rcLeftArrow);
    EXPECT_EQ(3, m_calendar.m_nMonth);
    ts::MouseUp();
}

TEST_F(CalendarMouse, DragGoesOnWithTheMouseOutside)
{
    Begin(7);
    PressOn(Date(2009, 3, 10));
    ts::MoveMouse(m_host.m_hWnd, 480, 380);
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    MoveTo(Date(2009, 3, 11));
    EXPECT_EQ(L"2009-03-10 to 2009-03-11", Selection(m_calendar));
    ts::MoveMouse(m_host.m_hWnd, 480, 380);
    ts::MouseUp();
    EXPECT_TRUE(m_host.Log().Is({kClick}));
}

TEST_F(CalendarMouse, NotificationIsSentAfterARepaint)
{
    Begin(1);
    bool painted = false;
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& /*message*/) {
        painted = !GetUpdateRect(m_calendar.m_hWnd, nullptr, FALSE);
        return std::nullopt;
    });
    m_calendar.SetBkColor(RGB(1, 2, 3));
    m_calendar.FireNotify(NM_CLICK);
    EXPECT_TRUE(painted);
    EXPECT_TRUE(m_host.Log().Is({ts::Notify(kCalendarId, NM_CLICK)}));
}

TEST_F(CalendarMouse, ParentMayDestroyTheCalendarWhenTold)
{
    Begin(1);
    m_host.Log().Answer(WM_NOTIFY, [&](const ts::Message& /*message*/) {
        m_calendar.DestroyWindow();
        return std::nullopt;
    });
    PressOn(Date(2009, 3, 10));
    ts::MouseUp();
    EXPECT_EQ(nullptr, m_calendar.m_hWnd);
}

TEST_F(CalendarMouse, HostMayCloseTheCalendarWhenItLosesTheFocusOrTheCapture)
{
    for (const UINT loss : {WM_KILLFOCUS, WM_CAPTURECHANGED}) {
        Begin(7);
        const CPoint day = CRect(PlaceOf(Date(2009, 3, 10))).CenterPoint();
        m_host.SetFocus();
        m_host.SetCapture();
        m_host.Log().Answer(loss, [this](const ts::Message& /*message*/) {
            m_calendar.DestroyWindow();
            return std::nullopt;
        });
        m_calendar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(day.x, day.y));
        m_host.Log().Answer(loss, nullptr);
        EXPECT_EQ(nullptr, m_calendar.m_hWnd) << loss;
        EXPECT_FALSE(m_calendar.m_bTrackDay) << loss;
        EXPECT_EQ(loss == WM_KILLFOCUS ? L"none" : L"2009-03-10 to 2009-03-10", Selection(m_calendar));
        ::ReleaseCapture();
    }
}
