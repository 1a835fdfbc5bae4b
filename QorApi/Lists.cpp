#include "Lists.h"

#include <QorApi/logon/Account.h>

#include <objbase.h>

namespace
{

template <class Record>
void Append(std::vector<BYTE>& records, const Record& record)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(&record);
    records.insert(records.end(), bytes, bytes + sizeof(Record));
}

template <class Record>
DWORD ListRecords(Database& db, const char* sql, std::vector<BYTE>& records)
{
    Query query(db, sql);
    while (query.Next()) {
        Record record;
        query.GetRecord(0, record);
        Append(records, record);
    }
    return db.GetStatus();
}

DWORD ListSnapshots(Database& db, std::vector<BYTE>& records)
{
    return ListRecords<_QORVEX_SNAP>(db, "SELECT record FROM snapshot ORDER BY number", records);
}

DWORD ListTasks(Database& db, std::vector<BYTE>& records)
{
    return ListRecords<_QORVEX_TASK>(db, "SELECT record FROM task ORDER BY number", records);
}

DWORD ListUsers(Database& db, std::vector<BYTE>& records)
{
    std::vector<_QORVEX_USER> users;
    const DWORD status = LoadUsers(db, users);
    for (const _QORVEX_USER& user : users) {
        Append(records, user);
    }
    return status;
}

struct ListKind
{
    UINT kind;
    int recordSize;
    DWORD (*list)(Database& db, std::vector<BYTE>& records);
};

constexpr ListKind kListKinds[] = {
    {QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), ListSnapshots},
    {QORLIST_USERS, sizeof(_QORVEX_USER), ListUsers},
    {QORLIST_TASKS, sizeof(_QORVEX_TASK), ListTasks},
};

DWORD ListAll(UINT kind, int recordSize, int flags, std::vector<BYTE>& records)
{
    for (const ListKind& candidate : kListKinds) {
        if (candidate.kind == kind && candidate.recordSize == recordSize && flags == 0) {
            return ReadStore([&](Database& db) { return candidate.list(db, records); });
        }
    }
    return ERROR_INVALID_PARAMETER;
}

} // namespace

void* QorGetAllInfo(UINT kind, int recordSize, int* count, int flags)
{
    if (count) {
        *count = 0;
    }
    std::vector<BYTE> records;
    DWORD status = ListAll(kind, recordSize, flags, records);
    void* result = nullptr;
    if (status == ERROR_SUCCESS && !records.empty()) {
        result = CoTaskMemAlloc(records.size());
        if (result) {
            memcpy(result, records.data(), records.size());
        } else {
            status = ERROR_NOT_ENOUGH_MEMORY;
        }
    }
    if (count && result) {
        *count = static_cast<int>(records.size()) / recordSize;
    }
    SetLastError(status);
    return result;
}
