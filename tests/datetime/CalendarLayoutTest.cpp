#include <QorUI/datetime/CalendarLayout.h>
#include <tests/support/Support.h>

using namespace QorMonth;

namespace
{

constexpr int kDayWidth = 12;
constexpr int kDayHeight = 11;

COleDateTime Day(int day, int month = 3, int year = 2009)
{
    return COleDateTime(year, month, day, 0, 0, 0);
}

void ExpectRange(const DayRange& range, const COleDateTime& start, const COleDateTime& end)
{
    EXPECT_STREQ(start.Format(L"%Y-%m-%d").GetString(), range.start.Format(L"%Y-%m-%d").GetString());
    EXPECT_STREQ(end.Format(L"%Y-%m-%d").GetString(), range.end.Format(L"%Y-%m-%d").GetString());
}

/** Moves the mouse so many times. @return months scrolled in all */
int Moves(ScrollCount& count, int y, int times)
{
    int sum = 0;
    for (int i = 0; i < times; ++i) {
        sum += CountMove(count, y, 100, 200);
    }
    return sum;
}

} // namespace

TEST(CalendarMonths, AddingGoesAcrossYears)
{
    EXPECT_EQ((Month{2010, 1}), AddMonths({2009, 12}, 1));
    EXPECT_EQ((Month{2009, 12}), AddMonths({2010, 1}, -1));
    EXPECT_EQ((Month{2009, 12}), AddMonths({2009, 1}, 11));
    EXPECT_EQ((Month{2042, 7}), AddMonths({2009, 3}, 400));
    EXPECT_EQ((Month{1975, 11}), AddMonths({2009, 3}, -400));
    EXPECT_EQ((Month{2008, 1}), AddMonths({2009, 1}, -12));
    EXPECT_EQ((Month{-1, 12}), AddMonths({0, 1}, -1));
    EXPECT_EQ((Month{2009, 5}), AddMonths({2009, 5}, 0));
}

TEST(CalendarGeometry, SixWeeksOfDaysAndGaps)
{
    EXPECT_EQ(78, DaysHeight(kDayHeight));
}

TEST(CalendarGeometry, WidestPartDeterminesTheCellWidth)
{
    EXPECT_EQ(204, CellWidth(200, 12));
    EXPECT_EQ(124, CellWidth(100, 12));
    EXPECT_EQ(138, CellWidth(100, 14));
}

TEST(CalendarGeometry, CellHeightIsTheSumOfItsPartsAndFour)
{
    EXPECT_EQ(13 + 11 + 78 + 4, CellHeight(13, 11, 78));
}

TEST(CalendarGeometry, WeekIsCentredInTheCell)
{
    EXPECT_EQ(114, RowWidth(kDayWidth));
    EXPECT_EQ(118, RowLeft(100, 150, kDayWidth));
}

TEST(CalendarGeometry, HeaderTextAndHit)
{
    EXPECT_EQ(CRect(101, 51, 240, 68), HeaderText(100, 50, 150, 20));
    EXPECT_EQ(CRect(110, 51, 230, 68), HeaderHit(100, 50, 150, 20));
}

TEST(CalendarGeometry, LeftArrow)
{
    const Arrow arrow = LeftArrow(100, 50, 20);
    EXPECT_EQ(CPoint(106, 60), arrow.apex);
    EXPECT_EQ(111, arrow.base);
    EXPECT_EQ(5, arrow.half);
    EXPECT_EQ(CRect(105, 54, 112, 66), arrow.hit);
}

TEST(CalendarGeometry, RightArrow)
{
    const Arrow arrow = RightArrow(100, 50, 150, 20);
    EXPECT_EQ(CPoint(240, 60), arrow.apex);
    EXPECT_EQ(235, arrow.base);
    EXPECT_EQ(5, arrow.half);
    EXPECT_EQ(CRect(234, 54, 241, 66), arrow.hit);
}

TEST(CalendarGeometry, DaysStandInColumnsAndWeeks)
{
    const DayPlace first = PlaceOfDay(200, 300, 0, kDayWidth, kDayHeight);
    EXPECT_EQ(CRect(200, 301, 212, 312), first.text);
    EXPECT_EQ(CRect(197, 300, 214, 313), first.area);
    const DayPlace tenth = PlaceOfDay(200, 300, 9, kDayWidth, kDayHeight);
    EXPECT_EQ(CRect(234, 314, 246, 325), tenth.text);
    EXPECT_EQ(CRect(231, 313, 248, 326), tenth.area);
    EXPECT_EQ(CRect(299, 365, 316, 378), PlaceOfDay(200, 300, 41, kDayWidth, kDayHeight).area);
}

TEST(CalendarFirstSlot, DependsOnTheWeekdayThatBeginsTheWeek)
{
    EXPECT_EQ(3, FirstSlot(Day(1, 4), 1));
    EXPECT_EQ(2, FirstSlot(Day(1, 4), 2));
    EXPECT_EQ(6, FirstSlot(Day(1, 4), 5));
}

TEST(CalendarFirstSlot, MonthThatBeginsOnTheWeekdayBeginsInTheFirstSlot)
{
    EXPECT_EQ(0, FirstSlot(Day(1), 1));
    EXPECT_EQ(0, FirstSlot(Day(1, 4), 4));
}

