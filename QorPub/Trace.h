#pragma once

/** @file
 * The trace log.
 */

#include <QorPub/QorPubDef.h>

/** Size in bytes from which the trace log is moved to "qor.log.1" and begun anew. */
constexpr DWORD TRACE_LOG_LIMIT = 1024 * 1024;

/**
 * Writes one line to the trace log, "qor.log" in the store's folder (see QorGetStoreFolder), which is made when
 * missing.
 *
 * A line is UTF-8 and ends with CR LF; its fields are parted by tabs: local time (2024-05-01 13:05:09.042), process id,
 * thread id, level, code (0x and eight hexadecimal digits), function, source, line, text. Backslash, tab, CR and LF in
 * function, source and text are written `\\ \t \r \n`. The text is cut at 2,000 characters. Several processes may write
 * at once. Never fails visibly and never changes GetLastError.
 * @param level    0 error, 1 warning, 2 information; higher numbers are details.
 * @param code     Win32 code or HRESULT; 0xFFFFFFFF for none.
 * @param function where the entry was made, for example L"CQorTray::Create".
 * @param source   name of the source file.
 * @param line     line number in the source file.
 * @param format   wide format text with the system's meaning ("%s" takes a wide string).
 */
QORPUB_API void QorTrace(DWORD level, DWORD code, LPCWSTR function, LPCWSTR source, int line, LPCWSTR format, ...);
