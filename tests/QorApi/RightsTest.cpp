#include "StoreFixture.h"

namespace
{

constexpr DWORD DENIED = ERROR_ACCESS_DENIED;
constexpr DWORD NOBODY = ERROR_NOT_LOGGED_ON;

class RightsTest : public StoreTest
{
  protected:
    static _QORVEX_USER Change(WORD number, WORD mask)
    {
        _QORVEX_USER user = NewUser(L"Changed");
        user.wNumber = number;
        user.wFieldMask = mask;
        return user;
    }

    static DWORD Set(WORD number, WORD mask, DWORD rights = 0)
    {
        _QORVEX_USER user = Change(number, mask);
        user.dwRights = rights;
        return QorSetUserInfo(user, nullptr);
    }

    static DWORD Add(LPCWSTR name, DWORD rights)
    {
        _QORVEX_USER user = NewUser(name, rights);
        return QorAddUser(user, nullptr);
    }

    static _QORVEX_SNAP Snapshot()
    {
        _QORVEX_SNAP snapshot = {};
        SetField(snapshot.szName, L"Snapshot");
        return snapshot;
    }

    static _QORVEX_TASK Task(int kind)
    {
        _QORVEX_TASK task = {};
        task.nKind = static_cast<BYTE>(kind << 2);
        task.nSchedule = QORSCHED_DAILY;
        SetField(task.szName, L"Task");
        return task;
    }

    static DWORD AddTask(int kind)
    {
        _QORVEX_TASK task = Task(kind);
        return QorAddTask(task);
    }

    static DWORD SetTask(int kind)
    {
        _QORVEX_TASK task = Task(kind);
        task.wNumber = 0;
        return QorSetTask(task);
    }

    static DWORD SetNumber(UINT id)
    {
        const DWORD value = 1;
        return QorSetInfo(id, &value, sizeof(value));
    }

    static DWORD SetList()
    {
        CStringArray texts;
        texts.Add(L"text");
        return QorSetMultiString(QORINFO_SYNC_REG, texts, 1);
    }

    /** Makes one snapshot and one roll-back task as the built-in account. */
    static void MakeRecords()
    {
        LogonBuiltin();
        _QORVEX_SNAP snapshot = Snapshot();
        ASSERT_EQ(QorAddSnapshot(snapshot), 0U);
        ASSERT_EQ(AddTask(QORTASK_ROLLBACK), 0U);
    }
};

} // namespace

TEST_F(RightsTest, NothingIsChangedWithoutLogon)
{
    MakeRecords();
    QorLogoff();
    _QORVEX_SNAP snapshot = Snapshot();
    EXPECT_EQ(Add(L"a", 0), NOBODY);
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), NOBODY);
    EXPECT_EQ(QorDeleteUser(1), NOBODY);
    EXPECT_EQ(QorAddSnapshot(snapshot), NOBODY);
    EXPECT_EQ(QorDeleteSnapshot(1), NOBODY);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), NOBODY);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), NOBODY);
    EXPECT_EQ(AddTask(QORTASK_DEFRAG), NOBODY);
    EXPECT_EQ(SetTask(QORTASK_ROLLBACK), NOBODY);
    EXPECT_EQ(QorDeleteTask(0), NOBODY);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), NOBODY);
    EXPECT_EQ(SetList(), NOBODY);
    EXPECT_EQ(QorSetLastLogonInfo(TRUE, L"a"), NOBODY);
    EXPECT_EQ(QorFillDemoStore(), NOBODY);
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 1U);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 1U);
}

TEST_F(RightsTest, HasRightAsksForAllBits)
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

TEST_F(RightsTest, BuiltinAccountHasAllRights)
{
    LogonBuiltin();
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
}

