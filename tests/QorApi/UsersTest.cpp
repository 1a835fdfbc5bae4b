#include "UsersFixture.h"

TEST(UsersRecord, FieldsStandAtTheirBytes)
{
    _QORVEX_USER user = {};
    user.wNumber = 0x0201;
    user.wFieldMask = 0x0403;
    user.wFlags = 0x0605;
    SetField(user.szName, L"N");
    SetField(user.szDesc, L"D");
    user.dwRights = 0x0D0C0B0A;
    const auto* bytes = reinterpret_cast<const BYTE*>(&user);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(bytes[i], i + 1);
    }
    EXPECT_EQ(bytes[6], 'N');
    EXPECT_EQ(bytes[70], 'D');
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(bytes[214 + i], 0x0A + i);
    }
    EXPECT_EQ(sizeof(user), 256U);
}

TEST_F(UsersTest, NewStoreHasTheBuiltinAccountAlone)
{
    const std::vector<_QORVEX_USER> users = ListAll<_QORVEX_USER>(QORLIST_USERS);
    ASSERT_EQ(users.size(), 1U);
    EXPECT_EQ(users[0].wNumber, 0);
    EXPECT_EQ(users[0].wFlags, 0);
    EXPECT_EQ(DWORD(users[0].dwRights), 0x1FFFU);
    EXPECT_EQ(std::wstring(users[0].szName), L"Administrator");
}

TEST_F(UsersTest, NewAccountsGetTheLowestFreeNumber)
{
    LogonBuiltin();
    for (LPCWSTR name : {L"one", L"two", L"three"}) {
        _QORVEX_USER user = NewUser(name);
        ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    }
    ASSERT_EQ(QorDeleteUser(2), kSuccess);
    _QORVEX_USER user = NewUser(L"four");
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    EXPECT_EQ(user.wNumber, 2);
}

TEST_F(UsersTest, WantedNumberIsTakenWhenFree)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"last");
    user.wNumber = 63;
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    EXPECT_EQ(user.wNumber, 63);
    user = NewUser(L"other");
    user.wNumber = 63;
    EXPECT_EQ(QorAddUser(user, nullptr), DWORD(ERROR_ALREADY_EXISTS));
    user.wNumber = 0;
    EXPECT_EQ(QorAddUser(user, nullptr), DWORD(ERROR_INVALID_PARAMETER));
}

TEST_F(UsersTest, SixtyFourthAccountIsRefused)
{
    ASSERT_EQ(QorOpen(), kSuccess);
    LogonBuiltin();
    for (int i = 1; i <= 63; ++i) {
        _QORVEX_USER user = NewUser(std::to_wstring(i).c_str());
        ASSERT_EQ(QorAddUser(user, nullptr), kSuccess) << i;
        ASSERT_EQ(user.wNumber, i);
    }
    _QORVEX_USER user = NewUser(L"one too many");
    EXPECT_EQ(QorAddUser(user, nullptr), DWORD(ERROR_NOT_ENOUGH_QUOTA));
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 64U);
}

TEST_F(UsersTest, NamesDifferInMoreThanLetterCaseAndBlanks)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"J\u00FCrgen");
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    for (LPCWSTR name : {L"J\u00DCRGEN", L"  j\u00FCrgen ", L"administrator"}) {
        _QORVEX_USER other = NewUser(name);
        EXPECT_EQ(QorAddUser(other, nullptr), DWORD(ERROR_USER_EXISTS)) << name;
    }
    _QORVEX_USER other = NewUser(L"Other");
    ASSERT_EQ(QorAddUser(other, nullptr), kSuccess);
    other.wFieldMask = QORUSER_NAME;
    SetField(other.szName, L"j\u00FCrgen");
    EXPECT_EQ(QorSetUserInfo(other, nullptr), DWORD(ERROR_USER_EXISTS));
    EXPECT_EQ(std::wstring(Read(2).szName), L"Other");
}

TEST_F(UsersTest, OwnNameInOtherLettersIsNoDuplicate)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"anna");
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    user.wFieldMask = QORUSER_NAME;
    SetField(user.szName, L" Anna ");
    EXPECT_EQ(QorSetUserInfo(user, nullptr), kSuccess);
    EXPECT_EQ(std::wstring(Read(1).szName), L"Anna");
}

