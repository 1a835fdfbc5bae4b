#include "Demo.h"

#include "Names.h"

#include <common/Owner.h>
#include <QorApi/logon/Session.h>

namespace
{

struct DemoUser
{
    LPCWSTR name;
    LPCWSTR description;
    DWORD rights;
    WORD flags;
};

constexpr DemoUser kUsers[] = {
    {L"Anna", L"Looks after the computers of the office", QORRIGHT_ALL & ~QORRIGHT_UNINSTALL, 0},
    {L"Ben", L"Takes snapshots and restores files", QORRIGHT_TAKESNAP | QORRIGHT_RESFILES | QORRIGHT_PASSWORD, 0},
    {L"Carla", L"May roll the system back", QORRIGHT_ROLLSYS | QORRIGHT_TAKESNAP | QORRIGHT_SCHROLL | QORRIGHT_PASSWORD,
     0},
    {L"Guest", L"Not in use at present", 0, QORUSER_INACTIVE},
};

struct DemoSnapshot
{
    LPCWSTR name;
    _QORTIME time;
    ULONGLONG megabytes;
    WORD flags;
};

constexpr DemoSnapshot kSnapshots[] = {
    {L"Clean installation", {2024, 3, 1, 4, 9, 15, 0}, 18432, QORSNAP_LOCKED},
    {L"After office software", {2024, 3, 1, 4, 11, 42, 10}, 3120, 0},
    {L"Before printer driver", {2024, 3, 4, 14, 8, 5, 33}, 212, 0},
    {L"Weekly snapshot", {2024, 4, 1, 1, 12, 0, 0}, 845, 0},
    {L"Before system update", {2024, 4, 3, 10, 17, 30, 5}, 1490, QORSNAP_LOCKED},
};

constexpr LPCWSTR kRegistryList[] = {
    L"HKCU\\Software\\Qor\\",
    L"HKCU\\Control Panel\\Desktop\\Wallpaper",
    L"HKLM\\SOFTWARE\\Qor\\",
    L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\ComputerName\\ComputerName\\ComputerName",
};

/** The tasks' names and what makes each of them different from an empty record. */
_QORVEX_TASK MakeTask(LPCWSTR name, BYTE kind, BYTE schedule)
{
    _QORVEX_TASK task = {};
    task.wNumber = QORTASK_MAX + 1;
    task.nKind = static_cast<BYTE>(kind << 2);
    task.nSchedule = schedule;
    WriteField(task.szName, name);
    if (kind == QORTASK_ROLLBACK) {
        task.nTarget = 2;
        task.nOthers = 1;
        task.wSnapshot = QORSNAP_LATEST;
    }
    return task;
}

std::vector<_QORVEX_TASK> MakeTasks()
{
    constexpr BYTE kWorkdays = 0x3E;
    _QORVEX_TASK hourly = MakeTask(L"Snapshot every hour", QORTASK_SNAPSHOT, QORSCHED_HOURLY);
    hourly.nFirstHour = 8;
    hourly.nLastHour = 18;
    hourly.nDayMask = kWorkdays;
    hourly.nKeepDays = 3;
    hourly.start.nMinute = 30;

    _QORVEX_TASK weekly = MakeTask(L"Weekly snapshot", QORTASK_SNAPSHOT, QORSCHED_WEEKLY);
    weekly.nOptions = QORTASK_LOCKSNAP;
    weekly.start = {2024, 4, 1, 1, 12, 0, 0};

    _QORVEX_TASK restart = MakeTask(L"Roll back at restart", QORTASK_ROLLBACK, QORSCHED_RESTART);
    restart.nSuspend = 1;
    restart.nFirstHour = 7;
    restart.nLastHour = 9;
    restart.start.nDayOfWeek = 7;

    _QORVEX_TASK tidy = MakeTask(L"Tidy up at shut-down", QORTASK_DEFRAG, QORSCHED_SHUTDOWN);
    tidy.nOptions = QORTASK_SHUTDOWN;
    return {hourly, weekly, restart, tidy};
}

/** Whether a list already has a record of this name. */
template <class Record>
bool HasName(UINT kind, LPCWSTR name)
{
    int count = 0;
    const own::TaskMemory memory(QorGetAllInfo(kind, sizeof(Record), &count, 0));
    const auto* records = static_cast<const Record*>(memory.Get());
    for (int i = 0; i < count; ++i) {
        if (FoldName(records[i].szName) == FoldName(name)) {
            return true;
        }
    }
    return false;
}

DWORD FillUsers()
{
    for (const DemoUser& sample : kUsers) {
        if (HasName<_QORVEX_USER>(QORLIST_USERS, sample.name)) {
            continue;
        }
        _QORVEX_USER user = {};
        user.wNumber = QORUSER_MAX + 1;
        user.wFieldMask = QORUSER_NEW;
        user.wFlags = sample.flags;
        user.dwRights = sample.rights;
        WriteField(user.szName, sample.name);
        WriteField(user.szDesc, sample.description);
        if (const DWORD status = QorAddUser(user, nullptr); status != ERROR_SUCCESS) {
            return status;
        }
    }
    return ERROR_SUCCESS;
}

DWORD FillSnapshots()
{
    constexpr ULONGLONG kMegabyte = 1024ULL * 1024;
    for (const DemoSnapshot& sample : kSnapshots) {
        if (HasName<_QORVEX_SNAP>(QORLIST_SNAPSHOTS, sample.name)) {
            continue;
        }
        _QORVEX_SNAP snapshot = {};
        snapshot.wFlags = sample.flags;
        snapshot.time = sample.time;
        snapshot.nSize = sample.megabytes * kMegabyte;
        WriteField(snapshot.szName, sample.name);
        if (const DWORD status = QorAddSnapshot(snapshot); status != ERROR_SUCCESS) {
            return status;
        }
    }
    return ERROR_SUCCESS;
}

DWORD FillTasks()
{
    for (_QORVEX_TASK& task : MakeTasks()) {
        if (HasName<_QORVEX_TASK>(QORLIST_TASKS, task.szName)) {
            continue;
        }
        if (const DWORD status = QorAddTask(task); status != ERROR_SUCCESS) {
            return status;
        }
    }
    return ERROR_SUCCESS;
}

DWORD FillRegistryList()
{
    CStringArray entries;
    for (LPCWSTR entry : kRegistryList) {
        entries.Add(entry);
    }
    return QorSetMultiString(QORINFO_SYNC_REG, entries, 0);
}

} // namespace

DWORD QorFillDemoStore()
{
    DWORD status = ReadStore([](Database& db) { return NeedRights(db, QORRIGHT_ALL); });
    if (status == ERROR_SUCCESS) {
        status = FillUsers();
    }
    if (status == ERROR_SUCCESS) {
        status = FillSnapshots();
    }
    if (status == ERROR_SUCCESS) {
        status = FillTasks();
    }
    return status == ERROR_SUCCESS ? FillRegistryList() : status;
}