TEST_F(RightsTest, SnapshotsNeedTheirRights)
{
    MakeRecords();
    LogonAs(L"none", QORRIGHT_ALL & ~(QORRIGHT_TAKESNAP | QORRIGHT_DELSNAP));
    _QORVEX_SNAP snapshot = Snapshot();
    EXPECT_EQ(QorAddSnapshot(snapshot), DENIED);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), DENIED);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), DENIED);
    EXPECT_EQ(QorDeleteSnapshot(1), DENIED);
    LogonAs(L"take", QORRIGHT_TAKESNAP);
    EXPECT_EQ(QorAddSnapshot(snapshot), 0U);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), 0U);
    EXPECT_EQ(QorDeleteSnapshot(1), DENIED);
    LogonAs(L"delete", QORRIGHT_DELSNAP);
    EXPECT_EQ(QorDeleteSnapshot(1), 0U);
    EXPECT_EQ(QorAddSnapshot(snapshot), DENIED);
}

TEST_F(RightsTest, TasksNeedTheRightOfTheirKind)
{
    const DWORD rights[] = {QORRIGHT_SCHROLL, QORRIGHT_SCHSNAP, QORRIGHT_SETTINGS};
    for (int kind = QORTASK_ROLLBACK; kind <= QORTASK_DEFRAG; ++kind) {
        const DWORD right = rights[kind - 1];
        LogonAs((L"without" + std::to_wstring(kind)).c_str(), QORRIGHT_ALL & ~right);
        EXPECT_EQ(AddTask(kind), DENIED) << kind;
        LogonAs((L"with" + std::to_wstring(kind)).c_str(), right);
        EXPECT_EQ(AddTask(kind), 0U) << kind;
    }
}

TEST_F(RightsTest, ChangingATasksKindNeedsBothRights)
{
    MakeRecords();
    LogonAs(L"old", QORRIGHT_SCHROLL);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), DENIED);
    LogonAs(L"new", QORRIGHT_SCHSNAP);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), DENIED);
    EXPECT_EQ(QorDeleteTask(0), DENIED);
    LogonAs(L"both", QORRIGHT_SCHROLL | QORRIGHT_SCHSNAP);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), 0U);
}

TEST_F(RightsTest, SettingsNeedTheirRights)
{
    LogonAs(L"none", QORRIGHT_ALL & ~(QORRIGHT_SETTINGS | QORRIGHT_SECURITY));
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), DENIED);
    EXPECT_EQ(SetNumber(500), DENIED);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), DENIED);
    EXPECT_EQ(SetList(), DENIED);
    LogonAs(L"settings", QORRIGHT_SETTINGS);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), 0U);
    EXPECT_EQ(SetNumber(500), 0U);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), DENIED);
    EXPECT_EQ(SetList(), 0U);
    LogonAs(L"security", QORRIGHT_SECURITY);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), 0U);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), DENIED);
}

TEST_F(RightsTest, AccountsNeedTheSecurityRight)
{
    LogonBuiltin();
    ASSERT_EQ(Add(L"other", 0), 0U);
    LogonAs(L"none", QORRIGHT_ALL & ~QORRIGHT_SECURITY);
    EXPECT_EQ(Add(L"b", 0), DENIED);
    EXPECT_EQ(Set(1, QORUSER_PROPERTIES), DENIED);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), DENIED);
    EXPECT_EQ(QorDeleteUser(1), DENIED);
    LogonAs(L"security", QORRIGHT_SECURITY);
    EXPECT_EQ(Add(L"b", 0), 0U);
    EXPECT_EQ(Set(1, QORUSER_PROPERTIES), 0U);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), 0U);
    EXPECT_EQ(QorDeleteUser(1), 0U);
}

TEST_F(RightsTest, NobodyGivesARightThatHeDoesNotHave)
{
    const WORD own = LogonAs(L"security", QORRIGHT_SECURITY | QORRIGHT_TAKESNAP);
    EXPECT_EQ(Add(L"more", QORRIGHT_ROLLSYS), DENIED);
    EXPECT_EQ(Add(L"as much", QORRIGHT_TAKESNAP), 0U);
    EXPECT_EQ(Set(2, QORUSER_RIGHTS, QORRIGHT_ALL), DENIED);
    EXPECT_EQ(Set(own, QORUSER_RIGHTS, QORRIGHT_ALL), DENIED);
}

