#pragma once

#include <afxwin.h>

/**
 * Writes a line to the standard output or error output that the program was started with.
 * @param stream `STD_OUTPUT_HANDLE` or `STD_ERROR_HANDLE`.
 * @return false when the program was started without one: nobody would see the line.
 */
bool ConsoleWriteLine(DWORD stream, const CString& text);
