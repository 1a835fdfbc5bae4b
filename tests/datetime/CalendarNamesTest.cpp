#include "Calendar.h"

#include <QorUI/datetime/CalendarNames.h>

#include <clocale>
#include <map>

namespace
{

std::wstring Joined(const QorDayInitials& initials)
{
    std::wstring text;
    for (const CString& initial : initials) {
        text += initial.GetString();
    }
    return text;
}

std::vector<std::wstring> All(const QorMonthNames& names)
{
    return {names.begin(), names.end()};
}

const std::vector<std::wstring> kEnglish = {L"January",   L"February", L"March",    L"April",
                                            L"May",       L"June",     L"July",     L"August",
                                            L"September", L"October",  L"November", L"December"};
const std::vector<std::wstring> kGerman = {L"Januar", L"Februar", L"M\u00e4rz", L"April",   L"Mai",      L"Juni",
                                           L"Juli",   L"August",  L"September", L"Oktober", L"November", L"Dezember"};
const std::vector<std::wstring> kChinese = {
    L"\u4e00\u6708", L"\u4e8c\u6708", L"\u4e09\u6708", L"\u56db\u6708", L"\u4e94\u6708",       L"\u516d\u6708",
    L"\u4e03\u6708", L"\u516b\u6708", L"\u4e5d\u6708", L"\u5341\u6708", L"\u5341\u4e00\u6708", L"\u5341\u4e8c\u6708"};

/** Restores the C run-time's locale. */
class CalendarNames : public testing::Test
{
    ts::CrtLocale m_locale{L"C"};
};

class UserLocale : public CalendarNames
{
};

} // namespace

TEST_F(CalendarNames, MonthsOfALocaleOfTheRuntime)
{
    EXPECT_EQ(kEnglish, All(QorGetMonthNames("English", L"en-US")));
    EXPECT_EQ(kGerman, All(QorGetMonthNames("German", L"de-DE")));
    EXPECT_EQ(kChinese, All(QorGetMonthNames("chinese-simplified", L"zh-CN")));
}

TEST_F(CalendarNames, LocaleOfTheMonthsIsThatOfTheWholeRuntime)
{
    QorGetMonthNames("German", L"de-DE");
    EXPECT_EQ(0u, std::string(setlocale(LC_NUMERIC, nullptr)).find("German"));
}

TEST_F(CalendarNames, MonthsOfALocaleThatTheRuntimeLacksComeFromTheSystem)
{
    EXPECT_EQ(kGerman, All(QorGetMonthNames("no such locale", L"de-DE")));
    EXPECT_EQ(kChinese, All(QorGetMonthNames("no such locale", L"zh-CN")));
}

TEST_F(CalendarNames, MonthsOfALocaleWithoutCodePageComeFromTheSystem)
{
    const std::vector<std::wstring> names = All(QorGetMonthNames("English", L"hi-IN"));
    EXPECT_EQ(L"\u092e\u093e\u0930\u094d\u091a", names[2]);
}

TEST_F(CalendarNames, InitialsAreEnglishFromTheFirstDayOn)
{
    setlocale(LC_ALL, "German");
    EXPECT_EQ(L"SMTWTFS", Joined(QorGetDayInitials(1)));
    EXPECT_EQ(L"MTWTFSS", Joined(QorGetDayInitials(2)));
    EXPECT_EQ(L"TFSSMTW", Joined(QorGetDayInitials(5)));
    EXPECT_EQ(L"SSMTWTF", Joined(QorGetDayInitials(7)));
    EXPECT_EQ(0u, std::string(setlocale(LC_TIME, nullptr)).find("English"));
    EXPECT_EQ(0u, std::string(setlocale(LC_NUMERIC, nullptr)).find("German"));
}

TEST_F(CalendarNames, FirstDayOfTheWeekFromTheSystemsNumber)
{
    EXPECT_EQ(2, QorFirstDayOfWeekOf(0));
    EXPECT_EQ(3, QorFirstDayOfWeekOf(1));
    EXPECT_EQ(7, QorFirstDayOfWeekOf(5));
    EXPECT_EQ(1, QorFirstDayOfWeekOf(6));
    EXPECT_EQ(1, QorFirstDayOfWeekOf(7));
    EXPECT_EQ(1, QorFirstDayOfWeekOf(-5));
}

TEST_F(CalendarNames, FirstDayOfTheWeekOfLocales)
{
    EXPECT_EQ(2, QorGetFirstDayOfWeek(MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT)));
    EXPECT_EQ(1, QorGetFirstDayOfWeek(MAKELCID(MAKELANGID(LANG_JAPANESE, SUBLANG_JAPANESE_JAPAN), SORT_DEFAULT)));
}

TEST_F(CalendarNames, CalendarTakesTheUsersFirstDay)
{
    {
        const ts::UserLocaleValue monday(LOCALE_IFIRSTDAYOFWEEK, L"0");
        const CTestCalendar calendar;
        EXPECT_EQ(2, calendar.m_nFirstDayOfWeek);
        EXPECT_STREQ(L"M", calendar.m_strDays[0].GetString());
    }
    const ts::UserLocaleValue sunday(LOCALE_IFIRSTDAYOFWEEK, L"6");
    const CTestCalendar calendar;
    EXPECT_EQ(1, calendar.m_nFirstDayOfWeek);
    EXPECT_STREQ(L"S", calendar.m_strDays[0].GetString());
    EXPECT_STREQ(L"M", calendar.m_strDays[1].GetString());
}

TEST_F(UserLocale, CalendarShowsMonthsInTheUsersLanguageAndEnglishDays)
{
    const std::map<std::wstring, std::vector<std::wstring>> expected = {
        {L"en", kEnglish}, {L"de", kGerman}, {L"zh", kChinese}};
    wchar_t language[20] = L"";
    ASSERT_NE(0, GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SISO639LANGNAME, language, 20));
    ASSERT_EQ(1u, expected.count(language)) << "run in a locale that the test does not know";
    if (const char* name = getenv("LANG"); name && strlen(name) >= 5 && strncmp(name, "C.", 2) != 0) {
        EXPECT_EQ(ts::ToUtf8(language), std::string(name, 2));
    }
    CTestCalendar calendar;
    EXPECT_EQ(expected.at(language),
              (std::vector<std::wstring>{std::begin(calendar.m_strMonths), std::end(calendar.m_strMonths)}));
    EXPECT_EQ(std::wstring(expected.at(language)[2]) + L" 2009", calendar.GetMonthName(3, 2009).GetString());
    calendar.SetFirstDayOfWeek(1);
    std::wstring days;
    for (const CString& day : calendar.m_strDays) {
        days += day.GetString();
    }
    EXPECT_EQ(L"SMTWTFS", days);
}

TEST_F(UserLocale, CalendarFitsTheLongestHeader)
{
    ts::AfxHost host(400, 300);
    CTestCalendar calendar;
    ASSERT_TRUE(calendar.Create(&host, kCalendarId, nullptr, nullptr, 1, 1));
    CClientDC dc(&calendar);
    const HGDIOBJ old = SelectObject(dc, calendar.m_fontBold);
    for (int month = 1; month <= 12; ++month) {
        EXPECT_LE(dc.GetTextExtent(calendar.GetMonthName(month, calendar.m_nYear)).cx + 4, calendar.m_nCellWidth);
    }
    SelectObject(dc, old);
}
