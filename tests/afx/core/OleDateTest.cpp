#include "Dates.h"

#include <tests/support/Imports.h>
#include <tests/support/Support.h>

#include <afxdisp.h>
#include <atlcomtime.h>

#include <ctime>
#include <vector>

TEST(OleDateTime, DefaultIsTheValidStartOfTheFormat)
{
    const COleDateTime date;
    EXPECT_EQ(COleDateTime::valid, date.GetStatus());
    EXPECT_EQ(0.0, date.m_dt);
    EXPECT_EQ((std::vector{1899, 12, 30, 0, 0, 0}), PartsOf(date));
}

TEST(OleDateTime, SystemTimeGoesThereAndBackWithoutMilliseconds)
{
    const SYSTEMTIME source = {2009, 3, 0, 14, 15, 16, 17, 999};
    const COleDateTime date(source);
    SYSTEMTIME back;
    ASSERT_TRUE(date.GetAsSystemTime(back));
    EXPECT_EQ((std::vector<WORD>{2009, 3, 6, 14, 15, 16, 17, 0}),
              (std::vector<WORD>{back.wYear, back.wMonth, back.wDayOfWeek, back.wDay, back.wHour, back.wMinute,
                                 back.wSecond, back.wMilliseconds}));
}

TEST(OleDateTime, UdateHasTheDayOfTheYear)
{
    UDATE udate = {};
    ASSERT_TRUE(Date(2009, 2, 1, 1, 2, 3).GetAsUDATE(udate));
    EXPECT_EQ(32, udate.wDayOfYear);
    EXPECT_EQ(2009, udate.st.wYear);
    COleDateTime date;
    date = udate;
    EXPECT_TRUE(date == Date(2009, 2, 1, 1, 2, 3));
}

TEST(OleDateTime, SecondsSince1970BecomeLocalTime)
{
    const __time64_t time = 1236988800;
    const tm* local = _localtime64(&time);
    const std::vector expected = {local->tm_year + 1900, local->tm_mon + 1, local->tm_mday,
                                  local->tm_hour,        local->tm_min,     local->tm_sec};
    EXPECT_EQ(expected, PartsOf(COleDateTime(time)));
    EXPECT_EQ(expected, PartsOf(COleDateTime(static_cast<__time32_t>(time))));
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(static_cast<__time64_t>(-1)).GetStatus());
}

TEST(OleDateTime, FileTimeBecomesLocalTime)
{
    const SYSTEMTIME universal = {2009, 7, 0, 14, 15, 16, 17, 0};
    SYSTEMTIME local;
    ASSERT_TRUE(SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local));
    FILETIME file;
    ASSERT_TRUE(SystemTimeToFileTime(&universal, &file));
    EXPECT_TRUE(COleDateTime(local) == COleDateTime(file));
    const FILETIME impossible = {0xFFFFFFFF, 0xFFFFFFFF};
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(impossible).GetStatus());
}

/** A time zone, which the system of the test need not have. */
BOOL WINAPI OneHourLater(const TIME_ZONE_INFORMATION* /*zone*/, const SYSTEMTIME* universal, SYSTEMTIME* local)
{
    *local = *universal;
    ++local->wHour;
    return local->wHour < 24;
}

TEST(OleDateTime, FileTimeIsTakenIntoTheTimeZone)
{
    const ts::ReplacedImport zone(L"afx.dll", "SystemTimeToTzSpecificLocalTime", &OneHourLater);
    SYSTEMTIME universal = {2009, 7, 0, 14, 15, 16, 17, 0};
    FILETIME file;
    ASSERT_TRUE(SystemTimeToFileTime(&universal, &file));
    EXPECT_EQ((std::vector{2009, 7, 14, 16, 16, 17}), PartsOf(COleDateTime(file)));
    universal.wHour = 23; // the conversion fails
    ASSERT_TRUE(SystemTimeToFileTime(&universal, &file));
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(file).GetStatus());
}

TEST(OleDateTime, DosDateAndTime)
{
    const WORD date = (29 << 9) | (3 << 5) | 14;
    const WORD time = (15 << 11) | (47 << 5) | 9;
    EXPECT_EQ((std::vector{2009, 3, 14, 15, 47, 18}), PartsOf(COleDateTime(date, time)));
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(static_cast<WORD>(0), time).GetStatus());
}

TEST(OleDateTime, VariantsAreConverted)
{
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_DATE;
    value.date = 40000.5;
    EXPECT_EQ(40000.5, COleDateTime(value).m_dt);
    value.vt = VT_NULL;
    EXPECT_EQ(COleDateTime::null, COleDateTime(value).GetStatus());
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(L"no date");
    EXPECT_EQ(COleDateTime::invalid, COleDateTime(value).GetStatus());
    VariantClear(&value);
}

