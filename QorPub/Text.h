#pragma once

/** @file
 * Conversion and formatting of texts.
 */

#include <QorPub/QorPubDef.h>

/**
 * Converts UTF-16 text to UTF-8. A surrogate without its partner becomes U+FFFD.
 * @param text the text; null gives an empty result.
 */
QORPUB_API CStringA WStrToUTF8(LPCWSTR text);

/**
 * Converts UTF-16 text of a known length to UTF-8; the text may hold null characters.
 * @param text   the first character; may be null when @p length is 0.
 * @param length number of UTF-16 units; a negative length counts as 0.
 */
QORPUB_API CStringA WStrToUTF8(LPCWSTR text, int length);

/**
 * Converts UTF-8 to UTF-16. Bytes that are no UTF-8 become U+FFFD.
 * @param text the text; null gives an empty result.
 */
QORPUB_API CString UTF8ToWStr(LPCSTR text);

/** Converts UTF-8 of a known length (in bytes; negative counts as 0) to UTF-16. */
QORPUB_API CString UTF8ToWStr(LPCSTR text, int length);

/**
 * Writes a number of bytes for people: below 1024 as "0 bytes", "1 byte", "1,000 bytes"; otherwise in the largest of
 * KB, MB, GB, TB, PB, EB (each 1024 of the one before) that gives at least 1, with three significant digits that are
 * cut off and not rounded ("1.00 KB", "10.5 MB", "999 MB", "1,023 GB"). The separators are those of the user's locale.
 */
QORPUB_API CString QorFormatSize(ULONGLONG size);

/**
 * Tells whether a file's name ends with one of the extensions of a list.
 * @param filter extensions separated by semicolons (".txt;.doc"), in any letter case. Blanks around an extension, a
 *               missing dot ("txt") and a leading asterisk ("*.txt") are tolerated; empty ones are left out.
 * @param path   the file's path or name; only its last component counts.
 * @return TRUE when an extension of the list fits; FALSE otherwise, also for an empty list or path.
 */
QORPUB_API BOOL QorFindExtName(LPCWSTR filter, LPCWSTR path);
