#include "Checks.h"

#include <vector>

TEST(CString, IsOnePointerInSize)
{
    EXPECT_EQ(sizeof(void*), sizeof(CString));
    EXPECT_EQ(sizeof(void*), sizeof(CStringA));
}

TEST(CString, DefaultIsEmptyAndTerminated)
{
    const CString str;
    EXPECT_TRUE(str.IsEmpty());
    EXPECT_EQ(0, str.GetLength());
    EXPECT_EQ(L'\0', str.GetString()[0]);
}

TEST(CString, NullPointersMakeEmptyStrings)
{
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<const unsigned char*>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr), 0).IsEmpty());
}

TEST(CString, ConstructsFromOtherWidthInBothDirections)
{
    EXPECT_EQ(CString(L"abc"), CString("abc"));
    EXPECT_EQ(CStringA("abc"), CStringA(L"abc"));
    EXPECT_EQ(CString(L"abc"), CString(CStringA("abc")));
    EXPECT_EQ(CStringA("abc"), CStringA(CString(L"abc")));
    EXPECT_EQ(CString(L"abc"), CString(reinterpret_cast<const unsigned char*>("abc")));
}

TEST(CString, ConvertsLatinLettersThroughTheThreadsCodePage)
{
    char szExpected[16] = {};
    WideCharToMultiByte(CP_THREAD_ACP, 0, L"a\u00e4z", -1, szExpected, sizeof(szExpected), nullptr, nullptr);
    EXPECT_STREQ(szExpected, CStringA(L"a\u00e4z").GetString());
    EXPECT_EQ(CString(L"a\u00e4z"), CString(szExpected));
}

