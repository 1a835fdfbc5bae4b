#include "StoreFileFixture.h"

#include <tests/support/MemoryShortage.h>

#include <atomic>
#include <thread>

namespace
{

using ConnectionTest = StoreFileTest;

} // namespace

TEST_F(ConnectionTest, CallsWorkWithoutOpen)
{
    LogonBuiltin();
    DWORD value = 0;
    EXPECT_EQ(QorSetInfo(QORINFO_KEEP_UPDATES, &value, 4), kSuccess);
    value = 9;
    EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), kSuccess);
    EXPECT_EQ(value, 0U);
}

TEST_F(ConnectionTest, OpensAreCounted)
{
    ASSERT_EQ(QorOpen(), kSuccess);
    ASSERT_EQ(QorOpen(), kSuccess);
    QorClose();
    EXPECT_FALSE(DeleteFileW(StorePath().c_str())); // still in use
    QorClose();
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

TEST_F(ConnectionTest, CloseWithoutOpenDoesNothing)
{
    QorClose();
    QorClose();
    ASSERT_EQ(QorOpen(), kSuccess);
    EXPECT_FALSE(DeleteFileW(StorePath().c_str()));
    QorClose();
}

TEST_F(ConnectionTest, ThreadsHaveConnectionsOfTheirOwn)
{
    ASSERT_EQ(QorOpen(), kSuccess);
    std::thread([] { QorClose(); }).join();
    EXPECT_FALSE(DeleteFileW(StorePath().c_str()));
    QorClose();
    std::thread([] { EXPECT_EQ(QorOpen(), kSuccess); }).join(); // ends without QorClose
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

// The system drops a thread's link under a lock that other ending threads want while they have the loader's.
TEST_F(ConnectionTest, EndingThreadClosesItsStoreWithoutTheLoader)
{
    std::atomic<bool> opened = false;
    std::atomic<bool> mayEnd = false;
    std::thread thread([&] {
        EXPECT_EQ(QorOpen(), kSuccess);
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

TEST_F(ConnectionTest, OpeningLeavesNothingBehind)
{
    MakeStore();
    EXPECT_TRUE(ts::NoLeak([] {
        EXPECT_EQ(QorOpen(), kSuccess);
        EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 5U);
        QorClose();
        EXPECT_EQ(ListAll<_QORVEX_TASK>(QORLIST_TASKS).size(), 4U); // connects for itself
    }));
}

TEST_F(ConnectionTest, ShortMemoryGivesAnErrorAndIsGotOver)
{
    MakeStore();
    ASSERT_EQ(QorOpen(), kSuccess);
    DWORD value = 0;
    {
        const ts::MemoryShortage shortage(L"QorApi.dll");
        EXPECT_EQ(QorOpen(), DWORD(ERROR_NOT_ENOUGH_MEMORY));
        EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), DWORD(ERROR_NOT_ENOUGH_MEMORY));
        EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, nullptr, 0), nullptr);
        EXPECT_EQ(GetLastError(), DWORD(ERROR_NOT_ENOUGH_MEMORY));
    }
    EXPECT_EQ(QorGetInfo(QORINFO_KEEP_UPDATES, &value, 4), kSuccess);
    EXPECT_EQ(value, 1U);
    QorClose();
    EXPECT_TRUE(DeleteFileW(StorePath().c_str()));
}

TEST_F(ConnectionTest, FailedChangeLeavesNothingBehind)
{
    MakeStore();
    RawDatabase(StorePath())
        .Run("CREATE TRIGGER stop BEFORE UPDATE OF rights ON user "
             "BEGIN SELECT RAISE(ABORT, 'stop'); END");
    _QORVEX_USER user = NewUser(L"Changed", 1);
    user.wNumber = 1;
    user.wFieldMask = QORUSER_PROPERTIES;
    EXPECT_NE(QorSetUserInfo(user, nullptr), kSuccess);
    ASSERT_EQ(QorGetUserInfo(user), kSuccess);
    EXPECT_EQ(std::wstring(user.szName), L"Anna");
}

TEST_F(ConnectionTest, ManyThreadsWorkAtTheSameTime)
{
    LogonBuiltin();
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            EXPECT_EQ(QorOpen(), kSuccess);
            for (int n = 0; n < 10; ++n) {
                _QORVEX_SNAP snapshot = {};
                SetField(snapshot.szName, L"thread");
                EXPECT_EQ(QorAddSnapshot(snapshot), kSuccess);
            }
            QorClose();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS).size(), 40U);
}
