#include <QorApi/Version.h>

#include <gtest/gtest.h>

namespace
{

int Compare(std::wstring_view first, std::wstring_view second)
{
    int order = 99;
    EXPECT_TRUE(CompareVersions(first, second, order));
    return order;
}

} // namespace

TEST(Version, PartsCompareAsNumbers)
{
    EXPECT_GT(Compare(L"1.2.10", L"1.2.9"), 0);
    EXPECT_LT(Compare(L"1.9", L"1.10"), 0);
    EXPECT_GT(Compare(L"2", L"1.9.9.9"), 0);
}

TEST(Version, MissingPartsAreZero)
{
    EXPECT_EQ(Compare(L"1.2", L"1.2.0.0"), 0);
    EXPECT_LT(Compare(L"1.2", L"1.2.0.1"), 0);
}

TEST(Version, AnythingElseIsRefused)
{
    int order = 99;
    for (const wchar_t* text : {L"", L"1.", L".1", L"1..2", L"1.2.3.4.5", L"1.x", L"-1", L"1 2", L"123456"}) {
        EXPECT_FALSE(CompareVersions(text, L"1.0", order));
        EXPECT_FALSE(CompareVersions(L"1.0", text, order));
        EXPECT_EQ(order, 0);
    }
}