TEST_F(RightsTest, NobodyTouchesAnAccountWithMoreRights)
{
    LogonBuiltin();
    ASSERT_EQ(Add(L"strong", QORRIGHT_ROLLSYS), 0U);
    LogonAs(L"security", QORRIGHT_SECURITY | QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(1, QORUSER_PASSWORD), DENIED);
    EXPECT_EQ(Set(1, QORUSER_FLAGS), DENIED);
    EXPECT_EQ(Set(1, QORUSER_RIGHTS, 0), DENIED);
    EXPECT_EQ(QorDeleteUser(1), DENIED);
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), DENIED);
}

TEST_F(RightsTest, OwnPasswordNeedsThePasswordRight)
{
    const WORD without = LogonAs(L"without", QORRIGHT_ALL & ~QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(without, QORUSER_PASSWORD), DENIED);
    EXPECT_EQ(Set(without, QORUSER_PASSWORD | QORUSER_DESC), DENIED);
    const WORD with = LogonAs(L"with", QORRIGHT_PASSWORD);
    EXPECT_EQ(Set(with, QORUSER_PASSWORD), 0U);
    EXPECT_EQ(Set(with, QORUSER_DESC), DENIED);
}

TEST_F(RightsTest, OfTheBuiltinAccountOnlyThePasswordChanges)
{
    LogonBuiltin();
    for (const WORD mask : {QORUSER_NAME, QORUSER_DESC, QORUSER_RIGHTS, QORUSER_FLAGS, QORUSER_NEW}) {
        EXPECT_EQ(Set(0, mask), DENIED) << mask;
    }
    EXPECT_EQ(Set(0, QORUSER_PASSWORD), 0U);
    EXPECT_EQ(QorDeleteUser(0), DENIED);
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
}

TEST_F(RightsTest, NobodyDeletesHimself)
{
    const WORD own = LogonAs(L"own", QORRIGHT_ALL);
    EXPECT_EQ(QorDeleteUser(own), DENIED);
}

TEST_F(RightsTest, RightsThatAreTakenAwayAreGoneAtOnce)
{
    const WORD own = LogonAs(L"own", QORRIGHT_SECURITY | QORRIGHT_TAKESNAP);
    ASSERT_TRUE(QorHasUserRight(QORRIGHT_TAKESNAP));
    ASSERT_EQ(Set(own, QORUSER_RIGHTS, QORRIGHT_SECURITY), 0U);
    EXPECT_FALSE(QorHasUserRight(QORRIGHT_TAKESNAP));
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_SECURITY));
}

TEST_F(RightsTest, InactiveAccountHasNoRightsAnyMore)
{
    const WORD own = LogonAs(L"own", QORRIGHT_ALL);
    _QORVEX_USER user = Change(own, QORUSER_FLAGS);
    user.wFlags = QORUSER_INACTIVE;
    ASSERT_EQ(QorSetUserInfo(user, nullptr), 0U);
    EXPECT_FALSE(QorHasUserRight(0));
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), NOBODY);
}

TEST_F(RightsTest, LogonIsForOneProcess)
{
    LogonBuiltin();
    const ts::ProcessResult other = ts::RunProcess(HelperCommand(L"rights"));
    ASSERT_TRUE(other.started);
    EXPECT_EQ(other.status, 0U);
    EXPECT_TRUE(QorHasUserRight(0));
}

TEST_F(RightsTest, LogonIsForOneStore)
{
    LogonBuiltin();
    const ts::EnvironmentVariable other(L"QOR_STORE", File(L"other.db").c_str());
    EXPECT_FALSE(QorHasUserRight(0));
}
