#pragma once

/** @file
 * Scheduled tasks.
 */

#include <QorApi/TimeRecord.h>

constexpr WORD QORTASK_MAX = 31; ///< highest number of a task, they begin at 0; a higher one means "new"

/** What a task does: bits 2 to 7 of _QORVEX_TASK::nKind. */
enum QORTASKKIND : BYTE
{
    QORTASK_ROLLBACK = 1,
    QORTASK_SNAPSHOT = 2,
    QORTASK_DEFRAG = 3
};

/** When a task runs: _QORVEX_TASK::nSchedule. */
enum QORSCHEDULE : BYTE
{
    QORSCHED_ONETIME = 1,
    QORSCHED_HOURLY = 2,
    QORSCHED_DAILY = 3,
    QORSCHED_WEEKLY = 4,
    QORSCHED_MONTHLY = 5,
    QORSCHED_RESTART = 6,
    QORSCHED_LOGOFF = 7,
    QORSCHED_SHUTDOWN = 10
};

constexpr BYTE QORTASK_FIRSTBOOT = 0x01; ///< nOptions: a daily task runs at the first boot instead of at a time
constexpr BYTE QORTASK_LOCKSNAP = 0x02;  ///< nOptions: lock the snapshot
constexpr BYTE QORTASK_SHUTDOWN = 0x04;  ///< nOptions: shut down after defragmenting

#pragma pack(push, 1)

/** A scheduled task, 128 bytes. Unused bytes are 0. */
struct _QORVEX_TASK
{
    WORD wNumber;    ///< 0 to 31; 32 or more: new
    BYTE nKind;      ///< QORTASKKIND in bits 2 to 7; bits 0 and 1 are kept as they are
    BYTE nSchedule;  ///< QORSCHEDULE
    BYTE nFirstHour; ///< 0 to 23: first hour of an hourly task, or of the suspend window
    BYTE nLastHour;  ///< 0 to 23: its last hour
    BYTE nDayMask;   ///< hourly and daily tasks: bit 0 Sunday to bit 6 Saturday
    BYTE reserved;
    BYTE nOptions;  ///< #QORTASK_FIRSTBOOT, #QORTASK_LOCKSNAP, #QORTASK_SHUTDOWN
    BYTE nKeepDays; ///< days to keep the snapshot, 0 for ever
    BYTE nTarget;   ///< roll back to: 2 the latest snapshot, 3 the snapshot wSnapshot
    BYTE nOthers;   ///< other snapshots after the roll-back: 1 keep all, 2 remove all unlocked ones
    BYTE nSuspend;  ///< 1: not within the hours and on the day of the suspend window
    BYTE reserved2[3];
    _QORTIME start; ///< of it a schedule uses what it needs: date and time, minute, or weekday or day with the time
    BYTE reserved3[8];
    WORD wSnapshot; ///< number of a snapshot or #QORSNAP_LATEST
    BYTE reserved4[30];
    WCHAR szName[32]; ///< zero-terminated
};

#pragma pack(pop)

static_assert(sizeof(_QORVEX_TASK) == 128);
static_assert(offsetof(_QORVEX_TASK, nKind) == 2 && offsetof(_QORVEX_TASK, nSchedule) == 3);
static_assert(offsetof(_QORVEX_TASK, nFirstHour) == 4 && offsetof(_QORVEX_TASK, nDayMask) == 6);
static_assert(offsetof(_QORVEX_TASK, nOptions) == 8 && offsetof(_QORVEX_TASK, nKeepDays) == 9);
static_assert(offsetof(_QORVEX_TASK, nTarget) == 10 && offsetof(_QORVEX_TASK, nOthers) == 11);
static_assert(offsetof(_QORVEX_TASK, nSuspend) == 12 && offsetof(_QORVEX_TASK, start) == 16);
static_assert(offsetof(_QORVEX_TASK, start.nDayOfWeek) == 19 && offsetof(_QORVEX_TASK, start.nDay) == 20);
static_assert(offsetof(_QORVEX_TASK, start.nHour) == 21 && offsetof(_QORVEX_TASK, start.nMinute) == 22);
static_assert(offsetof(_QORVEX_TASK, wSnapshot) == 32 && offsetof(_QORVEX_TASK, szName) == 64);

/** Reads a task. @param[in,out] task its wNumber says which. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorGetTask(_QORVEX_TASK& task);

/**
 * Adds a task; needs the right of its kind: QORRIGHT_SCHROLL, QORRIGHT_SCHSNAP or QORRIGHT_SETTINGS (defragment).
 * @param[in,out] task gets the lowest free number.
 * @return status: ERROR_NOT_ENOUGH_QUOTA when all 32 numbers are in use; ERROR_INVALID_DATA for a kind or schedule that
 *         does not exist or do not go together, an empty name or one without end, hours above 23.
 */
QORAPI_API DWORD QorAddTask(_QORVEX_TASK& task);

/** Replaces a task; needs the rights of its old and its new kind. @return status: ERROR_NOT_FOUND, or as QorAddTask().
 */
QORAPI_API DWORD QorSetTask(const _QORVEX_TASK& task);

/** Deletes a task; needs the right of its kind. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorDeleteTask(WORD number);
