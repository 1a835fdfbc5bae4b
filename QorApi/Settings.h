#pragma once

/** @file
 * Settings: numbers, texts and lists of texts.
 */

#include <QorApi/QorApiDef.h>

/** Settings that the product knows. Ids of 1 to 1023 that are not named here keep what programs put there. */
enum QORINFO : UINT
{
    QORINFO_SYNC_REG = 44,     ///< multi-string: registry keys and values kept across a restore
    QORINFO_UPDATE_CHECK = 62, ///< DWORD: byte 0 check for updates by itself (1), byte 1 a check is running (read only)
    QORINFO_UPDATE_SOURCE = 63,  ///< text: URL or path of the update description
    QORINFO_UPDATE_VERSION = 64, ///< text: the newer version that was found last, or empty
    QORINFO_KEEP_UPDATES = 65,   ///< DWORD: system updates stay when the system is rolled back (1)
    QORINFO_RESTRICT = 70,       ///< DWORD: restrictions of the user, bits 0 to 7 (0); set with QORRIGHT_SECURITY
    QORINFO_SNAP_BEFORE = 81     ///< DWORD: a snapshot is taken before the system installs updates (1)
};

/**
 * Reads a setting.
 * @param[out] data gets the value, or the default of a known setting that was never set. Bytes behind a shorter value
 *        become 0. A text is wide, with its terminating zero. All zero on failure.
 * @param size bytes at @p data; the known DWORD settings need 4.
 * @return status: ERROR_NOT_FOUND never set, ERROR_INSUFFICIENT_BUFFER longer than @p size, ERROR_INVALID_PARAMETER.
 */
QORAPI_API DWORD QorGetInfo(UINT id, void* data, int size);

/**
 * Sets a setting, at most 4096 bytes; needs QORRIGHT_SETTINGS, or the right named with the id.
 * @return status: ERROR_INVALID_PARAMETER for a null pointer, an id out of range, or a size other than the known
 * setting's.
 */
QORAPI_API DWORD QorSetInfo(UINT id, const void* data, int size);

/** Reads a list of texts; one that was never set is empty. @param[out] texts replaced; empty on failure. @return
 * status. */
QORAPI_API DWORD QorGetMultiString(UINT id, CStringArray& texts);

/**
 * Sets a list of texts; needs QORRIGHT_SETTINGS.
 * @param flag 1: replaces the list; 0: adds those texts that the list does not have yet, letter case apart.
 * @return status: ERROR_INVALID_PARAMETER for an id out of range.
 */
QORAPI_API DWORD QorSetMultiString(UINT id, const CStringArray& texts, int flag);
