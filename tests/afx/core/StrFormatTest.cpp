#include "Checks.h"

namespace
{
template <typename... Args>
CString Formatted(LPCWSTR lpszFormat, Args... args)
{
    CString str;
    str.Format(lpszFormat, args...);
    return str;
}

template <typename... Args>
CStringA FormattedA(LPCSTR lpszFormat, Args... args)
{
    CStringA str;
    str.Format(lpszFormat, args...);
    return str;
}

CString FormattedV(LPCWSTR lpszFormat, ...)
{
    CString str;
    va_list args;
    va_start(args, lpszFormat);
    str.FormatV(lpszFormat, args);
    str.AppendFormatV(lpszFormat, args);
    va_end(args);
    return str;
}
} // namespace

TEST(CStringFormat, WidePercentSTakesWideString)
{
    EXPECT_EQ(CString(L"[wide]"), Formatted(L"[%s]", L"wide"));
}

TEST(CStringFormat, WidePercentCapitalSTakesNarrowString)
{
    EXPECT_EQ(CString(L"[narrow]"), Formatted(L"[%S]", "narrow"));
}

TEST(CStringFormat, NarrowFormatHasTheOppositeMeaning)
{
    EXPECT_EQ(CStringA("[narrow]"), FormattedA("[%s]", "narrow"));
    EXPECT_EQ(CStringA("[wide]"), FormattedA("[%S]", L"wide"));
    EXPECT_EQ(CStringA("[c][w]"), FormattedA("[%c][%C]", 'c', L'w'));
}

TEST(CStringFormat, PrefixesFixTheWidthOfStrings)
{
    EXPECT_EQ(CString(L"wide narrow"), Formatted(L"%ls %hs", L"wide", "narrow"));
    EXPECT_EQ(CStringA("wide narrow"), FormattedA("%ls %hs", L"wide", "narrow"));
}

TEST(CStringFormat, Characters)
{
    EXPECT_EQ(CString(L"wn"), Formatted(L"%c%C", L'w', 'n'));
    EXPECT_EQ(CString(L"\u4e2d"), Formatted(L"%c", L'\u4e2d'));
    EXPECT_EQ(CString(L"wn"), Formatted(L"%lc%hc", L'w', 'n'));
}

TEST(CStringFormat, Integers)
{
    EXPECT_EQ(CString(L"-5 7 4294967295"), Formatted(L"%d %i %u", -5, 7, 0xFFFFFFFFU));
    EXPECT_EQ(CString(L"1f 1F 0x1f 17"), Formatted(L"%x %X %#x %o", 31, 31, 31, 15));
    EXPECT_EQ(CString(L"-5 5"), Formatted(L"%ld %lu", -5L, 5UL));
    EXPECT_EQ(CString(L"-1"), Formatted(L"%hd", 0xFFFF));
}

TEST(CStringFormat, SixtyFourBitIntegers)
{
    const LONGLONG n = -1234567890123LL;
    const ULONGLONG u = 0xFFFFFFFFFFFFFFFFULL;
    EXPECT_EQ(CString(L"-1234567890123 -1234567890123"), Formatted(L"%I64d %lld", n, n));
    EXPECT_EQ(CString(L"18446744073709551615 18446744073709551615"), Formatted(L"%I64u %llu", u, u));
    EXPECT_EQ(CString(L"ffffffffffffffff FFFFFFFFFFFFFFFF"), Formatted(L"%I64x %I64X", u, u));
    EXPECT_EQ(CStringA("-1234567890123"), FormattedA("%I64d", n));
    EXPECT_EQ(CString(L"7"), Formatted(L"%I32d", 7));
}

TEST(CStringFormat, FloatingPoint)
{
    EXPECT_EQ(CString(L"1.500000 1.50 2"), Formatted(L"%f %.2f %.0f", 1.5, 1.5, 1.9));
    EXPECT_EQ(CString(L"0.0001 1.5 100000"), Formatted(L"%g %g %g", 0.0001, 1.5, 100000.0));
    EXPECT_EQ(CString(L"1.5e+010"), Formatted(L"%g", 1.5e10));
    EXPECT_EQ(CString(L"1.250000e+003 1.3E-002"), Formatted(L"%e %.1E", 1250.0, 0.0125001));
}

TEST(CStringFormat, Pointers)
{
    const auto p = reinterpret_cast<const void*>(static_cast<UINT_PTR>(0x12345678ABCULL));
    EXPECT_EQ(CString(L"0000012345678ABC"), Formatted(L"%p", p));
}

TEST(CStringFormat, PercentSign)
{
    EXPECT_EQ(CString(L"100%"), Formatted(L"%d%%", 100));
}

TEST(CStringFormat, WidthPrecisionFlags)
{
    EXPECT_EQ(CString(L"[   42][42   ][00042][+42][ 42]"),
              Formatted(L"[%5d][%-5d][%05d][%+d][% d]", 42, 42, 42, 42, 42));
    EXPECT_EQ(CString(L"[  abc][abc  ][ab]"), Formatted(L"[%5s][%-5s][%.2s]", L"abc", L"abc", L"abc"));
    EXPECT_EQ(CString(L"[007]"), Formatted(L"[%.3d]", 7));
}

