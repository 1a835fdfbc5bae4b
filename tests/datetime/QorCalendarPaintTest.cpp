#include "Calendar.h"

#include <tests/support/ui/Drawn.h>

#include <set>
#include <stdexcept>

namespace
{

constexpr COLORREF kBack = RGB(250, 240, 230);
constexpr COLORREF kNormal = RGB(10, 120, 10);
constexpr COLORREF kSpecial = RGB(200, 0, 100);
constexpr COLORREF kSelected = RGB(0, 84, 227);

/** A calendar that tells what it leaves to the default procedure, until it paints. */
class CDefaultsOfCalendar : public CTestCalendar
{
  public:
    /** What was left to the default procedure between the beginning of a message and the painting of the days. */
    std::set<UINT> BeforePainting(UINT message)
    {
        m_defaults.clear();
        m_painted = false;
        SendMessage(message, 0, 0);
        EXPECT_TRUE(m_painted) << ts::MessageName(message);
        return m_defaults;
    }

    static int NotePainting(COleDateTime& /*date*/, void* calendar)
    {
        static_cast<CDefaultsOfCalendar*>(calendar)->m_painted = true;
        return 0;
    }

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (!m_painted) {
            m_defaults.insert(message);
        }
        return CTestCalendar::DefWindowProc(message, wParam, lParam);
    }

  private:
    std::set<UINT> m_defaults;
    bool m_painted = false;
};

constexpr UINT kSurroundings[] = {WM_FONTCHANGE,    WM_TIMECHANGE,    WM_PALETTECHANGED,
                                  WM_DEVMODECHANGE, WM_SETTINGCHANGE, WM_SYSCOLORCHANGE};

int IsMonday(COleDateTime& date, void* /*data*/)
{
    return date.GetDayOfWeek() == 2;
}

class CalendarPaint : public CalendarFixture
{
  protected:
    void SetUp() override
    {
        m_calendar.SetBkColor(kBack);
        m_calendar.SetColors(kNormal, kSpecial);
    }

    int Width() const { return m_calendar.m_nCellWidth; }
    int Left(int x = 0) const { return x + Width() / 2 - RowWidth() / 2; }
    int RowWidth() const { return 7 * m_calendar.m_nDayWidth + 30; }
    int DaysTop() const { return m_calendar.m_nHdrHeight + m_calendar.m_nDowHeight + 4; }

    /** The area of a day of the first month by its column and week, from 0. */
    CRect Area(int column, int week) const
    {
        const int x = Left() + column * (m_calendar.m_nDayWidth + 5);
        const int y = DaysTop() + week * (m_calendar.m_nDayHeight + 2);
        return {x - 3, y, x + m_calendar.m_nDayWidth + 2, y + m_calendar.m_nDayHeight + 2};
    }

    /** What a day looks like with a number in a place of this size, not selected. */
    ts::Picture NumberPicture(const CSize& size, const CString& number)
    {
        return ts::Drawn(size.cx, size.cy, [&](CDC& dc) {
            CRect rect(CPoint(0, 0), size);
            dc.FillSolidRect(rect, kBack);
            dc.SetBkMode(TRANSPARENT);
            dc.SetTextColor(kNormal);
            CFont* old = dc.SelectObject(&m_calendar.m_fontNormal);
            dc.DrawText(number, rect, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
            dc.SelectObject(old);
        });
    }

    int ColourIn(const ts::Picture& picture, const CRect& area, COLORREF colour)
    {
        return picture.Crop(area).Count(colour);
    }
};

} // namespace

TEST_F(CalendarPaint, BackgroundIsTheGivenColour)
{
    Make();
    const ts::Picture look = Look();
    EXPECT_TRUE(ts::PixelIs(look, 1, DaysTop() + 1, kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(Width() - 1, 0, Width(), look.Height()), kBack));
}

