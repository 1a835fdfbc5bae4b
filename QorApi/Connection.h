#pragma once

/** @file
 * The connection to the store.
 */

#include <QorApi/QorApiDef.h>

/**
 * Opens the calling thread's connection to the store; nested calls are counted. Other calls also work without it, but
 * connect anew each time. The first open of all makes the store: the built-in account, default settings, no snapshots.
 *
 * The store is one SQLite file, `%LOCALAPPDATA%\Qor\store.db` unless the environment variable `QOR_STORE` names another
 * (whose folder must exist). A store that cannot be opened, is damaged or belongs to a later version gives an error
 * here and from every call, and is left as it is.
 * @return status: ERROR_FILE_CORRUPT damaged or not a store, ERROR_REVISION_MISMATCH made by a later version,
 *         ERROR_LOCK_VIOLATION in use by another process for longer than the waiting time, ERROR_WRITE_PROTECT, or the
 *         system's code for opening the file.
 */
QORAPI_API DWORD QorOpen();

/** Ends one QorOpen() of the calling thread; without one it does nothing. A thread that ends is disconnected by itself.
 */
QORAPI_API void QorClose();
