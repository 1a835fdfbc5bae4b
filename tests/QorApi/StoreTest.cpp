#include "StoreFixture.h"

#include <tests/support/MemoryShortage.h>

#include <sqlite3.h>

#include <atomic>
#include <thread>

namespace
{

constexpr DWORD CORRUPT = ERROR_FILE_CORRUPT;

/** A connection to the file beside the library. */
class RawDatabase
{
  public:
    explicit RawDatabase(const std::wstring& path) { sqlite3_open(ts::ToUtf8(path).c_str(), &m_db); }
    ~RawDatabase() { sqlite3_close(m_db); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void Run(const char* sql) { EXPECT_EQ(sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql; }

    std::string Query(const char* sql)
    {
        std::string result;
        const auto note = [](void* text, int, char** values, char**) {
            *static_cast<std::string*>(text) = values[0] ? values[0] : "";
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(m_db, sql, note, &result, nullptr), SQLITE_OK) << sql;
        return result;
    }

  private:
    sqlite3* m_db = nullptr;
};

/** Keeps other threads from loading, looking up and leaving modules. */
class LoaderLock
{
  public:
    LoaderLock() { Call<LONG(NTAPI*)(ULONG, ULONG*, ULONG_PTR*)>("LdrLockLoaderLock")(0, nullptr, &m_cookie); }
    ~LoaderLock() { Call<LONG(NTAPI*)(ULONG, ULONG_PTR)>("LdrUnlockLoaderLock")(0, m_cookie); }
    LoaderLock(const LoaderLock&) = delete;
    LoaderLock& operator=(const LoaderLock&) = delete;

  private:
    template <class Function>
    static Function Call(const char* name)
    {
        return reinterpret_cast<Function>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
    }

    ULONG_PTR m_cookie = 0;
};

class StoreFileTest : public StoreTest
{
  protected:
    /** Makes a store with something in it. */
    static void MakeStore()
    {
        ASSERT_EQ(QorOpen(), 0U);
        LogonBuiltin();
        ASSERT_EQ(QorFillDemoStore(), 0U);
        QorClose();
    }

    /** Expects the code from QorOpen() and from calls of every kind, and that the file stays as it is. */
    void ExpectRefused(DWORD code) const
    {
        const std::string before = ts::ReadBytes(StorePath());
        ExpectEveryCall(code);
        EXPECT_TRUE(ts::ReadBytes(StorePath()) == before) << "the file was changed";
    }

    static void ExpectEveryCall(DWORD code)
    {
        EXPECT_EQ(QorOpen(), code);
        ExpectUserCalls(code);
        ExpectOtherCalls(code);
    }

    static void ExpectUserCalls(DWORD code)
    {
        _QORVEX_USER user = NewUser(L"a");
        EXPECT_EQ(QorAddUser(user, nullptr), code);
        user.wNumber = 0;
        EXPECT_EQ(QorGetUserInfo(user), code);
        EXPECT_EQ(QorSetUserInfo(user, nullptr), code);
        EXPECT_EQ(QorDeleteUser(1), code);
        EXPECT_EQ(QorGetLogonUser(user), code);
        EXPECT_EQ(QorLogonUser(L"Administrator", nullptr), code);
        EXPECT_FALSE(QorHasUserRight(0));
        CString name;
        EXPECT_FALSE(QorGetLastLogonInfo(name));
        EXPECT_EQ(QorSetLastLogonInfo(TRUE, L"a"), code);
    }

    static void ExpectOtherCalls(DWORD code)
    {
        DWORD value = 1;
        EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), code);
        EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_CHECK, &value, 4), code);
        CStringArray texts;
        EXPECT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), code);
        EXPECT_EQ(QorSetMultiString(QORINFO_SYNC_REG, texts, 1), code);
        EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 256, nullptr, 0), nullptr);
        EXPECT_EQ(GetLastError(), code);
        EXPECT_EQ(QorDeleteSnapshot(1), code);
        EXPECT_EQ(QorDeleteTask(1), code);
        EXPECT_EQ(QorCheckUpdate(), code);
        EXPECT_EQ(QorFillDemoStore(), code);
    }

    static std::string Integrity(const std::wstring& path) { return RawDatabase(path).Query("PRAGMA integrity_check"); }
};

} // namespace

