#pragma once

/** @file
 * All records of a kind.
 */

#include <QorApi/QorApiDef.h>

/** Kinds of records that QorGetAllInfo() lists. */
enum QORLIST : UINT
{
    QORLIST_SNAPSHOTS = 1, ///< _QORVEX_SNAP, by number
    QORLIST_USERS = 2,     ///< _QORVEX_USER, by number
    QORLIST_TASKS = 3      ///< _QORVEX_TASK, by number
};

/**
 * Lists all records of one kind.
 * @param kind QORLIST.
 * @param recordSize bytes of one record, which must be the size of the kind's record.
 * @param[out] count number of records; may be null.
 * @param flags 0.
 * @return an array of records that the caller frees with CoTaskMemFree; null when there are none or on failure, then
 *         GetLastError() gives the status (0: there are none).
 */
QORAPI_API void* QorGetAllInfo(UINT kind, int recordSize, int* count, int flags);