TEST(CString, ConstructsRepeatedCharacterOfBothWidths)
{
    EXPECT_EQ(CString(L"xxx"), CString(L'x', 3));
    EXPECT_EQ(CString(L"xxx"), CString('x', 3));
    EXPECT_EQ(CStringA("xxx"), CStringA(L'x', 3));
    EXPECT_EQ(CString(L"x"), CString(L'x'));
    EXPECT_TRUE(CString(L'x', 0).IsEmpty());
    EXPECT_TRUE(Raises<CInvalidArgException>([] { CString(L'x', -1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { CString('x', -1); }));
}

TEST(CString, ConstructsFromBufferAndLength)
{
    EXPECT_EQ(CString(L"ab"), CString(L"abcdef", 2));
    EXPECT_EQ(CString(L"ab"), CString("abcdef", 2));
    EXPECT_EQ(3, CString(L"a\0b", 3).GetLength());
    EXPECT_TRUE(Raises<CInvalidArgException>([] { CString(L"abc", -1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { CString(static_cast<LPCWSTR>(nullptr), 2); }));
}

TEST(CString, ConstructsFromVariant)
{
    VARIANT var;
    VariantInit(&var);
    V_VT(&var) = VT_I4;
    V_I4(&var) = 37;
    EXPECT_EQ(CString(L"37"), CString(var));
    CString str(L"x");
    str += var;
    EXPECT_EQ(CString(L"x37"), str);
    V_VT(&var) = VT_EMPTY;
    EXPECT_TRUE(CString(var).IsEmpty());
}

TEST(CString, ConstructsFromResourceId)
{
    EXPECT_EQ(CString(L"program 100"), CString(MAKEINTRESOURCE(100)));
    EXPECT_TRUE(CString(MAKEINTRESOURCE(9)).IsEmpty());
}

TEST(CString, AssignsEveryKindOfSource)
{
    CString str;
    str = L"wide";
    EXPECT_STREQ(L"wide", str);
    str = "narrow";
    EXPECT_STREQ(L"narrow", str);
    str = L'w';
    EXPECT_STREQ(L"w", str);
    str = 'n';
    EXPECT_STREQ(L"n", str);
    str = CStringA("other");
    EXPECT_STREQ(L"other", str);
    str = reinterpret_cast<const unsigned char*>("bytes");
    EXPECT_STREQ(L"bytes", str);
    str = static_cast<LPCWSTR>(nullptr);
    EXPECT_STREQ(L"", str);
}

TEST(CString, AppendsEveryKindOfSource)
{
    CString str(L"1");
    str += L"2";
    str += "3";
    str += L'4';
    str += '5';
    str += static_cast<unsigned char>('6');
    str += CString(L"7");
    str += CStringA("8");
    EXPECT_STREQ(L"12345678", str);
    str += static_cast<LPCWSTR>(nullptr);
    EXPECT_STREQ(L"12345678", str);
}

TEST(CString, ConcatenatesEveryPairOfOperands)
{
    const CString str(L"s");
    EXPECT_EQ(CString(L"ss"), str + str);
    EXPECT_EQ(CString(L"sw"), str + L"w");
    EXPECT_EQ(CString(L"ws"), L"w" + str);
    EXPECT_EQ(CString(L"sn"), str + "n");
    EXPECT_EQ(CString(L"ns"), "n" + str);
    EXPECT_EQ(CString(L"sc"), str + L'c');
    EXPECT_EQ(CString(L"cs"), L'c' + str);
    EXPECT_EQ(CString(L"sc"), str + 'c');
    EXPECT_EQ(CString(L"cs"), 'c' + str);
    EXPECT_EQ(CString(L"s"), str + static_cast<LPCWSTR>(nullptr));
}

TEST(CString, ComparesWithEveryOperand)
{
    const CString str(L"b");
    EXPECT_TRUE(str == L"b" && L"b" == str && str == "b" && "b" == str && str == CString(L"b"));
    EXPECT_TRUE(str == L'b' && L'b' == str);
    EXPECT_FALSE(str == L'c' || str == L"bb" || CString(L"bb") == L'b');
    EXPECT_TRUE(str != L"c" && L"c" != str && str != L'c' && str != CString(L"B"));
    EXPECT_TRUE(str < L"c" && L"a" < str && str < CString(L"c"));
    EXPECT_TRUE(str > L"a" && L"c" > str && str > CString(L"a"));
    EXPECT_TRUE(str <= L"b" && L"b" <= str && str >= L"b" && L"b" >= str);
    EXPECT_FALSE(str < L"b" || str > L"b");
}

TEST(CString, NullComparesAsEmpty)
{
    EXPECT_TRUE(CString() == static_cast<LPCWSTR>(nullptr));
    EXPECT_GT(CString(L"a").Compare(nullptr), 0);
}

TEST(CString, CompareFunctionsTellTheOrder)
{
    const CString str(L"Beta");
    EXPECT_LT(str.Compare(L"alpha"), 0);
    EXPECT_GT(str.CompareNoCase(L"ALPHA"), 0);
    EXPECT_EQ(0, str.CompareNoCase(L"bETA"));
    EXPECT_EQ(0, str.Collate(L"Beta"));
    EXPECT_NE(0, str.Collate(L"beta"));
    EXPECT_EQ(0, str.CollateNoCase(L"bETA"));
    EXPECT_EQ(0, CStringA("Beta").CompareNoCase("bETA"));
    EXPECT_EQ(0, CStringA("Beta").CollateNoCase("bETA"));
}

TEST(CString, GetAtReachesTheTerminatorAndNoFurther)
{
    const CString str(L"ab");
    EXPECT_EQ(L'a', str.GetAt(0));
    EXPECT_EQ(L'b', str[1]);
    EXPECT_EQ(L'\0', str[2]);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.GetAt(3); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.GetAt(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(str[3]); }));
}

TEST(CString, SetAtRefusesEverythingBehindTheLastCharacter)
{
    CString str(L"ab");
    str.SetAt(1, L'x');
    EXPECT_STREQ(L"ax", str);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.SetAt(2, L'y'); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.SetAt(-1, L'y'); }));
    EXPECT_STREQ(L"ax", str);
}

TEST(CString, MidClampsItsArguments)
{
    const CString str(L"abcdef");
    EXPECT_EQ(CString(L"cd"), str.Mid(2, 2));
    EXPECT_EQ(CString(L"cdef"), str.Mid(2));
    EXPECT_EQ(CString(L"ef"), str.Mid(4, 100));
    EXPECT_EQ(CString(L"ef"), str.Mid(4, INT_MAX));
    EXPECT_EQ(CString(L"ab"), str.Mid(-5, 2));
    EXPECT_EQ(CString(), str.Mid(6));
    EXPECT_EQ(CString(), str.Mid(100, 2));
    EXPECT_EQ(CString(), str.Mid(2, -1));
    EXPECT_EQ(str, str.Mid(0));
}

