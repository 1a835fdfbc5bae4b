#pragma once

#include "StoreFixture.h"

class UsersTest : public StoreTest
{
  protected:
    static _QORVEX_USER Read(WORD number, DWORD expected = kSuccess)
    {
        _QORVEX_USER user = {};
        user.wNumber = number;
        EXPECT_EQ(QorGetUserInfo(user), expected);
        return user;
    }

    static DWORD SetPassword(WORD number, LPCWSTR password)
    {
        _QORVEX_USER user = {};
        user.wNumber = number;
        user.wFieldMask = QORUSER_PASSWORD;
        return QorSetUserInfo(user, password);
    }
};
