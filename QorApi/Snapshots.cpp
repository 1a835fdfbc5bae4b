#include "Snapshots.h"

#include "Names.h"
#include "Records.h"

#include <QorApi/logon/Session.h>

namespace
{

bool IsNoTime(const _QORTIME& time)
{
    const _QORTIME none = {};
    return memcmp(&time, &none, sizeof(time)) == 0;
}

/** The record as it is kept: only what has a meaning, completed. */
DWORD Clean(const _QORVEX_SNAP& snapshot, _QORVEX_SNAP& clean)
{
    CString name;
    if (!ReadField(snapshot.szName, name) || name.IsEmpty()) {
        return ERROR_INVALID_NAME;
    }
    WriteField(clean.szName, name);
    clean.wFlags = snapshot.wFlags & QORSNAP_LOCKED;
    clean.nSize = snapshot.nSize;
    SYSTEMTIME time = {};
    if (IsNoTime(snapshot.time)) {
        GetLocalTime(&time);
    } else if (!QorTime2SysTime(snapshot.time, time)) {
        return ERROR_INVALID_TIME;
    }
    return SysTime2QorTime(time, clean.time) ? ERROR_SUCCESS : ERROR_INVALID_TIME;
}

/** Loads a snapshot for somebody who needs a right for what he will do with it. */
DWORD LoadFor(Database& db, DWORD right, WORD number, _QORVEX_SNAP& snapshot)
{
    const DWORD status = NeedRights(db, right);
    return status == ERROR_SUCCESS ? kSnapshotTable.Load(db, number, snapshot) : status;
}

/** Changes one snapshot with the right to take them. */
template <class Change>
DWORD ChangeSnapshot(WORD number, Change change)
{
    return WriteStore([&](Database& db) {
        _QORVEX_SNAP snapshot;
        if (const DWORD status = LoadFor(db, QORRIGHT_TAKESNAP, number, snapshot); status != ERROR_SUCCESS) {
            return status;
        }
        change(snapshot);
        return kSnapshotTable.Store(db, number, &snapshot);
    });
}

} // namespace

DWORD QorAddSnapshot(_QORVEX_SNAP& snapshot)
{
    _QORVEX_SNAP clean = {};
    DWORD status = Clean(snapshot, clean);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    status = AddRecord(kSnapshotTable, clean, [](Database& db) { return NeedRights(db, QORRIGHT_TAKESNAP); });
    if (status == ERROR_SUCCESS) {
        snapshot = clean;
    }
    return status;
}

DWORD QorDeleteSnapshot(WORD number)
{
    return WriteStore([&](Database& db) {
        _QORVEX_SNAP snapshot;
        if (const DWORD status = LoadFor(db, QORRIGHT_DELSNAP, number, snapshot); status != ERROR_SUCCESS) {
            return status;
        }
        return snapshot.wFlags & QORSNAP_LOCKED ? static_cast<DWORD>(ERROR_LOCKED) : kSnapshotTable.Delete(db, number);
    });
}

DWORD QorRenameSnapshot(WORD number, LPCWSTR name)
{
    CString trimmed(name ? name : L"");
    trimmed.Trim();
    if (trimmed.IsEmpty() || trimmed.GetLength() >= static_cast<int>(std::size(_QORVEX_SNAP().szName))) {
        return ERROR_INVALID_NAME;
    }
    return ChangeSnapshot(number, [&](_QORVEX_SNAP& snapshot) { WriteField(snapshot.szName, trimmed); });
}

DWORD QorLockSnapshot(WORD number, BOOL lock)
{
    return ChangeSnapshot(number, [=](_QORVEX_SNAP& snapshot) {
        snapshot.wFlags = lock ? snapshot.wFlags | QORSNAP_LOCKED : snapshot.wFlags & ~QORSNAP_LOCKED;
    });
}
