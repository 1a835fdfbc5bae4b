#include "RightsFixture.h"

namespace
{

class SnapshotsTest : public StoreTest
{
  protected:
    static _QORVEX_SNAP Make(LPCWSTR name)
    {
        _QORVEX_SNAP snapshot = {};
        SetField(snapshot.szName, name);
        return snapshot;
    }

    static WORD Add(LPCWSTR name)
    {
        _QORVEX_SNAP snapshot = Make(name);
        EXPECT_EQ(QorAddSnapshot(snapshot), kSuccess);
        return snapshot.wNumber;
    }

    static std::vector<_QORVEX_SNAP> List() { return ListAll<_QORVEX_SNAP>(QORLIST_SNAPSHOTS); }
};

using SnapshotsRightsTest = RightsTest;

} // namespace

TEST_F(SnapshotsTest, ListedRecordHasNumberAndNameAtTheirBytes)
{
    LogonBuiltin();
    _QORVEX_SNAP snapshot = Make(L"Before update");
    snapshot.nSize = 0x123456789ULL;
    snapshot.time = {2024, 2, 0, 29, 13, 45, 59};
    ASSERT_EQ(QorAddSnapshot(snapshot), kSuccess);
    int count = 0;
    const own::TaskMemory memory(QorGetAllInfo(1, 256, &count, 0));
    const auto* bytes = static_cast<const BYTE*>(memory.Get());
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(bytes[0] | bytes[1] << 8, 1);
    EXPECT_EQ(std::wstring(reinterpret_cast<LPCWSTR>(bytes + 112)), L"Before update");
    const auto* record = reinterpret_cast<const _QORVEX_SNAP*>(bytes);
    EXPECT_EQ(record->nSize, 0x123456789ULL);
    EXPECT_EQ(record->time.nDay, 29);
    EXPECT_EQ(record->time.nDayOfWeek, 4);
}

TEST_F(SnapshotsTest, NumbersBeginAtOneAndAreFilledUp)
{
    LogonBuiltin();
    EXPECT_EQ(Add(L"a"), 1);
    EXPECT_EQ(Add(L"b"), 2);
    EXPECT_EQ(Add(L"c"), 3);
    ASSERT_EQ(QorDeleteSnapshot(2), kSuccess);
    EXPECT_EQ(Add(L"d"), 2);
    const std::vector<_QORVEX_SNAP> list = List();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(std::wstring(list[1].szName), L"d");
}

TEST_F(SnapshotsTest, WithoutTimeItIsTakenNow)
{
    LogonBuiltin();
    _QORVEX_SNAP snapshot = Make(L"now");
    ASSERT_EQ(QorAddSnapshot(snapshot), kSuccess);
    SYSTEMTIME now = {};
    SYSTEMTIME taken = {};
    GetLocalTime(&now);
    ASSERT_TRUE(QorTime2SysTime(snapshot.time, taken));
    FILETIME first = {};
    FILETIME second = {};
    ASSERT_TRUE(SystemTimeToFileTime(&taken, &first) && SystemTimeToFileTime(&now, &second));
    const ULONGLONG difference = (ULONGLONG(second.dwHighDateTime) << 32 | second.dwLowDateTime) -
                                 (ULONGLONG(first.dwHighDateTime) << 32 | first.dwLowDateTime);
    EXPECT_LT(difference, 60ULL * 10000000);
}

TEST_F(SnapshotsTest, UnfitRecordsAreRefused)
{
    LogonBuiltin();
    _QORVEX_SNAP blank = Make(L"  ");
    EXPECT_EQ(QorAddSnapshot(blank), DWORD(ERROR_INVALID_NAME));
    _QORVEX_SNAP endless = Make(std::wstring(64, L'x').c_str());
    EXPECT_EQ(QorAddSnapshot(endless), DWORD(ERROR_INVALID_NAME));
    _QORVEX_SNAP time = Make(L"a");
    time.time = {2023, 2, 0, 29, 0, 0, 0};
    EXPECT_EQ(QorAddSnapshot(time), DWORD(ERROR_INVALID_TIME));
    EXPECT_TRUE(List().empty());
}

TEST_F(SnapshotsTest, RenamedSnapshotKeepsEverythingElse)
{
    LogonBuiltin();
    _QORVEX_SNAP snapshot = Make(L"old");
    snapshot.nSize = 42;
    ASSERT_EQ(QorAddSnapshot(snapshot), kSuccess);
    ASSERT_EQ(QorRenameSnapshot(1, L" new "), kSuccess);
    SetField(snapshot.szName, L"new");
    EXPECT_EQ(memcmp(&List()[0], &snapshot, sizeof(snapshot)), 0);
    EXPECT_EQ(QorRenameSnapshot(1, L" "), DWORD(ERROR_INVALID_NAME));
    EXPECT_EQ(QorRenameSnapshot(1, nullptr), DWORD(ERROR_INVALID_NAME));
    EXPECT_EQ(QorRenameSnapshot(1, std::wstring(64, L'x').c_str()), DWORD(ERROR_INVALID_NAME));
    EXPECT_EQ(QorRenameSnapshot(1, std::wstring(63, L'x').c_str()), kSuccess);
}

TEST_F(SnapshotsTest, LockedSnapshotIsNotDeleted)
{
    LogonBuiltin();
    Add(L"a");
    ASSERT_EQ(QorLockSnapshot(1, TRUE), kSuccess);
    EXPECT_EQ(List()[0].wFlags, QORSNAP_LOCKED);
    EXPECT_EQ(QorDeleteSnapshot(1), DWORD(ERROR_LOCKED));
    ASSERT_EQ(QorLockSnapshot(1, FALSE), kSuccess);
    EXPECT_EQ(QorDeleteSnapshot(1), kSuccess);
    EXPECT_TRUE(List().empty());
}

TEST_F(SnapshotsTest, MissingSnapshotsAreTold)
{
    LogonBuiltin();
    EXPECT_EQ(QorDeleteSnapshot(1), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(QorRenameSnapshot(1, L"a"), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(QorLockSnapshot(QORSNAP_LATEST, TRUE), DWORD(ERROR_NOT_FOUND));
}

TEST_F(SnapshotsRightsTest, SnapshotsNeedTheirRights)
{
    MakeRecords();
    LogonAs(L"none", QORRIGHT_ALL & ~(QORRIGHT_TAKESNAP | QORRIGHT_DELSNAP));
    _QORVEX_SNAP snapshot = Snapshot();
    EXPECT_EQ(QorAddSnapshot(snapshot), kDenied);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), kDenied);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), kDenied);
    EXPECT_EQ(QorDeleteSnapshot(1), kDenied);
    LogonAs(L"take", QORRIGHT_TAKESNAP);
    EXPECT_EQ(QorAddSnapshot(snapshot), kSuccess);
    EXPECT_EQ(QorRenameSnapshot(1, L"b"), kSuccess);
    EXPECT_EQ(QorDeleteSnapshot(1), kDenied);
    LogonAs(L"delete", QORRIGHT_DELSNAP);
    EXPECT_EQ(QorDeleteSnapshot(1), kSuccess);
    EXPECT_EQ(QorAddSnapshot(snapshot), kDenied);
}
