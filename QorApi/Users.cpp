#include "Users.h"

#include "Names.h"

#include <QorApi/logon/Password.h>
#include <QorApi/logon/Session.h>

namespace
{

constexpr size_t kMaxPassword = 63;

/** What a set operation brings, checked. */
struct UserChange
{
    WORD number = 0;
    WORD mask = 0;
    WORD flags = 0;
    DWORD rights = 0;
    CString name;
    CString description;
    PasswordHash password;

    bool Has(WORD field) const { return (mask & field) != 0; }
};

DWORD ReadChange(const _QORVEX_USER& user, LPCWSTR password, UserChange& change)
{
    change.number = user.wNumber;
    change.mask = user.wFieldMask;
    change.flags = user.wFlags;
    change.rights = user.dwRights;
    if (change.mask == 0 || (change.mask & ~QORUSER_NEW)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (change.Has(QORUSER_NAME) && (!ReadField(user.szName, change.name) || change.name.IsEmpty())) {
        return ERROR_INVALID_ACCOUNT_NAME;
    }
    if (change.Has(QORUSER_DESC) && !ReadField(user.szDesc, change.description)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (change.Has(QORUSER_RIGHTS) && (change.rights & ~QORRIGHT_ALL)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (change.Has(QORUSER_FLAGS) && (change.flags & ~QORUSER_INACTIVE)) {
        return ERROR_INVALID_PARAMETER;
    }
    if (!change.Has(QORUSER_PASSWORD)) {
        return ERROR_SUCCESS;
    }
    if (password && wcsnlen(password, kMaxPassword + 1) > kMaxPassword) {
        return ERROR_ILL_FORMED_PASSWORD;
    }
    return HashPassword(password, change.password);
}

/** Nobody deals with an account that has more rights than he has. */
DWORD NeedPowerOver(const Account& user, DWORD rights)
{
    const bool allowed = (user.rights & QORRIGHT_SECURITY) && (rights & ~user.rights) == 0;
    return allowed ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

DWORD NeedChange(const Account& user, const Account& target, const UserChange& change)
{
    if (target.number == QORUSER_BUILTIN && change.Has(QORUSER_PROPERTIES)) {
        return ERROR_ACCESS_DENIED;
    }
    const bool own = user.id == target.id;
    if (own && change.Has(QORUSER_PASSWORD) && !(user.rights & QORRIGHT_PASSWORD)) {
        return ERROR_ACCESS_DENIED;
    }
    if (own && change.mask == QORUSER_PASSWORD) {
        return ERROR_SUCCESS;
    }
    return NeedPowerOver(user, target.rights | (change.Has(QORUSER_RIGHTS) ? change.rights : 0));
}

bool IsNameInUse(Database& db, const CString& name, long long exceptId)
{
    Query query(db, "SELECT 1 FROM user WHERE name_key = ?1 AND id <> ?2");
    return query.Bind(1, FoldName(name)).Bind(2, exceptId).Next();
}

DWORD ApplyChange(Database& db, const Account& target, const UserChange& change)
{
    if (change.Has(QORUSER_NAME)) {
        Query(db, "UPDATE user SET name = ?2, name_key = ?3 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.name)
            .Bind(3, FoldName(change.name))
            .Run();
    }
    if (change.Has(QORUSER_DESC)) {
        Query(db, "UPDATE user SET description = ?2 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.description)
            .Run();
    }
    if (change.Has(QORUSER_RIGHTS)) {
        Query(db, "UPDATE user SET rights = ?2 WHERE id = ?1").Bind(1, target.id).Bind(2, change.rights).Run();
    }
    if (change.Has(QORUSER_FLAGS)) {
        Query(db, "UPDATE user SET flags = ?2 WHERE id = ?1").Bind(1, target.id).Bind(2, change.flags).Run();
    }
    if (change.Has(QORUSER_PASSWORD)) {
        Query(db, "UPDATE user SET salt = ?2, rounds = ?3, hash = ?4, failures = 0 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.password.salt.data(), change.password.salt.size())
            .Bind(3, change.password.rounds)
            .Bind(4, change.password.hash.data(), change.password.hash.size())
            .Run();
    }
    return db.GetStatus();
}

DWORD ChangeAccount(Database& db, const UserChange& change)
{
    Account user;
    Account target;
    DWORD status = Session::GetUser(db, user);
    if (status == ERROR_SUCCESS) {
        status = FindAccount(db, change.number, target);
    }
    if (status == ERROR_SUCCESS) {
        status = NeedChange(user, target, change);
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (change.Has(QORUSER_NAME) && IsNameInUse(db, change.name, target.id)) {
        return ERROR_USER_EXISTS;
    }
    return ApplyChange(db, target, change);
}

/** The number for a new account: the wanted one, or the lowest free one when the wanted one means "new". */
DWORD ChooseNumber(Database& db, WORD wanted, WORD& number)
{
    Account other;
    const bool any = wanted > QORUSER_MAX;
    for (number = any ? 1 : wanted; number <= QORUSER_MAX; ++number) {
        const DWORD status = FindAccount(db, number, other);
        if (status == ERROR_NO_SUCH_USER) {
            return ERROR_SUCCESS;
        }
        if (status != ERROR_SUCCESS) {
            return status;
        }
        if (!any) {
            return ERROR_ALREADY_EXISTS;
        }
    }
    return ERROR_NOT_ENOUGH_QUOTA;
}

DWORD AddAccount(Database& db, const UserChange& change, WORD& number)
{
    Account user;
    DWORD status = Session::GetUser(db, user);
    if (status == ERROR_SUCCESS) {
        status = NeedPowerOver(user, change.Has(QORUSER_RIGHTS) ? change.rights : 0);
    }
    if (status == ERROR_SUCCESS) {
        status = ChooseNumber(db, change.number, number);
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (IsNameInUse(db, change.name, 0)) {
        return ERROR_USER_EXISTS;
    }
    Query(db, "INSERT INTO user(number, name, name_key, description, flags, rights) VALUES(?1, ?2, ?3, '', 0, 0)")
        .Bind(1, number)
        .Bind(2, change.name)
        .Bind(3, FoldName(change.name))
        .Run();
    Account target;
    status = FindAccount(db, number, target);
    return status == ERROR_SUCCESS ? ApplyChange(db, target, change) : status;
}

DWORD DeleteAccount(Database& db, WORD number)
{
    Account user;
    Account target;
    DWORD status = Session::GetUser(db, user);
    if (status == ERROR_SUCCESS) {
        status = FindAccount(db, number, target);
    }
    if (status == ERROR_SUCCESS) {
        status = NeedPowerOver(user, target.rights);
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (number == QORUSER_BUILTIN || target.id == user.id) {
        return ERROR_ACCESS_DENIED;
    }
    return Query(db, "DELETE FROM user WHERE id = ?1").Bind(1, target.id).Run();
}

} // namespace

DWORD QorGetUserInfo(_QORVEX_USER& user)
{
    return ReadStore([&](Database& db) { return LoadUser(db, user.wNumber, user); });
}

DWORD QorSetUserInfo(_QORVEX_USER& user, LPCWSTR password)
{
    UserChange change;
    if (const DWORD status = ReadChange(user, password, change); status != ERROR_SUCCESS) {
        return status;
    }
    return WriteStore([&](Database& db) { return ChangeAccount(db, change); });
}

DWORD QorAddUser(_QORVEX_USER& user, LPCWSTR password)
{
    UserChange change;
    if (const DWORD status = ReadChange(user, password, change); status != ERROR_SUCCESS) {
        return status;
    }
    if (!change.Has(QORUSER_NAME) || change.number == QORUSER_BUILTIN) {
        return ERROR_INVALID_PARAMETER;
    }
    WORD number = 0;
    const DWORD status = WriteStore([&](Database& db) { return AddAccount(db, change, number); });
    if (status == ERROR_SUCCESS) {
        user.wNumber = number;
    }
    return status;
}

DWORD QorDeleteUser(WORD number)
{
    return WriteStore([&](Database& db) { return DeleteAccount(db, number); });
}
