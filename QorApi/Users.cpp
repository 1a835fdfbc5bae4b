#include "Names.h"
#include "Password.h"
#include "Session.h"

namespace
{

constexpr size_t MAX_PASSWORD = 63;

/** What a set operation brings, checked. */
struct USERCHANGE
{
    WORD number = 0;
    WORD mask = 0;
    WORD flags = 0;
    DWORD rights = 0;
    CString name;
    CString description;
    PASSWORDHASH password;

    bool Has(WORD field) const { return (mask & field) != 0; }
};

DWORD ReadChange(const _QORVEX_USER& user, LPCWSTR password, USERCHANGE& change)
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
        return 0;
    }
    if (password && wcsnlen(password, MAX_PASSWORD + 1) > MAX_PASSWORD) {
        return ERROR_ILL_FORMED_PASSWORD;
    }
    return HashPassword(password, change.password);
}

DWORD FindAccount(CDatabase& db, WORD number, ACCOUNT& account)
{
    CQuery query(db, "SELECT id, flags, rights FROM user WHERE number = ?1");
    if (!query.Bind(1, number).Next()) {
        return db.GetStatus() ? db.GetStatus() : ERROR_NO_SUCH_USER;
    }
    account.id = query.GetNumber(0);
    account.number = number;
    account.flags = static_cast<WORD>(query.GetNumber(1));
    account.rights = static_cast<DWORD>(query.GetNumber(2));
    return 0;
}

/** Nobody deals with an account that has more rights than he has. */
DWORD NeedPowerOver(const ACCOUNT& user, DWORD rights)
{
    const bool allowed = (user.rights & QORRIGHT_SECURITY) && (rights & ~user.rights) == 0;
    return allowed ? 0 : ERROR_ACCESS_DENIED;
}

DWORD NeedChange(const ACCOUNT& user, const ACCOUNT& target, const USERCHANGE& change)
{
    if (target.number == QORUSER_BUILTIN && change.Has(QORUSER_PROPERTIES)) {
        return ERROR_ACCESS_DENIED;
    }
    const bool own = user.id == target.id;
    if (own && change.Has(QORUSER_PASSWORD) && !(user.rights & QORRIGHT_PASSWORD)) {
        return ERROR_ACCESS_DENIED;
    }
    if (own && change.mask == QORUSER_PASSWORD) {
        return 0;
    }
    return NeedPowerOver(user, target.rights | (change.Has(QORUSER_RIGHTS) ? change.rights : 0));
}

bool IsNameInUse(CDatabase& db, const CString& name, long long exceptId)
{
    CQuery query(db, "SELECT 1 FROM user WHERE name_key = ?1 AND id <> ?2");
    return query.Bind(1, FoldName(name)).Bind(2, exceptId).Next();
}

