#include "Logon.h"

#include "Delay.h"
#include "Password.h"
#include "Session.h"

#include <QorApi/Names.h>

namespace
{

/** One attempt to log on. */
struct Attempt
{
    long long accountId = 0; ///< 0: there is no such account
    WORD flags = 0;
    int failures = 0; ///< in a row, before this attempt
    PasswordHash kept;
};

/**
 * Reads the account and counts the attempt as failed beforehand, so that neither attempts at the same time nor the end
 * of the process keep a failure from being counted.
 */
DWORD StartAttempt(Database& db, const CString& name, Attempt& attempt)
{
    Query query(db, "SELECT id, flags, failures, salt, rounds, hash FROM user WHERE name_key = ?1");
    if (query.Bind(1, FoldName(name)).Next()) {
        attempt.accountId = query.GetNumber(0);
        attempt.flags = static_cast<WORD>(query.GetNumber(1));
        attempt.failures = static_cast<int>(query.GetNumber(2));
        attempt.kept = {query.GetBlob(3), static_cast<int>(query.GetNumber(4)), query.GetBlob(5)};
        return Query(db, "UPDATE user SET failures = failures + 1 WHERE id = ?1").Bind(1, attempt.accountId).Run();
    }
    Query unknown(db, "SELECT failures FROM logon");
    if (unknown.Next()) {
        attempt.failures = static_cast<int>(unknown.GetNumber(0));
    }
    return Query(db, "UPDATE logon SET failures = failures + 1").Run();
}

/** Ends the rows of failures: the account's, and that of the unknown names, which nothing else could ever end. */
DWORD EndFailures(Database& db, long long accountId)
{
    Query(db, "UPDATE user SET failures = 0 WHERE id = ?1").Bind(1, accountId).Run();
    return Query(db, "UPDATE logon SET failures = 0").Run();
}

/** Whether the password is right; an unknown name takes as long as a known one with a password. */
DWORD Compare(const Attempt& attempt, LPCWSTR password, bool& right)
{
    if (attempt.accountId != 0) {
        return CheckPassword(password, attempt.kept, right);
    }
    PasswordHash unused;
    right = false;
    return HashPassword(password && *password ? password : L" ", unused);
}

} // namespace

DWORD QorLogonUser(LPCWSTR name, LPCWSTR password)
{
    CString trimmed(name ? name : L"");
    trimmed.Trim();
    Attempt attempt;
    DWORD status = WriteStore([&](Database& db) { return StartAttempt(db, trimmed, attempt); });
    if (status != ERROR_SUCCESS) {
        return status;
    }
    DelayAnswer(attempt.failures);
    bool right = false;
    status = Compare(attempt, password, right);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (!right) {
        return ERROR_LOGON_FAILURE;
    }
    status = WriteStore([&](Database& db) { return EndFailures(db, attempt.accountId); });
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (attempt.flags & QORUSER_INACTIVE) {
        return ERROR_ACCOUNT_DISABLED;
    }
    Session::Start(attempt.accountId);
    return ERROR_SUCCESS;
}
