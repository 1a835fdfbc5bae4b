#include "Session.h"

BOOL QorGetLastLogonInfo(CString& name)
{
    CString stored;
    const DWORD status = ReadStore([&](Database& db) {
        Query query(db, "SELECT name FROM logon WHERE remember = 1");
        if (query.Next()) {
            stored = query.GetText(0);
        }
        return db.GetStatus();
    });
    name = status == ERROR_SUCCESS ? stored : CString();
    return !name.IsEmpty();
}

DWORD QorSetLastLogonInfo(BOOL remember, LPCWSTR name)
{
    CString kept(remember && name ? name : L"");
    kept.Trim();
    return WriteStore([&](Database& db) {
        const DWORD status = NeedRights(db, 0);
        if (status != ERROR_SUCCESS) {
            return status;
        }
        return Query(db, "UPDATE logon SET remember = ?1, name = ?2")
            .Bind(1, kept.IsEmpty() ? 0 : 1)
            .Bind(2, kept)
            .Run();
    });
}
