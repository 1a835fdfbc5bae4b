#pragma once

#include "QorUIDef.h"

/** Name of this library in the language data. */
inline constexpr LPCWSTR kQorUIModule = L"QorUI.dll";

/**
 * A text that the library's dialogs share, from the section "Strings" of its language data.
 * @return the text, valid while the language stays loaded; the key itself when the data lacks it.
 */
LPCWSTR QorLibText(LPCWSTR key);
