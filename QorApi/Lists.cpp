#include "Names.h"
#include "Store.h"

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
DWORD ListRecords(CDatabase& db, const char* sql, std::vector<BYTE>& records)
{
    CQuery query(db, sql);
    while (query.Next()) {
        Record record;
        query.GetRecord(0, record);
        Append(records, record);
    }
    return db.GetStatus();
}

DWORD ListSnapshots(CDatabase& db, std::vector<BYTE>& records)
{
    return ListRecords<_QORVEX_SNAP>(db, "SELECT record FROM snapshot ORDER BY number", records);
}

DWORD ListTasks(CDatabase& db, std::vector<BYTE>& records)
{
    return ListRecords<_QORVEX_TASK>(db, "SELECT record FROM task ORDER BY number", records);
}

DWORD ListUsers(CDatabase& db, std::vector<BYTE>& records)
{
    CQuery query(db, "SELECT number, flags, rights, name, description FROM user ORDER BY number");
    while (query.Next()) {
        _QORVEX_USER user = {};
        user.wNumber = static_cast<WORD>(query.GetNumber(0));
        user.wFlags = static_cast<WORD>(query.GetNumber(1));
        user.dwRights = static_cast<DWORD>(query.GetNumber(2));
        WriteField(user.szName, query.GetText(3));
        WriteField(user.szDesc, query.GetText(4));
        Append(records, user);
    }
    return db.GetStatus();
}

struct LISTKIND
{
    UINT kind;
    int recordSize;
    DWORD (*list)(CDatabase& db, std::vector<BYTE>& records);
};

constexpr LISTKIND LIST_KINDS[] = {
    {QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), ListSnapshots},
    {QORLIST_USERS, sizeof(_QORVEX_USER), ListUsers},
    {QORLIST_TASKS, sizeof(_QORVEX_TASK), ListTasks},
};

DWORD ListAll(UINT kind, int recordSize, int flags, std::vector<BYTE>& records)
{
    for (const LISTKIND& candidate : LIST_KINDS) {
        if (candidate.kind == kind && candidate.recordSize == recordSize && flags == 0) {
            return ReadStore([&](CDatabase& db) { return candidate.list(db, records); });
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
    if (status == 0 && !records.empty()) {
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
