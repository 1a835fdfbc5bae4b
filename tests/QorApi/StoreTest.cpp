#include "StoreFileFixture.h"

#include <atomic>
#include <thread>

TEST_F(StoreFileTest, FirstOpenMakesTheStore)
{
    ASSERT_FALSE(ts::FileExists(StorePath()));
    ASSERT_EQ(QorOpen(), kSuccess);
    EXPECT_TRUE(ts::FileExists(StorePath()));
    QorClose();
    EXPECT_EQ(RawDatabase(StorePath()).Query("PRAGMA journal_mode"), "wal");
}

TEST_F(StoreFileTest, DefaultStoreStandsInTheUsersFolder)
{
    const ts::EnvironmentVariable none(L"QOR_STORE", nullptr);
    const ts::EnvironmentVariable base(L"LOCALAPPDATA", File(L"not\\yet\\there").c_str());
    ASSERT_EQ(QorOpen(), kSuccess);
    QorClose();
    EXPECT_TRUE(ts::FileExists(File(L"not\\yet\\there\\Qor\\store.db")));
}

TEST_F(StoreFileTest, RefusedStoreLeavesNothingBehind)
{
    ts::WriteBytes(StorePath(), std::string(5000, 'x'));
    EXPECT_TRUE(ts::NoLeak([] { EXPECT_EQ(QorOpen(), kCorrupt); }));
}

TEST_F(StoreFileTest, EmptyFileBecomesAStore)
{
    ts::WriteBytes(StorePath(), "");
    ASSERT_EQ(QorOpen(), kSuccess);
    QorClose();
    EXPECT_EQ(ListAll<_QORVEX_USER>(QORLIST_USERS).size(), 1U);
}

TEST_F(StoreFileTest, StoreIsKeptBetweenOpens)
{
    MakeStore();
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
    ASSERT_EQ(QorOpen(), kSuccess);
    EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U);
}

TEST_F(StoreFileTest, FileOfOtherContentIsRefused)
{
    ts::WriteBytes(StorePath(), std::string(5000, 'x'));
    ExpectRefused(kCorrupt);
    ts::WriteBytes(StorePath(), "x");
    ExpectRefused(kCorrupt);
}

TEST_F(StoreFileTest, TruncatedStoreIsRefused)
{
    MakeStore();
    const std::string bytes = ts::ReadBytes(StorePath());
    for (const size_t size : {bytes.size() - 1, bytes.size() / 2, size_t(4096), size_t(100), size_t(50)}) {
        ts::WriteBytes(StorePath(), bytes.substr(0, size));
        EXPECT_EQ(QorOpen(), kCorrupt) << size;
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
        EXPECT_EQ(QorOpen(), kCorrupt) << at;
        EXPECT_TRUE(ts::ReadBytes(StorePath()) == damaged) << at;
    }
}

TEST_F(StoreFileTest, DamagedStoreGivesTheErrorFromEveryCall)
{
    MakeStore();
    std::string bytes = ts::ReadBytes(StorePath());
    bytes.replace(4096, 4096, std::string(4096, '\x55'));
    ts::WriteBytes(StorePath(), bytes);
    ExpectRefused(kCorrupt);
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
    EXPECT_EQ(QorOpen(), kCorrupt);
    EXPECT_TRUE(ts::ReadBytes(copy) == store);
    EXPECT_TRUE(ts::ReadBytes(copy + L"-wal") == log);
}

TEST_F(StoreFileTest, DatabaseOfAnotherProgramIsRefused)
{
    RawDatabase(StorePath()).Run("CREATE TABLE other(a); INSERT INTO other VALUES(1)");
    ExpectRefused(kCorrupt);
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
    EXPECT_EQ(GetLastError(), kCorrupt);
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), kCorrupt);
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
    EXPECT_EQ(QorOpen(), kSuccess);
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
    own::File file(
        CreateFileW(StorePath().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(file);
    EXPECT_EQ(QorOpen(), DWORD(ERROR_SHARING_VIOLATION));
    file.Reset();
    EXPECT_EQ(QorOpen(), kSuccess);
}

TEST_F(StoreFileTest, WritingWhileAnotherWritesForLongGivesAnError)
{
    MakeStore();
    RawDatabase other(StorePath());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), DWORD(ERROR_LOCK_VIOLATION));
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U); // reading goes on
    other.Run("ROLLBACK");
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), kSuccess);
}

TEST_F(StoreFileTest, TwoProcessesShareTheStore)
{
    constexpr int kEach = 25;
    ts::ProcessResult results[2];
    std::thread threads[2];
    for (int i = 0; i < 2; ++i) {
        const std::wstring name = i ? L"second" : L"first";
        threads[i] = std::thread([&, i, name] {
            results[i] = ts::RunProcess(HelperCommand(L"snapshots " + std::to_wstring(kEach) + L" " + name));
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(results[0].status, kSuccess) << results[0].output;
    EXPECT_EQ(results[1].status, kSuccess) << results[1].output;
    const std::vector<_QORVEX_SNAP> list = ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS);
    ASSERT_EQ(list.size(), 2U * kEach);
    int first = 0;
    for (int i = 0; i < 2 * kEach; ++i) {
        EXPECT_EQ(list[i].wNumber, i + 1);
        first += std::wstring(list[i].szName) == L"first";
    }
    EXPECT_EQ(first, kEach);
}

TEST_F(StoreFileTest, StoreMayBeMadeByManyAtTheSameTime)
{
    for (int round = 0; round < 10; ++round) {
        const ts::EnvironmentVariable store(L"QOR_STORE", File(L"made" + std::to_wstring(round) + L".db").c_str());
        std::vector<std::thread> threads;
        threads.reserve(8);
        for (int i = 0; i < 8; ++i) {
            threads.emplace_back([] {
                EXPECT_EQ(QorOpen(), kSuccess);
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
    ASSERT_EQ(QorOpen(), kSuccess);
    ASSERT_TRUE(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).empty());
    ASSERT_EQ(ts::RunProcess(HelperCommand(L"snapshots 1 other")).status, kSuccess);
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
        const own::KernelObject thread(process.hThread);
        const own::KernelObject owner(process.hProcess);
        EXPECT_TRUE(ts::PumpUntil([&] { return ts::FileExists(started); }, 30000));
        EXPECT_EQ(WaitForSingleObject(process.hProcess, 0), DWORD(WAIT_TIMEOUT));
        TerminateProcess(process.hProcess, 99);
        WaitForSingleObject(process.hProcess, 10000);

        CStringArray texts;
        ASSERT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), kSuccess);
        ASSERT_EQ(texts.GetSize(), 200);
        for (int i = 1; i < texts.GetSize(); ++i) {
            EXPECT_STREQ(texts.GetAt(i), texts.GetAt(0));
        }
        EXPECT_EQ(Integrity(StorePath()), "ok");
    }
}
