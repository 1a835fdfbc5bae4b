#pragma once

/** @file
 * Logging on to the product, for one process, and who is logged on.
 */

#include <QorApi/Users.h>

/**
 * Logs a user on, for this process; a user who was logged on before is logged off only on success.
 *
 * Every failure is counted with the account (unknown names share one count). After five failures in a row each further
 * answer is delayed, 2 seconds at first and twice as long after every further failure, up to 32 seconds. The count is
 * kept in the store and goes back to 0 with a right password; that of the unknown names with anybody's.
 * @return status: ERROR_LOGON_FAILURE (unknown name or wrong password, not told apart), ERROR_ACCOUNT_DISABLED (right
 *         password of an inactive account).
 */
QORAPI_API DWORD QorLogonUser(LPCWSTR name, LPCWSTR password);

/** Logs the user off; nothing without one. */
QORAPI_API void QorLogoff();

/**
 * The logged-on user's account.
 * @return status: ERROR_NOT_LOGGED_ON, or as QorGetUserInfo().
 */
QORAPI_API DWORD QorGetLogonUser(_QORVEX_USER& user);

/** TRUE when a user is logged on, the account is active and has all of @p rights. An empty mask asks for the log-on
 * alone. */
QORAPI_API BOOL QorHasUserRight(DWORD rights);

/** TRUE when a name was to be remembered for the next log-on; then @p name gets it, otherwise it becomes empty. */
QORAPI_API BOOL QorGetLastLogonInfo(CString& name);

/** Remembers the name for the next log-on, or forgets it. Needs a logged-on user, but no right. */
QORAPI_API DWORD QorSetLastLogonInfo(BOOL remember, LPCWSTR name);

/** Waits for the given milliseconds. */
typedef void(CALLBACK* QORWAITPROC)(DWORD milliseconds);

/** Replaces the waiting of delayed log-on answers, so that a program can show it. Null is Sleep(). @return the former
 * one. */
QORAPI_API QORWAITPROC QorSetLogonWait(QORWAITPROC wait);
