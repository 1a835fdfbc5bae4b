#include "StoreFixture.h"

namespace
{

std::vector<DWORD> g_delays;

void CALLBACK NoteDelay(DWORD milliseconds)
{
    g_delays.push_back(milliseconds);
}

} // namespace

StoreTest::StoreTest() : m_store(L"QOR_STORE", m_folder.File(L"store.db").c_str())
{
    g_delays.clear();
    QorSetLogonWait(NoteDelay);
}

StoreTest::~StoreTest()
{
    QorLogoff();
    QorClose();
    QorSetLogonWait(nullptr);
}

void StoreTest::LogonBuiltin()
{
    ASSERT_EQ(QorLogonUser(QORUSER_BUILTIN_NAME, L""), kSuccess);
}

WORD StoreTest::LogonAs(LPCWSTR name, DWORD rights)
{
    _QORVEX_USER user = NewUser(name, rights);
    LogonBuiltin();
    EXPECT_EQ(QorAddUser(user, nullptr), kSuccess);
    EXPECT_EQ(QorLogonUser(name, nullptr), kSuccess);
    return user.wNumber;
}

_QORVEX_USER StoreTest::NewUser(LPCWSTR name, DWORD rights)
{
    _QORVEX_USER user = {};
    user.wNumber = QORUSER_MAX + 1;
    user.wFieldMask = QORUSER_NEW;
    user.dwRights = rights;
    SetField(user.szName, name);
    return user;
}

std::vector<DWORD>& StoreTest::Delays()
{
    return g_delays;
}

std::wstring HelperCommand(const std::wstring& arguments)
{
    return L"\"" + ts::ProgramFolder() + L"\\qorapi_helper.exe\" " + arguments;
}