TEST_F(CalendarPaint, HeaderIsARaisedBarInButtonColours)
{
    Make();
    const ts::Picture look = Look();
    const int bottom = m_calendar.m_nHdrHeight - 1;
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, Width() - 2, 1), GetSysColor(COLOR_WINDOW)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 0, 1, bottom), GetSysColor(COLOR_WINDOW)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, bottom, Width() - 1, bottom + 1), GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(Width() - 2, 0, Width() - 1, bottom), GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(1, 1, 5, bottom), GetSysColor(COLOR_BTNFACE)));
    EXPECT_GT(look.Crop(CRect(15, 1, Width() - 20, bottom)).Count(GetSysColor(COLOR_BTNTEXT)), 20);
}

TEST_F(CalendarPaint, HeaderTextIsCentredLeftOfTheRightArrow)
{
    Make();
    const ts::Picture expected = ts::Drawn(Width(), m_calendar.m_nHdrHeight, [this](CDC& dc) {
        dc.FillSolidRect(0, 0, Width(), m_calendar.m_nHdrHeight, GetSysColor(COLOR_BTNFACE));
        dc.SetTextColor(GetSysColor(COLOR_BTNTEXT));
        dc.SetBkMode(TRANSPARENT);
        CFont* old = dc.SelectObject(&m_calendar.m_fontBold);
        CRect rect(1, 1, Width() - 10, m_calendar.m_nHdrHeight - 2);
        dc.DrawText(m_calendar.GetMonthName(3, 2009), rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        dc.SelectObject(old);
    });
    const CRect middle(14, 1, Width() - 18, m_calendar.m_nHdrHeight - 1);
    EXPECT_TRUE(ts::SamePicture(expected.Crop(middle), Look().Crop(middle)));
}

TEST_F(CalendarPaint, SingleCellHasBothArrows)
{
    Make();
    const int a = m_calendar.m_nHdrHeight / 4;
    const int m = m_calendar.m_nHdrHeight / 2;
    EXPECT_EQ(CRect(5, m - a - 1, a + 7, m + a + 1), CRect(m_calendar.m_rcLeftArrow));
    const int right = Width() - 10;
    EXPECT_EQ(CRect(right - a - 1, m - a - 1, right + 1, m + a + 1), CRect(m_calendar.m_rcRightArrow));
    const ts::Picture look = Look();
    const COLORREF black = RGB(0, 0, 0);
    EXPECT_TRUE(ts::PixelIs(look, 6, m, black));
    EXPECT_TRUE(ts::PixelIs(look, 6 + a - 1, m - a + 1, black));
    EXPECT_TRUE(ts::PixelIs(look, 6 + a - 1, m + a - 1, black));
    EXPECT_FALSE(ts::PixelIs(look, 6, m - 1, black));
    EXPECT_TRUE(ts::PixelIs(look, right, m, black));
    EXPECT_TRUE(ts::PixelIs(look, right - a + 1, m - a + 1, black));
    EXPECT_FALSE(ts::PixelIs(look, right, m - 1, black));
}

TEST_F(CalendarPaint, ArrowsStandInTheFirstRowsOuterCells)
{
    Make(2, 2);
    const ts::Picture look = Look();
    const int a = m_calendar.m_nHdrHeight / 4;
    const int m = m_calendar.m_nHdrHeight / 2;
    const int right = 2 * Width() - 10;
    EXPECT_EQ(CRect(5, m - a - 1, a + 7, m + a + 1), CRect(m_calendar.m_rcLeftArrow));
    EXPECT_EQ(CRect(right - a - 1, m - a - 1, right + 1, m + a + 1), CRect(m_calendar.m_rcRightArrow));
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_TRUE(ts::PixelIs(look, Width() - 10, m, face));
    EXPECT_TRUE(ts::PixelIs(look, Width() + 6, m, face));
    EXPECT_TRUE(ts::PixelIs(look, 6, m_calendar.m_nCellHeight + m, face));
    EXPECT_TRUE(ts::PixelIs(look, right, m_calendar.m_nCellHeight + m, face));
}

TEST_F(CalendarPaint, HeaderPlacesAreRemembered)
{
    Make(2, 2);
    const CalendarCell& cell = m_calendar.m_pCells[3];
    const int x = Width();
    const int y = m_calendar.m_nCellHeight;
    EXPECT_EQ(CRect(x + 10, y + 1, x + Width() - 20, y + m_calendar.m_nHdrHeight - 2), CRect(cell.rcHdr));
    EXPECT_EQ(2, cell.nRow);
    EXPECT_EQ(2, cell.nCol);
}

TEST_F(CalendarPaint, InitialsStandOverTheirColumns)
{
    Make();
    const ts::Picture look = Look();
    const int y = m_calendar.m_nHdrHeight;
    for (int column = 0; column < 7; ++column) {
        const int x = Left() + column * (m_calendar.m_nDayWidth + 5);
        const CRect place(x, y + 1, x + m_calendar.m_nDayWidth, y + m_calendar.m_nDowHeight + 2);
        const ts::Picture expected = ts::Drawn(place.Width(), place.Height(), [&](CDC& dc) {
            dc.FillSolidRect(0, 0, place.Width(), place.Height(), kBack);
            dc.SetBkMode(TRANSPARENT);
            dc.SetTextColor(GetSysColor(COLOR_BTNTEXT));
            CFont* old = dc.SelectObject(&m_calendar.m_fontNormal);
            CRect rect(0, 0, place.Width(), place.Height());
            dc.DrawText(CString(L"SMTWTFS").Mid(column, 1), rect, DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
            dc.SelectObject(old);
        });
        EXPECT_TRUE(ts::SamePicture(expected, look.Crop(place))) << column;
    }
}

TEST_F(CalendarPaint, RuleStandsUnderTheInitials)
{
    Make();
    const ts::Picture look = Look();
    const int y = m_calendar.m_nHdrHeight + m_calendar.m_nDowHeight + 3;
    EXPECT_TRUE(ts::AreaIs(look, CRect(Left(), y, Left() + RowWidth(), y + 1), GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_TRUE(ts::PixelIs(look, Left() - 1, y, kBack));
    EXPECT_TRUE(ts::PixelIs(look, Left() + RowWidth(), y, kBack));
    EXPECT_TRUE(ts::AreaIs(look, CRect(Left(), y - 1, Left() + RowWidth(), y), kBack));
}

TEST_F(CalendarPaint, PartsTellTheirHeights)
{
    Make();
    ts::Drawn(200, 200, [this](CDC& dc) {
        EXPECT_EQ(m_calendar.m_nHdrHeight, m_calendar.DrawHeader(dc, 0, 0, 1, 1, 3, 2009));
        EXPECT_EQ(m_calendar.m_nDowHeight + 4, m_calendar.DrawDaysOfWeek(dc, 20, 0));
        EXPECT_EQ(6 * (m_calendar.m_nDayHeight + 2) + 5, m_calendar.DrawDays(dc, 40, 0, 1, 1, 3, 2009));
    });
}

TEST_F(CalendarPaint, DaysAreRightAlignedNumbers)
{
    Make();
    const ts::Picture look = Look();
    for (const int day : {1, 9, 17, 31}) {
        const CRect area = Area((day - 1) % 7, (day - 1) / 7);
        const CRect place(area.left + 3, area.top + 1, area.right - 2, area.bottom - 1);
        CString number;
        number.Format(L"%d", day);
        EXPECT_TRUE(ts::SamePicture(NumberPicture(place.Size(), number), look.Crop(place))) << day;
    }
}

TEST_F(CalendarPaint, NumberOfADayThatIsNoDateIsMinusOne)
{
    Make();
    constexpr int monthOfNoDate = -1;
    const CRect last(Area(6, 5) - CPoint(0, DaysTop()));
    const CRect place(last.left + 3, last.top + 1, last.right - 2, last.bottom - 1);
    const ts::Picture picture = ts::Drawn(Width(), last.bottom, [&](CDC& dc) {
        dc.FillSolidRect(0, 0, Width(), last.bottom, kBack);
        m_calendar.DrawDays(dc, 0, 0, 1, 1, monthOfNoDate, 2009);
    });
    EXPECT_TRUE(ts::SamePicture(NumberPicture(place.Size(), L"-1"), picture.Crop(place)));
}

TEST_F(CalendarPaint, MonthOnTheFirstWeekdayBeginsInTheFirstWeek)
{
    Make();
    EXPECT_TRUE(m_calendar.m_pCells[0].days[0].date == Date(2009, 3, 1));
    EXPECT_EQ(Area(0, 0), CRect(m_calendar.m_pCells[0].days[0].rc));
    EXPECT_EQ(CRect(Left(), DaysTop(), Left() + RowWidth(), DaysTop() + 6 * (m_calendar.m_nDayHeight + 2)),
              CRect(m_calendar.m_pCells[0].rcCell));
}

TEST_F(CalendarPaint, ShortFebruaryFillsFourWeeks)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(2009, 2);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    Show();
    const CalendarDay* days = m_calendar.m_pCells[0].days;
    EXPECT_TRUE(days[0].date == Date(2009, 2, 1));
    EXPECT_TRUE(days[27].date == Date(2009, 2, 28));
    for (int slot = 28; slot < 42; ++slot) {
        EXPECT_TRUE(IsRectEmpty(&days[slot].rc)) << slot;
    }
    const CRect lastWeeks(Area(0, 4).left, Area(0, 4).top, Area(6, 5).right, Area(6, 5).bottom);
    EXPECT_TRUE(ts::AreaIs(Look(), lastWeeks, kBack));
}

TEST_F(CalendarPaint, WeeksThatBeginWithMondayShiftTheDays)
{
    Make();
    m_calendar.SetFirstDayOfWeek(2);
    m_calendar.ClearDays();
    Show();
    EXPECT_TRUE(IsRectEmpty(&m_calendar.m_pCells[0].days[5].rc));
    EXPECT_TRUE(m_calendar.m_pCells[0].days[6].date == Date(2009, 3, 1));
    EXPECT_TRUE(m_calendar.m_pCells[0].days[36].date == Date(2009, 3, 31));
}

TEST_F(CalendarPaint, MonthsAdvanceRowByRowAcrossTheYear)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(2009, 11);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 2));
    Show();
    EXPECT_NE(nullptr, PlaceOf(Date(2009, 11, 30)));
    EXPECT_NE(nullptr, PlaceOf(Date(2009, 12, 31)));
    EXPECT_NE(nullptr, PlaceOf(Date(2010, 1, 1)));
    EXPECT_NE(nullptr, PlaceOf(Date(2010, 2, 28)));
    EXPECT_EQ(nullptr, PlaceOf(Date(2010, 3, 1)));
    EXPECT_GE(PlaceOf(Date(2009, 12, 1))->left, Width());
    EXPECT_GE(PlaceOf(Date(2010, 1, 1))->top, m_calendar.m_nCellHeight);
}