// ------------------------------------------------------------------ opening

TEST_F(StoreFileTest, FirstOpenMakesTheStore)
{
    ASSERT_FALSE(ts::FileExists(StorePath()));
    ASSERT_EQ(QorOpen(), 0U);
    EXPECT_TRUE(ts::FileExists(StorePath()));
    QorClose();
    EXPECT_EQ(RawDatabase(StorePath()).Query("PRAGMA journal_mode"), "wal");
}

TEST_F(StoreFileTest, DefaultStoreStandsInTheUsersFolder)
{
    const ts::EnvironmentVariable none(L"QOR_STORE", nullptr);
    const ts::EnvironmentVariable base(L"LOCALAPPDATA", File(L"not\\yet\\there").c_str());
    ASSERT_EQ(QorOpen(), 0U);
    QorClose();
    EXPECT_TRUE(ts::FileExists(File(L"not\\yet\\there\\Qor\\store.db")));
}

TEST_F(StoreFileTest, CallsWorkWithoutOpen)
{
    LogonBuiltin();
    DWORD value = 0;
    EXPECT_EQ(QorSetInfo(QORINFO_KEEP_UPDATES, &value, 4), 0U);
    value = 9;
    EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), 0U);
    EXPECT_EQ(value, 0U);
}

TEST_F(StoreFileTest, OpensAreCounted)
{
    ASSERT_EQ(QorOpen(), 0U);
    ASSERT_EQ(QorOpen(), 0U);
    QorClose();
    EXPECT_FALSE(DeleteFileW(StorePath().c_str())); // still in use
    QorClose();
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

TEST_F(StoreFileTest, CloseWithoutOpenDoesNothing)
{
    QorClose();
    QorClose();
    ASSERT_EQ(QorOpen(), 0U);
    EXPECT_FALSE(DeleteFileW(StorePath().c_str()));
    QorClose();
}

TEST_F(StoreFileTest, ThreadsHaveConnectionsOfTheirOwn)
{
    ASSERT_EQ(QorOpen(), 0U);
    std::thread([] { QorClose(); }).join();
    EXPECT_FALSE(DeleteFileW(StorePath().c_str()));
    QorClose();
    std::thread([] { EXPECT_EQ(QorOpen(), 0U); }).join(); // ends without QorClose
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

// The system drops a thread's link under a lock that other ending threads want while they have the loader's.
TEST_F(StoreFileTest, EndingThreadClosesItsStoreWithoutTheLoader)
{
    std::atomic<bool> opened = false;
    std::atomic<bool> mayEnd = false;
    std::thread thread([&] {
        EXPECT_EQ(QorOpen(), 0U);
        opened = true;
        mayEnd.wait(false);
    });
    EXPECT_TRUE(ts::PumpUntil([&] { return opened.load(); }, 10000));
    {
        const LoaderLock lock;
        mayEnd = true;
        mayEnd.notify_one();
        EXPECT_TRUE(ts::PumpUntil([&] { return DeleteFileW(StorePath().c_str()) != FALSE; }, 5000));
    }
    thread.join();
}

TEST_F(StoreFileTest, OpeningLeavesNothingBehind)
{
    MakeStore();
    EXPECT_TRUE(ts::NoLeak([] {
        EXPECT_EQ(QorOpen(), 0U);
        EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
        QorClose();
        EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U); // connects for itself
    }));
}

TEST_F(StoreFileTest, RefusedStoreLeavesNothingBehind)
{
    ts::WriteBytes(StorePath(), std::string(5000, 'x'));
    EXPECT_TRUE(ts::NoLeak([] { EXPECT_EQ(QorOpen(), CORRUPT); }));
}

TEST_F(StoreFileTest, EmptyFileBecomesAStore)
{
    ts::WriteBytes(StorePath(), "");
    ASSERT_EQ(QorOpen(), 0U);
    QorClose();
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
}

TEST_F(StoreFileTest, StoreIsKeptBetweenOpens)
{
    MakeStore();
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
    ASSERT_EQ(QorOpen(), 0U);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U);
}

