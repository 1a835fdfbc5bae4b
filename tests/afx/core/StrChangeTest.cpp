#include "Checks.h"

TEST(CStringEdit, ChangesCase)
{
    EXPECT_EQ(CString(L"\u00c4BC"), CString(L"\u00e4bC").MakeUpper());
    EXPECT_EQ(CString(L"\u00e4bc"), CString(L"\u00c4Bc").MakeLower());
    EXPECT_EQ(CStringA("ABC"), CStringA("abc").MakeUpper());
    EXPECT_EQ(CStringA("abc"), CStringA("ABC").MakeLower());
    EXPECT_TRUE(CString().MakeUpper().IsEmpty());
}

TEST(CStringEdit, ReversesAndKeepsSurrogatePairsTogether)
{
    EXPECT_EQ(CString(L"cba"), CString(L"abc").MakeReverse());
    EXPECT_EQ(CString(L"b\U0001F600a"), CString(L"a\U0001F600b").MakeReverse());
    EXPECT_EQ(CStringA("cba"), CStringA("abc").MakeReverse());
    EXPECT_TRUE(CString().MakeReverse().IsEmpty());
}

TEST(CStringEdit, ReplacesCharactersAndCountsThem)
{
    CString str(L"banana");
    EXPECT_EQ(3, str.Replace(L'a', L'o'));
    EXPECT_STREQ(L"bonono", str);
    EXPECT_EQ(0, str.Replace(L'x', L'y'));
    EXPECT_EQ(0, str.Replace(L'o', L'o'));
}

TEST(CStringEdit, ReplacesSubstringsWithLongerShorterAndNone)
{
    CString str(L"one two one");
    EXPECT_EQ(2, str.Replace(L"one", L"three"));
    EXPECT_STREQ(L"three two three", str);
    EXPECT_EQ(2, str.Replace(L"three", L"3"));
    EXPECT_STREQ(L"3 two 3", str);
    EXPECT_EQ(1, str.Replace(L" two", nullptr));
    EXPECT_STREQ(L"3 3", str);
    EXPECT_EQ(0, str.Replace(L"", L"x"));
    EXPECT_EQ(0, str.Replace(nullptr, L"x"));
    CString repeated(L"aaaa");
    EXPECT_EQ(2, repeated.Replace(L"aa", L"a"));
    EXPECT_STREQ(L"aa", repeated);
}

TEST(CStringEdit, RemovesACharacterWithRegardToCase)
{
    CString str(L"This is a test.");
    EXPECT_EQ(2, str.Remove(L't'));
    EXPECT_STREQ(L"This is a es.", str);
    EXPECT_EQ(0, str.Remove(L'x'));
    CStringA strNarrow("aXbX");
    EXPECT_EQ(2, strNarrow.Remove('X'));
    EXPECT_STREQ("ab", strNarrow);
}

TEST(CStringEdit, InsertClampsTheIndexAndGivesTheLength)
{
    CString str(L"bd");
    EXPECT_EQ(3, str.Insert(1, L'c'));
    EXPECT_EQ(4, str.Insert(-7, L"a"));
    EXPECT_EQ(6, str.Insert(100, L"ef"));
    EXPECT_STREQ(L"abcdef", str);
    EXPECT_EQ(6, str.Insert(2, static_cast<LPCWSTR>(nullptr)));
    EXPECT_STREQ(L"abcdef", str);
}

TEST(CStringEdit, DeleteClampsAndGivesTheLength)
{
    CString str(L"abcdef");
    EXPECT_EQ(5, str.Delete(0));
    EXPECT_EQ(3, str.Delete(1, 2));
    EXPECT_STREQ(L"bef", str);
    EXPECT_EQ(3, str.Delete(3, 2));
    EXPECT_EQ(3, str.Delete(1, 0));
    EXPECT_EQ(3, str.Delete(1, -4));
    EXPECT_EQ(1, str.Delete(1, INT_MAX));
    EXPECT_STREQ(L"b", str);
    EXPECT_EQ(0, str.Delete(-3, 1));
}

TEST(CStringEdit, TrimsWhiteSpace)
{
    EXPECT_EQ(CString(L"a b"), CString(L" \t\r\na b\n ").Trim());
    EXPECT_EQ(CString(L"a b \n"), CString(L" \ta b \n").TrimLeft());
    EXPECT_EQ(CString(L" a b"), CString(L" a b \n").TrimRight());
    EXPECT_EQ(CString(), CString(L" \t ").Trim());
    EXPECT_EQ(CString(), CString(L" \t ").TrimLeft());
    EXPECT_EQ(CString(), CString(L" \t ").TrimRight());
    EXPECT_EQ(CString(), CString().Trim());
    EXPECT_EQ(CStringA("a"), CStringA(" a ").Trim());
}

TEST(CStringEdit, TrimsACharacter)
{
    EXPECT_EQ(CString(L"a*b"), CString(L"**a*b*").Trim(L'*'));
    EXPECT_EQ(CString(L"a*"), CString(L"*a*").TrimLeft(L'*'));
    EXPECT_EQ(CString(L"*a"), CString(L"*a*").TrimRight(L'*'));
    EXPECT_EQ(CString(), CString(L"***").TrimRight(L'*'));
}

TEST(CStringEdit, TrimsASetOfCharacters)
{
    EXPECT_EQ(CString(L"a"), CString(L"{;a.}").Trim(L";.{}"));
    EXPECT_EQ(CString(L"a.}"), CString(L"{;a.}").TrimLeft(L";.{}"));
    EXPECT_EQ(CString(L"{;a"), CString(L"{;a.}").TrimRight(L";.{}"));
    EXPECT_EQ(CString(L" a "), CString(L" a ").Trim(L""));
    EXPECT_EQ(CString(L" a "), CString(L" a ").Trim(static_cast<LPCWSTR>(nullptr)));
}

TEST(CStringEdit, ConvertsBetweenAnsiAndOem)
{
    CStringA str("plain");
    str.AnsiToOem();
    EXPECT_STREQ("plain", str);
    char szOem[8] = {};
    CharToOemA("\xE4", szOem);
    CStringA strUmlaut("\xE4");
    strUmlaut.AnsiToOem();
    EXPECT_STREQ(szOem, strUmlaut);
    strUmlaut.OemToAnsi();
    EXPECT_STREQ("\xE4", strUmlaut);
}

TEST(CStringEdit, SetStringAndAppendTakeCounts)
{
    CString str;
    str.SetString(L"abcdef", 3);
    str.Append(L"xyz", 2);
    str.AppendChar(L'!');
    EXPECT_STREQ(L"abcxy!", str);
    str.SetString(str.GetString() + 3, 2);
    EXPECT_STREQ(L"xy", str);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.SetString(L"a", -1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.Append(static_cast<LPCWSTR>(nullptr), 1); }));
    str.SetString(nullptr);
    EXPECT_TRUE(str.IsEmpty());
}