TEST_F(CalendarPaint, SpecialDaysHaveTheirColour)
{
    Make(1, 1, &IsMonday);
    const ts::Picture look = Look();
    EXPECT_GT(ColourIn(look, Area(1, 0), kSpecial), 3);
    EXPECT_EQ(0, ColourIn(look, Area(1, 0), kNormal));
    EXPECT_GT(ColourIn(look, Area(2, 0), kNormal), 3);
    EXPECT_EQ(0, ColourIn(look, Area(2, 0), kSpecial));
}

TEST_F(CalendarPaint, PredicateGetsTheContextAndEveryDayOnce)
{
    std::vector<int> days;
    Make(
        1, 1,
        [](COleDateTime& date, void* data) {
            static_cast<std::vector<int>*>(data)->push_back(date.GetDay());
            return 0;
        },
        &days);
    days.clear();
    m_calendar.RedrawWindow();
    ASSERT_EQ(31u, days.size());
    EXPECT_EQ(1, days.front());
    EXPECT_EQ(31, days.back());
}

TEST_F(CalendarPaint, PredicateCannotChangeTheDays)
{
    Make(1, 1, [](COleDateTime& date, void* /*data*/) {
        date = COleDateTime(9999, 1, 1, 0, 0, 0);
        return 0;
    });
    EXPECT_TRUE(m_calendar.m_pCells[0].days[30].date == Date(2009, 3, 31));
}

