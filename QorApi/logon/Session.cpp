#include "Session.h"

#include <mutex>

namespace
{

struct LogonState
{
    std::mutex lock;
    long long accountId = 0; ///< 0: nobody is logged on
    std::wstring storePath;
};

LogonState& GetState()
{
    static LogonState state;
    return state;
}

} // namespace

void Session::Start(long long accountId)
{
    LogonState& state = GetState();
    const std::lock_guard guard(state.lock);
    state.accountId = accountId;
    state.storePath = QorGetStorePath().GetString();
}

void Session::End()
{
    LogonState& state = GetState();
    const std::lock_guard guard(state.lock);
    state.accountId = 0;
}

DWORD Session::GetUser(Database& db, Account& user)
{
    LogonState& state = GetState();
    long long id = 0;
    {
        const std::lock_guard guard(state.lock);
        id = state.storePath == db.GetPath() ? state.accountId : 0;
    }
    const DWORD status = id == 0 ? static_cast<DWORD>(ERROR_NO_SUCH_USER) : FindAccountById(db, id, user);
    if (status == ERROR_NO_SUCH_USER || (status == ERROR_SUCCESS && (user.flags & QORUSER_INACTIVE))) {
        return ERROR_NOT_LOGGED_ON;
    }
    return status;
}

DWORD NeedRights(Database& db, DWORD rights)
{
    Account user;
    if (const DWORD status = Session::GetUser(db, user); status != ERROR_SUCCESS) {
        return status;
    }
    return (user.rights & rights) == rights ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

void QorLogoff()
{
    Session::End();
}

DWORD QorGetLogonUser(_QORVEX_USER& user)
{
    return ReadStore([&](Database& db) {
        Account account;
        const DWORD status = Session::GetUser(db, account);
        return status == ERROR_SUCCESS ? LoadUser(db, account.number, user) : status;
    });
}

BOOL QorHasUserRight(DWORD rights)
{
    return ReadStore([&](Database& db) { return NeedRights(db, rights); }) == ERROR_SUCCESS;
}
