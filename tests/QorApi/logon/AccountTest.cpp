#include <tests/QorApi/UsersFixture.h>

namespace
{

using AccountTest = UsersTest;

} // namespace

TEST_F(AccountTest, AddedAccountIsReadBack)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"Anna", 0x0123);
    SetField(user.szDesc, L"Description");
    user.wFlags = QORUSER_INACTIVE;
    ASSERT_EQ(QorAddUser(user, L"secret"), kSuccess);
    EXPECT_EQ(user.wNumber, 1);
    const _QORVEX_USER read = Read(1);
    EXPECT_EQ(std::wstring(read.szName), L"Anna");
    EXPECT_EQ(std::wstring(read.szDesc), L"Description");
    EXPECT_EQ(DWORD(read.dwRights), 0x0123U);
    EXPECT_EQ(read.wFlags, QORUSER_INACTIVE);
    EXPECT_EQ(read.wFieldMask, 0);
}

TEST_F(AccountTest, LongestNameAndDescriptionAreKept)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(std::wstring(31, L'n').c_str());
    SetField(user.szDesc, std::wstring(63, L'd').c_str());
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    EXPECT_EQ(wcslen(Read(1).szName), 31U);
    EXPECT_EQ(wcslen(Read(1).szDesc), 63U);
}

TEST_F(AccountTest, MissingAccountsAreTold)
{
    LogonBuiltin();
    Read(7, ERROR_NO_SUCH_USER);
    Read(64, ERROR_NO_SUCH_USER);
    EXPECT_EQ(SetPassword(7, L""), DWORD(ERROR_NO_SUCH_USER));
    EXPECT_EQ(QorDeleteUser(7), DWORD(ERROR_NO_SUCH_USER));
}

TEST_F(AccountTest, FailedReadLeavesTheRecord)
{
    _QORVEX_USER user = NewUser(L"kept", 3);
    user.wNumber = 9;
    EXPECT_EQ(QorGetUserInfo(user), DWORD(ERROR_NO_SUCH_USER));
    EXPECT_EQ(std::wstring(user.szName), L"kept");
}
