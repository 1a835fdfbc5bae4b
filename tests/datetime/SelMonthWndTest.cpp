#include "Calendar.h"

#include <QorUI/datetime/SelMonthWnd.h>
#include <tests/support/NoWindowClasses.h>
#include <tests/support/Refusals.h>

#include <windowsx.h>

namespace
{

[[noreturn]] void* NoMemoryForObjects(size_t)
{
    AfxThrowMemoryException();
}

class MonthList : public CalendarFixture
{
  protected:
    void SetUp() override { ts::ParkMouse(); }

    /** Opens the list on a cell's header. */
    void Open(int rows = 1, int cols = 1, size_t cell = 0)
    {
        Make(rows, cols);
        m_host.Log().Clear();
        ts::SetPreTranslate([this](MSG& msg) { return CWnd::WalkPreTranslateTree(m_host.m_hWnd, &msg) != FALSE; });
        PressHeader(cell);
        ASSERT_NE(nullptr, List());
    }

    void PressHeader(size_t cell)
    {
        MoveTo(m_calendar.m_pCells[cell].rcHdr);
        ts::MouseDown();
        ts::Settle();
    }

    CPoint Header(size_t cell = 0) const { return CRect(m_calendar.m_pCells[cell].rcHdr).CenterPoint(); }

    /** Sends a press on a header, without the mouse. */
    static void SendPress(CWnd& calendar, const CPoint& header)
    {
        calendar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(header.x, header.y));
    }

    /** Lets the host close the calendar when it loses or gets the activation. */
    void CloseCalendarWhen(bool activated)
    {
        m_host.Log().Answer(WM_ACTIVATE, [this, activated](const ts::Message& message) -> std::optional<LRESULT> {
            if ((LOWORD(message.wParam) != WA_INACTIVE) == activated) {
                m_closedWithList = m_calendar.m_pSelMonthWnd != nullptr;
                m_calendar.DestroyWindow();
            }
            return std::nullopt;
        });
    }

    void ExpectListGone()
    {
        EXPECT_EQ(nullptr, m_calendar.m_pSelMonthWnd);
        EXPECT_FALSE(m_calendar.m_bTrackMonth);
        EXPECT_EQ(nullptr, GetCapture());
    }

    void ExpectClosed()
    {
        EXPECT_EQ(nullptr, m_calendar.m_hWnd);
        ExpectListGone();
    }

    HWND List() { return m_calendar.m_pSelMonthWnd ? m_calendar.m_pSelMonthWnd->m_hWnd : nullptr; }

    int LineHeight() { return Extent(L"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789").cy; }

    CSize Extent(const CString& text)
    {
        CClientDC dc(&m_calendar);
        CFont* old = dc.SelectObject(&m_calendar.m_fontNormal);
        const CSize size = dc.GetTextExtent(text);
        dc.SelectObject(old);
        return size;
    }

    CRect ListRect()
    {
        CRect rect;
        GetWindowRect(List(), rect);
        return rect;
    }

    /** Moves the mouse to a row of the list. */
    void MoveToRow(int row) { ts::MoveMouse(List(), 15, row * LineHeight() + LineHeight() / 2); }

    /** So many moves at a distance above (negative) or below the list. */
    void MoveOutside(int distance, int times)
    {
        const CRect rect = ListRect();
        POINT point = {rect.left + 20, distance < 0 ? rect.top + distance : rect.bottom - 1 + distance};
        ScreenToClient(m_calendar.m_hWnd, &point);
        for (int i = 0; i < times; ++i) {
            ts::MoveMouse(m_calendar.m_hWnd, point.x + i % 2, point.y);
        }
    }

    std::wstring Choose()
    {
        ts::MouseUp();
        ts::Settle();
        return FirstMonth();
    }

    std::wstring Name(int month, int year) { return m_calendar.GetMonthName(month, year).GetString(); }

    bool m_closedWithList = false; ///< there was a list when the host closed the calendar
};

} // namespace

