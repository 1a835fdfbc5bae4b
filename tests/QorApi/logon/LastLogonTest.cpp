#include <tests/QorApi/StoreFixture.h>

namespace
{

using LastLogonTest = StoreTest;

} // namespace

TEST_F(LastLogonTest, NameIsRememberedAndForgotten)
{
    CString name(L"old");
    EXPECT_FALSE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"");
    LogonBuiltin();
    ASSERT_EQ(QorSetLastLogonInfo(TRUE, L" Anna "), kSuccess);
    EXPECT_TRUE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"Anna");
    ASSERT_EQ(QorSetLastLogonInfo(FALSE, L"Anna"), kSuccess);
    EXPECT_FALSE(QorGetLastLogonInfo(name));
    EXPECT_STREQ(name, L"");
}

TEST_F(LastLogonTest, EmptyNameIsNotRemembered)
{
    LogonBuiltin();
    CString name;
    for (LPCWSTR none : {static_cast<LPCWSTR>(nullptr), L"", L"  "}) {
        ASSERT_EQ(QorSetLastLogonInfo(TRUE, none), kSuccess);
        EXPECT_FALSE(QorGetLastLogonInfo(name));
    }
}
