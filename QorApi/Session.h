#pragma once

#include "Store.h"

/** An account as the rules about rights see it. */
struct ACCOUNT
{
    long long id = 0; ///< never used twice, unlike the number
    WORD number = 0;
    WORD flags = 0;
    DWORD rights = 0;
};

/** The logged-on user of this process. */
class CSession
{
  public:
    static void Start(long long accountId);
    static void End();

    /** @return ERROR_NOT_LOGGED_ON without a log-on to this store, or when the account is gone or inactive since. */
    static DWORD GetUser(CDatabase& db, ACCOUNT& user);
};

/** 0 when the logged-on user has all of the rights, else ERROR_NOT_LOGGED_ON or ERROR_ACCESS_DENIED. */
DWORD NeedRights(CDatabase& db, DWORD rights);