constexpr LONG_PTR kLowBits = 0x108; // which no class gives a meaning

TEST_F(MonthList, OpensAsAPopUpAtTheMouse)
{
    Open();
    EXPECT_TRUE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(m_calendar.m_hWnd, GetCapture());
    EXPECT_EQ(static_cast<LONG_PTR>(WS_POPUP | WS_BORDER | WS_VISIBLE | kLowBits),
              GetWindowLongPtrW(List(), GWL_STYLE) & ~static_cast<LONG_PTR>(WS_CLIPSIBLINGS) & 0xFFFFFFFF);
    EXPECT_EQ(ULONG_PTR{CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_BYTEALIGNCLIENT},
              GetClassLongPtrW(List(), GCL_STYLE));
    EXPECT_EQ(0u, GetClassLongPtrW(List(), GCLP_HCURSOR));
    EXPECT_EQ(0u, GetClassLongPtrW(List(), GCLP_HBRBACKGROUND));
    EXPECT_EQ(0u, GetClassLongPtrW(List(), GCLP_HICON));
    EXPECT_EQ(0, GetWindowLongPtrW(List(), GWL_EXSTYLE));
    EXPECT_EQ(0, GetWindowLongPtrW(List(), GWLP_ID));
    EXPECT_EQ(m_host.m_hWnd, ::GetWindow(List(), GW_OWNER));
    ts::MouseUp();
}

TEST_F(MonthList, IsCentredOnTheMouseWithRoomForSevenMonths)
{
    Open();
    int width = 0;
    for (int month = 1; month <= 12; ++month) {
        width = (std::max)(width, static_cast<int>(Extent(m_calendar.GetMonthName(month, 2000)).cx));
    }
    CPoint mouse = CRect(m_calendar.m_pCells[0].rcHdr).CenterPoint();
    m_calendar.ClientToScreen(&mouse);
    const int halfWidth = (width + 20) / 2;
    const int halfHeight = (7 * LineHeight() + 3) / 2;
    EXPECT_EQ(CRect(mouse.x - halfWidth, mouse.y - halfHeight, mouse.x + halfWidth, mouse.y + halfHeight), ListRect());
    ts::MouseUp();
}

TEST_F(MonthList, IsCentredWhereTheMouseWasWhenTheMessageCame)
{
    Make();
    MoveTo(m_calendar.m_pCells[0].rcHdr);
    const DWORD place = GetMessagePos();
    ASSERT_TRUE(SetCursorPos(GET_X_LPARAM(place) + 60, GET_Y_LPARAM(place) + 90));
    SendPress(m_calendar, Header());
    EXPECT_EQ(CPoint(GET_X_LPARAM(place), GET_Y_LPARAM(place)), ListRect().CenterPoint());
    m_calendar.SendMessage(WM_LBUTTONUP);
}

TEST_F(MonthList, ShowsSevenMonthsAroundTheCellsWithTheOneUnderTheMouseInverted)
{
    Open(1, 2, 1);
    MoveToRow(5);
    const ts::Picture look = ts::CaptureWindow(List());
    const int line = LineHeight();
    const ts::Picture expected = ts::DrawTo(look.Width(), look.Height(), [&](HDC dc) {
        const HGDIOBJ old = SelectObject(dc, m_calendar.m_fontNormal);
        SetBkMode(dc, TRANSPARENT);
        for (int row = 0; row < 7; ++row) {
            RECT rect = {0, row * line, look.Width(), (row + 1) * line};
            if (row == 5) {
                FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
            }
            SetTextColor(dc, row == 5 ? RGB(255, 255, 255) : RGB(0, 0, 0));
            rect.left = 10;
            DrawTextW(dc, m_calendar.GetMonthName(row + 1, 2009), -1, &rect, DT_SINGLELINE);
        }
        SelectObject(dc, old);
    });
    EXPECT_TRUE(ts::SamePicture(expected, look));
    ts::MouseUp();
}

