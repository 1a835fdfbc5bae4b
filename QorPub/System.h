#pragma once

/** @file
 * The system that the program runs on, and its other instances.
 */

#include <QorPub/QorPubDef.h>

/**
 * Code of the operating system's version, the same for a client and its server:
 * 0 older, 1 Windows 2000, 2 XP, 3 Server 2003, 4 Vista, 5 Windows 7, 8 Windows 8 and 8.1, 10 Windows 10 and later.
 * It is the system's own version, whatever the host program's manifest declares.
 */
extern QORPUB_API WORD g_OsVer;

/** Major number of the installed service pack; 0 for none. Compare (g_OsVer << 16 | g_SpVer). */
extern QORPUB_API WORD g_SpVer;

/**
 * Looks for a visible top-level window of a class and title, restores it when it is minimised, and brings it (or its
 * last active popup) to the front.
 * @param className class of the window; null or empty for any. @param title its exact title.
 * @return TRUE when there was such a window; FALSE otherwise, also for an empty title.
 */
QORPUB_API BOOL QorShowPreInstanceWnd(LPCWSTR className, LPCWSTR title);