TEST(OleDateTime, CurrentTimeIsTheLocalTime)
{
    SYSTEMTIME before;
    SYSTEMTIME after;
    GetLocalTime(&before);
    const COleDateTime now = COleDateTime::GetCurrentTime();
    GetLocalTime(&after);
    EXPECT_TRUE(COleDateTime(before) <= now);
    EXPECT_TRUE(now <= COleDateTime(after));
}

TEST(OleDateTime, SettersTellTheStatus)
{
    COleDateTime date;
    EXPECT_EQ(0, date.SetDate(2009, 3, 14));
    EXPECT_TRUE(date == Date(2009, 3, 14));
    EXPECT_EQ(0, date.SetTime(15, 16, 17));
    EXPECT_EQ((std::vector{1899, 12, 30, 15, 16, 17}), PartsOf(date));
    EXPECT_EQ(1, date.SetDateTime(2009, 2, 30, 0, 0, 0));
    EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
    EXPECT_EQ(0, date.SetDateTime(2009, 2, 28, 1, 2, 3));
    EXPECT_EQ(COleDateTime::valid, date.GetStatus());
}

TEST(OleDateTime, OrderHoldsAcrossTheStartOfTheFormat)
{
    const COleDateTime early(-1.75);   // 29 December, 18:00
    const COleDateTime earlier(-1.25); // 29 December, 6:00
    EXPECT_TRUE(earlier < early);
    EXPECT_TRUE(early > earlier);
    EXPECT_TRUE(early < COleDateTime());
    EXPECT_TRUE(early <= early && early >= early);
    EXPECT_FALSE(early < early || early > early);
    EXPECT_TRUE(early == COleDateTime(-1.75));
    EXPECT_TRUE(early != earlier);
}

TEST(OleDateTime, WhatIsNotValidHasNoOrder)
{
    const COleDateTime date(1.0);
    for (const COleDateTime& other : {kInvalid, kNull}) {
        EXPECT_FALSE(other < date || other > date || other <= date || other >= date);
        EXPECT_FALSE(date < other || date > other || date <= other || date >= other);
        EXPECT_FALSE(date == other);
    }
    EXPECT_TRUE(kInvalid == WithStatus(COleDateTime::invalid));
    EXPECT_FALSE(kInvalid == kNull);
}

TEST(OleDateTime, AddingDaysGoesAcrossTheStartOfTheFormat)
{
    EXPECT_TRUE(Date(1899, 12, 28, 6) == Date(1899, 12, 31, 6) - COleDateTimeSpan(3));
    EXPECT_TRUE(Date(1899, 12, 31, 6) == Date(1899, 12, 28, 6) + COleDateTimeSpan(3));
    COleDateTime date = Date(2008, 2, 28);
    date += COleDateTimeSpan(2);
    EXPECT_TRUE(date == Date(2008, 3, 1));
    date -= COleDateTimeSpan(1);
    EXPECT_TRUE(date == Date(2008, 2, 29));
}

TEST(OleDateTime, DifferenceIsASpan)
{
    EXPECT_EQ(3.0, (Date(1899, 12, 31, 6) - Date(1899, 12, 28, 6)).m_span);
    EXPECT_EQ(-365.5, (Date(2009, 1, 1) - Date(2010, 1, 1, 12)).m_span);
    EXPECT_EQ(2958465.0 + 657434, (Date(9999, 12, 31) - Date(100, 1, 1)).m_span);
}

TEST(OleDateTime, LeavingTheRangeMakesAnInvalidDate)
{
    EXPECT_EQ(COleDateTime::invalid, (Date(9999, 12, 31) + COleDateTimeSpan(1)).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, (Date(100, 1, 1) - COleDateTimeSpan(1)).GetStatus());
}

TEST(OleDateTime, NullWinsOverInvalidInArithmetic)
{
    COleDateTimeSpan invalidSpan;
    invalidSpan.SetStatus(COleDateTimeSpan::invalid);
    COleDateTimeSpan nullSpan;
    nullSpan.SetStatus(COleDateTimeSpan::null);
    EXPECT_EQ(COleDateTime::null, (kNull + invalidSpan).GetStatus());
    EXPECT_EQ(COleDateTime::null, (kInvalid + nullSpan).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, (kInvalid + COleDateTimeSpan(1)).GetStatus());
    EXPECT_EQ(COleDateTime::invalid, (COleDateTime() - invalidSpan).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::null, (kNull - kInvalid).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::invalid, (COleDateTime() - kInvalid).GetStatus());
}