TEST_F(MonthList, ReleaseAtOnceKeepsTheMonthAndClosesTheList)
{
    Open();
    const HWND list = List();
    EXPECT_EQ(Name(3, 2009), Choose());
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(nullptr, m_calendar.m_pSelMonthWnd);
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(MonthList, ChosenMonthIsShown)
{
    Open();
    MoveToRow(5);
    EXPECT_EQ(Name(5, 2009), Choose());
    EXPECT_TRUE(m_host.Log().Is({}));
}

TEST_F(MonthList, ChosenMonthIsShownInThePressedCell)
{
    Open(2, 2, 3);
    MoveToRow(0);
    EXPECT_EQ(Name(12, 2008), Choose());
    EXPECT_NE(nullptr, PlaceOf(Date(2009, 3, 15)));
}

TEST_F(MonthList, AboveTheListTheFirstMonthIsChosen)
{
    Open();
    MoveOutside(-3, 1);
    EXPECT_EQ(Name(12, 2008), Choose());
}

TEST_F(MonthList, BelowTheListTheLastMonthIsChosen)
{
    Open();
    MoveOutside(3, 1);
    EXPECT_EQ(Name(6, 2009), Choose());
}

TEST_F(MonthList, NearMovesScrollByOneMonth)
{
    Open();
    MoveOutside(-5, 10);
    EXPECT_EQ(Name(11, 2008), Choose());
}

TEST_F(MonthList, FarMovesScrollByTwoMonths)
{
    Open();
    MoveOutside(40, 5);
    EXPECT_EQ(Name(8, 2009), Choose());
}

TEST_F(MonthList, MovesInsideSetTheScrollingBack)
{
    Open();
    MoveOutside(5, 9);
    MoveToRow(3);
    MoveOutside(5, 9);
    EXPECT_EQ(Name(6, 2009), Choose());
}

TEST_F(MonthList, PictureReachesTheScreenInOneStep)
{
    Open();
    const ts::Picture before = ts::CaptureWindow(List());
    ScreenWatch watch(List());
    MoveToRow(6);
    EXPECT_LE(1, watch.Copies());
    EXPECT_FALSE(ts::SamePicture(before, ts::CaptureWindow(List())));
    ts::MouseUp();
}

TEST_F(MonthList, EveryMoveIsPaintedAtOnce)
{
    Open();
    ts::MessageRecorder log(List());
    log.RecordOnly({WM_PAINT});
    MSG move = {m_calendar.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
    m_calendar.PreTranslateMessage(&move);
    EXPECT_EQ(1u, log.Messages().size());
    m_calendar.PreTranslateMessage(&move);
    EXPECT_EQ(2u, log.Messages().size());
    ts::MouseUp();
}

TEST_F(MonthList, EveryMoveErasesToo)
{
    Open();
    ts::MessageRecorder log(List());
    log.RecordOnly({WM_ERASEBKGND});
    MSG move = {m_calendar.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
    m_calendar.PreTranslateMessage(&move);
    EXPECT_EQ(1u, log.Messages().size());
    ts::MouseUp();
}

TEST_F(MonthList, OnlyMouseMovesScroll)
{
    Open();
    MoveOutside(-5, 9);
    MSG other = {m_calendar.m_hWnd, WM_TIMER, 0, 0, 0, {0, 0}};
    for (int i = 0; i < 20; ++i) {
        m_calendar.PreTranslateMessage(&other);
    }
    EXPECT_EQ(Name(12, 2008), Choose());
}

TEST_F(MonthList, ScrollsBackAsFarAsTheYearOneHundredAndTheCalendarShowsTheNext)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(101, 2);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    Show();
    ts::SetPreTranslate([this](MSG& msg) { return CWnd::WalkPreTranslateTree(m_host.m_hWnd, &msg) != FALSE; });
    PressHeader(0);
    MoveOutside(-40, 25); // five moves for two months
    MoveToRow(3);
    EXPECT_EQ(Name(12, 101), Choose()) << "December 100, taken into the calendar's years";
}

TEST_F(MonthList, YearThatItCannotShowStaysTodays)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(9999, 12);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 2));
    Show();
    PressHeader(1);
    MoveToRow(3);
    EXPECT_EQ(Name(12, COleDateTime::GetCurrentTime().GetYear() - 1), Choose()) << "January in the pressed cell";
}

