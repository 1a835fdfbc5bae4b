#pragma once

#include <afxwin.h>

/** Carets blink with this message, which the system does not document: it is no sign of life of the user. */
constexpr UINT kSystemTimer = 0x0118;
