#include "Store.h"

#include "Environment.h"
#include "Names.h"

namespace
{

constexpr int kApplicationId = 0x516F7253;
constexpr int kSchemaVersion = 1;
constexpr int kWaitForOthers = 3000; // ms

constexpr char kSchema[] = R"sql(
CREATE TABLE info(id INTEGER PRIMARY KEY, value BLOB NOT NULL);
CREATE TABLE multi(id INTEGER NOT NULL, pos INTEGER NOT NULL, value TEXT NOT NULL, PRIMARY KEY(id, pos)) WITHOUT ROWID;
CREATE TABLE user(id INTEGER PRIMARY KEY AUTOINCREMENT, number INTEGER NOT NULL UNIQUE, name TEXT NOT NULL,
    name_key TEXT NOT NULL UNIQUE, description TEXT NOT NULL, flags INTEGER NOT NULL, rights INTEGER NOT NULL,
    salt BLOB, rounds INTEGER, hash BLOB, failures INTEGER NOT NULL DEFAULT 0);
CREATE TABLE snapshot(number INTEGER PRIMARY KEY, record BLOB NOT NULL);
CREATE TABLE task(number INTEGER PRIMARY KEY, record BLOB NOT NULL);
CREATE TABLE logon(id INTEGER PRIMARY KEY CHECK(id = 0), remember INTEGER NOT NULL, name TEXT NOT NULL,
    failures INTEGER NOT NULL);
INSERT INTO logon VALUES(0, 0, '', 0);
)sql";

constexpr char kBuiltinUser[] = "INSERT INTO user(number, name, name_key, description, flags, rights) "
                                "VALUES(?1, ?2, ?3, '', 0, ?4)";

DWORD StatusOf(sqlite3* db, int code)
{
    switch (code & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
        return ERROR_SUCCESS;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_ERROR: // a table or column is missing
    case SQLITE_SCHEMA:
        return ERROR_FILE_CORRUPT;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ERROR_LOCK_VIOLATION;
    case SQLITE_READONLY:
        return ERROR_WRITE_PROTECT;
    case SQLITE_FULL:
        return ERROR_DISK_FULL;
    case SQLITE_NOMEM:
        return ERROR_NOT_ENOUGH_MEMORY;
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
    case SQLITE_PERM: {
        const int system = db ? sqlite3_system_errno(db) : 0;
        return system ? static_cast<DWORD>(system) : ERROR_OPEN_FAILED;
    }
    default:
        return ERROR_INTERNAL_ERROR;
    }
}

struct FileState
{
    bool exists = false;
    bool readOnly = false;
    bool empty = true;
};

DWORD GetFileState(const std::wstring& path, FileState& state)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND ? static_cast<DWORD>(ERROR_SUCCESS) : error;
    }
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
        return ERROR_ACCESS_DENIED;
    }
    state.exists = true;
    state.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    state.empty = data.nFileSizeHigh == 0 && data.nFileSizeLow == 0;
    return ERROR_SUCCESS;
}

} // namespace

Database::~Database()
{
    Close();
}

