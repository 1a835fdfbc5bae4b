#include "Dates.h"

#include <tests/support/Support.h>

#include <afxdisp.h>

#include <vector>

namespace
{

constexpr double kSecond = 1.0 / 86400;

} // namespace

TEST(OleDateTime, PartsComeBackFromAllDaysOfManyYears)
{
    for (int day = -657434; day < 2958466; day += 97) {
        const DATE value = day < 0 ? day - 0.75 : day + 0.75;
        SYSTEMTIME expected;
        ASSERT_TRUE(VariantTimeToSystemTime(value, &expected));
        const COleDateTime date(value);
        ASSERT_EQ((std::vector<int>{expected.wYear, expected.wMonth, expected.wDay, 18, 0, 0}), PartsOf(date)) << day;
        ASSERT_EQ(expected.wDayOfWeek + 1, date.GetDayOfWeek()) << day;
    }
}

TEST(OleDateTime, ComponentsMakeTheSystemsValue)
{
    for (const int year : {100, 1582, 1899, 1900, 1970, 2000, 2009, 9999}) {
        SYSTEMTIME parts = {static_cast<WORD>(year), 12, 0, 31, 23, 59, 58, 0};
        DATE expected = 0;
        ASSERT_TRUE(SystemTimeToVariantTime(&parts, &expected));
        EXPECT_NEAR(expected, Date(year, 12, 31, 23, 59, 58).m_dt, 1e-8) << year;
    }
}

TEST(OleDateTime, DaysBeforeTheStartCountTheTimeForwards)
{
    const COleDateTime date(-1.25);
    EXPECT_EQ((std::vector{1899, 12, 29, 6, 0, 0}), PartsOf(date));
    EXPECT_EQ(-1.25, Date(1899, 12, 29, 6).m_dt);
}

TEST(OleDateTime, FirstAndLastDayAreValidAndTheirNeighboursAreNot)
{
    EXPECT_EQ(COleDateTime::valid, COleDateTime(-657434.0).GetStatus());
    EXPECT_EQ((std::vector{100, 1, 1, 0, 0, 0}), PartsOf(COleDateTime(-657434.0)));
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(-657435.0).GetStatus());
    EXPECT_EQ(COleDateTime::valid, COleDateTime(2958465.0).GetStatus());
    EXPECT_EQ((std::vector{9999, 12, 31, 0, 0, 0}), PartsOf(COleDateTime(2958465.0)));
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(2958466.0).GetStatus());
}

TEST(OleDateTime, LastHalfSecondStaysInTheLastYear)
{
    EXPECT_EQ((std::vector{9999, 12, 31, 23, 59, 59}), PartsOf(COleDateTime(2958465.999999)));
}

TEST(OleDateTime, HalfASecondRoundsUpAndLessRoundsDown)
{
    EXPECT_EQ(31, COleDateTime(40000 + 30.6 * kSecond).GetSecond());
    EXPECT_EQ(30, COleDateTime(40000 + 30.4 * kSecond).GetSecond());
    EXPECT_EQ((std::vector{2009, 7, 7, 0, 0, 0}), PartsOf(COleDateTime(40001 - 0.3 * kSecond)));
}

TEST(OleDateTime, ImpossibleComponentsAreInvalid)
{
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 2, 29).GetStatus());
    EXPECT_EQ(COleDateTime::valid, Date(2008, 2, 29).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(1900, 2, 29).GetStatus());
    EXPECT_EQ(COleDateTime::valid, Date(2000, 2, 29).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 13, 1).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 0, 1).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 4, 31).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 4, 0).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(99, 1, 1).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(10000, 1, 1).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 1, 1, 24).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 1, 1, 0, 60).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 1, 1, 0, 0, 60).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, Date(2009, 1, 1, -1).GetStatus());
}

TEST(OleDateTime, PartsOfWhatIsNotValidAreMinusOne)
{
    for (const COleDateTime& date : {kInvalid, kNull}) {
        EXPECT_EQ((std::vector{-1, -1, -1, -1, -1, -1}), PartsOf(date));
        EXPECT_EQ(-1, date.GetDayOfWeek());
        EXPECT_EQ(-1, date.GetDayOfYear());
        SYSTEMTIME time = {1, 2, 3, 4, 5, 6, 7, 8};
        EXPECT_FALSE(date.GetAsSystemTime(time));
        EXPECT_EQ(1, time.wYear);
        UDATE udate = {};
        EXPECT_FALSE(date.GetAsUDATE(udate));
    }
}

TEST(OleDateTime, WeekdaysBeginWithSundayAsOne)
{
    EXPECT_EQ(1, Date(2009, 3, 1).GetDayOfWeek());
    EXPECT_EQ(7, Date(2009, 3, 7).GetDayOfWeek());
    EXPECT_EQ(7, COleDateTime().GetDayOfWeek());
}

TEST(OleDateTime, DaysOfTheYearBeginWithOne)
{
    EXPECT_EQ(1, Date(2009, 1, 1).GetDayOfYear());
    EXPECT_EQ(365, Date(2009, 12, 31).GetDayOfYear());
    EXPECT_EQ(366, Date(2008, 12, 31).GetDayOfYear());
}