TEST_F(CalendarPaint, PredicateThatThrowsCountsAsNotSpecial)
{
    Make(1, 1, [](COleDateTime& date, void* /*data*/) -> int {
        switch (date.GetDay() % 3) {
        case 0:
            throw 42;
        case 1:
            throw std::runtime_error("no data");
        default:
            AfxThrowMemoryException();
        }
    });
    const ts::Picture look = Look();
    EXPECT_EQ(0, look.Count(kSpecial));
    EXPECT_GT(look.Count(kNormal), 100);
    COleDateTime date = Date(2009, 3, 3);
    EXPECT_FALSE(m_calendar.IsSpecialDate(date));
}

TEST_F(CalendarPaint, SelectionIsABlueBandWithWhiteNumbers)
{
    m_calendar.SetMaxSelDays(7);
    Make(1, 1, &IsMonday);
    COleDateTime start = Date(2009, 3, 9);
    COleDateTime end = Date(2009, 3, 11);
    m_calendar.SetSelDate(start, end);
    Show();
    const ts::Picture look = Look();
    for (const int column : {1, 2, 3}) {
        const CRect area = Area(column, 1);
        EXPECT_TRUE(ts::FrameIs(look, area, kSelected)) << column;
        EXPECT_GT(ColourIn(look, area, RGB(255, 255, 255)), 3) << column;
        EXPECT_EQ(0, ColourIn(look, area, kSpecial) + ColourIn(look, area, kNormal)) << column;
    }
    EXPECT_EQ(0, ColourIn(look, Area(0, 1), kSelected));
    EXPECT_EQ(0, ColourIn(look, Area(4, 1), kSelected));
    EXPECT_TRUE(m_calendar.IsDateSelected(start));
    COleDateTime after = Date(2009, 3, 12);
    EXPECT_FALSE(m_calendar.IsDateSelected(after));
}