TEST_F(UsersTest, UnfitFieldsAreRefused)
{
    LogonBuiltin();
    _QORVEX_USER blank = NewUser(L"   ");
    EXPECT_EQ(QorAddUser(blank, nullptr), DWORD(ERROR_INVALID_ACCOUNT_NAME));
    _QORVEX_USER endless = NewUser(std::wstring(32, L'n').c_str());
    EXPECT_EQ(QorAddUser(endless, nullptr), DWORD(ERROR_INVALID_ACCOUNT_NAME));
    _QORVEX_USER rights = NewUser(L"a", 0x2000);
    EXPECT_EQ(QorAddUser(rights, nullptr), DWORD(ERROR_INVALID_PARAMETER));
    _QORVEX_USER flags = NewUser(L"a");
    flags.wFlags = 1;
    EXPECT_EQ(QorAddUser(flags, nullptr), DWORD(ERROR_INVALID_PARAMETER));
    _QORVEX_USER description = NewUser(L"a");
    SetField(description.szDesc, std::wstring(64, L'd').c_str());
    EXPECT_EQ(QorAddUser(description, nullptr), DWORD(ERROR_INVALID_PARAMETER));
    for (const WORD mask : {0, 0x20, 0x1E}) {
        _QORVEX_USER user = NewUser(L"a");
        user.wFieldMask = mask;
        EXPECT_EQ(QorAddUser(user, nullptr), DWORD(ERROR_INVALID_PARAMETER)) << mask;
    }
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
}

TEST_F(UsersTest, SetAppliesOnlyTheFieldsOfTheMask)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"Anna", 0x0001);
    SetField(user.szDesc, L"first");
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);

    _QORVEX_USER change = {};
    change.wNumber = 1;
    change.wFieldMask = QORUSER_DESC;
    change.dwRights = 0x0010;
    change.wFlags = QORUSER_INACTIVE;
    SetField(change.szName, L"Other");
    SetField(change.szDesc, L"second");
    ASSERT_EQ(QorSetUserInfo(change, nullptr), kSuccess);
    _QORVEX_USER read = Read(1);
    EXPECT_EQ(std::wstring(read.szName), L"Anna");
    EXPECT_EQ(std::wstring(read.szDesc), L"second");
    EXPECT_EQ(DWORD(read.dwRights), 0x0001U);
    EXPECT_EQ(read.wFlags, 0);

    change.wFieldMask = QORUSER_RIGHTS | QORUSER_FLAGS;
    ASSERT_EQ(QorSetUserInfo(change, nullptr), kSuccess);
    read = Read(1);
    EXPECT_EQ(std::wstring(read.szName), L"Anna");
    EXPECT_EQ(DWORD(read.dwRights), 0x0010U);
    EXPECT_EQ(read.wFlags, QORUSER_INACTIVE);
}

TEST_F(UsersTest, PropertiesLeaveThePasswordAlone)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"Anna");
    ASSERT_EQ(QorAddUser(user, L"secret"), kSuccess);
    user.wFieldMask = QORUSER_PROPERTIES;
    ASSERT_EQ(QorSetUserInfo(user, L"ignored"), kSuccess);
    EXPECT_EQ(QorLogonUser(L"Anna", L"secret"), kSuccess);
}

TEST_F(UsersTest, PasswordAloneIsChanged)
{
    LogonBuiltin();
    _QORVEX_USER user = NewUser(L"Anna", 0x0001);
    ASSERT_EQ(QorAddUser(user, nullptr), kSuccess);
    ASSERT_EQ(SetPassword(1, L"secret"), kSuccess);
    EXPECT_EQ(std::wstring(Read(1).szName), L"Anna");
    EXPECT_EQ(DWORD(Read(1).dwRights), 0x0001U);
    EXPECT_EQ(QorLogonUser(L"Anna", nullptr), DWORD(ERROR_LOGON_FAILURE));
    EXPECT_EQ(QorLogonUser(L"Anna", L"secret"), kSuccess);
}

TEST_F(UsersTest, LongestPasswordIsSixtyThreeCharacters)
{
    LogonBuiltin();
    const std::wstring longest(63, L'p');
    EXPECT_EQ(SetPassword(0, (longest + L"p").c_str()), DWORD(ERROR_ILL_FORMED_PASSWORD));
    EXPECT_EQ(SetPassword(0, longest.c_str()), kSuccess);
    EXPECT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, longest.c_str()), kSuccess);
}

TEST_F(UsersTest, PasswordsAreNotReadableInTheStore)
{
    LogonBuiltin();
    ASSERT_EQ(SetPassword(0, L"Tr0ub4dor"), kSuccess);
    const std::string bytes = ts::ReadBytes(StorePath());
    const std::wstring wide = L"Tr0ub4dor";
    EXPECT_EQ(bytes.find("Tr0ub4dor"), std::string::npos);
    EXPECT_EQ(bytes.find(std::string(reinterpret_cast<const char*>(wide.data()), wide.size() * 2)), std::string::npos);
}