// ------------------------------------------------------------------ refusals

TEST_F(StoreFileTest, FileOfOtherContentIsRefused)
{
    ts::WriteBytes(StorePath(), std::string(5000, 'x'));
    ExpectRefused(CORRUPT);
    ts::WriteBytes(StorePath(), "x");
    ExpectRefused(CORRUPT);
}

TEST_F(StoreFileTest, TruncatedStoreIsRefused)
{
    MakeStore();
    const std::string bytes = ts::ReadBytes(StorePath());
    for (const size_t size : {bytes.size() - 1, bytes.size() / 2, size_t(4096), size_t(100), size_t(50)}) {
        ts::WriteBytes(StorePath(), bytes.substr(0, size));
        EXPECT_EQ(QorOpen(), CORRUPT) << size;
        EXPECT_EQ(ts::ReadBytes(StorePath()), bytes.substr(0, size)) << size;
    }
}

TEST_F(StoreFileTest, OverwrittenPagesAreRefused)
{
    MakeStore();
    const std::string bytes = ts::ReadBytes(StorePath());
    for (const size_t at : {size_t(0), size_t(100), size_t(4096), size_t(3 * 4096), bytes.size() - 4096}) {
        std::string damaged = bytes;
        damaged.replace(at, 64, std::string(64, '\xAA'));
        ts::WriteBytes(StorePath(), damaged);
        EXPECT_EQ(QorOpen(), CORRUPT) << at;
        EXPECT_TRUE(ts::ReadBytes(StorePath()) == damaged) << at;
    }
}

TEST_F(StoreFileTest, DamagedStoreGivesTheErrorFromEveryCall)
{
    MakeStore();
    std::string bytes = ts::ReadBytes(StorePath());
    bytes.replace(4096, 4096, std::string(4096, '\x55'));
    ts::WriteBytes(StorePath(), bytes);
    ExpectRefused(CORRUPT);
}

// A process that was killed leaves a log behind, which the next one takes over: not into a damaged store.
TEST_F(StoreFileTest, DamagedStoreWithALogIsLeftAlone)
{
    MakeStore();
    const std::wstring copy = File(L"copy.db");
    {
        RawDatabase writer(StorePath());
        writer.Run("PRAGMA journal_mode = WAL");
        writer.Run("UPDATE logon SET name = 'kept in the log', remember = 1");
        std::string bytes = ts::ReadBytes(StorePath());
        bytes.replace(size_t{3} * 4096, 64, std::string(64, '\xAA'));
        ts::WriteBytes(copy, bytes);
        ts::WriteBytes(copy + L"-wal", ts::ReadBytes(StorePath() + L"-wal"));
    }
    const std::string store = ts::ReadBytes(copy);
    const std::string log = ts::ReadBytes(copy + L"-wal");
    ASSERT_NE(std::string::npos, log.find("kept in the log"));
    const ts::EnvironmentVariable other(L"QOR_STORE", copy.c_str());
    EXPECT_EQ(QorOpen(), CORRUPT);
    EXPECT_TRUE(ts::ReadBytes(copy) == store);
    EXPECT_TRUE(ts::ReadBytes(copy + L"-wal") == log);
}

TEST_F(StoreFileTest, DatabaseOfAnotherProgramIsRefused)
{
    RawDatabase(StorePath()).Run("CREATE TABLE other(a); INSERT INTO other VALUES(1)");
    ExpectRefused(CORRUPT);
}

TEST_F(StoreFileTest, StoreOfALaterVersionIsRefused)
{
    MakeStore();
    RawDatabase(StorePath()).Run("PRAGMA user_version = 2");
    ExpectRefused(ERROR_REVISION_MISMATCH);
}

TEST_F(StoreFileTest, StoreWithoutATableGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run("DROP TABLE snapshot");
    EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), CORRUPT);
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), CORRUPT);
}

