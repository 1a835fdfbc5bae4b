#include <QorApi/QorApi.h>

#include <gtest/gtest.h>

namespace
{

SYSTEMTIME MakeTime(WORD year, WORD month, WORD day, WORD hour = 0, WORD minute = 0, WORD second = 0)
{
    SYSTEMTIME time = {};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    time.wHour = hour;
    time.wMinute = minute;
    time.wSecond = second;
    return time;
}

bool IsZero(const void* data, size_t size)
{
    const auto* bytes = static_cast<const BYTE*>(data);
    for (size_t i = 0; i < size; ++i) {
        if (bytes[i]) {
            return false;
        }
    }
    return true;
}

} // namespace

TEST(TimeRecord, BytesOfARecordInATask)
{
    _QORVEX_TASK task = {};
    ASSERT_TRUE(SysTime2QorTime(MakeTime(2024, 2, 29, 13, 45, 59), task.start));
    const auto* bytes = reinterpret_cast<const BYTE*>(&task);
    EXPECT_EQ(bytes[16] | bytes[17] << 8, 2024);
    EXPECT_EQ(bytes[18], 2);
    EXPECT_EQ(bytes[19], 4); // a Thursday
    EXPECT_EQ(bytes[20], 29);
    EXPECT_EQ(bytes[21], 13);
    EXPECT_EQ(bytes[22], 45);
    EXPECT_EQ(bytes[23], 59);
}

TEST(TimeRecord, RoundTripKeepsTheMoment)
{
    for (const SYSTEMTIME& time :
         {MakeTime(1601, 1, 1), MakeTime(2000, 2, 29, 23, 59, 59), MakeTime(9999, 12, 31, 12)}) {
        _QORTIME record = {};
        SYSTEMTIME back = {};
        ASSERT_TRUE(SysTime2QorTime(time, record));
        ASSERT_TRUE(QorTime2SysTime(record, back));
        EXPECT_EQ(back.wYear, time.wYear);
        EXPECT_EQ(back.wMonth, time.wMonth);
        EXPECT_EQ(back.wDay, time.wDay);
        EXPECT_EQ(back.wHour, time.wHour);
        EXPECT_EQ(back.wMinute, time.wMinute);
        EXPECT_EQ(back.wSecond, time.wSecond);
        EXPECT_EQ(back.wMilliseconds, 0);
    }
}

TEST(TimeRecord, DayOfWeekFollowsFromTheDate)
{
    SYSTEMTIME time = MakeTime(2024, 3, 3); // a Sunday
    time.wDayOfWeek = 5;
    _QORTIME record = {};
    ASSERT_TRUE(SysTime2QorTime(time, record));
    EXPECT_EQ(record.nDayOfWeek, 0);
    record.nDayOfWeek = 7;
    ASSERT_TRUE(QorTime2SysTime(record, time));
    EXPECT_EQ(time.wDayOfWeek, 0);
}

TEST(TimeRecord, MillisecondsAreCutOff)
{
    SYSTEMTIME time = MakeTime(2024, 1, 1, 1, 1, 1);
    time.wMilliseconds = 999;
    _QORTIME record = {};
    ASSERT_TRUE(SysTime2QorTime(time, record));
    EXPECT_EQ(record.nSecond, 1);
}

TEST(TimeRecord, InvalidSystemTimesGiveAnEmptyRecord)
{
    for (const SYSTEMTIME& time :
         {MakeTime(1600, 1, 1), MakeTime(10000, 1, 1), MakeTime(2024, 0, 1), MakeTime(2024, 13, 1),
          MakeTime(2023, 2, 29), MakeTime(2024, 1, 0), MakeTime(2024, 4, 31), MakeTime(2024, 1, 1, 24),
          MakeTime(2024, 1, 1, 0, 60), MakeTime(2024, 1, 1, 0, 0, 60), SYSTEMTIME()}) {
        _QORTIME record;
        memset(&record, 0xCC, sizeof(record));
        EXPECT_FALSE(SysTime2QorTime(time, record)) << time.wYear << "-" << time.wMonth << "-" << time.wDay;
        EXPECT_TRUE(IsZero(&record, sizeof(record)));
    }
}

TEST(TimeRecord, InvalidRecordsGiveAnEmptyTime)
{
    const _QORTIME records[] = {{2023, 2, 0, 29, 0, 0, 0}, {2024, 1, 8, 1, 0, 0, 0},  {2024, 0, 0, 1, 0, 0, 0},
                                {2024, 1, 0, 1, 24, 0, 0}, {2024, 1, 0, 1, 0, 60, 0}, {2024, 1, 0, 1, 0, 0, 60},
                                {1600, 1, 0, 1, 0, 0, 0},  {0, 0, 7, 0, 12, 30, 0}};
    for (const _QORTIME& record : records) {
        SYSTEMTIME time;
        memset(&time, 0xCC, sizeof(time));
        EXPECT_FALSE(QorTime2SysTime(record, time))
            << record.wYear << "-" << int(record.nMonth) << "-" << int(record.nDay);
        EXPECT_TRUE(IsZero(&time, sizeof(time)));
    }
}