TEST_F(MonthList, EarliestYearIsOneHundred)
{
    Make();
    m_calendar.SetCurrentYearMonth(101, 1);
    m_calendar.ScrollLeft(12);
    PressHeader(0);
    EXPECT_EQ(Name(1, 101), Choose()) << "January 100, taken into the calendar's years";
    m_calendar.ScrollLeft(13);
    PressHeader(0);
    EXPECT_EQ(Name(12, COleDateTime::GetCurrentTime().GetYear()), Choose()) << "December 99";
}

TEST_F(MonthList, NothingIsChosenWhereNothingCanBePainted)
{
    Make();
    const ts::ReplacedImport none(L"afx.dll", "CreateCompatibleDC", &ts::NoMemoryDc);
    PressHeader(0);
    EXPECT_EQ(Name(3, 2009), Choose());
}

TEST_F(MonthList, WithoutMemoryThePressThrows)
{
    Make();
    {
        const ts::ReplacedImport none(L"QorUI.dll", "_ZN7CObjectnwEy", &NoMemoryForObjects);
        EXPECT_THROW(m_calendar.OnLButtonDown(MK_LBUTTON, Header()), CMemoryException*);
    }
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(nullptr, GetCapture());
    PressHeader(0);
    EXPECT_NE(nullptr, List());
    EXPECT_EQ(m_calendar.m_hWnd, GetCapture());
    EXPECT_EQ(Name(3, 2009), Choose());
    EXPECT_EQ(nullptr, List());
}

