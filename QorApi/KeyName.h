#pragma once

/** @file
 * Entries of the list of registry keys kept across a restore.
 */

#include <QorApi/QorApiDef.h>

/**
 * Brings an entry of the list of registry keys into its stored form: the root's acronym in capital letters, single
 * backslashes, and `HKLM\SOFTWARE\Classes\` for `HKCR\`. The long names of the roots are taken too.
 * @param[in,out] entry root, path and, without a backslash at the end, a value's name; unchanged when refused.
 * @return status: ERROR_INVALID_PARAMETER unknown root; ERROR_NOT_SUPPORTED a whole root, or what stands directly below
 *         HKEY_LOCAL_MACHINE or HKEY_USERS; ERROR_INVALID_NAME a name that the registry does not take.
 */
QORAPI_API DWORD QorConvertKeyName(CString& entry);
