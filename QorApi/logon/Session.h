#pragma once

#include "Account.h"

/** The logged-on user of this process. */
class Session
{
  public:
    static void Start(long long accountId);
    static void End();

    /** @return ERROR_NOT_LOGGED_ON without a log-on to this store, or when the account is gone or inactive since. */
    static DWORD GetUser(Database& db, Account& user);
};

/** ERROR_SUCCESS when the logged-on user has all of the rights, else ERROR_NOT_LOGGED_ON or ERROR_ACCESS_DENIED. */
DWORD NeedRights(Database& db, DWORD rights);
