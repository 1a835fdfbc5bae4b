#pragma once

#include <afxwin.h>

/**
 * A text of the console's own, from the section "Strings" of its language data.
 * @return the key itself when the language data lacks it.
 */
LPCWSTR ConText(LPCWSTR key);

/**
 * A text as a printf format.
 * @param model a format for the same arguments, which stands in when the text's placeholders are others: no language
 *        data may make a format read an argument that is not there.
 */
LPCWSTR ConFit(LPCWSTR text, LPCWSTR model);

/** The text of a key as a printf format, as ConFit gives it. */
LPCWSTR ConFormat(LPCWSTR key, LPCWSTR model);
