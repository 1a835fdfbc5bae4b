#pragma once

/** @file
 * Texts of status codes.
 */

#include <QorApi/QorApiDef.h>

/**
 * The system's text of a Win32 error code or HRESULT, without a trailing line break. A code that the system does not
 * know gives its number as "0x" and eight hexadecimal digits.
 */
QORAPI_API CString QorFormatMsg(DWORD code);
