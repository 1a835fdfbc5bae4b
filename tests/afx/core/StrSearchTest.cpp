#include "Checks.h"

#include <vector>

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