TEST_F(StoreFileTest, RecordOfAnotherSizeGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run("UPDATE task SET record = x'0102' WHERE number = 1");
    _QORVEX_TASK task = {};
    task.wNumber = 1;
    EXPECT_EQ(QorGetTask(task), CORRUPT);
    EXPECT_EQ(QorGetAllInfo(QORLIST_TASKS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), CORRUPT);
    task.wNumber = 0;
    EXPECT_EQ(QorGetTask(task), 0U);
}

TEST_F(StoreFileTest, RecordWhoseNameDoesNotEndGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run(("UPDATE task SET record = x'" + std::string(256, '4') + "'").c_str());
    RawDatabase(StorePath()).Run(("UPDATE snapshot SET record = x'" + std::string(512, '4') + "'").c_str());
    _QORVEX_TASK task = {};
    task.wNumber = 1;
    EXPECT_EQ(QorGetTask(task), CORRUPT);
    EXPECT_EQ(task.szName[0], 0);
    EXPECT_EQ(QorGetAllInfo(QORLIST_TASKS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), CORRUPT);
    EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), CORRUPT);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), CORRUPT);
}

TEST_F(StoreFileTest, DamagedPasswordHashGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run("UPDATE user SET salt = x'01', rounds = 1, hash = x'02' WHERE number = 0");
    EXPECT_EQ(QorLogonUser(L"Administrator", L"a"), CORRUPT);
}

TEST_F(StoreFileTest, MissingFolderIsTold)
{
    const ts::EnvironmentVariable store(L"QOR_STORE", File(L"none\\store.db").c_str());
    ExpectEveryCall(ERROR_PATH_NOT_FOUND);
    EXPECT_FALSE(ts::FileExists(File(L"none")));
}

TEST_F(StoreFileTest, FolderInPlaceOfTheFileIsRefused)
{
    ASSERT_TRUE(CreateDirectoryW(StorePath().c_str(), nullptr));
    ExpectEveryCall(ERROR_ACCESS_DENIED);
}

TEST_F(StoreFileTest, ReadOnlyStoreIsReadAndNotWritten)
{
    MakeStore();
    const std::string before = ts::ReadBytes(StorePath());
    ASSERT_TRUE(SetFileAttributesW(StorePath().c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(QorOpen(), 0U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
    EXPECT_TRUE(QorHasUserRight(QORRIGHT_ALL));
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), DWORD(ERROR_WRITE_PROTECT));
    EXPECT_EQ(QorLogonUser(L"Administrator", nullptr), DWORD(ERROR_WRITE_PROTECT));
    QorClose();
    EXPECT_EQ(ts::ReadBytes(StorePath()), before);
    SetFileAttributesW(StorePath().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(StoreFileTest, FileThatNobodyElseMayOpenGivesTheSystemsCode)
{
    MakeStore();
    const HANDLE file =
        CreateFileW(StorePath().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_EQ(QorOpen(), DWORD(ERROR_SHARING_VIOLATION));
    CloseHandle(file);
    EXPECT_EQ(QorOpen(), 0U);
}

TEST_F(StoreFileTest, WritingWhileAnotherWritesForLongGivesAnError)
{
    MakeStore();
    RawDatabase other(StorePath());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), DWORD(ERROR_LOCK_VIOLATION));
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U); // reading goes on
    other.Run("ROLLBACK");
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), 0U);
}

TEST_F(StoreFileTest, ShortMemoryGivesAnErrorAndIsGotOver)
{
    MakeStore();
    ASSERT_EQ(QorOpen(), 0U);
    DWORD value = 0;
    {
        const ts::MemoryShortage shortage(L"QorApi.dll");
        EXPECT_EQ(QorOpen(), DWORD(ERROR_NOT_ENOUGH_MEMORY));
        EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), DWORD(ERROR_NOT_ENOUGH_MEMORY));
        EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, nullptr, 0), nullptr);
        EXPECT_EQ(GetLastError(), DWORD(ERROR_NOT_ENOUGH_MEMORY));
    }
    EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), 0U);
    EXPECT_EQ(value, 1U);
    QorClose();
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