TEST(CalendarDrag, ForwardsTakesTheFirstDays)
{
    ExpectRange(DragRange(Day(10), Day(20), 7), Day(10), Day(16));
}

TEST(CalendarDrag, BackwardsTakesTheLastDays)
{
    ExpectRange(DragRange(Day(20), Day(1), 7), Day(14), Day(20));
}

TEST(CalendarDrag, RangeThatIsShortEnoughIsTakenWhole)
{
    ExpectRange(DragRange(Day(10), Day(16), 7), Day(10), Day(16));
    ExpectRange(DragRange(Day(16), Day(10), 7), Day(10), Day(16));
    ExpectRange(DragRange(Day(10), Day(17), 7), Day(10), Day(16));
    ExpectRange(DragRange(Day(17), Day(10), 7), Day(11), Day(17));
    ExpectRange(DragRange(Day(10), Day(10), 7), Day(10), Day(10));
}

TEST(CalendarDrag, LengthIsRoundedByHalfASecond)
{
    constexpr double second = 1.0 / 86400;
    const COleDateTime almostOver(Day(17).m_dt - 0.25 * second);
    EXPECT_TRUE(DragRange(Day(10), almostOver, 7).end == Day(16));
    const COleDateTime stillWithin(Day(17).m_dt - 0.75 * second);
    EXPECT_TRUE(DragRange(Day(10), stillWithin, 7).end == stillWithin);
}

TEST(CalendarDrag, OneDayFollowsTheMouse)
{
    ExpectRange(DragRange(Day(10), Day(20), 1), Day(20), Day(20));
    ExpectRange(DragRange(Day(10), Day(1), 1), Day(1), Day(1));
}

TEST(CalendarDrag, GoesAcrossMonthsAndYears)
{
    ExpectRange(DragRange(Day(30, 12, 2009), Day(3, 1, 2010), 7), Day(30, 12, 2009), Day(3, 1, 2010));
    ExpectRange(DragRange(Day(3, 1, 2010), Day(1, 12, 2009), 7), Day(28, 12, 2009), Day(3, 1, 2010));
}

TEST(CalendarDrag, MostDaysMayBeVeryMany)
{
    ExpectRange(DragRange(Day(1, 1, 101), Day(31, 12, 9999), 0xFFFFFFFF), Day(1, 1, 101), Day(31, 12, 9999));
}

TEST(MonthListRows, RowUnderTheMouse)
{
    EXPECT_EQ(0, ListRow(0, 11));
    EXPECT_EQ(0, ListRow(10, 11));
    EXPECT_EQ(1, ListRow(11, 11));
    EXPECT_EQ(6, ListRow(76, 11));
}

TEST(MonthListRows, OutsideItIsTheFirstOrTheLast)
{
    EXPECT_EQ(0, ListRow(-50, 11));
    EXPECT_EQ(6, ListRow(77, 11));
    EXPECT_EQ(6, ListRow(5000, 11));
    EXPECT_EQ(0, ListRow(5, 0));
}

TEST(MonthListScroll, NearTheListTenMovesScrollOneMonth)
{
    ScrollCount count;
    EXPECT_EQ(0, Moves(count, 99, 9));
    EXPECT_EQ(-1, Moves(count, 84, 1));
    EXPECT_EQ(0, count.up);
    EXPECT_EQ(0, Moves(count, 200, 9));
    EXPECT_EQ(1, Moves(count, 215, 1));
    EXPECT_EQ(0, count.down);
}

TEST(MonthListScroll, FarFromTheListFiveMovesScrollTwoMonths)
{
    ScrollCount count;
    EXPECT_EQ(0, Moves(count, 83, 4));
    EXPECT_EQ(-2, Moves(count, 83, 1));
    EXPECT_EQ(0, Moves(count, 216, 4));
    EXPECT_EQ(2, Moves(count, 216, 1));
}

TEST(MonthListScroll, OtherSideAndInsideSetBack)
{
    ScrollCount count;
    Moves(count, 99, 9);
    Moves(count, 150, 1);
    EXPECT_EQ(0, Moves(count, 99, 9));
    Moves(count, 200, 9);
    EXPECT_EQ(0, count.up);
    EXPECT_EQ(9, count.down);
    Moves(count, 199, 1);
    EXPECT_EQ(0, count.down);
    Moves(count, 200, 3);
    Moves(count, 100, 1);
    EXPECT_EQ(0, count.down);
}

TEST(MonthListScroll, StopsInTheYearOneHundred)
{
    EXPECT_EQ((Month{100, 12}), ScrollMonths({101, 1}, -1));
    EXPECT_EQ((Month{100, 12}), ScrollMonths({100, 12}, -1));
    EXPECT_EQ((Month{100, 5}), ScrollMonths({100, 5}, -2));
    EXPECT_EQ((Month{100, 6}), ScrollMonths({100, 5}, 1));
}

TEST(MonthListScroll, StopsInTheYear9999)
{
    EXPECT_EQ((Month{9999, 1}), ScrollMonths({9998, 12}, 1));
    EXPECT_EQ((Month{9999, 1}), ScrollMonths({9999, 1}, 2));
    EXPECT_EQ((Month{9998, 12}), ScrollMonths({9999, 1}, -1));
    EXPECT_EQ((Month{2009, 3}), ScrollMonths({2009, 1}, 2));
}