DWORD ApplyChange(CDatabase& db, const ACCOUNT& target, const USERCHANGE& change)
{
    if (change.Has(QORUSER_NAME)) {
        CQuery(db, "UPDATE user SET name = ?2, name_key = ?3 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.name)
            .Bind(3, FoldName(change.name))
            .Run();
    }
    if (change.Has(QORUSER_DESC)) {
        CQuery(db, "UPDATE user SET description = ?2 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.description)
            .Run();
    }
    if (change.Has(QORUSER_RIGHTS)) {
        CQuery(db, "UPDATE user SET rights = ?2 WHERE id = ?1").Bind(1, target.id).Bind(2, change.rights).Run();
    }
    if (change.Has(QORUSER_FLAGS)) {
        CQuery(db, "UPDATE user SET flags = ?2 WHERE id = ?1").Bind(1, target.id).Bind(2, change.flags).Run();
    }
    if (change.Has(QORUSER_PASSWORD)) {
        CQuery(db, "UPDATE user SET salt = ?2, rounds = ?3, hash = ?4, failures = 0 WHERE id = ?1")
            .Bind(1, target.id)
            .Bind(2, change.password.salt.data(), change.password.salt.size())
            .Bind(3, change.password.rounds)
            .Bind(4, change.password.hash.data(), change.password.hash.size())
            .Run();
    }
    return db.GetStatus();
}

DWORD ChangeAccount(CDatabase& db, const USERCHANGE& change)
{
    ACCOUNT user;
    ACCOUNT target;
    DWORD status = CSession::GetUser(db, user);
    if (status == 0) {
        status = FindAccount(db, change.number, target);
    }
    if (status == 0) {
        status = NeedChange(user, target, change);
    }
    if (status != 0) {
        return status;
    }
    if (change.Has(QORUSER_NAME) && IsNameInUse(db, change.name, target.id)) {
        return ERROR_USER_EXISTS;
    }
    return ApplyChange(db, target, change);
}

/** The number for a new account: the wanted one, or the lowest free one when the wanted one means "new". */
DWORD ChooseNumber(CDatabase& db, WORD wanted, WORD& number)
{
    ACCOUNT other;
    const bool any = wanted > QORUSER_MAX;
    for (number = any ? 1 : wanted; number <= QORUSER_MAX; ++number) {
        const DWORD status = FindAccount(db, number, other);
        if (status == ERROR_NO_SUCH_USER) {
            return 0;
        }
        if (status != 0) {
            return status;
        }
        if (!any) {
            return ERROR_ALREADY_EXISTS;
        }
    }
    return ERROR_NOT_ENOUGH_QUOTA;
}

DWORD AddAccount(CDatabase& db, const USERCHANGE& change, WORD& number)
{
    ACCOUNT user;
    DWORD status = CSession::GetUser(db, user);
    if (status == 0) {
        status = NeedPowerOver(user, change.Has(QORUSER_RIGHTS) ? change.rights : 0);
    }
    if (status == 0) {
        status = ChooseNumber(db, change.number, number);
    }
    if (status != 0) {
        return status;
    }
    if (IsNameInUse(db, change.name, 0)) {
        return ERROR_USER_EXISTS;
    }
    CQuery(db, "INSERT INTO user(number, name, name_key, description, flags, rights) VALUES(?1, ?2, ?3, '', 0, 0)")
        .Bind(1, number)
        .Bind(2, change.name)
        .Bind(3, FoldName(change.name))
        .Run();
    ACCOUNT target;
    status = FindAccount(db, number, target);
    return status ? status : ApplyChange(db, target, change);
}

DWORD DeleteAccount(CDatabase& db, WORD number)
{
    ACCOUNT user;
    ACCOUNT target;
    DWORD status = CSession::GetUser(db, user);
    if (status == 0) {
        status = FindAccount(db, number, target);
    }
    if (status == 0) {
        status = NeedPowerOver(user, target.rights);
    }
    if (status != 0) {
        return status;
    }
    if (number == QORUSER_BUILTIN || target.id == user.id) {
        return ERROR_ACCESS_DENIED;
    }
    return CQuery(db, "DELETE FROM user WHERE id = ?1").Bind(1, target.id).Run();
}

DWORD LoadUser(CDatabase& db, WORD number, _QORVEX_USER& user)
{
    CQuery query(db, "SELECT name, description, flags, rights FROM user WHERE number = ?1");
    if (!query.Bind(1, number).Next()) {
        return db.GetStatus() ? db.GetStatus() : ERROR_NO_SUCH_USER;
    }
    user = _QORVEX_USER();
    user.wNumber = number;
    WriteField(user.szName, query.GetText(0));
    WriteField(user.szDesc, query.GetText(1));
    user.wFlags = static_cast<WORD>(query.GetNumber(2));
    user.dwRights = static_cast<DWORD>(query.GetNumber(3));
    return 0;
}

} // namespace

DWORD QorGetUserInfo(_QORVEX_USER& user)
{
    return ReadStore([&](CDatabase& db) { return LoadUser(db, user.wNumber, user); });
}

DWORD QorGetLogonUser(_QORVEX_USER& user)
{
    return ReadStore([&](CDatabase& db) {
        ACCOUNT account;
        const DWORD status = CSession::GetUser(db, account);
        return status ? status : LoadUser(db, account.number, user);
    });
}

DWORD QorSetUserInfo(_QORVEX_USER& user, LPCWSTR password)
{
    USERCHANGE change;
    if (const DWORD status = ReadChange(user, password, change)) {
        return status;
    }
    return WriteStore([&](CDatabase& db) { return ChangeAccount(db, change); });
}

DWORD QorAddUser(_QORVEX_USER& user, LPCWSTR password)
{
    USERCHANGE change;
    if (const DWORD status = ReadChange(user, password, change)) {
        return status;
    }
    if (!change.Has(QORUSER_NAME) || change.number == QORUSER_BUILTIN) {
        return ERROR_INVALID_PARAMETER;
    }
    WORD number = 0;
    const DWORD status = WriteStore([&](CDatabase& db) { return AddAccount(db, change, number); });
    if (status == 0) {
        user.wNumber = number;
    }
    return status;
}

DWORD QorDeleteUser(WORD number)
{
    return WriteStore([&](CDatabase& db) { return DeleteAccount(db, number); });
}
