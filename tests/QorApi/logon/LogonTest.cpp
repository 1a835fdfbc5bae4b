#include "LogonFixture.h"

TEST_F(LogonTest, BuiltinAccountHasNoPasswordAtFirst)
{
    EXPECT_EQ(QorLogonUser(L"Administrator", L"anything"), kFailedLogon);
    EXPECT_EQ(QorLogonUser(L"Administrator", L""), kSuccess);
    EXPECT_EQ(QorLogonUser(L"Administrator", nullptr), kSuccess);
}

TEST_F(LogonTest, NameCountsWithoutLetterCaseAndBlanks)
{
    Add(L"Anna", nullptr);
    EXPECT_EQ(QorLogonUser(L"  aNNA ", nullptr), kSuccess);
}

TEST_F(LogonTest, UnknownAndEmptyNamesFailAsWrongPasswordsDo)
{
    EXPECT_EQ(QorLogonUser(L"Nobody", L""), kFailedLogon);
    EXPECT_EQ(QorLogonUser(L"", L""), kFailedLogon);
    EXPECT_EQ(QorLogonUser(nullptr, nullptr), kFailedLogon);
}

TEST_F(LogonTest, InactiveAccountIsRefusedWithItsPasswordOnly)
{
    Add(L"Guest", L"secret", QORUSER_INACTIVE);
    EXPECT_EQ(QorLogonUser(L"Guest", L"wrong"), kFailedLogon);
    EXPECT_EQ(QorLogonUser(L"Guest", L"secret"), DWORD(ERROR_ACCOUNT_DISABLED));
    EXPECT_FALSE(QorHasUserRight(0));
}
