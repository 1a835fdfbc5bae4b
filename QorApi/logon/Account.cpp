#include "Account.h"

#include <QorApi/Names.h>

namespace
{

DWORD ReadAccount(Database& db, Query& query, Account& account)
{
    if (!query.Next()) {
        return db.GetStatus() == ERROR_SUCCESS ? static_cast<DWORD>(ERROR_NO_SUCH_USER) : db.GetStatus();
    }
    account.id = query.GetNumber(0);
    account.number = static_cast<WORD>(query.GetNumber(1));
    account.flags = static_cast<WORD>(query.GetNumber(2));
    account.rights = static_cast<DWORD>(query.GetNumber(3));
    return ERROR_SUCCESS;
}

/** The record from the columns number, name, description, flags and rights. */
_QORVEX_USER ReadUser(const Query& query)
{
    _QORVEX_USER user = {};
    user.wNumber = static_cast<WORD>(query.GetNumber(0));
    WriteField(user.szName, query.GetText(1));
    WriteField(user.szDesc, query.GetText(2));
    user.wFlags = static_cast<WORD>(query.GetNumber(3));
    user.dwRights = static_cast<DWORD>(query.GetNumber(4));
    return user;
}

} // namespace

DWORD FindAccount(Database& db, WORD number, Account& account)
{
    Query query(db, "SELECT id, number, flags, rights FROM user WHERE number = ?1");
    return ReadAccount(db, query.Bind(1, number), account);
}

DWORD FindAccountById(Database& db, long long id, Account& account)
{
    Query query(db, "SELECT id, number, flags, rights FROM user WHERE id = ?1");
    return ReadAccount(db, query.Bind(1, id), account);
}

DWORD LoadUser(Database& db, WORD number, _QORVEX_USER& user)
{
    Query query(db, "SELECT number, name, description, flags, rights FROM user WHERE number = ?1");
    if (!query.Bind(1, number).Next()) {
        return db.GetStatus() == ERROR_SUCCESS ? static_cast<DWORD>(ERROR_NO_SUCH_USER) : db.GetStatus();
    }
    user = ReadUser(query);
    return ERROR_SUCCESS;
}

DWORD LoadUsers(Database& db, std::vector<_QORVEX_USER>& users)
{
    Query query(db, "SELECT number, name, description, flags, rights FROM user ORDER BY number");
    while (query.Next()) {
        users.push_back(ReadUser(query));
    }
    return db.GetStatus();
}
