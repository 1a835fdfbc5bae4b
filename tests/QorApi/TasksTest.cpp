#include "RightsFixture.h"

namespace
{

class TasksTest : public StoreTest
{
  protected:
    static _QORVEX_TASK Make(LPCWSTR name, int kind = QORTASK_ROLLBACK, BYTE schedule = QORSCHED_DAILY)
    {
        _QORVEX_TASK task = {};
        task.wNumber = QORTASK_MAX + 1;
        task.nKind = static_cast<BYTE>(kind << 2);
        task.nSchedule = schedule;
        SetField(task.szName, name);
        return task;
    }

    static DWORD Add(_QORVEX_TASK task) { return QorAddTask(task); }

    static std::vector<_QORVEX_TASK> List() { return ListAll<_QORVEX_TASK>(QORLIST_TASKS); }
};

using TasksRightsTest = RightsTest;

} // namespace

TEST(TasksRecord, FieldsStandAtTheirBytes)
{
    _QORVEX_TASK task = {};
    task.wNumber = 0x0201;
    task.nKind = 3;
    task.nSchedule = 4;
    task.nFirstHour = 5;
    task.nLastHour = 6;
    task.nDayMask = 7;
    task.nOptions = 9;
    task.nKeepDays = 10;
    task.nTarget = 11;
    task.nOthers = 12;
    task.nSuspend = 13;
    task.wSnapshot = 0x2221;
    SetField(task.szName, L"N");
    const auto* bytes = reinterpret_cast<const BYTE*>(&task);
    for (const int i : {0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12}) {
        EXPECT_EQ(bytes[i], i + 1);
    }
    EXPECT_EQ(bytes[32], 0x21);
    EXPECT_EQ(bytes[33], 0x22);
    EXPECT_EQ(bytes[64], 'N');
    EXPECT_EQ(sizeof(task), 128U);
}

TEST_F(TasksTest, AddedTaskIsReadBackByteForByte)
{
    LogonBuiltin();
    _QORVEX_TASK task = Make(L"Task", QORTASK_SNAPSHOT, QORSCHED_HOURLY);
    task.nKind |= 3;
    task.nFirstHour = 5;
    task.nLastHour = 23;
    task.nDayMask = 0x3E;
    task.nKeepDays = 7;
    task.start.nMinute = 30;
    ASSERT_EQ(QorAddTask(task), kSuccess);
    EXPECT_EQ(task.wNumber, 0);
    _QORVEX_TASK read = {};
    ASSERT_EQ(QorGetTask(read), kSuccess);
    EXPECT_EQ(memcmp(&read, &task, sizeof(task)), 0);
    ASSERT_EQ(List().size(), 1U);
    EXPECT_EQ(memcmp(&List()[0], &task, sizeof(task)), 0);
}

TEST_F(TasksTest, NumbersAreFilledUp)
{
    LogonBuiltin();
    for (LPCWSTR name : {L"a", L"b", L"c"}) {
        ASSERT_EQ(Add(Make(name)), kSuccess);
    }
    ASSERT_EQ(QorDeleteTask(1), kSuccess);
    ASSERT_EQ(Add(Make(L"d")), kSuccess);
    EXPECT_EQ(std::wstring(List()[1].szName), L"d");
}

TEST_F(TasksTest, ThirtyThirdTaskIsRefused)
{
    ASSERT_EQ(QorOpen(), kSuccess);
    LogonBuiltin();
    for (int i = 0; i < 32; ++i) {
        ASSERT_EQ(Add(Make(L"task")), kSuccess);
    }
    EXPECT_EQ(List().back().wNumber, 31);
    EXPECT_EQ(Add(Make(L"one too many")), DWORD(ERROR_NOT_ENOUGH_QUOTA));
}

