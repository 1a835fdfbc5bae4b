#include "resource.h"

#include <tests/support/Support.h>

#include <afxdisp.h>

namespace
{

constexpr LCID kEnglish = 0x409;
constexpr LCID kGerman = 0x407;

const COleDateTime kDate(2009, 3, 14, 15, 6, 7);

COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime date(40000.0);
    date.SetStatus(status);
    return date;
}

} // namespace

TEST(OleDateTimeText, FormatTakesTheConversionsOfTheRuntime)
{
    const ts::CrtLocale locale(L"C");
    EXPECT_STREQ(L"Saturday, 14 March 2009, 15:06:07 073 100%",
                 kDate.Format(L"%A, %d %B %Y, %H:%M:%S %j 100%%").GetString());
    EXPECT_STREQ(L"2009-03-14", kDate.Format(static_cast<UINT>(IDS_DATE_FORMAT)).GetString());
}

TEST(OleDateTimeText, FormatTakesNamesFromTheLocaleOfTheRuntime)
{
    {
        const ts::CrtLocale german(L"German");
        EXPECT_STREQ(L"Samstag M\u00e4rz", kDate.Format(L"%A %B").GetString());
    }
    const ts::CrtLocale chinese(L"chinese-simplified");
    EXPECT_STREQ(L"\u661f\u671f\u516d \u4e09\u6708", kDate.Format(L"%A %B").GetString());
}

TEST(OleDateTimeText, FormatRoundsToTheSecond)
{
    EXPECT_STREQ(L"00:00:31", COleDateTime(40000 + 30.6 / 86400).Format(L"%H:%M:%S").GetString());
}

TEST(OleDateTimeText, FormatKnowsYearsBeforeThoseOfTheRuntime)
{
    const ts::CrtLocale locale(L"C");
    const COleDateTime date(1789, 7, 14, 12, 30, 0);
    EXPECT_STREQ(L"Tuesday, 14 July 1789 (89) %Y", date.Format(L"%A, %d %B %Y (%y) %%Y").GetString());
    EXPECT_STREQ(L"100", COleDateTime(100, 1, 1, 0, 0, 0).Format(L"%Y").GetString());
    EXPECT_STREQ(L"1789 7", date.Format(L"%#Y %#m").GetString());
    EXPECT_NE(-1, date.Format(L"%x").Find(L"1789"));
    EXPECT_NE(-1, date.Format(L"%c").Find(L"1789"));
}

TEST(OleDateTimeText, LongFormatsAreNotCut)
{
    CString format;
    for (int i = 0; i < 300; ++i) {
        format += L"%Y.";
    }
    const CString text = kDate.Format(format.GetString());
    EXPECT_EQ(1500, text.GetLength());
    EXPECT_STREQ(L"2009.", text.Right(5).GetString());
}

TEST(OleDateTimeText, EmptyAndNullFormatsGiveNothing)
{
    EXPECT_STREQ(L"", kDate.Format(L"").GetString());
    EXPECT_STREQ(L"", kDate.Format(static_cast<LPCTSTR>(nullptr)).GetString());
}

TEST(OleDateTimeText, FormatOfWhatIsNotValid)
{
    const COleDateTime invalid = WithStatus(COleDateTime::invalid);
    const COleDateTime null = WithStatus(COleDateTime::null);
    EXPECT_STREQ(L"Invalid DateTime", invalid.Format(L"%Y").GetString());
    EXPECT_STREQ(L"Invalid DateTime", invalid.Format().GetString());
    EXPECT_STREQ(L"", null.Format(L"%Y").GetString());
    EXPECT_STREQ(L"", null.Format().GetString());
}

TEST(OleDateTimeText, FormatByFlagsFollowsTheGivenLocale)
{
    EXPECT_STREQ(L"3/14/2009", kDate.Format(VAR_DATEVALUEONLY, kEnglish).GetString());
    EXPECT_STREQ(L"15:06:07", kDate.Format(VAR_TIMEVALUEONLY, kGerman).GetString());
    EXPECT_NE(-1, kDate.Format(0, kGerman).Find(L"15:06:07"));
    EXPECT_NE(-1, kDate.Format(0, kGerman).Find(L"2009"));
}

TEST(OleDateTimeText, ParsingFollowsTheGivenLocale)
{
    COleDateTime date;
    EXPECT_TRUE(date.ParseDateTime(L"3/4/2009 5:06:07 PM", 0, kEnglish));
    EXPECT_TRUE(date == COleDateTime(2009, 3, 4, 17, 6, 7));
    EXPECT_TRUE(date.ParseDateTime(L"3.4.2009", 0, kGerman));
    EXPECT_TRUE(date == COleDateTime(2009, 4, 3, 0, 0, 0));
}

TEST(OleDateTimeText, ParsingWhatIsNoDateMakesItInvalid)
{
    COleDateTime date;
    EXPECT_FALSE(date.ParseDateTime(L"no date", 0, kEnglish));
    EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
    EXPECT_FALSE(date.ParseDateTime(nullptr));
    EXPECT_EQ(COleDateTime::invalid, date.GetStatus());
}
