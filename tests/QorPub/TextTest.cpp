#include <QorPub/QorPub.h>
#include <tests/support/Locale.h>

#include <gtest/gtest.h>

namespace
{

CString Separator(LCTYPE type)
{
    WCHAR text[8] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, ARRAYSIZE(text));
    return text;
}

/** A size text written with "." and ",", with the separators of the user's locale. */
CString Localized(LPCWSTR text)
{
    CString result;
    for (; *text != 0; ++text) {
        if (*text == L'.') {
            result += Separator(LOCALE_SDECIMAL);
        } else if (*text == L',') {
            result += Separator(LOCALE_STHOUSAND);
        } else {
            result += *text;
        }
    }
    return result;
}

} // namespace

TEST(WStrToUTF8, ConvertsAllPlanes)
{
    EXPECT_STREQ("A\xC3\xA4\xE4\xB8\xAD\xF0\x9F\x98\x80", WStrToUTF8(L"A\u00E4\u4E2D\U0001F600").GetString());
}

TEST(WStrToUTF8, NullAndEmptyGiveEmptyText)
{
    EXPECT_TRUE(WStrToUTF8(nullptr).IsEmpty());
    EXPECT_TRUE(WStrToUTF8(L"").IsEmpty());
    EXPECT_TRUE(WStrToUTF8(L"abc", 0).IsEmpty());
    EXPECT_TRUE(WStrToUTF8(L"abc", -1).IsEmpty());
    EXPECT_TRUE(WStrToUTF8(nullptr, 5).IsEmpty());
}

TEST(WStrToUTF8, LoneSurrogatesBecomeReplacementCharacters)
{
    const WCHAR high[] = {L'a', 0xD83D, L'b', 0};
    const WCHAR low[] = {0xDE00, 0};
    EXPECT_STREQ("a\xEF\xBF\xBD"
                 "b",
                 WStrToUTF8(high).GetString());
    EXPECT_STREQ("\xEF\xBF\xBD", WStrToUTF8(low).GetString());
}

TEST(WStrToUTF8, KeepsNullCharactersOfATextWithLength)
{
    CStringA utf8 = WStrToUTF8(L"a\0b", 3);
    ASSERT_EQ(3, utf8.GetLength());
    EXPECT_EQ(0, memcmp("a\0b", utf8.GetString(), 3));
}

TEST(UTF8ToWStr, ConvertsAllPlanes)
{
    EXPECT_STREQ(L"A\u00E4\u4E2D\U0001F600", UTF8ToWStr("A\xC3\xA4\xE4\xB8\xAD\xF0\x9F\x98\x80").GetString());
}

TEST(UTF8ToWStr, BadBytesBecomeReplacementCharacters)
{
    EXPECT_STREQ(L"a\uFFFDb", UTF8ToWStr("a\xFF"
                                         "b")
                                  .GetString());
    EXPECT_STREQ(L"a\uFFFD", UTF8ToWStr("a\xE4\xB8").Left(2).GetString());
}

TEST(UTF8ToWStr, NullAndNegativeLengthGiveEmptyText)
{
    EXPECT_TRUE(UTF8ToWStr(nullptr).IsEmpty());
    EXPECT_TRUE(UTF8ToWStr("abc", -1).IsEmpty());
}

TEST(QorFormatSize, BytesBelowOneKilobyte)
{
    EXPECT_STREQ(L"0 bytes", QorFormatSize(0).GetString());
    EXPECT_STREQ(L"1 byte", QorFormatSize(1).GetString());
    EXPECT_STREQ(L"999 bytes", QorFormatSize(999).GetString());
    EXPECT_STREQ(Localized(L"1,023 bytes").GetString(), QorFormatSize(1023).GetString());
}