TEST_F(TasksTest, SetReplacesTheRecord)
{
    LogonBuiltin();
    _QORVEX_TASK task = Make(L"old");
    ASSERT_EQ(QorAddTask(task), kSuccess);
    task = Make(L"new", QORTASK_DEFRAG, QORSCHED_SHUTDOWN);
    task.wNumber = 0;
    ASSERT_EQ(QorSetTask(task), kSuccess);
    ASSERT_EQ(List().size(), 1U);
    EXPECT_EQ(memcmp(&List()[0], &task, sizeof(task)), 0);
}

TEST_F(TasksTest, MissingTasksAreTold)
{
    LogonBuiltin();
    _QORVEX_TASK task = Make(L"a");
    task.wNumber = 3;
    EXPECT_EQ(QorGetTask(task), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(std::wstring(task.szName), L"a");
    EXPECT_EQ(QorSetTask(task), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(QorDeleteTask(3), DWORD(ERROR_NOT_FOUND));
    EXPECT_TRUE(List().empty());
}

TEST_F(TasksTest, KindsAndSchedulesThatGoTogetherAreTaken)
{
    ASSERT_EQ(QorOpen(), kSuccess);
    LogonBuiltin();
    const BYTE schedules[] = {1, 2, 3, 4, 5, 6, 7, 10};
    for (int kind = 1; kind <= 3; ++kind) {
        for (const BYTE schedule : schedules) {
            const bool fit = schedule <= 6 || (schedule == 7 && kind == 1) || (schedule == 10 && kind == 3);
            EXPECT_EQ(Add(Make(L"a", kind, schedule)), fit ? 0U : DWORD(ERROR_INVALID_DATA))
                << kind << " " << int(schedule);
        }
    }
}

TEST_F(TasksTest, UnfitRecordsAreRefused)
{
    LogonBuiltin();
    constexpr DWORD kRefused = ERROR_INVALID_DATA;
    EXPECT_EQ(Add(Make(L"a", 0)), kRefused);
    EXPECT_EQ(Add(Make(L"a", 4)), kRefused);
    for (const BYTE schedule : {0, 8, 9, 11, 255}) {
        EXPECT_EQ(Add(Make(L"a", 1, schedule)), kRefused) << int(schedule);
    }
    EXPECT_EQ(Add(Make(L"  ")), kRefused);
    EXPECT_EQ(Add(Make(std::wstring(32, L'x').c_str())), kRefused);
    _QORVEX_TASK hours = Make(L"a");
    hours.nFirstHour = 24;
    EXPECT_EQ(Add(hours), kRefused);
    hours.nFirstHour = 0;
    hours.nLastHour = 24;
    EXPECT_EQ(Add(hours), kRefused);
    EXPECT_TRUE(List().empty());
}

TEST_F(TasksRightsTest, TasksNeedTheRightOfTheirKind)
{
    const DWORD rights[] = {QORRIGHT_SCHROLL, QORRIGHT_SCHSNAP, QORRIGHT_SETTINGS};
    for (int kind = QORTASK_ROLLBACK; kind <= QORTASK_DEFRAG; ++kind) {
        const DWORD right = rights[kind - 1];
        LogonAs((L"without" + std::to_wstring(kind)).c_str(), QORRIGHT_ALL & ~right);
        EXPECT_EQ(AddTask(kind), kDenied) << kind;
        LogonAs((L"with" + std::to_wstring(kind)).c_str(), right);
        EXPECT_EQ(AddTask(kind), kSuccess) << kind;
    }
}

TEST_F(TasksRightsTest, ChangingATasksKindNeedsBothRights)
{
    MakeRecords();
    LogonAs(L"old", QORRIGHT_SCHROLL);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), kDenied);
    LogonAs(L"new", QORRIGHT_SCHSNAP);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), kDenied);
    EXPECT_EQ(QorDeleteTask(0), kDenied);
    LogonAs(L"both", QORRIGHT_SCHROLL | QORRIGHT_SCHSNAP);
    EXPECT_EQ(SetTask(QORTASK_SNAPSHOT), kSuccess);
}
