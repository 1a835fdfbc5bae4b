#include <QorApi/Names.h>

#include <gtest/gtest.h>

TEST(Names, FoldedNamesDifferInMoreThanLetterCase)
{
    EXPECT_STREQ(FoldName(L"\u00C4NNA"), FoldName(L"\u00E4nna"));
    EXPECT_STRNE(FoldName(L"Anna"), FoldName(L"Anne"));
    EXPECT_STREQ(FoldName(L""), L"");
}

TEST(Names, FieldIsReadWithoutBlanksAroundIt)
{
    const WCHAR field[8] = L" a b ";
    CString text;
    EXPECT_TRUE(ReadField(field, text));
    EXPECT_STREQ(text, L"a b");
}

TEST(Names, FieldWithoutEndIsRefused)
{
    const WCHAR field[3] = {L'a', L'b', L'c'};
    CString text = L"before";
    EXPECT_FALSE(ReadField(field, text));
    EXPECT_STREQ(text, L"");
}

TEST(Names, WrittenTextIsCutAndTheRestOfTheFieldIsZero)
{
    WCHAR field[4] = {L'x', L'x', L'x', L'x'};
    WriteField(field, L"a");
    EXPECT_EQ(std::wstring(field, 4), std::wstring(L"a\0\0\0", 4));
    WriteField(field, L"abcdef");
    EXPECT_EQ(std::wstring(field, 4), std::wstring(L"abc\0", 4));
}