TEST(QorFormatSize, ThreeSignificantDigitsCutOff)
{
    EXPECT_STREQ(Localized(L"1.00 KB").GetString(), QorFormatSize(1024).GetString());
    EXPECT_STREQ(Localized(L"1.99 KB").GetString(), QorFormatSize(2047).GetString());
    EXPECT_STREQ(Localized(L"10.5 KB").GetString(), QorFormatSize(10752).GetString());
    EXPECT_STREQ(L"100 KB", QorFormatSize(102400 + 1023).GetString());
    EXPECT_STREQ(Localized(L"1,023 KB").GetString(), QorFormatSize(1024 * 1024 - 1).GetString());
}

TEST(QorFormatSize, EveryUnitBeginsAtOneOfIt)
{
    LPCWSTR expected[] = {L"1.00 KB", L"1.00 MB", L"1.00 GB", L"1.00 TB", L"1.00 PB", L"1.00 EB"};
    ULONGLONG size = 1;
    for (LPCWSTR text : expected) {
        size *= 1024;
        EXPECT_STREQ(Localized(text).GetString(), QorFormatSize(size).GetString());
    }
}

TEST(QorFormatSize, LargestNumberDoesNotOverflow)
{
    EXPECT_STREQ(Localized(L"15.9 EB").GetString(), QorFormatSize(~0ULL).GetString());
    EXPECT_STREQ(Localized(L"1.50 EB").GetString(), QorFormatSize(3ULL << 59).GetString());
}

TEST(QorFormatSize, SeparatorsAreThoseOfTheUser)
{
    const ts::UserLocaleValue decimal(LOCALE_SDECIMAL, L":");
    {
        const ts::UserLocaleValue none(LOCALE_STHOUSAND, L"");
        EXPECT_STREQ(L"1000 bytes", QorFormatSize(1000));
    }
    const ts::UserLocaleValue apostrophe(LOCALE_STHOUSAND, L"'");
    EXPECT_STREQ(L"1'000 bytes", QorFormatSize(1000));
    EXPECT_STREQ(L"1:00 KB", QorFormatSize(1024));
}

TEST(QorFindExtName, FindsAnExtensionOfTheList)
{
    EXPECT_TRUE(QorFindExtName(L".txt;.doc", L"C:\\a\\b.txt"));
    EXPECT_TRUE(QorFindExtName(L".txt;.doc", L"b.doc"));
    EXPECT_FALSE(QorFindExtName(L".txt;.doc", L"b.docx"));
    EXPECT_FALSE(QorFindExtName(L".txt;.doc", L"b.xdoc"));
}

TEST(QorFindExtName, IgnoresLetterCase)
{
    EXPECT_TRUE(QorFindExtName(L".TXT", L"b.txt"));
    EXPECT_TRUE(QorFindExtName(L".txt", L"B.TxT"));
}

TEST(QorFindExtName, ToleratesBlanksAsterisksAndMissingDots)
{
    EXPECT_TRUE(QorFindExtName(L" .txt ; .doc ", L"b.doc"));
    EXPECT_TRUE(QorFindExtName(L"*.txt;doc", L"b.txt"));
    EXPECT_TRUE(QorFindExtName(L"*.txt;doc", L"b.doc"));
    EXPECT_FALSE(QorFindExtName(L"doc", L"bdoc"));
}

TEST(QorFindExtName, EmptyEntriesFitNothing)
{
    EXPECT_FALSE(QorFindExtName(L"", L"b.txt"));
    EXPECT_FALSE(QorFindExtName(nullptr, L"b.txt"));
    EXPECT_FALSE(QorFindExtName(L";; .;*.;*", L"b.txt"));
    EXPECT_FALSE(QorFindExtName(L";; ;", L"b"));
    EXPECT_FALSE(QorFindExtName(L".txt", L""));
    EXPECT_FALSE(QorFindExtName(L".txt", nullptr));
}

TEST(QorFindExtName, OnlyTheLastComponentCounts)
{
    EXPECT_FALSE(QorFindExtName(L".txt", L"C:\\folder.txt\\file"));
    EXPECT_FALSE(QorFindExtName(L".txt", L"C:\\folder.txt\\"));
    EXPECT_TRUE(QorFindExtName(L".tar.gz", L"C:\\x\\a.tar.gz"));
}
