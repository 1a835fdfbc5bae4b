/* The checks of a debug build, in every build. */
#ifndef _DEBUG
#define _DEBUG
#endif

#include "Checks.h"

namespace
{
CString g_strReport;
int g_nBroken = 0;

/** Collects reports instead of breaking. */
class AssertCatcher
{
  public:
    AssertCatcher()
        : m_pfnAssert(AfxSetAssertHook([](LPCSTR, int) -> BOOL {
              ++g_nBroken;
              return FALSE;
          })),
          m_pfnTrace(AfxSetTraceHook([](LPCWSTR lpszText) { g_strReport += lpszText; }))
    {
        g_strReport.Empty();
        g_nBroken = 0;
    }
    ~AssertCatcher()
    {
        AfxSetAssertHook(m_pfnAssert);
        AfxSetTraceHook(m_pfnTrace);
    }

  private:
    AFX_ASSERT_HOOK m_pfnAssert;
    AFX_TRACE_HOOK m_pfnTrace;
};

class CUnsound : public CObject
{
  public:
    void AssertValid() const override { ASSERT(false); }
};
} // namespace

TEST(Assert, TrueConditionIsSilent)
{
    AssertCatcher catcher;
    ASSERT(1 + 1 == 2);
    VERIFY(true);
    EXPECT_EQ(0, g_nBroken);
    EXPECT_TRUE(g_strReport.IsEmpty());
}

TEST(Assert, FailureReportsFileAndLineAndAsksTheHook)
{
    AssertCatcher catcher;
    const int nLine = __LINE__ + 1;
    ASSERT(1 + 1 == 3);
    EXPECT_EQ(1, g_nBroken);
    CString strExpected;
    strExpected.Format(L"DiagTest.cpp(%d)", nLine);
    EXPECT_GE(g_strReport.Find(strExpected), 0) << CStringA(g_strReport).GetString();
}

TEST(Assert, WithoutHookTheFailureBreaks)
{
    AFX_TRACE_HOOK const pfnOld = AfxSetTraceHook([](LPCWSTR) {});
    AFX_ASSERT_HOOK const pfnOldAssert = AfxSetAssertHook(nullptr);
    EXPECT_TRUE(AfxAssertFailedLine("file.cpp", 1));
    AfxSetAssertHook(pfnOldAssert);
    AfxSetTraceHook(pfnOld);
}

TEST(Assert, KeepsTheLastError)
{
    AssertCatcher catcher;
    SetLastError(1234);
    ASSERT(false);
    EXPECT_EQ(1234U, GetLastError());
}

TEST(Assert, ValidObjectsAreAskedAndOthersRefused)
{
    AssertCatcher catcher;
    const CObject* const pNull = nullptr;
    ASSERT_VALID(pNull);
    EXPECT_EQ(1, g_nBroken);
    const CUnsound unsound;
    ASSERT_VALID(&unsound);
    EXPECT_EQ(2, g_nBroken);
    CByteArray array;
    ASSERT_VALID(&array);
    ASSERT_KINDOF(CByteArray, &array);
    EXPECT_EQ(2, g_nBroken);
    ASSERT_KINDOF(CWordArray, &array);
    EXPECT_EQ(3, g_nBroken);
}

TEST(Assert, EnsureReportsAndRaises)
{
    AssertCatcher catcher;
    EXPECT_TRUE(Raises<CInvalidArgException>([] { ENSURE(1 == 2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { ENSURE_ARG(false); }));
    EXPECT_EQ(2, g_nBroken);
    EXPECT_FALSE(Raises<CInvalidArgException>([] { ENSURE(1 == 1); }));
}

TEST(Trace, WritesFormattedTextOfBothWidths)
{
    AssertCatcher catcher;
    TRACE(L"wide %s %d\n", L"text", 1);
    TRACE("narrow %s\n", "text");
    TRACE1("one %d\n", 2);
    EXPECT_STREQ(L"wide text 1\nnarrow text\none 2\n", g_strReport);
}

TEST(Diagnostics, AddressesAreChecked)
{
    int n = 0;
    EXPECT_TRUE(AfxIsValidAddress(&n, sizeof(n)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(16), 4));
    static const int kConstant = 5;
    EXPECT_TRUE(AfxIsValidAddress(&kConstant, sizeof(kConstant), FALSE));
    void* const p = VirtualAlloc(nullptr, 8192, MEM_COMMIT | MEM_RESERVE, PAGE_READONLY);
    EXPECT_TRUE(AfxIsValidAddress(p, 8192, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(p, 8192, TRUE));
    DWORD dwOld = 0;
    VirtualProtect(static_cast<BYTE*>(p) + 4096, 4096, PAGE_NOACCESS, &dwOld);
    EXPECT_TRUE(AfxIsValidAddress(p, 4096, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(p, 4097, FALSE));
    VirtualFree(p, 0, MEM_RELEASE);
}

TEST(Diagnostics, StringsAreCheckedUpToTheTerminator)
{
    EXPECT_TRUE(AfxIsValidString(L"wide"));
    EXPECT_TRUE(AfxIsValidString("narrow"));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    auto* const p = static_cast<char*>(VirtualAlloc(nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
    memset(p, 'x', 4096);
    EXPECT_FALSE(AfxIsValidString(p + 4000));
    EXPECT_TRUE(AfxIsValidString(p + 4000, 96));
    EXPECT_FALSE(AfxIsValidString(p + 4000, 97));
    p[4095] = 0;
    EXPECT_TRUE(AfxIsValidString(p + 4000));
    VirtualFree(p, 0, MEM_RELEASE);
}
