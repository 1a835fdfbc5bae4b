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
class CAssertCatcher
{
  public:
    CAssertCatcher()
        : m_pfnAssert(AfxSetAssertHook([](LPCSTR, int) -> BOOL {
              ++g_nBroken;
              return FALSE;
          })),
          m_pfnTrace(AfxSetTraceHook([](LPCWSTR lpszText) { g_strReport += lpszText; }))
    {
        g_strReport.Empty();
        g_nBroken = 0;
    }
    ~CAssertCatcher()
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
    CAssertCatcher catcher;
    ASSERT(1 + 1 == 2);
    VERIFY(true);
    EXPECT_EQ(0, g_nBroken);
    EXPECT_TRUE(g_strReport.IsEmpty());
}

TEST(Assert, FailureReportsFileAndLineAndAsksTheHook)
{
    CAssertCatcher catcher;
    const int nLine = __LINE__ + 1;
    ASSERT(1 + 1 == 3);
    EXPECT_EQ(1, g_nBroken);
    CString strExpected;
    strExpected.Format(L"AssertTest.cpp(%d)", nLine);
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
    CAssertCatcher catcher;
    SetLastError(1234);
    ASSERT(false);
    EXPECT_EQ(1234U, GetLastError());
}

TEST(Assert, ValidObjectsAreAskedAndOthersRefused)
{
    CAssertCatcher catcher;
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
    CAssertCatcher catcher;
    EXPECT_TRUE(Raises<CInvalidArgException>([] { ENSURE(1 == 2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { ENSURE_ARG(false); }));
    EXPECT_EQ(2, g_nBroken);
    EXPECT_FALSE(Raises<CInvalidArgException>([] { ENSURE(1 == 1); }));
}

TEST(Trace, WritesFormattedTextOfBothWidths)
{
    CAssertCatcher catcher;
    TRACE(L"wide %s %d\n", L"text", 1);
    TRACE("narrow %s\n", "text");
    TRACE1("one %d\n", 2);
    EXPECT_STREQ(L"wide text 1\nnarrow text\none 2\n", g_strReport);
}