// ------------------------------------------------------------------ transactions and processes

TEST_F(StoreFileTest, FailedChangeLeavesNothingBehind)
{
    MakeStore();
    RawDatabase(StorePath())
        .Run("CREATE TRIGGER stop BEFORE UPDATE OF rights ON user "
             "BEGIN SELECT RAISE(ABORT, 'stop'); END");
    _QORVEX_USER user = NewUser(L"Changed", 1);
    user.wNumber = 1;
    user.wFieldMask = QORUSER_PROPERTIES;
    EXPECT_NE(QorSetUserInfo(user, nullptr), 0U);
    ASSERT_EQ(QorGetUserInfo(user), 0U);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(StoreFileTest, TwoProcessesShareTheStore)
{
    constexpr int each = 25;
    ts::ProcessResult results[2];
    std::thread threads[2];
    for (int i = 0; i < 2; ++i) {
        const std::wstring name = i ? L"second" : L"first";
        threads[i] = std::thread([&, i, name] {
            results[i] = ts::RunProcess(HelperCommand(L"snapshots " + std::to_wstring(each) + L" " + name));
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(results[0].status, 0U) << results[0].output;
    EXPECT_EQ(results[1].status, 0U) << results[1].output;
    const std::vector<_QORVEX_SNAP> list = ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS);
    ASSERT_EQ(list.size(), 2U * each);
    int first = 0;
    for (int i = 0; i < 2 * each; ++i) {
        EXPECT_EQ(list[i].wNumber, i + 1);
        first += std::wstring(list[i].szName) == L"first";
    }
    EXPECT_EQ(first, each);
}

TEST_F(StoreFileTest, StoreMayBeMadeByManyAtTheSameTime)
{
    for (int round = 0; round < 10; ++round) {
        const ts::EnvironmentVariable store(L"QOR_STORE", File(L"made" + std::to_wstring(round) + L".db").c_str());
        std::vector<std::thread> threads;
        threads.reserve(8);
        for (int i = 0; i < 8; ++i) {
            threads.emplace_back([] {
                EXPECT_EQ(QorOpen(), 0U);
                QorClose();
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
    }
}

TEST_F(StoreFileTest, ChangesOfAnotherProcessAreSeenAtOnce)
{
    ASSERT_EQ(QorOpen(), 0U);
    ASSERT_TRUE(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).empty());
    ASSERT_EQ(ts::RunProcess(HelperCommand(L"snapshots 1 other")).status, 0U);
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 1U);
}

TEST_F(StoreFileTest, StoreSurvivesAProcessThatIsKilledWhileItWrites)
{
    for (int round = 0; round < 4; ++round) {
        const std::wstring started = File(L"started" + std::to_wstring(round));
        std::wstring command = HelperCommand(L"write \"" + started + L"\"");
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION process = {};
        ASSERT_TRUE(
            CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
        EXPECT_TRUE(ts::PumpUntil([&] { return ts::FileExists(started); }, 30000));
        EXPECT_EQ(WaitForSingleObject(process.hProcess, 0), DWORD(WAIT_TIMEOUT));
        TerminateProcess(process.hProcess, 99);
        WaitForSingleObject(process.hProcess, 10000);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);

        CStringArray texts;
        ASSERT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), 0U);
        ASSERT_EQ(texts.GetSize(), 200);
        for (int i = 1; i < texts.GetSize(); ++i) {
            EXPECT_STREQ(texts.GetAt(i), texts.GetAt(0));
        }
        EXPECT_EQ(Integrity(StorePath()), "ok");
    }
}

TEST_F(StoreFileTest, ManyThreadsWorkAtTheSameTime)
{
    LogonBuiltin();
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            EXPECT_EQ(QorOpen(), 0U);
            for (int n = 0; n < 10; ++n) {
                _QORVEX_SNAP snapshot = {};
                SetField(snapshot.szName, L"thread");
                EXPECT_EQ(QorAddSnapshot(snapshot), 0U);
            }
            QorClose();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 40U);
}
