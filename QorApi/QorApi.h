#pragma once

/**
 * @file QorApi.h
 * The product's service library: language data, users and rights, log-on, settings, snapshots, tasks, time records,
 * the connection to the store and the update check.
 *
 * Calls that can fail return a 32-bit status: ERROR_SUCCESS (0) is success, anything else is a Win32 error code or an
 * HRESULT, whose text QorFormatMsg() gives. Every call may be made from any thread.
 *
 * No call throws while there is memory. When it runs out, the work on the store answers ERROR_NOT_ENOUGH_MEMORY and the
 * sections of the language data are empty; whatever else makes texts may let a std::bad_alloc or a CMemoryException*
 * out.
 *
 * Everything that changes stored data is guarded here by a right of the logged-on user, whatever a dialog shows:
 * without a log-on such a call answers ERROR_NOT_LOGGED_ON, without the right ERROR_ACCESS_DENIED. Rights are read from
 * the store at each call, so a right that is taken away is gone at once, in every process. Only what the library notes
 * by itself needs no right: failed log-ons and the result of an update check.
 */

#include <QorApi/Connection.h>
#include <QorApi/Demo.h>
#include <QorApi/FormatMsg.h>
#include <QorApi/KeyName.h>
#include <QorApi/Language.h>
#include <QorApi/Lists.h>
#include <QorApi/logon/Logon.h>
#include <QorApi/QorApiDef.h>
#include <QorApi/Settings.h>
#include <QorApi/Snapshots.h>
#include <QorApi/Tasks.h>
#include <QorApi/TimeRecord.h>
#include <QorApi/Update.h>
#include <QorApi/Users.h>
