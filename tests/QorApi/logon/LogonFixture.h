#pragma once

#include <tests/QorApi/StoreFixture.h>

constexpr DWORD kFailedLogon = ERROR_LOGON_FAILURE;

class LogonTest : public StoreTest
{
  protected:
    static WORD Add(LPCWSTR name, LPCWSTR password, WORD flags = 0)
    {
        LogonBuiltin();
        _QORVEX_USER user = NewUser(name, QORRIGHT_TAKESNAP);
        user.wFlags = flags;
        EXPECT_EQ(QorAddUser(user, password), kSuccess);
        QorLogoff();
        return user.wNumber;
    }

    static void FailTimes(int count, LPCWSTR name)
    {
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(QorLogonUser(name, L"wrong"), kFailedLogon);
        }
    }
};
