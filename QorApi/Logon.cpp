#include "Names.h"
#include "Password.h"
#include "Session.h"

#include <atomic>

namespace
{

constexpr int FREE_FAILURES = 5;
constexpr DWORD FIRST_DELAY = 2000; // ms
constexpr int DOUBLINGS = 4;

std::atomic<QORWAITPROC> g_wait = nullptr;

void Wait(DWORD milliseconds)
{
    const QORWAITPROC wait = g_wait;
    if (wait) {
        wait(milliseconds);
    } else {
        Sleep(milliseconds);
    }
}

/** One attempt to log on. */
struct ATTEMPT
{
    long long accountId = 0; ///< 0: there is no such account
    WORD flags = 0;
    int failures = 0; ///< in a row, before this attempt
    PASSWORDHASH kept;
};

/**
 * Reads the account and counts the attempt as failed beforehand, so that neither attempts at the same time nor the end
 * of the process keep a failure from being counted.
 */
DWORD StartAttempt(CDatabase& db, const CString& name, ATTEMPT& attempt)
{
    CQuery query(db, "SELECT id, flags, failures, salt, rounds, hash FROM user WHERE name_key = ?1");
    if (query.Bind(1, FoldName(name)).Next()) {
        attempt.accountId = query.GetNumber(0);
        attempt.flags = static_cast<WORD>(query.GetNumber(1));
        attempt.failures = static_cast<int>(query.GetNumber(2));
        attempt.kept = {query.GetBlob(3), static_cast<int>(query.GetNumber(4)), query.GetBlob(5)};
        return CQuery(db, "UPDATE user SET failures = failures + 1 WHERE id = ?1").Bind(1, attempt.accountId).Run();
    }
    CQuery unknown(db, "SELECT failures FROM logon");
    if (unknown.Next()) {
        attempt.failures = static_cast<int>(unknown.GetNumber(0));
    }
    return CQuery(db, "UPDATE logon SET failures = failures + 1").Run();
}

/** Ends the rows of failures: the account's, and that of the unknown names, which nothing else could ever end. */
DWORD EndFailures(CDatabase& db, long long accountId)
{
    CQuery(db, "UPDATE user SET failures = 0 WHERE id = ?1").Bind(1, accountId).Run();
    return CQuery(db, "UPDATE logon SET failures = 0").Run();
}

void DelayAnswer(int failures)
{
    if (failures >= FREE_FAILURES) {
        Wait(FIRST_DELAY << (std::min)(failures - FREE_FAILURES, DOUBLINGS));
    }
}

/** Whether the password is right; an unknown name takes as long as a known one with a password. */
DWORD Compare(const ATTEMPT& attempt, LPCWSTR password, bool& right)
{
    if (attempt.accountId != 0) {
        return CheckPassword(password, attempt.kept, right);
    }
    PASSWORDHASH unused;
    right = false;
    return HashPassword(password && *password ? password : L" ", unused);
}

} // namespace

QORWAITPROC QorSetLogonWait(QORWAITPROC wait)
{
    return g_wait.exchange(wait);
}

DWORD QorLogonUser(LPCWSTR name, LPCWSTR password)
{
    CString trimmed(name ? name : L"");
    trimmed.Trim();
    ATTEMPT attempt;
    DWORD status = WriteStore([&](CDatabase& db) { return StartAttempt(db, trimmed, attempt); });
    if (status != 0) {
        return status;
    }
    DelayAnswer(attempt.failures);
    bool right = false;
    status = Compare(attempt, password, right);
    if (status != 0) {
        return status;
    }
    if (!right) {
        return ERROR_LOGON_FAILURE;
    }
    status = WriteStore([&](CDatabase& db) { return EndFailures(db, attempt.accountId); });
    if (status != 0) {
        return status;
    }
    if (attempt.flags & QORUSER_INACTIVE) {
        return ERROR_ACCOUNT_DISABLED;
    }
    CSession::Start(attempt.accountId);
    return 0;
}

BOOL QorGetLastLogonInfo(CString& name)
{
    CString stored;
    const DWORD status = ReadStore([&](CDatabase& db) {
        CQuery query(db, "SELECT name FROM logon WHERE remember = 1");
        if (query.Next()) {
            stored = query.GetText(0);
        }
        return db.GetStatus();
    });
    name = status == 0 ? stored : CString();
    return !name.IsEmpty();
}

DWORD QorSetLastLogonInfo(BOOL remember, LPCWSTR name)
{
    CString kept(remember && name ? name : L"");
    kept.Trim();
    return WriteStore([&](CDatabase& db) {
        const DWORD status = NeedRights(db, 0);
        return status ? status
                      : CQuery(db, "UPDATE logon SET remember = ?1, name = ?2")
                            .Bind(1, kept.IsEmpty() ? 0 : 1)
                            .Bind(2, kept)
                            .Run();
    });
}
