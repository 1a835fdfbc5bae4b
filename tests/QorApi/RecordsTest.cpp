#include "StoreFileFixture.h"

namespace
{

using RecordsTest = StoreFileTest;

} // namespace

TEST_F(RecordsTest, RecordOfAnotherSizeGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run("UPDATE task SET record = x'0102' WHERE number = 1");
    _QORVEX_TASK task = {};
    task.wNumber = 1;
    EXPECT_EQ(QorGetTask(task), kCorrupt);
    EXPECT_EQ(QorGetAllInfo(QORLIST_TASKS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), kCorrupt);
    task.wNumber = 0;
    EXPECT_EQ(QorGetTask(task), kSuccess);
}

TEST_F(RecordsTest, RecordWhoseNameDoesNotEndGivesAnError)
{
    MakeStore();
    RawDatabase(StorePath()).Run(("UPDATE task SET record = x'" + std::string(256, '4') + "'").c_str());
    RawDatabase(StorePath()).Run(("UPDATE snapshot SET record = x'" + std::string(512, '4') + "'").c_str());
    _QORVEX_TASK task = {};
    task.wNumber = 1;
    EXPECT_EQ(QorGetTask(task), kCorrupt);
    EXPECT_EQ(task.szName[0], 0);
    EXPECT_EQ(QorGetAllInfo(QORLIST_TASKS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), kCorrupt);
    EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), kCorrupt);
    EXPECT_EQ(QorLockSnapshot(1, TRUE), kCorrupt);
}