TEST_F(CalendarPaint, NoDayIsSelectedUnlessBothEndsAreDates)
{
    COleDateTime zero = Date(1899, 12, 30); // the number of dates that are none, too
    EXPECT_FALSE(m_calendar.IsDateSelected(zero));
    COleDateTime day = Date(2009, 3, 9);
    m_calendar.SetSelDate(day, day);
    ASSERT_TRUE(m_calendar.IsDateSelected(day));
    m_calendar.m_dtSelEnd.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(m_calendar.IsDateSelected(day));
    m_calendar.SetSelDate(day, day);
    m_calendar.m_dtSelStart.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(m_calendar.IsDateSelected(day));
}

TEST_F(CalendarPaint, OnlySevenRowsHaveALineUnderTheDays)
{
    for (const int rows : {6, 7, 8}) {
        CTestCalendar calendar;
        calendar.SetFirstDayOfWeek(1);
        ASSERT_TRUE(calendar.Create(&m_host, kCalendarId, nullptr, nullptr, rows, 1));
        const ts::Picture picture = ts::Drawn(300, 300, [&](CDC& dc) { calendar.DrawDays(dc, 10, 0, 1, 1, 2, 2009); });
        const int y = 10 + 6 * (calendar.m_nDayHeight + 2);
        const int width = 7 * calendar.m_nDayWidth + 30;
        const int left = calendar.m_nCellWidth / 2 - width / 2;
        const COLORREF colour = rows == 7 ? GetSysColor(COLOR_BTNSHADOW) : ts::kPaper;
        EXPECT_TRUE(ts::AreaIs(picture, CRect(left, y, left + width, y + 1), colour)) << rows;
        EXPECT_TRUE(ts::PixelIs(picture, left - 1, y, ts::kPaper)) << rows;
        EXPECT_TRUE(ts::PixelIs(picture, left + width, y, ts::kPaper)) << rows;
    }
}

