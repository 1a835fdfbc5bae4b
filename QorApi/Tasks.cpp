#include "Names.h"
#include "Records.h"
#include "Session.h"

namespace
{

constexpr BYTE LAST_HOUR = 23;

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
           DoGoTogether(kind, task.nSchedule) && task.nFirstHour <= LAST_HOUR && task.nLastHour <= LAST_HOUR &&
           ReadField(task.szName, name) && !name.IsEmpty();
}

DWORD NeedRightFor(CDatabase& db, const _QORVEX_TASK& task)
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
DWORD LoadOwn(CDatabase& db, WORD number, _QORVEX_TASK& task)
{
    ACCOUNT user;
    DWORD status = CSession::GetUser(db, user);
    if (status == 0) {
        status = TASK_TABLE.Load(db, number, task);
    }
    return status ? status : NeedRightFor(db, task);
}

} // namespace

DWORD QorGetTask(_QORVEX_TASK& task)
{
    _QORVEX_TASK found = {};
    const DWORD status = ReadStore([&](CDatabase& db) { return TASK_TABLE.Load(db, task.wNumber, found); });
    if (status == 0) {
        task = found;
    }
    return status;
}

DWORD QorAddTask(_QORVEX_TASK& task)
{
    if (!IsValid(task)) {
        return ERROR_INVALID_DATA;
    }
    return AddRecord(TASK_TABLE, task, [&](CDatabase& db) { return NeedRightFor(db, task); });
}

DWORD QorSetTask(const _QORVEX_TASK& task)
{
    if (!IsValid(task)) {
        return ERROR_INVALID_DATA;
    }
    return WriteStore([&](CDatabase& db) {
        _QORVEX_TASK former;
        DWORD status = LoadOwn(db, task.wNumber, former);
        if (status == 0) {
            status = NeedRightFor(db, task);
        }
        return status ? status : TASK_TABLE.Store(db, task.wNumber, &task);
    });
}

DWORD QorDeleteTask(WORD number)
{
    return WriteStore([&](CDatabase& db) {
        _QORVEX_TASK task;
        const DWORD status = LoadOwn(db, number, task);
        return status ? status : TASK_TABLE.Delete(db, number);
    });
}
