#include "Records.h"

DWORD CRecordTable::Store(CDatabase& db, WORD number, const void* record) const
{
    return CQuery(db, Sql("INSERT OR REPLACE INTO ", " VALUES(?1, ?2)").c_str())
        .Bind(1, number)
        .Bind(2, record, m_recordSize)
        .Run();
}

DWORD CRecordTable::Delete(CDatabase& db, WORD number) const
{
    CQuery query(db, Sql("DELETE FROM ", " WHERE number = ?1 RETURNING number").c_str());
    if (query.Bind(1, number).Next()) {
        return query.Run();
    }
    return db.GetStatus() ? db.GetStatus() : ERROR_NOT_FOUND;
}

DWORD CRecordTable::FindFree(CDatabase& db, WORD& number) const
{
    CQuery query(db, Sql("SELECT number FROM ", " ORDER BY number").c_str());
    number = m_first;
    while (query.Next() && query.GetNumber(0) == number) {
        ++number;
    }
    if (db.GetStatus() != 0) {
        return db.GetStatus();
    }
    return number <= m_last ? 0 : ERROR_NOT_ENOUGH_QUOTA;
}