TEST_F(CalendarPaint, SlotsOfTheFormerMonthStayUntilTheyAreCleared)
{
    Make();
    m_calendar.SetCurrentYearMonth(2009, 2);
    Show();
    EXPECT_TRUE(m_calendar.m_pCells[0].days[28].date == Date(2009, 3, 29));
    EXPECT_EQ(Area(0, 4), CRect(m_calendar.m_pCells[0].days[28].rc));
    m_calendar.ClearDays();
    EXPECT_TRUE(IsRectEmpty(&m_calendar.m_pCells[0].days[28].rc));
    EXPECT_TRUE(IsRectEmpty(&m_calendar.m_pCells[0].days[0].rc));
}

TEST_F(CalendarPaint, MonthsBeyondTheLastYearAreEmpty)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(9999, 12);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 2));
    Show();
    EXPECT_NE(nullptr, PlaceOf(Date(9999, 12, 31)));
    for (const CalendarDay& day : m_calendar.m_pCells[1].days) {
        EXPECT_TRUE(IsRectEmpty(&day.rc));
    }
    m_calendar.ScrollRight(3);
    EXPECT_EQ(10000, m_calendar.m_nYear);
}

TEST_F(CalendarPaint, MonthsBeforeTheFirstYearAreEmpty)
{
    m_calendar.SetFirstDayOfWeek(1);
    m_calendar.SetCurrentYearMonth(101, 2);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 2));
    m_calendar.ScrollLeft(7);
    EXPECT_EQ(99, m_calendar.m_nYear);
    EXPECT_EQ(12, m_calendar.m_nMonth);
    for (const CalendarDay& day : m_calendar.m_pCells[0].days) {
        EXPECT_TRUE(IsRectEmpty(&day.rc));
    }
    // The first date that there is has no days before it, whatever weekday the weeks begin with.
    EXPECT_NE(nullptr, PlaceOf(Date(100, 1, 1)));
    EXPECT_NE(nullptr, PlaceOf(Date(100, 1, 31)));
    EXPECT_TRUE(m_calendar.m_pCells[1].days[Date(100, 1, 1).GetDayOfWeek() - 1].date == Date(100, 1, 1));
    m_calendar.ScrollLeft(1000);
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(CalendarPaint, ErasingDoesNothing)
{
    Make();
    const ts::Picture picture = ts::DrawTo(
        20, 20, [this](HDC dc) { EXPECT_EQ(0, m_calendar.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc))); },
        ts::kPaper);
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST_F(CalendarPaint, PictureReachesTheScreenInOneStep)
{
    Make(2, 2, &IsMonday);
    ScreenWatch watch(m_calendar.m_hWnd);
    m_calendar.SetBkColor(RGB(0, 200, 0));
    m_calendar.RedrawWindow();
    EXPECT_EQ(1, watch.Copies());
    EXPECT_TRUE(ts::PixelIs(Look(), 1, DaysTop() + 1, RGB(0, 200, 0)));
}

TEST_F(CalendarPaint, PartialRepaintLooksTheSame)
{
    Make(2, 2, &IsMonday);
    const ts::Picture whole = Look();
    m_calendar.InvalidateRect(CRect(20, 30, 140, 120));
    m_calendar.UpdateWindow();
    EXPECT_TRUE(ts::SamePicture(whole, Look()));
}

TEST_F(CalendarPaint, ChangesOfTheSurroundingsAreFollowedAtOnce)
{
    struct Count
    {
        int days = 0;
    } count;
    Make(
        1, 1,
        [](COleDateTime& /*date*/, void* data) {
            ++static_cast<Count*>(data)->days;
            return 0;
        },
        &count);
    for (const UINT message : kSurroundings) {
        count.days = 0;
        m_calendar.SendMessage(message, 0, 0);
        EXPECT_EQ(31, count.days) << ts::MessageName(message);
    }
}

TEST_F(CalendarPaint, ChangesOfTheSurroundingsTakeTheirDefaultBeforeThePainting)
{
    CDefaultsOfCalendar calendar;
    ASSERT_TRUE(calendar.Create(&m_host, kCalendarId, &CDefaultsOfCalendar::NotePainting, &calendar, 1, 1));
    ts::Settle();
    for (const UINT message : kSurroundings) {
        EXPECT_EQ(1u, calendar.BeforePainting(message).count(message)) << ts::MessageName(message);
    }
}
