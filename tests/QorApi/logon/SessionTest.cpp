#include "LogonFixture.h"

#include <tests/QorApi/RightsFixture.h>

namespace
{

using SessionTest = RightsTest;
using SessionLogonTest = LogonTest;

} // namespace

TEST_F(SessionTest, NothingIsChangedWithoutLogon)
{
    MakeRecords();
    QorLogoff();
    _QORVEX_SNAP snapshot = Snapshot();
    EXPECT_EQ(Add(L"a", 0), kNobody);
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), kNobody);
    EXPECT_EQ(QorDeleteUser(1), kNobody);
    EXPECT_EQ(QorAddSnapshot(snapshot), kNobody);
    EXPECT_EQ(QorDeleteSnapshot(1), kNobody);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), kNobody);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), kNobody);
    EXPECT_EQ(AddTask(QORTASK_DEFRAG), kNobody);
    EXPECT_EQ(SetTask(QORTASK_ROLLBACK), kNobody);
    EXPECT_EQ(QorDeleteTask(0), kNobody);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), kNobody);
    EXPECT_EQ(SetList(), kNobody);
    EXPECT_EQ(QorSetLastLogonInfo(TRUE, L"a"), kNobody);
    EXPECT_EQ(QorFillDemoStore(), kNobody);
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 1U);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 1U);
}

TEST_F(SessionTest, HasRightAsksForAllBits)
{
    EXPECT_FALSE(QorHasUserRight(0));
    LogonAs(L"a", QORRIGHT_TAKESNAP | QORRIGHT_DELSNAP);
    EXPECT_TRUE(QorHasUserRight(0));
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_TAKESNAP));
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_TAKESNAP | QORRIGHT_DELSNAP));
    EXPECT_FALSE(QorHasUserRight(QORRIGHT_TAKESNAP | QORRIGHT_ROLLSYS));
    EXPECT_FALSE(QorHasUserRight(QORRIGHT_ALL));
    QorLogoff();
    EXPECT_FALSE(QorHasUserRight(QORRIGHT_TAKESNAP));
}

TEST_F(SessionTest, BuiltinAccountHasAllRights)
{
    LogonBuiltin();
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
}

TEST_F(SessionTest, RightsThatAreTakenAwayAreGoneAtOnce)
{
    const WORD own = LogonAs(L"own", QORRIGHT_SECURITY | QORRIGHT_TAKESNAP);
    ASSERT_TRUE(QorHasUserRight(QORRIGHT_TAKESNAP));
    ASSERT_EQ(Set(own, QORUSER_RIGHTS, QORRIGHT_SECURITY), kSuccess);
    EXPECT_FALSE(QorHasUserRight(QORRIGHT_TAKESNAP));
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_SECURITY));
}

TEST_F(SessionTest, InactiveAccountHasNoRightsAnyMore)
{
    const WORD own = LogonAs(L"own", QORRIGHT_ALL);
    _QORVEX_USER user = Change(own, QORUSER_FLAGS);
    user.wFlags = QORUSER_INACTIVE;
    ASSERT_EQ(QorSetUserInfo(user, nullptr), kSuccess);
    EXPECT_FALSE(QorHasUserRight(0));
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), kNobody);
}

TEST_F(SessionTest, LogonIsForOneProcess)
{
    LogonBuiltin();
    const ts::ProcessResult other = ts::RunProcess(HelperCommand(L"rights"));
    ASSERT_TRUE(other.started);
    EXPECT_EQ(other.status, kSuccess);
    EXPECT_TRUE(QorHasUserRight(0));
}

TEST_F(SessionTest, LogonIsForOneStore)
{
    LogonBuiltin();
    const ts::EnvironmentVariable other(L"QOR_STORE", File(L"other.db").c_str());
    EXPECT_FALSE(QorHasUserRight(0));
}

TEST_F(SessionLogonTest, LoggedOnUserIsTold)
{
    _QORVEX_USER user = {};
    EXPECT_EQ(QorGetLogonUser(user), DWORD(ERROR_NOT_LOGGED_ON));
    const WORD number = Add(L"Anna", nullptr);
    ASSERT_EQ(QorLogonUser(L"Anna", nullptr), kSuccess);
    ASSERT_EQ(QorGetLogonUser(user), kSuccess);
    EXPECT_EQ(user.wNumber, number);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(SessionLogonTest, FailedLogonKeepsTheFormerUser)
{
    Add(L"Anna", L"secret");
    ASSERT_EQ(QorLogonUser(L"Anna", L"secret"), kSuccess);
    EXPECT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, L"wrong"), kFailedLogon);
    _QORVEX_USER user = {};
    ASSERT_EQ(QorGetLogonUser(user), kSuccess);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(SessionLogonTest, NumberThatIsUsedAnewIsNotTheFormerUser)
{
    const WORD number = Add(L"Anna", nullptr);
    ASSERT_EQ(QorLogonUser(L"Anna", nullptr), kSuccess);
    const ts::ProcessResult renewed = ts::RunProcess(HelperCommand(L"renew " + std::to_wstring(number)));
    ASSERT_EQ(renewed.status, kSuccess);
    EXPECT_FALSE(QorHasUserRight(0));
}
