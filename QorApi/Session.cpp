#include "Session.h"

#include <mutex>

namespace
{

struct LogonState
{
    std::mutex lock;
    long long accountId = 0; // accounts count from 1
    std::wstring storePath;
};

LogonState& GetState()
{
    static LogonState state;
    return state;
}

} // namespace

void CSession::Start(long long accountId)
{
    LogonState& state = GetState();
    const std::lock_guard guard(state.lock);
    state.accountId = accountId;
    state.storePath = QorGetStorePath().GetString();
}

void CSession::End()
{
    LogonState& state = GetState();
    const std::lock_guard guard(state.lock);
    state.accountId = 0;
}

DWORD CSession::GetUser(CDatabase& db, ACCOUNT& user)
{
    LogonState& state = GetState();
    {
        const std::lock_guard guard(state.lock);
        user.id = state.storePath == db.GetPath() ? state.accountId : 0;
    }
    CQuery query(db, "SELECT number, flags, rights FROM user WHERE id = ?1");
    if (user.id == 0 || !query.Bind(1, user.id).Next()) {
        return db.GetStatus() ? db.GetStatus() : ERROR_NOT_LOGGED_ON;
    }
    user.number = static_cast<WORD>(query.GetNumber(0));
    user.flags = static_cast<WORD>(query.GetNumber(1));
    user.rights = static_cast<DWORD>(query.GetNumber(2));
    return user.flags & QORUSER_INACTIVE ? ERROR_NOT_LOGGED_ON : 0;
}

DWORD NeedRights(CDatabase& db, DWORD rights)
{
    ACCOUNT user;
    if (const DWORD status = CSession::GetUser(db, user)) {
        return status;
    }
    return (user.rights & rights) == rights ? 0 : ERROR_ACCESS_DENIED;
}

void QorLogoff()
{
    CSession::End();
}

BOOL QorHasUserRight(DWORD rights)
{
    return ReadStore([&](CDatabase& db) { return NeedRights(db, rights); }) == 0;
}
