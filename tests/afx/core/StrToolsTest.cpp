#include "Checks.h"

TEST(CStringSystem, AfxLoadStringCutsAtTheBuffer)
{
    wchar_t szText[8] = L"old";
    EXPECT_EQ(7, AfxLoadString(100, szText, 8));
    EXPECT_STREQ(L"program", szText);
    EXPECT_EQ(0, AfxLoadString(9999, szText, 8));
    EXPECT_STREQ(L"", szText);
    EXPECT_EQ(0, AfxLoadString(100, nullptr, 8));
}

TEST(CStringTools, ExtractSubStringCountsFromZero)
{
    CString str;
    EXPECT_TRUE(AfxExtractSubString(str, L"one\ntwo\n\nfour", 0));
    EXPECT_STREQ(L"one", str);
    EXPECT_TRUE(AfxExtractSubString(str, L"one\ntwo\n\nfour", 2));
    EXPECT_STREQ(L"", str);
    EXPECT_TRUE(AfxExtractSubString(str, L"one\ntwo\n\nfour", 3));
    EXPECT_STREQ(L"four", str);
    EXPECT_FALSE(AfxExtractSubString(str, L"one\ntwo\n\nfour", 4));
    EXPECT_STREQ(L"", str);
    EXPECT_TRUE(AfxExtractSubString(str, L"a;b", 1, L';'));
    EXPECT_STREQ(L"b", str);
    EXPECT_FALSE(AfxExtractSubString(str, nullptr, 0));
    EXPECT_FALSE(AfxExtractSubString(str, L"a", -1));
}

TEST(CStringTools, FormatStringsReplacePlaceholders)
{
    CString str;
    AfxFormatString2(str, 121, L"A", L"B");
    EXPECT_STREQ(L"A meets B", str);
    AfxFormatString1(str, 121, L"A");
    EXPECT_STREQ(L"A meets ?", str);
    const LPCTSTR rglpsz[] = {L"x"};
    AfxFormatStrings(str, L"100% %1%", rglpsz, 1);
    EXPECT_STREQ(L"100% x%", str);
}
