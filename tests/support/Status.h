#pragma once

#include <windows.h>

/** `ERROR_SUCCESS` in the type of a status: the test library compares no signed with unsigned numbers. */
constexpr DWORD kSuccess = ERROR_SUCCESS;
