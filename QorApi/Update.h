#pragma once

/** @file
 * The update check.
 */

#include <QorApi/QorApiDef.h>

/**
 * Looks for an update. Reads the update description at #QORINFO_UPDATE_SOURCE, a URL or a path of an XML file
 * `<QorUpdate Version="1.2.3.4"/>`, and keeps a version newer than the product's in #QORINFO_UPDATE_VERSION (an empty
 * text when there is none). While it runs, byte 1 of #QORINFO_UPDATE_CHECK reads 1 in every process.
 * @return 0 when the check was made, whatever it found. ERROR_HOST_UNREACHABLE: no source is set; ERROR_BUSY: a check
 * is running; ERROR_INVALID_DATA: the description is damaged; otherwise the system's code for reading the source.
 */
QORAPI_API DWORD QorCheckUpdate();
