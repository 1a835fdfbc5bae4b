#pragma once

#include <QorApi/QorApi.h>

#include <sqlite3.h>

#include <cwchar>
#include <iterator>
#include <string>
#include <vector>

/** One connection to the store. The first failure stays its status until Begin(). */
class Database
{
  public:
    Database() = default;
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /** Opens the store, which is made when the file is missing or has no content. A store that is refused stays as it
     * is. */
    DWORD Open(const std::wstring& path);
    void Close();
    bool IsOpen() const { return m_db != nullptr; }
    const std::wstring& GetPath() const { return m_path; }

    DWORD Begin(bool write);
    DWORD Commit();
    void Rollback();

    /** Status of everything since Begin(): ERROR_SUCCESS or the first failure. */
    DWORD GetStatus() const { return m_status; }
    /** Notes that what was read makes no sense. */
    DWORD SetDamaged();

  private:
    friend class Query;

    DWORD OpenFile(bool create, bool readOnly);
    DWORD Check(bool fresh);
    DWORD MakeSchema();
    DWORD Execute(const char* sql);
    long long QueryNumber(const char* sql);
    bool IsIntact();
    bool IsEmpty();
    DWORD Note(int code);

    sqlite3* m_db = nullptr;
    std::wstring m_path;
    DWORD m_status = ERROR_SUCCESS;
};

/** One statement with its parameters (from 1) and its result columns (from 0). Failures go to the database's status. */
class Query
{
  public:
    Query(Database& db, const char* sql);
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    Query& Bind(int index, long long value);
    Query& Bind(int index, LPCWSTR text);
    /** A null pointer binds NULL. */
    Query& Bind(int index, const void* data, size_t size);

    /** Goes to the next row; false behind the last and after a failure. */
    bool Next();
    /** Runs a statement without result. @return the database's status. */
    DWORD Run();

    long long GetNumber(int column) const;
    CString GetText(int column) const;
    std::vector<BYTE> GetBlob(int column) const;
    /** A blob of exactly the record's size whose name ends; any other notes the store as damaged and gives zeros. */
    template <class Record>
    void GetRecord(int column, Record& record) const
    {
        ReadRecord(column, &record, sizeof(record));
        if (wmemchr(record.szName, 0, std::size(record.szName))) {
            return;
        }
        record = {};
        m_db.SetDamaged();
    }

  private:
    void ReadRecord(int column, void* record, size_t size) const;

    Database& m_db;
    sqlite3_stmt* m_statement = nullptr;
};

/** Work on the store within one transaction; a status other than ERROR_SUCCESS undoes it. */
using StoreWork = DWORD (*)(Database& db, void* context);

DWORD RunOnStore(bool write, StoreWork work, void* context);

template <class Work>
DWORD ReadStore(Work work)
{
    return RunOnStore(
        false, [](Database& db, void* context) { return (*static_cast<Work*>(context))(db); }, &work);
}

template <class Work>
DWORD WriteStore(Work work)
{
    return RunOnStore(
        true, [](Database& db, void* context) { return (*static_cast<Work*>(context))(db); }, &work);
}
