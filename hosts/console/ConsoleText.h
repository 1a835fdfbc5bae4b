#pragma once

#include <afxwin.h>

/**
 * A text of the console's own, from the section "Strings" of its language data.
 * @return the key itself when the language data lacks it.
 */
LPCWSTR ConText(LPCWSTR key);
