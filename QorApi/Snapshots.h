#pragma once

/** @file
 * Snapshots of the system.
 */

#include <QorApi/TimeRecord.h>

constexpr WORD QORSNAP_LATEST = 0xFFFF; ///< in a task: the latest snapshot
constexpr WORD QORSNAP_MAX = 1023;      ///< highest number of a snapshot; they begin at 1
constexpr WORD QORSNAP_LOCKED = 0x0001; ///< bit of _QORVEX_SNAP::wFlags: may not be deleted

#pragma pack(push, 1)

/** A snapshot, 256 bytes. Unused bytes are 0. */
struct _QORVEX_SNAP
{
    WORD wNumber; ///< 1 to 1023
    WORD wFlags;  ///< #QORSNAP_LOCKED
    BYTE reserved[12];
    _QORTIME time; ///< when it was taken
    BYTE reserved2[8];
    ULONGLONG nSize; ///< bytes
    BYTE reserved3[72];
    WCHAR szName[64]; ///< display name, zero-terminated
    BYTE reserved4[16];
};

#pragma pack(pop)

static_assert(sizeof(_QORVEX_SNAP) == 256);
static_assert(offsetof(_QORVEX_SNAP, time) == 16 && offsetof(_QORVEX_SNAP, szName) == 112);

/**
 * Adds a snapshot; needs QORRIGHT_TAKESNAP.
 * @param[in,out] snapshot gets the lowest free number. Without a time (all zero) it gets the present one.
 * @return status: ERROR_INVALID_NAME for an empty name or one without end, ERROR_NOT_ENOUGH_QUOTA, ERROR_INVALID_TIME.
 */
QORAPI_API DWORD QorAddSnapshot(_QORVEX_SNAP& snapshot);

/** Deletes a snapshot; needs QORRIGHT_DELSNAP. @return status: ERROR_NOT_FOUND, ERROR_LOCKED for a locked one. */
QORAPI_API DWORD QorDeleteSnapshot(WORD number);

/** Renames a snapshot; needs QORRIGHT_TAKESNAP. @return status: ERROR_NOT_FOUND, ERROR_INVALID_NAME (empty or over 63).
 */
QORAPI_API DWORD QorRenameSnapshot(WORD number, LPCWSTR name);

/** Locks a snapshot against deletion, or unlocks it; needs QORRIGHT_TAKESNAP. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorLockSnapshot(WORD number, BOOL lock);
