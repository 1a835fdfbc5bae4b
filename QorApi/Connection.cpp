#include "Connection.h"

#include "Store.h"

#include <QorPub/Guard.h>

#include <memory>
#include <new>

namespace
{

/** What one thread has opened. */
struct ThreadLink
{
    int depth = 0;
    Database db;
};

/** The threads' links, each dropped when its thread ends. */
class LinkTable
{
  public:
    LinkTable() : m_index(IsProcessEnding() ? FLS_OUT_OF_INDEXES : FlsAlloc(Drop)) {}
    ~LinkTable()
    {
        if (IsProcessEnding()) {
            return;
        }
        if (m_index != FLS_OUT_OF_INDEXES) {
            FlsFree(m_index);
        }
        sqlite3_shutdown();
    }
    LinkTable(const LinkTable&) = delete;
    LinkTable& operator=(const LinkTable&) = delete;

    /** The calling thread's link, or null. */
    ThreadLink* Find() const
    {
        return m_index == FLS_OUT_OF_INDEXES ? nullptr : static_cast<ThreadLink*>(FlsGetValue(m_index));
    }
    bool Set(ThreadLink* link) const { return m_index != FLS_OUT_OF_INDEXES && FlsSetValue(m_index, link); }

  private:
    // While the process ends its other threads are gone, perhaps with SQLite's locks: then everything is left to the
    // system, and the next process that opens the store takes over its log.
    static bool IsProcessEnding()
    {
        using EndQuery = BOOLEAN(NTAPI*)();
        // Looked up by the constructor: Drop() runs under a lock of the system that ending threads take while they have
        // the loader's, so it must not ask the loader for anything.
        static const auto kQuery = reinterpret_cast<EndQuery>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress")));
        return kQuery && kQuery();
    }
    static void CALLBACK Drop(void* link)
    {
        if (!IsProcessEnding()) {
            delete static_cast<ThreadLink*>(link);
        }
    }

    DWORD m_index;
};

LinkTable& GetLinks()
{
    static LinkTable links;
    return links;
}

/** Opens the store that is meant now, unless it is open already. */
DWORD OpenStore(Database& db)
{
    const DWORD status = qor::GuardMemory([&] {
        const std::wstring path = QorGetStorePath().GetString();
        return db.IsOpen() && db.GetPath() == path ? static_cast<DWORD>(ERROR_SUCCESS) : db.Open(path);
    });
    if (status != ERROR_SUCCESS) {
        db.Close();
    }
    return status;
}

DWORD RunInTransaction(Database& db, bool write, StoreWork work, void* context)
{
    DWORD status = db.Begin(write);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    status = qor::GuardMemory([&] { return work(db, context); });
    // A failed statement counts, whatever the work made of it.
    if (db.GetStatus() != ERROR_SUCCESS) {
        status = db.GetStatus();
    }
    if (status == ERROR_SUCCESS) {
        status = db.Commit();
    }
    if (status != ERROR_SUCCESS) {
        db.Rollback();
    }
    return status;
}

} // namespace

DWORD RunOnStore(bool write, StoreWork work, void* context)
{
    ThreadLink* link = GetLinks().Find();
    if (!link || link->depth == 0) {
        Database db;
        const DWORD status = OpenStore(db);
        return status == ERROR_SUCCESS ? RunInTransaction(db, write, work, context) : status;
    }
    const DWORD status = OpenStore(link->db);
    return status == ERROR_SUCCESS ? RunInTransaction(link->db, write, work, context) : status;
}

DWORD QorOpen()
{
    ThreadLink* link = GetLinks().Find();
    if (!link) {
        auto fresh = std::unique_ptr<ThreadLink>(new (std::nothrow) ThreadLink);
        if (!fresh || !GetLinks().Set(fresh.get())) {
            return ERROR_NOT_ENOUGH_MEMORY;
        }
        link = fresh.release();
    }
    const DWORD status = OpenStore(link->db);
    if (status == ERROR_SUCCESS) {
        ++link->depth;
    }
    return status;
}

void QorClose()
{
    ThreadLink* link = GetLinks().Find();
    if (link && link->depth > 0 && --link->depth == 0) {
        link->db.Close();
    }
}
