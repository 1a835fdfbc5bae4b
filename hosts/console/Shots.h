#pragma once

#include "ConsoleFrame.h"

/**
 * Walks through every page and dialog in every state and leaves a PNG picture of each.
 * @param folder is created when it does not exist.
 * @return exit status: 0 when every picture was written, else 1, with the reason on the error output.
 */
int TakeShots(CConsoleFrame& frame, const CString& folder);