TEST_F(MonthList, WithoutItsWindowClassNothingIsTracked)
{
    Make();
    {
        const ts::NoWindowClasses none;
        PressHeader(0);
    }
    EXPECT_EQ(nullptr, List());
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(MonthList, WithoutItsWindowNothingIsTracked)
{
    Make();
    {
        const ts::ReplacedImport none(L"afx.dll", "CreateWindowExW", &ts::NoWindow);
        PressHeader(0);
    }
    EXPECT_EQ(nullptr, m_calendar.m_pSelMonthWnd);
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(Name(3, 2009), Choose());
}

TEST_F(MonthList, WithoutADeviceContextNothingIsTracked)
{
    Make();
    {
        const ts::ReplacedImport none(L"afx.dll", "GetDC", &ts::NoDc);
        m_calendar.OnLButtonDown(MK_LBUTTON, Header());
    }
    EXPECT_EQ(nullptr, m_calendar.m_pSelMonthWnd);
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(MonthList, ArrowReleasedElsewhereDoesNotKeepTheListOpen)
{
    Make();
    MoveTo(m_calendar.m_rcRightArrow);
    ts::MouseDown();
    ts::MoveMouse(m_host.m_hWnd, 480, 380);
    ts::MouseUp();
    ASSERT_TRUE(m_calendar.m_bTrackArrow);
    PressHeader(0);
    EXPECT_EQ(Name(4, 2009), Choose());
    ExpectListGone();
}

TEST_F(MonthList, DragThatLostTheMouseDoesNotKeepTheListOpen)
{
    Make();
    m_host.Log().Clear();
    m_calendar.m_bTrackDay = TRUE;
    PressHeader(0);
    EXPECT_EQ(Name(3, 2009), Choose());
    ExpectListGone();
    EXPECT_TRUE(m_host.Log().Is({})) << "no day was selected";
}

TEST_F(MonthList, ErasingDoesNothing)
{
    Open();
    const ts::Picture picture = ts::DrawTo(
        10, 10, [this](HDC dc) { EXPECT_EQ(0, SendMessageW(List(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0)); });
    EXPECT_EQ(100, picture.Count(RGB(255, 255, 255)));
    ts::MouseUp();
}

TEST_F(MonthList, NextPressReplacesAListThatIsStillOpen)
{
    Open(1, 2);
    const HWND first = List();
    SendPress(m_calendar, Header(1));
    EXPECT_FALSE(IsWindow(first));
    EXPECT_NE(nullptr, List());
    ts::MouseUp();
    EXPECT_EQ(nullptr, List());
}

TEST_F(MonthList, CalendarTakesAnOpenListWithIt)
{
    Open();
    const HWND list = List();
    m_calendar.DestroyWindow();
    EXPECT_FALSE(IsWindow(list));
    EXPECT_FALSE(m_calendar.m_bTrackMonth);
    ts::MouseUp();
}

TEST_F(MonthList, EndOfTheParentClosesAnOpenList)
{
    Open();
    const HWND list = List();
    m_host.DestroyWindow();
    EXPECT_FALSE(IsWindow(list));
    ExpectClosed();
    ts::MouseUp();
}

TEST_F(MonthList, EndOfTheCalendarClosesAnOpenList)
{
    auto calendar = std::make_unique<CTestCalendar>();
    ASSERT_TRUE(calendar->Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    calendar->RedrawWindow();
    SendPress(*calendar, CRect(calendar->m_pCells[0].rcHdr).CenterPoint());
    ASSERT_NE(nullptr, calendar->m_pSelMonthWnd);
    const HWND list = calendar->m_pSelMonthWnd->m_hWnd;
    ASSERT_TRUE(IsWindow(list));
    calendar.reset();
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(MonthList, HostMayCloseTheCalendarWhenTheListIsActivated)
{
    Make();
    CloseCalendarWhen(false);
    PressHeader(0);
    ExpectClosed();
    m_host.Log().Answer(WM_ACTIVATE, nullptr);
    Make();
    EXPECT_EQ(Name(3, 2009), Choose());
}

TEST_F(MonthList, HostMayCloseTheCalendarWhenTheListGoes)
{
    Open();
    CloseCalendarWhen(true);
    Choose();
    ExpectClosed();
    EXPECT_FALSE(m_closedWithList) << "the list was deleted while its window was being destroyed";
}

TEST_F(MonthList, HostThatClosesTheCalendarKeepsItsCapture)
{
    Open();
    m_host.Log().Answer(WM_ACTIVATE, [this](const ts::Message& message) -> std::optional<LRESULT> {
        if (LOWORD(message.wParam) != WA_INACTIVE) {
            m_calendar.DestroyWindow();
            m_host.SetCapture();
        }
        return std::nullopt;
    });
    m_calendar.SendMessage(WM_LBUTTONUP);
    EXPECT_EQ(nullptr, m_calendar.m_hWnd);
    EXPECT_EQ(m_host.m_hWnd, GetCapture());
    ::ReleaseCapture();
    ts::MouseUp();
}

TEST_F(MonthList, HostMayCloseTheCalendarWhenItLosesTheCapture)
{
    Make();
    m_host.SetCapture();
    m_host.Log().Answer(WM_CAPTURECHANGED, [this](const ts::Message& /*message*/) -> std::optional<LRESULT> {
        m_calendar.DestroyWindow();
        return std::nullopt;
    });
    SendPress(m_calendar, Header());
    m_host.Log().Answer(WM_CAPTURECHANGED, nullptr);
    ExpectClosed();
}

TEST_F(MonthList, LeavesNothingBehind)
{
    Make();
    const CPoint header = Header();
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            SendPress(m_calendar, header);
            UpdateWindow(List());
            m_calendar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(header.x, header.y));
        },
        200));
    EXPECT_EQ(nullptr, List());
}