TEST(CString, LeftAndRightClampTheirArguments)
{
    const CString str(L"abc");
    EXPECT_EQ(CString(L"ab"), str.Left(2));
    EXPECT_EQ(CString(L"bc"), str.Right(2));
    EXPECT_EQ(str, str.Left(9));
    EXPECT_EQ(str, str.Right(9));
    EXPECT_EQ(CString(), str.Left(-1));
    EXPECT_EQ(CString(), str.Right(-1));
    EXPECT_EQ(CString(), str.Right(0));
}

TEST(CString, SpansStopAtTheFirstForeignCharacter)
{
    const CString str(L"aab;c");
    EXPECT_EQ(CString(L"aab"), str.SpanIncluding(L"ab"));
    EXPECT_EQ(CString(), str.SpanIncluding(L"x"));
    EXPECT_EQ(CString(L"aab"), str.SpanExcluding(L";,"));
    EXPECT_EQ(str, str.SpanExcluding(L"xyz"));
    EXPECT_EQ(CStringA("aa"), CStringA("aab").SpanIncluding("a"));
}

TEST(CString, TokenizeSkipsEmptyPartsAndEndsWithMinusOne)
{
    const CString str(L"%First Second#Third%");
    std::vector<CString> parts;
    int iStart = 0;
    for (CString part = str.Tokenize(L"% #", iStart); iStart >= 0; part = str.Tokenize(L"% #", iStart)) {
        parts.push_back(part);
    }
    EXPECT_EQ((std::vector<CString>{L"First", L"Second", L"Third"}), parts);
    EXPECT_EQ(-1, iStart);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.Tokenize(L"%", iStart); }));
}

TEST(CString, TokenizeWithoutDelimitersGivesTheRestOnce)
{
    const CString str(L"a b");
    int iStart = 0;
    EXPECT_EQ(str, str.Tokenize(L"", iStart));
    EXPECT_EQ(CString(), str.Tokenize(L"", iStart));
    EXPECT_EQ(-1, iStart);
}

TEST(CString, TokenizeOfEmptyStringFindsNothing)
{
    int iStart = 0;
    EXPECT_EQ(CString(), CString().Tokenize(L",", iStart));
    EXPECT_EQ(-1, iStart);
}

TEST(CString, FindsCharactersAndSubstrings)
{
    const CString str(L"abcabc");
    EXPECT_EQ(1, str.Find(L'b'));
    EXPECT_EQ(4, str.Find(L'b', 2));
    EXPECT_EQ(-1, str.Find(L'x'));
    EXPECT_EQ(2, str.Find(L"ca"));
    EXPECT_EQ(3, str.Find(L"abc", 1));
    EXPECT_EQ(-1, str.Find(L"abc", 4));
    EXPECT_EQ(0, str.Find(L""));
    EXPECT_EQ(4, str.ReverseFind(L'b'));
    EXPECT_EQ(-1, str.ReverseFind(L'x'));
    EXPECT_EQ(1, str.FindOneOf(L"cb"));
    EXPECT_EQ(-1, str.FindOneOf(L"xyz"));
    EXPECT_EQ(2, CStringA("abcabc").Find("ca"));
    EXPECT_EQ(5, CStringA("abcabc").ReverseFind('c'));
}

TEST(CString, FindOutsideTheStringFindsNothing)
{
    const CString str(L"abc");
    EXPECT_EQ(-1, str.Find(L'a', -1));
    EXPECT_EQ(-1, str.Find(L'a', 3));
    EXPECT_EQ(-1, str.Find(L"a", 4));
    EXPECT_EQ(-1, str.Find(L"a", -1));
    EXPECT_EQ(-1, str.Find(static_cast<LPCWSTR>(nullptr)));
    EXPECT_EQ(-1, CString().ReverseFind(L'a'));
}
