#pragma once

#include "QorUIDef.h"

/** Name of this library in the language data. */
inline constexpr LPCWSTR kQorUIModule = L"QorUI.dll";

/**
 * A text that the library's dialogs share, from the section "Strings" of its language data.
 * @return the text, valid while the language stays loaded; the key itself when the data lacks it.
 */
LPCWSTR QorLibText(LPCWSTR key);

/**
 * A text of the same section with a value in it.
 * @param value stands in the result for each "%s"; "%%" gives a percent sign. Whatever else the data has after a
 *        percent sign stays as it is: language data must not make a format read an argument that is not there.
 */
CString QorLibFormat(LPCWSTR key, LPCWSTR value);
