#include "Checks.h"
#include "ext/Shared.h"

namespace
{
template <class EXCEPTION>
CString TextOf(EXCEPTION* pException)
{
    wchar_t szText[200] = L"old";
    UINT nHelp = 99;
    const BOOL bText = pException->GetErrorMessage(szText, 200, &nHelp);
    EXPECT_EQ(0U, nHelp);
    EXPECT_EQ(bText != FALSE, szText[0] != 0);
    pException->Delete();
    return szText;
}

/** Counts its living objects. */
class CCountedException : public CException
{
    DECLARE_DYNAMIC(CCountedException)

  public:
    static int s_nAlive;
    CCountedException() { ++s_nAlive; }
    ~CCountedException() override { --s_nAlive; }
};
IMPLEMENT_DYNAMIC(CCountedException, CException)
int CCountedException::s_nAlive = 0;
} // namespace

TEST(Exceptions, ThrownInADllAreCaughtByTypeInTheProgram)
{
    EXPECT_TRUE(Raises<CMemoryException>([] { SharedThrow(Thrown::Memory); }));
    EXPECT_TRUE(Raises<CNotSupportedException>([] { SharedThrow(Thrown::NotSupported); }));
    EXPECT_TRUE(Raises<CResourceException>([] { SharedThrow(Thrown::Resource); }));
    EXPECT_TRUE(Raises<CUserException>([] { SharedThrow(Thrown::User); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { SharedThrow(Thrown::InvalidArg); }));
}

TEST(Exceptions, ThrownInADllAreCaughtByBase)
{
    EXPECT_TRUE(Raises<CException>([] { SharedThrow(Thrown::InvalidArg); }));
    EXPECT_TRUE(Raises<CSimpleException>([] { SharedThrow(Thrown::Resource); }));
    EXPECT_TRUE(Raises<CException>([] { SharedThrow(Thrown::Shared); }));
}

TEST(Exceptions, ClassOfADllCrossesItsBorderAndIsFreed)
{
    try {
        SharedThrow(Thrown::Shared);
        FAIL() << "nothing was thrown";
    } catch (CSharedException* e) {
        EXPECT_EQ(7, e->m_nCode);
        EXPECT_EQ(1, CSharedException::s_nAlive);
        EXPECT_EQ(CString(L"shared error 7"), TextOf(e));
    }
    EXPECT_EQ(0, CSharedException::s_nAlive);
}

TEST(Exceptions, ThrownInTheProgramAreCaughtInADll)
{
    EXPECT_EQ(1, SharedCatch([] { AfxThrowInvalidArgException(); }));
    EXPECT_EQ(2, SharedCatch([] { throw new CCountedException; }));
    EXPECT_EQ(0, SharedCatch([] {}));
    EXPECT_EQ(0, CCountedException::s_nAlive);
}

TEST(Exceptions, HaveTheirTexts)
{
    EXPECT_EQ(CString(L"Out of memory."), TextOf(new CMemoryException));
    EXPECT_EQ(CString(L"An unsupported operation was attempted."), TextOf(new CNotSupportedException));
    EXPECT_EQ(CString(L"A required resource was unavailable."), TextOf(new CResourceException));
    EXPECT_EQ(CString(L"Encountered an improper argument."), TextOf(new CInvalidArgException));
    EXPECT_EQ(CString(), TextOf(new CUserException));
    EXPECT_EQ(CString(), TextOf(new CException));
}

TEST(Exceptions, TextComesFromTheGivenResource)
{
    EXPECT_EQ(CString(L"program 100"), TextOf(new CResourceException(TRUE, 100)));
    EXPECT_EQ(CString(L"A required resource was unavailable."), TextOf(new CResourceException(TRUE, 9999)));
}

TEST(Exceptions, TextIsCutAtTheBuffer)
{
    CMemoryException exception(FALSE);
    wchar_t szText[4];
    EXPECT_TRUE(exception.GetErrorMessage(szText, 4));
    EXPECT_STREQ(L"Out", szText);
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 4));
    EXPECT_FALSE(exception.GetErrorMessage(szText, 0));
}

TEST(Exceptions, DeleteKeepsWhatIsNotOnTheHeap)
{
    CMemoryException exception(FALSE);
    exception.Delete();
    EXPECT_STREQ("CMemoryException", exception.GetRuntimeClass()->m_lpszClassName);
}

TEST(ExceptionMacros, CatchSelectsByTypeAndEndsTheException)
{
    int nCaught = 0;
    TRY
    {
        THROW(new CCountedException);
    }
    CATCH(CMemoryException, e)
    {
        UNREFERENCED_PARAMETER(e);
        nCaught = 1;
    }
    AND_CATCH(CCountedException, e)
    {
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CCountedException)));
        nCaught = 2;
    }
    END_CATCH
    EXPECT_EQ(2, nCaught);
    EXPECT_EQ(0, CCountedException::s_nAlive);
}

TEST(ExceptionMacros, ThrowLastKeepsTheExceptionAlive)
{
    int nCaught = 0;
    TRY{TRY{THROW(new CCountedException);
}
CATCH_ALL(e)
{
    UNREFERENCED_PARAMETER(e);
    ++nCaught;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(CCountedException, e)
{
    EXPECT_EQ(1, CCountedException::s_nAlive);
    EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CException)));
    ++nCaught;
}
END_CATCH
EXPECT_EQ(2, nCaught);
EXPECT_EQ(0, CCountedException::s_nAlive);
}

TEST(ExceptionMacros, EndTrySwallowsTheException)
{
    TRY
    {
        THROW(new CCountedException);
    }
    END_TRY
    EXPECT_EQ(0, CCountedException::s_nAlive);
}
