#pragma once

#include <QorApi/Store.h>

/** An account as the rules about rights see it. */
struct Account
{
    long long id = 0; ///< counts from 1 and is never used twice, unlike the number
    WORD number = 0;
    WORD flags = 0;
    DWORD rights = 0;
};

/** @return ERROR_NO_SUCH_USER when there is no account of this number, or the database's status. */
DWORD FindAccount(Database& db, WORD number, Account& account);

/** @return ERROR_NO_SUCH_USER when the account is gone, or the database's status. */
DWORD FindAccountById(Database& db, long long id, Account& account);

/** Reads an account as others see it. @return ERROR_NO_SUCH_USER, or the database's status. */
DWORD LoadUser(Database& db, WORD number, _QORVEX_USER& user);

/** All accounts by number. @return the database's status. */
DWORD LoadUsers(Database& db, std::vector<_QORVEX_USER>& users);
