#include "resource.h"

#include <tests/support/Support.h>

#include <afxdisp.h>

#include <vector>

namespace
{

constexpr double kSecond = 1.0 / 86400;

std::vector<LONG> PartsOf(const COleDateTimeSpan& span)
{
    return {span.GetDays(), span.GetHours(), span.GetMinutes(), span.GetSeconds()};
}

COleDateTimeSpan WithStatus(COleDateTimeSpan::DateTimeSpanStatus status)
{
    COleDateTimeSpan span(1);
    span.SetStatus(status);
    return span;
}

} // namespace

TEST(OleDateTimeSpan, DefaultIsAValidSpanOfZero)
{
    const COleDateTimeSpan span;
    EXPECT_EQ(COleDateTimeSpan::valid, span.GetStatus());
    EXPECT_EQ(0.0, span.m_span);
}

TEST(OleDateTimeSpan, PartsOfAPositiveSpan)
{
    const COleDateTimeSpan span(3, 4, 5, 6);
    EXPECT_EQ((std::vector<LONG>{3, 4, 5, 6}), PartsOf(span));
    EXPECT_EQ(3.0, span.GetTotalDays());
    EXPECT_EQ(3 * 24 + 4.0, span.GetTotalHours());
    EXPECT_EQ((3 * 24 + 4) * 60 + 5.0, span.GetTotalMinutes());
    EXPECT_EQ(((3 * 24 + 4) * 60 + 5) * 60 + 6.0, span.GetTotalSeconds());
}

TEST(OleDateTimeSpan, PartsOfANegativeSpanAreNegative)
{
    EXPECT_EQ((std::vector<LONG>{-3, -4, -5, -6}), PartsOf(COleDateTimeSpan(-3, -4, -5, -6)));
    EXPECT_EQ((std::vector<LONG>{-3, -4, -5, -6}), PartsOf(-COleDateTimeSpan(3, 4, 5, 6)));
}

TEST(OleDateTimeSpan, HalfASecondCompletesADayAwayFromZero)
{
    EXPECT_EQ(2.0, COleDateTimeSpan(2 - 0.4 * kSecond).GetTotalDays());
    EXPECT_EQ(1.0, COleDateTimeSpan(2 - 0.6 * kSecond).GetTotalDays());
    EXPECT_EQ(-2.0, COleDateTimeSpan(-2 + 0.4 * kSecond).GetTotalDays());
    EXPECT_EQ(-1.0, COleDateTimeSpan(-2 + 0.6 * kSecond).GetTotalDays());
    EXPECT_EQ(59, COleDateTimeSpan(58.6 * kSecond).GetSeconds());
}

TEST(OleDateTimeSpan, TooLongSpansAreInvalid)
{
    EXPECT_EQ(COleDateTimeSpan::valid, COleDateTimeSpan(kMaxDateTimeSpan).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::invalid, COleDateTimeSpan(kMaxDateTimeSpan + 1).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::invalid, COleDateTimeSpan(-kMaxDateTimeSpan - 1).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::invalid, (COleDateTimeSpan(3e6) + COleDateTimeSpan(3e6)).GetStatus());
}

TEST(OleDateTimeSpan, SettingMakesItValidAgain)
{
    COleDateTimeSpan span = WithStatus(COleDateTimeSpan::invalid);
    span.SetDateTimeSpan(0, 36, 0, 0);
    EXPECT_EQ(COleDateTimeSpan::valid, span.GetStatus());
    EXPECT_EQ(1.5, span.m_span);
}

TEST(OleDateTimeSpan, Order)
{
    const COleDateTimeSpan one(1);
    const COleDateTimeSpan two(2);
    EXPECT_TRUE(one < two && two > one && one <= two && two >= one && one <= one && one >= one);
    EXPECT_FALSE(two < one || one > two || two <= one || one >= two || one < one);
    EXPECT_TRUE(one == COleDateTimeSpan(1) && one != two);
    const COleDateTimeSpan invalid = WithStatus(COleDateTimeSpan::invalid);
    EXPECT_FALSE(invalid < two || invalid <= two || invalid > one || invalid >= one || invalid == one);
}

TEST(OleDateTimeSpan, Arithmetic)
{
    EXPECT_EQ(3.0, (COleDateTimeSpan(1) + COleDateTimeSpan(2)).m_span);
    EXPECT_EQ(-1.0, (COleDateTimeSpan(1) - COleDateTimeSpan(2)).m_span);
    COleDateTimeSpan span(1);
    span += COleDateTimeSpan(4);
    span -= COleDateTimeSpan(2);
    EXPECT_EQ(3.0, static_cast<double>(span));
    const COleDateTimeSpan invalid = WithStatus(COleDateTimeSpan::invalid);
    const COleDateTimeSpan null = WithStatus(COleDateTimeSpan::null);
    EXPECT_EQ(COleDateTimeSpan::invalid, (invalid + span).GetStatus());
    EXPECT_EQ(COleDateTimeSpan::null, (null - invalid).GetStatus());
}

TEST(OleDateTimeSpan, FormatFillsInItsParts)
{
    const COleDateTimeSpan span(12, 3, 4, 5);
    EXPECT_STREQ(L"12 days, 03:04:05 100% %", span.Format(L"%D days, %H:%M:%S 100%% %").GetString());
    EXPECT_STREQ(L"12 days", span.Format(static_cast<UINT>(IDS_SPAN_FORMAT)).GetString());
    EXPECT_STREQ(L"", span.Format(static_cast<LPCTSTR>(nullptr)).GetString());
}

TEST(OleDateTimeSpan, FormatOfWhatIsNotValid)
{
    EXPECT_STREQ(L"Invalid DateTimeSpan", WithStatus(COleDateTimeSpan::invalid).Format(L"%D").GetString());
    EXPECT_STREQ(L"", WithStatus(COleDateTimeSpan::null).Format(L"%D").GetString());
}