TEST(CStringFormat, StarsTakeWidthAndPrecision)
{
    EXPECT_EQ(CString(L"[   42][42   ]"), Formatted(L"[%*d][%*d]", 5, 42, -5, 42));
    EXPECT_EQ(CString(L"[ab][  1.50]"), Formatted(L"[%.*s][%*.*f]", 2, L"abc", 6, 2, 1.5));
}

TEST(CStringFormat, LongResultsAreNotCut)
{
    const CString strLong(L'x', 100000);
    const CString str = Formatted(L"<%s>", strLong.GetString());
    EXPECT_EQ(100002, str.GetLength());
    EXPECT_EQ(L'>', str[100001]);
}

TEST(CStringFormat, EmptyFormatAndEmptyResult)
{
    EXPECT_TRUE(Formatted(L"").IsEmpty());
    EXPECT_TRUE(Formatted(L"%s", L"").IsEmpty());
}

TEST(CStringFormat, NullFormatIsRefused)
{
    CString str(L"kept");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.Format(static_cast<LPCWSTR>(nullptr)); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.FormatMessage(static_cast<LPCWSTR>(nullptr)); }));
    EXPECT_STREQ(L"kept", str);
}

TEST(CStringFormat, NullStringArgumentIsShown)
{
    EXPECT_EQ(CString(L"(null)"), Formatted(L"%s", static_cast<LPCWSTR>(nullptr)));
}

TEST(CStringFormat, VariantsWithArgumentListDoNotUseItUp)
{
    EXPECT_EQ(CString(L"1-a1-a"), FormattedV(L"%d-%s", 1, L"a"));
}

TEST(CStringFormat, AppendFormatAppends)
{
    CString str(L"n=");
    str.AppendFormat(L"%d", 5);
    str.AppendFormat(L",%s", L"x");
    EXPECT_STREQ(L"n=5,x", str);
}

TEST(CStringFormat, FormatFromResource)
{
    CString str;
    str.Format(120U, 3, L"four");
    EXPECT_STREQ(L"3 of four", str);
    str.AppendFormat(120U, 5, L"six");
    EXPECT_STREQ(L"3 of four5 of six", str);
    str.Format(9999U, 3, L"four");
    EXPECT_STREQ(L"", str);
}

TEST(CStringFormat, FormatMessageUsesNumberedInserts)
{
    CString str;
    str.FormatMessage(L"%2!s! before %1!d!", 7, L"text");
    EXPECT_STREQ(L"text before 7", str);
    str.FormatMessage(122U, 4, L"res");
    EXPECT_STREQ(L"4-res", str);
    CStringA strNarrow;
    strNarrow.FormatMessage("%1!s!", "n");
    EXPECT_STREQ("n", strNarrow);
}

TEST(CStringSystem, LoadStringFindsTheProgramsResource)
{
    CString str;
    EXPECT_TRUE(str.LoadString(100));
    EXPECT_STREQ(L"program 100", str);
    EXPECT_TRUE(str.LoadString(123));
    EXPECT_STREQ(L"Gr\u00fc\u00dfe \u4e2d", str);
    CStringA strNarrow;
    EXPECT_TRUE(strNarrow.LoadString(100));
    EXPECT_STREQ("program 100", strNarrow);
}

TEST(CStringSystem, LoadStringLeavesTheStringWhenMissing)
{
    CString str(L"kept");
    EXPECT_FALSE(str.LoadString(9999));
    EXPECT_FALSE(str.LoadString(99)); // its block exists
    EXPECT_FALSE(str.LoadString(0));
    EXPECT_FALSE(str.LoadString(0x12345678));
    EXPECT_STREQ(L"kept", str);
}

TEST(CStringSystem, LoadStringFromInstanceAndLanguage)
{
    CString str;
    EXPECT_TRUE(str.LoadString(GetModuleHandle(nullptr), 100));
    EXPECT_STREQ(L"program 100", str);
    EXPECT_FALSE(str.LoadString(GetModuleHandle(L"kernel32.dll"), 100));
    EXPECT_TRUE(str.LoadString(GetModuleHandle(nullptr), 100, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)));
    EXPECT_FALSE(str.LoadString(GetModuleHandle(nullptr), 100, MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT)));
}

TEST(CStringSystem, SysStringsAreMadeAndReplaced)
{
    const CString str(L"bstr");
    BSTR bstr = str.AllocSysString();
    EXPECT_STREQ(L"bstr", bstr);
    EXPECT_EQ(4U, SysStringLen(bstr));
    EXPECT_EQ(bstr, CStringA("narrow text").SetSysString(&bstr) ? bstr : nullptr);
    EXPECT_STREQ(L"narrow text", bstr);
    SysFreeString(bstr);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { str.SetSysString(nullptr); }));
}

TEST(CStringSystem, EnvironmentVariables)
{
    SetEnvironmentVariableW(L"AFX_CORE_TEST", L"some value");
    CString str;
    EXPECT_TRUE(str.GetEnvironmentVariable(L"AFX_CORE_TEST"));
    EXPECT_STREQ(L"some value", str);
    CStringA strNarrow;
    EXPECT_TRUE(strNarrow.GetEnvironmentVariable("AFX_CORE_TEST"));
    EXPECT_STREQ("some value", strNarrow);
    SetEnvironmentVariableW(L"AFX_CORE_TEST", nullptr);
    EXPECT_FALSE(str.GetEnvironmentVariable(L"AFX_CORE_TEST"));
    EXPECT_TRUE(str.IsEmpty());
}
