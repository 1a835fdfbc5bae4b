#include "RightsFixture.h"

namespace
{

using UsersRightsTest = RightsTest;

} // namespace

TEST_F(UsersRightsTest, AccountsNeedTheSecurityRight)
{
    LogonBuiltin();
    ASSERT_EQ(Add(L"other", 0), kSuccess);
    LogonAs(L"none", QORRIGHT_ALL & ~QORRIGHT_SECURITY);
    EXPECT_EQ(Add(L"b", 0), kDenied);
    EXPECT_EQ(Set(1, QORUSER_PROPERTIES), kDenied);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), kDenied);
    EXPECT_EQ(QorDeleteUser(1), kDenied);
    LogonAs(L"security", QORRIGHT_SECURITY);
    EXPECT_EQ(Add(L"b", 0), kSuccess);
    EXPECT_EQ(Set(1, QORUSER_PROPERTIES), kSuccess);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), kSuccess);
    EXPECT_EQ(QorDeleteUser(1), kSuccess);
}

TEST_F(UsersRightsTest, NobodyGivesARightThatHeDoesNotHave)
{
    const WORD own = LogonAs(L"security", QORRIGHT_SECURITY | QORRIGHT_TAKESNAP);
    EXPECT_EQ(Add(L"more", QORRIGHT_ROLLSYS), kDenied);
    EXPECT_EQ(Add(L"as much", QORRIGHT_TAKESNAP), kSuccess);
    EXPECT_EQ(Set(2, QORUSER_RIGHTS, QORRIGHT_ALL), kDenied);
    EXPECT_EQ(Set(own, QORUSER_RIGHTS, QORRIGHT_ALL), kDenied);
}

TEST_F(UsersRightsTest, NobodyTouchesAnAccountWithMoreRights)
{
    LogonBuiltin();
    ASSERT_EQ(Add(L"strong", QORRIGHT_ROLLSYS), kSuccess);
    LogonAs(L"security", QORRIGHT_SECURITY | QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), kDenied);
    EXPECT_EQ(Set(1, QORUSER_FLAGS), kDenied);
    EXPECT_EQ(Set(1, QORUSER_RIGHTS, 0), kDenied);
    EXPECT_EQ(QorDeleteUser(1), kDenied);
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), kDenied);
}

TEST_F(UsersRightsTest, OwnPasswordNeedsThePasswordRight)
{
    const WORD without = LogonAs(L"without", QORRIGHT_ALL & ~QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(without, QORUSER_PASSWORD), kDenied);
    EXPECT_EQ(Set(without, QORUSER_PASSWORD | QORUSER_DESC), kDenied);
    const WORD with = LogonAs(L"with", QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(with, QORUSER_PASSWORD), kSuccess);
    EXPECT_EQ(Set(with, QORUSER_DESC), kDenied);
}

TEST_F(UsersRightsTest, OfTheBuiltinAccountOnlyThePasswordChanges)
{
    LogonBuiltin();
    for (const WORD mask : {QORUSER_NAME, QORUSER_DESC, QORUSER_RIGHTS, QORUSER_FLAGS, QORUSER_NEW}) {
        EXPECT_EQ(Set(0, mask), kDenied) << mask;
    }
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), kSuccess);
    EXPECT_EQ(QorDeleteUser(0), kDenied);
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
}

TEST_F(UsersRightsTest, NobodyDeletesHimself)
{
    const WORD own = LogonAs(L"own", QORRIGHT_ALL);
    EXPECT_EQ(QorDeleteUser(own), kDenied);
}
