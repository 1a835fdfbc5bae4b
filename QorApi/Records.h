#pragma once

#include "Store.h"

/** The records kept as they are, in the tables `snapshot` and `task`: one per number. */
class RecordTable
{
  public:
    /** @param recordSize bytes of a record. @param first, last numbers that a record may have. */
    constexpr RecordTable(const char* name, size_t recordSize, WORD first, WORD last)
        : m_name(name), m_recordSize(recordSize), m_first(first), m_last(last)
    {
    }

    /** @return ERROR_NOT_FOUND, or the database's status. */
    template <class Record>
    DWORD Load(Database& db, WORD number, Record& record) const
    {
        Query query(db, Sql("SELECT record FROM ", " WHERE number = ?1").c_str());
        if (!query.Bind(1, number).Next()) {
            return db.GetStatus() == ERROR_SUCCESS ? static_cast<DWORD>(ERROR_NOT_FOUND) : db.GetStatus();
        }
        query.GetRecord(0, record);
        return db.GetStatus();
    }
    DWORD Store(Database& db, WORD number, const void* record) const;
    /** @return ERROR_NOT_FOUND, or the database's status. */
    DWORD Delete(Database& db, WORD number) const;
    /** The lowest free number. @return ERROR_NOT_ENOUGH_QUOTA when all are in use. */
    DWORD FindFree(Database& db, WORD& number) const;

  private:
    std::string Sql(const char* before, const char* after) const { return before + std::string(m_name) + after; }

    const char* m_name;
    size_t m_recordSize;
    WORD m_first;
    WORD m_last;
};

/**
 * Adds a record under the lowest free number, which it gets on success.
 * @param allow gives, for the database, the status by which that is allowed or refused.
 * @return status; ERROR_NOT_ENOUGH_QUOTA when all numbers are in use.
 */
template <class Record, class Allow>
DWORD AddRecord(const RecordTable& table, Record& record, Allow allow)
{
    WORD number = 0;
    const DWORD status = WriteStore([&](Database& db) {
        DWORD result = allow(db);
        if (result == ERROR_SUCCESS) {
            result = table.FindFree(db, number);
        }
        if (result != ERROR_SUCCESS) {
            return result;
        }
        Record added = record;
        added.wNumber = number;
        return table.Store(db, number, &added);
    });
    if (status == ERROR_SUCCESS) {
        record.wNumber = number;
    }
    return status;
}

constexpr RecordTable kSnapshotTable("snapshot", sizeof(_QORVEX_SNAP), 1, QORSNAP_MAX);
constexpr RecordTable kTaskTable("task", sizeof(_QORVEX_TASK), 0, QORTASK_MAX);
