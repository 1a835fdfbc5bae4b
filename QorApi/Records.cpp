#include "Records.h"

DWORD RecordTable::Store(Database& db, WORD number, const void* record) const
{
    return Query(db, Sql("INSERT OR REPLACE INTO ", " VALUES(?1, ?2)").c_str())
        .Bind(1, number)
        .Bind(2, record, m_recordSize)
        .Run();
}

DWORD RecordTable::Delete(Database& db, WORD number) const
{
    Query query(db, Sql("DELETE FROM ", " WHERE number = ?1 RETURNING number").c_str());
    if (query.Bind(1, number).Next()) {
        return query.Run();
    }
    return db.GetStatus() == ERROR_SUCCESS ? static_cast<DWORD>(ERROR_NOT_FOUND) : db.GetStatus();
}

DWORD RecordTable::FindFree(Database& db, WORD& number) const
{
    Query query(db, Sql("SELECT number FROM ", " ORDER BY number").c_str());
    number = m_first;
    while (query.Next() && query.GetNumber(0) == number) {
        ++number;
    }
    if (db.GetStatus() != ERROR_SUCCESS) {
        return db.GetStatus();
    }
    return number <= m_last ? ERROR_SUCCESS : ERROR_NOT_ENOUGH_QUOTA;
}
