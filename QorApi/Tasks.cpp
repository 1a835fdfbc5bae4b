#include "Tasks.h"

#include "Names.h"
#include "Records.h"

#include <QorApi/logon/Session.h>

namespace
{

constexpr BYTE kLastHour = 23;

int GetKind(const _QORVEX_TASK& task)
{
    return task.nKind >> 2;
}

bool IsSchedule(BYTE schedule)
{
    return (schedule >= QORSCHED_ONETIME && schedule <= QORSCHED_LOGOFF) || schedule == QORSCHED_SHUTDOWN;
}

bool DoGoTogether(int kind, BYTE schedule)
{
    if (schedule == QORSCHED_LOGOFF) {
        return kind == QORTASK_ROLLBACK;
    }
    return schedule != QORSCHED_SHUTDOWN || kind == QORTASK_DEFRAG;
}

bool IsValid(const _QORVEX_TASK& task)
{
    CString name;
    const int kind = GetKind(task);
    return kind >= QORTASK_ROLLBACK && kind <= QORTASK_DEFRAG && IsSchedule(task.nSchedule) &&
           DoGoTogether(kind, task.nSchedule) && task.nFirstHour <= kLastHour && task.nLastHour <= kLastHour &&
           ReadField(task.szName, name) && !name.IsEmpty();
}

DWORD NeedRightFor(Database& db, const _QORVEX_TASK& task)
{
    switch (GetKind(task)) {
    case QORTASK_ROLLBACK:
        return NeedRights(db, QORRIGHT_SCHROLL);
    case QORTASK_SNAPSHOT:
        return NeedRights(db, QORRIGHT_SCHSNAP);
    default:
        return NeedRights(db, QORRIGHT_SETTINGS);
    }
}

/** Loads a task that the logged-on user may change. */
DWORD LoadOwn(Database& db, WORD number, _QORVEX_TASK& task)
{
    Account user;
    DWORD status = Session::GetUser(db, user);
    if (status == ERROR_SUCCESS) {
        status = kTaskTable.Load(db, number, task);
    }
    return status == ERROR_SUCCESS ? NeedRightFor(db, task) : status;
}

} // namespace

DWORD QorGetTask(_QORVEX_TASK& task)
{
    _QORVEX_TASK found = {};
    const DWORD status = ReadStore([&](Database& db) { return kTaskTable.Load(db, task.wNumber, found); });
    if (status == ERROR_SUCCESS) {
        task = found;
    }
    return status;
}

DWORD QorAddTask(_QORVEX_TASK& task)
{
    if (!IsValid(task)) {
        return ERROR_INVALID_DATA;
    }
    return AddRecord(kTaskTable, task, [&](Database& db) { return NeedRightFor(db, task); });
}

DWORD QorSetTask(const _QORVEX_TASK& task)
{
    if (!IsValid(task)) {
        return ERROR_INVALID_DATA;
    }
    return WriteStore([&](Database& db) {
        _QORVEX_TASK former;
        DWORD status = LoadOwn(db, task.wNumber, former);
        if (status == ERROR_SUCCESS) {
            status = NeedRightFor(db, task);
        }
        return status == ERROR_SUCCESS ? kTaskTable.Store(db, task.wNumber, &task) : status;
    });
}

DWORD QorDeleteTask(WORD number)
{
    return WriteStore([&](Database& db) {
        _QORVEX_TASK task;
        const DWORD status = LoadOwn(db, number, task);
        return status == ERROR_SUCCESS ? kTaskTable.Delete(db, number) : status;
    });
}
