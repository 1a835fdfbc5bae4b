#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

#include <clocale>

namespace
{

TEST(ThreadLocale, HoldsInsideTheBlock)
{
    const LCID before = GetThreadLocale();
    {
        const ts::ThreadLocale german(L"de-DE");
        EXPECT_EQ(MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT), GetThreadLocale());
    }
    EXPECT_EQ(before, GetThreadLocale());
}

TEST(ThreadLocale, UnknownOneFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(ts::ThreadLocale unknown(L"xx-no-such"), "does not know");
}

DWORD FirstDayOfWeek()
{
    DWORD day = 99;
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IFIRSTDAYOFWEEK | LOCALE_RETURN_NUMBER, reinterpret_cast<LPWSTR>(&day),
                   sizeof(day) / sizeof(wchar_t));
    return day;
}

TEST(UserLocaleValue, HoldsInsideTheBlock)
{
    const DWORD before = FirstDayOfWeek();
    {
        const ts::UserLocaleValue first(LOCALE_IFIRSTDAYOFWEEK, L"3");
        EXPECT_EQ(3u, FirstDayOfWeek());
    }
    EXPECT_EQ(before, FirstDayOfWeek());
}

TEST(CrtLocale, HoldsInsideTheBlock)
{
    const std::string before = setlocale(LC_ALL, nullptr);
    {
        const ts::CrtLocale german(L"German");
        EXPECT_STREQ(",", localeconv()->decimal_point);
    }
    EXPECT_EQ(before, setlocale(LC_ALL, nullptr));
}

} // namespace
