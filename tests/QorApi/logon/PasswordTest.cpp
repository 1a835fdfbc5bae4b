#include "LogonFixture.h"

#include <tests/QorApi/StoreFileFixture.h>

namespace
{

using PasswordTest = LogonTest;
using PasswordStoreTest = StoreFileTest;

} // namespace

TEST_F(PasswordTest, PasswordCountsWithLetterCaseAndBlanks)
{
    Add(L"Anna", L"Secret \u4E2D");
    for (LPCWSTR password : {L"secret \u4E2D", L"Secret \u4E2D ", L"Secret ", L"", L"Secret \u4E2E"}) {
        EXPECT_EQ(QorLogonUser(L"Anna", password), kFailedLogon) << password;
    }
    EXPECT_EQ(QorLogonUser(L"Anna", L"Secret \u4E2D"), kSuccess);
}

TEST_F(PasswordStoreTest, DamagedPasswordHashGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run("UPDATE user SET salt = x'01', rounds = 1, hash = x'02' WHERE number = 0");
    EXPECT_EQ(QorLogonUser(L"Administrator", L"a"), kCorrupt);
}
