#include "StoreFixture.h"

namespace
{

constexpr DWORD FAILED_LOGON = ERROR_LOGON_FAILURE;

class LogonTest : public StoreTest
{
  protected:
    static WORD Add(LPCWSTR name, LPCWSTR password, WORD flags = 0)
    {
        LogonBuiltin();
        _QORVEX_USER user = NewUser(name, QORRIGHT_TAKESNAP);
        user.wFlags = flags;
        EXPECT_EQ(QorAddUser(user, password), 0U);
        QorLogoff();
        return user.wNumber;
    }

    static void FailTimes(int count, LPCWSTR name)
    {
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(QorLogonUser(name, L"wrong"), FAILED_LOGON);
        }
    }
};

} // namespace

TEST_F(LogonTest, BuiltinAccountHasNoPasswordAtFirst)
{
    EXPECT_EQ(QorLogonUser(L"Administrator", L"anything"), FAILED_LOGON);
    EXPECT_EQ(QorLogonUser(L"Administrator", L""), 0U);
    EXPECT_EQ(QorLogonUser(L"Administrator", nullptr), 0U);
}

TEST_F(LogonTest, PasswordCountsWithLetterCaseAndBlanks)
{
    Add(L"Anna", L"Secret \u4E2D");
    for (LPCWSTR password : {L"secret \u4E2D", L"Secret \u4E2D ", L"Secret ", L"", L"Secret \u4E2E"}) {
        EXPECT_EQ(QorLogonUser(L"Anna", password), FAILED_LOGON) << password;
    }
    EXPECT_EQ(QorLogonUser(L"Anna", L"Secret \u4E2D"), 0U);
}

TEST_F(LogonTest, NameCountsWithoutLetterCaseAndBlanks)
{
    Add(L"Anna", nullptr);
    EXPECT_EQ(QorLogonUser(L"  aNNA ", nullptr), 0U);
}

TEST_F(LogonTest, UnknownAndEmptyNamesFailAsWrongPasswordsDo)
{
    EXPECT_EQ(QorLogonUser(L"Nobody", L""), FAILED_LOGON);
    EXPECT_EQ(QorLogonUser(L"", L""), FAILED_LOGON);
    EXPECT_EQ(QorLogonUser(nullptr, nullptr), FAILED_LOGON);
}

TEST_F(LogonTest, InactiveAccountIsRefusedWithItsPasswordOnly)
{
    Add(L"Guest", L"secret", QORUSER_INACTIVE);
    EXPECT_EQ(QorLogonUser(L"Guest", L"wrong"), FAILED_LOGON);
    EXPECT_EQ(QorLogonUser(L"Guest", L"secret"), DWORD(ERROR_ACCOUNT_DISABLED));
    EXPECT_FALSE(QorHasUserRight(0));
}

TEST_F(LogonTest, LoggedOnUserIsTold)
{
    _QORVEX_USER user = {};
    EXPECT_EQ(QorGetLogonUser(user), DWORD(ERROR_NOT_LOGGED_ON));
    const WORD number = Add(L"Anna", nullptr);
    ASSERT_EQ(QorLogonUser(L"Anna", nullptr), 0U);
    ASSERT_EQ(QorGetLogonUser(user), 0U);
    EXPECT_EQ(user.wNumber, number);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(LogonTest, FailedLogonKeepsTheFormerUser)
{
    Add(L"Anna", L"secret");
    ASSERT_EQ(QorLogonUser(L"Anna", L"secret"), 0U);
    EXPECT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, L"wrong"), FAILED_LOGON);
    _QORVEX_USER user = {};
    ASSERT_EQ(QorGetLogonUser(user), 0U);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(LogonTest, NumberThatIsUsedAnewIsNotTheFormerUser)
{
    const WORD number = Add(L"Anna", nullptr);
    ASSERT_EQ(QorLogonUser(L"Anna", nullptr), 0U);
    const ts::ProcessResult renewed = ts::RunProcess(HelperCommand(L"renew " + std::to_wstring(number)));
    ASSERT_EQ(renewed.status, 0U);
    EXPECT_FALSE(QorHasUserRight(0));
}

TEST_F(LogonTest, FirstFiveFailuresAreAnsweredAtOnce)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    EXPECT_TRUE(Delays().empty());
}

TEST_F(LogonTest, FurtherFailuresAreDelayedTwiceAsLongEach)
{
    Add(L"Anna", nullptr);
    FailTimes(12, L"Anna");
    EXPECT_EQ(Delays(), (std::vector<DWORD>{2000, 4000, 8000, 16000, 32000, 32000, 32000}));
}

TEST_F(LogonTest, RightPasswordAfterFiveFailuresIsDelayedOnce)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    EXPECT_EQ(QorLogonUser(L"Anna", nullptr), 0U);
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
    FailTimes(5, L"Anna");
    EXPECT_EQ(Delays().size(), 1U);
}

TEST_F(LogonTest, FailuresInARowAreCountedPerAccount)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    FailTimes(5, L"Administrator");
    EXPECT_TRUE(Delays().empty());
    FailTimes(1, L"Anna");
    EXPECT_EQ(Delays().size(), 1U);
}

TEST_F(LogonTest, UnknownNamesShareOneCount)
{
    FailTimes(3, L"first");
    FailTimes(3, L"second");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(LogonTest, RightPasswordEndsTheRowOfUnknownNames)
{
    FailTimes(5, L"first");
    LogonBuiltin();
    FailTimes(5, L"second");
    EXPECT_TRUE(Delays().empty());
    FailTimes(1, L"third");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(LogonTest, CountIsKeptInTheStore)
{
    Add(L"Anna", nullptr);
    ASSERT_EQ(ts::RunProcess(HelperCommand(L"fail 5 Anna")).status, 0U);
    FailTimes(1, L"Anna");
    EXPECT_EQ(Delays(), std::vector<DWORD>{2000});
}

TEST_F(LogonTest, WaitProcedureIsReplacedAndGivenBack)
{
    const QORWAITPROC former = QorSetLogonWait(nullptr);
    EXPECT_NE(former, nullptr);
    EXPECT_EQ(QorSetLogonWait(former), nullptr);
}

TEST_F(LogonTest, WithoutWaitProcedureTheDelayIsReal)
{
    Add(L"Anna", nullptr);
    FailTimes(5, L"Anna");
    QorSetLogonWait(nullptr);
    const ULONGLONG start = GetTickCount64();
    FailTimes(1, L"Anna");
    EXPECT_GE(GetTickCount64() - start, 1900U);
}

TEST_F(LogonTest, NameIsRememberedAndForgotten)
{
    CString name(L"old");
    EXPECT_FALSE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"");
    LogonBuiltin();
    ASSERT_EQ(QorSetLastLogonInfo(TRUE, L" Anna "), 0U);
    EXPECT_TRUE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"Anna");
    ASSERT_EQ(QorSetLastLogonInfo(FALSE, L"Anna"), 0U);
    EXPECT_FALSE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"");
}

TEST_F(LogonTest, EmptyNameIsNotRemembered)
{
    LogonBuiltin();
    CString name;
    for (LPCWSTR none : {static_cast<LPCWSTR>(nullptr), L"", L"  "}) {
        ASSERT_EQ(QorSetLastLogonInfo(TRUE, none), 0U);
        EXPECT_FALSE(QorGetLastLogonInfo(name));
    }
}
