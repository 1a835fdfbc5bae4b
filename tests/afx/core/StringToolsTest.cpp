#include "Checks.h"

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

TEST(CStringSystem, AfxLoadStringCutsAtTheBuffer)
{
    wchar_t szText[8] = L"old";
    EXPECT_EQ(7, AfxLoadString(100, szText, 8));
    EXPECT_STREQ(L"program", szText);
    EXPECT_EQ(0, AfxLoadString(9999, szText, 8));
    EXPECT_STREQ(L"", szText);
    EXPECT_EQ(0, AfxLoadString(100, nullptr, 8));
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
