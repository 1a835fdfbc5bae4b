#pragma once

/** @file
 * User accounts and their rights.
 */

#include <QorApi/QorApiDef.h>

/** What a user may do. QorHasUserRight() takes any combination. */
enum QORRIGHT : DWORD
{
    QORRIGHT_ROLLSYS = 0x0001,   ///< roll the system back
    QORRIGHT_TAKESNAP = 0x0002,  ///< take, rename and lock snapshots
    QORRIGHT_DELSNAP = 0x0004,   ///< delete snapshots
    QORRIGHT_RESETBL = 0x0008,   ///< reset the baseline
    QORRIGHT_UPDATEBL = 0x0010,  ///< update the baseline
    QORRIGHT_RESFILES = 0x0020,  ///< restore files from snapshots
    QORRIGHT_SECURITY = 0x0040,  ///< users and restrictions
    QORRIGHT_SCHROLL = 0x0080,   ///< tasks that roll back
    QORRIGHT_SCHSNAP = 0x0100,   ///< tasks that take snapshots
    QORRIGHT_PASSWORD = 0x0200,  ///< change the own password
    QORRIGHT_SETTINGS = 0x0400,  ///< settings, lists, tasks that defragment
    QORRIGHT_DELLOGS = 0x0800,   ///< delete logs
    QORRIGHT_UNINSTALL = 0x1000, ///< uninstall the product
    QORRIGHT_ALL = 0x1FFF
};

/** Which fields of a _QORVEX_USER a set operation applies. */
enum QORUSERFIELD : WORD
{
    QORUSER_NAME = 0x01,       ///< szName
    QORUSER_DESC = 0x02,       ///< szDesc
    QORUSER_PASSWORD = 0x04,   ///< the password
    QORUSER_RIGHTS = 0x08,     ///< dwRights
    QORUSER_FLAGS = 0x10,      ///< wFlags
    QORUSER_PROPERTIES = 0x1B, ///< all but the password
    QORUSER_NEW = 0x1F         ///< all, as QorAddUser() takes them
};

constexpr WORD QORUSER_INACTIVE = 0x0002;                  ///< bit of _QORVEX_USER::wFlags: the account may not log on
constexpr WORD QORUSER_BUILTIN = 0;                        ///< number of the built-in account
constexpr WORD QORUSER_MAX = 63;                           ///< highest number of an account; a higher one means "new"
constexpr LPCWSTR QORUSER_BUILTIN_NAME = L"Administrator"; ///< name of the built-in account

#pragma pack(push, 1)

/** A user account, 256 bytes. Unused bytes are 0. */
struct _QORVEX_USER
{
    WORD wNumber;     ///< 0 built-in, 1 to 63 others; 64 or more: new
    WORD wFieldMask;  ///< QORUSERFIELD; 0 in records that are read
    WORD wFlags;      ///< #QORUSER_INACTIVE
    WCHAR szName[32]; ///< zero-terminated
    WCHAR szDesc[64]; ///< zero-terminated
    BYTE reserved[16];
    DWORD dwRights; ///< QORRIGHT
    BYTE reserved2[38];
};

#pragma pack(pop)

static_assert(sizeof(_QORVEX_USER) == 256);
static_assert(offsetof(_QORVEX_USER, wFieldMask) == 2 && offsetof(_QORVEX_USER, wFlags) == 4);
static_assert(offsetof(_QORVEX_USER, szName) == 6 && offsetof(_QORVEX_USER, szDesc) == 70);
static_assert(offsetof(_QORVEX_USER, dwRights) == 214);

/**
 * Reads an account.
 * @param[in,out] user its wNumber says which; filled on success, unchanged on failure.
 * @return status: ERROR_NO_SUCH_USER when there is no such account.
 */
QORAPI_API DWORD QorGetUserInfo(_QORVEX_USER& user);

/**
 * Changes the fields of an account that the field mask names.
 *
 * The own password needs QORRIGHT_PASSWORD. Everything else needs QORRIGHT_SECURITY, and nobody changes an account that
 * has, or gives it, a right that he does not have himself. Of the built-in account only the password can be changed.
 * @param user wNumber and wFieldMask say what to change. A trailing or leading blank of the name does not count.
 * @param password the new password (at most 63 characters; null and empty: no password) with #QORUSER_PASSWORD in the
 *        mask; otherwise not used.
 * @return status: ERROR_NO_SUCH_USER, ERROR_USER_EXISTS (the name is in use, letter case apart),
 *         ERROR_INVALID_ACCOUNT_NAME, ERROR_ILL_FORMED_PASSWORD (too long), ERROR_INVALID_PARAMETER (rights, flags,
 * mask).
 */
QORAPI_API DWORD QorSetUserInfo(_QORVEX_USER& user, LPCWSTR password);

/**
 * Adds an account; needs QORRIGHT_SECURITY and every right that it gives.
 * @param[in,out] user wNumber of 64 or more: gets the lowest free number; 1 to 63: that number must be free. The mask
 * must have #QORUSER_NAME; fields that it does not name are empty.
 * @param password as in QorSetUserInfo().
 * @return status as QorSetUserInfo(); also ERROR_ALREADY_EXISTS (the number) and ERROR_NOT_ENOUGH_QUOTA (all 63 in
 * use).
 */
QORAPI_API DWORD QorAddUser(_QORVEX_USER& user, LPCWSTR password);

/**
 * Deletes an account; needs QORRIGHT_SECURITY and every right that the account has.
 * @return status: ERROR_ACCESS_DENIED for the built-in account and the own one, ERROR_NO_SUCH_USER.
 */
QORAPI_API DWORD QorDeleteUser(WORD number);