void Database::Close()
{
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

DWORD Database::Open(const std::wstring& path)
{
    Close();
    m_path = path;
    if (ReadEnvironment(L"QOR_STORE").empty()) {
        QorCreateFolder(QorGetStoreFolder());
    }
    FileState file;
    DWORD status = GetFileState(path, file);
    if (status == ERROR_SUCCESS) {
        status = OpenFile(!file.exists, file.readOnly);
    }
    if (status == ERROR_SUCCESS) {
        status = Check(file.empty);
    }
    if (status != ERROR_SUCCESS) {
        Close();
    }
    return status;
}

DWORD Database::OpenFile(bool create, bool readOnly)
{
    m_status = ERROR_SUCCESS;
    const int flags = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2(WStrToUTF8(m_path.c_str()), &m_db, flags, nullptr);
    if (code != SQLITE_OK) {
        return Note(code);
    }
    sqlite3_busy_timeout(m_db, kWaitForOthers);
    // Until the file has proved to be sound, closing it must not bring a log's content into it.
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    return ERROR_SUCCESS;
}

/** Refuses what is no sound store before anything is written, and makes the schema of a new one. */
DWORD Database::Check(bool fresh)
{
    // In one transaction: another process may be making the store right now.
    Begin(false);
    const long long id = QueryNumber("PRAGMA application_id");
    const long long version = QueryNumber("PRAGMA user_version");
    const bool unmade = id == 0 && version == 0 && (fresh || IsEmpty());
    if (m_status == ERROR_SUCCESS && !unmade && (id != kApplicationId || !IsIntact())) {
        SetDamaged();
    } else if (m_status == ERROR_SUCCESS && !unmade && version != kSchemaVersion) {
        m_status = ERROR_REVISION_MISMATCH;
    }
    Commit();
    if (unmade) {
        MakeSchema();
    }
    if (m_status != ERROR_SUCCESS) {
        return m_status;
    }
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    Execute("PRAGMA synchronous=FULL");
    // Fails while another process works with the file in the older way; then the next connection does it.
    if (!sqlite3_db_readonly(m_db, "main")) {
        sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    }
    return m_status;
}

DWORD Database::MakeSchema()
{
    if (Execute("BEGIN EXCLUSIVE") != ERROR_SUCCESS) {
        return m_status;
    }
    // Another process may have made it while this one waited.
    if (QueryNumber("PRAGMA application_id") != kApplicationId) {
        Execute(kSchema);
        Query(*this, kBuiltinUser)
            .Bind(1, QORUSER_BUILTIN)
            .Bind(2, QORUSER_BUILTIN_NAME)
            .Bind(3, FoldName(QORUSER_BUILTIN_NAME))
            .Bind(4, QORRIGHT_ALL)
            .Run();
        Execute(("PRAGMA application_id=" + std::to_string(kApplicationId)).c_str());
        Execute(("PRAGMA user_version=" + std::to_string(kSchemaVersion)).c_str());
    }
    const DWORD status = Commit();
    if (status != ERROR_SUCCESS) {
        Rollback();
    }
    return status;
}

bool Database::IsIntact()
{
    Query check(*this, "PRAGMA integrity_check(1)");
    return check.Next() && check.GetText(0) == L"ok";
}

bool Database::IsEmpty()
{
    return QueryNumber("SELECT count(*) FROM sqlite_master") == 0 && m_status == ERROR_SUCCESS;
}

DWORD Database::Note(int code)
{
    if (m_status == ERROR_SUCCESS) {
        m_status = StatusOf(m_db, code);
    }
    return m_status;
}

DWORD Database::SetDamaged()
{
    if (m_status == ERROR_SUCCESS) {
        m_status = ERROR_FILE_CORRUPT;
    }
    return m_status;
}

DWORD Database::Execute(const char* sql)
{
    return m_status == ERROR_SUCCESS ? Note(sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr)) : m_status;
}

long long Database::QueryNumber(const char* sql)
{
    Query query(*this, sql);
    return query.Next() ? query.GetNumber(0) : 0;
}

DWORD Database::Begin(bool write)
{
    m_status = ERROR_SUCCESS;
    return Execute(write ? "BEGIN IMMEDIATE" : "BEGIN");
}

DWORD Database::Commit()
{
    return Execute("COMMIT");
}

void Database::Rollback()
{
    if (!sqlite3_get_autocommit(m_db)) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

Query::Query(Database& db, const char* sql) : m_db(db)
{
    if (db.m_status == ERROR_SUCCESS) {
        db.Note(sqlite3_prepare_v2(db.m_db, sql, -1, &m_statement, nullptr));
    }
}

Query::~Query()
{
    sqlite3_finalize(m_statement);
}

Query& Query::Bind(int index, long long value)
{
    if (m_statement) {
        m_db.Note(sqlite3_bind_int64(m_statement, index, value));
    }
    return *this;
}

Query& Query::Bind(int index, LPCWSTR text)
{
    if (m_statement) {
        m_db.Note(sqlite3_bind_text16(m_statement, index, text, -1, SQLITE_TRANSIENT));
    }
    return *this;
}

Query& Query::Bind(int index, const void* data, size_t size)
{
    if (m_statement) {
        m_db.Note(sqlite3_bind_blob(m_statement, index, data, static_cast<int>(size), SQLITE_TRANSIENT));
    }
    return *this;
}

bool Query::Next()
{
    if (!m_statement || m_db.m_status != ERROR_SUCCESS) {
        return false;
    }
    const int code = sqlite3_step(m_statement);
    m_db.Note(code);
    return code == SQLITE_ROW;
}

DWORD Query::Run()
{
    Next();
    return m_db.m_status;
}

long long Query::GetNumber(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

CString Query::GetText(int column) const
{
    const auto* text = static_cast<LPCWSTR>(sqlite3_column_text16(m_statement, column));
    return text ? CString(text) : CString();
}

std::vector<BYTE> Query::GetBlob(int column) const
{
    const auto* data = static_cast<const BYTE*>(sqlite3_column_blob(m_statement, column));
    const int size = sqlite3_column_bytes(m_statement, column);
    return data ? std::vector<BYTE>(data, data + size) : std::vector<BYTE>();
}

void Query::ReadRecord(int column, void* record, size_t size) const
{
    const std::vector<BYTE> blob = GetBlob(column);
    if (blob.size() == size) {
        memcpy(record, blob.data(), size);
        return;
    }
    memset(record, 0, size);
    m_db.SetDamaged();
}
