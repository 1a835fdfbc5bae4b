#include "Checks.h"

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
