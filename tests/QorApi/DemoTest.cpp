#include "StoreFixture.h"

namespace
{

using DemoTest = StoreTest;

size_t CountTexts()
{
    CStringArray texts;
    EXPECT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), kSuccess);
    return texts.GetSize();
}

} // namespace

TEST_F(DemoTest, FillsEveryList)
{
    LogonBuiltin();
    ASSERT_EQ(QorFillDemoStore(), kSuccess);
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 5U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U);
    EXPECT_EQ(CountTexts(), 4U);
}

TEST_F(DemoTest, SecondCallChangesNothing)
{
    LogonBuiltin();
    ASSERT_EQ(QorFillDemoStore(), kSuccess);
    ASSERT_EQ(QorRenameSnapshot(1, L"Renamed"), kSuccess);
    ASSERT_EQ(QorRenameSnapshot(1, L"Clean installation"), kSuccess);
    ASSERT_EQ(QorFillDemoStore(), kSuccess);
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 5U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U);
    EXPECT_EQ(CountTexts(), 4U);
}

TEST_F(DemoTest, RegistryListIsInItsStoredForm)
{
    LogonBuiltin();
    ASSERT_EQ(QorFillDemoStore(), kSuccess);
    CStringArray texts;
    ASSERT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), kSuccess);
    for (int i = 0; i < texts.GetSize(); ++i) {
        CString entry = texts.GetAt(i);
        EXPECT_EQ(QorConvertKeyName(entry), kSuccess);
        EXPECT_STREQ(entry, texts.GetAt(i));
    }
}

TEST_F(DemoTest, NeedsAllRights)
{
    LogonAs(L"weak", QORRIGHT_ALL & ~QORRIGHT_UNINSTALL);
    EXPECT_EQ(QorFillDemoStore(), DWORD(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).empty());
}
