#pragma once

#include "QorUIDef.h"

/**
 * Attaches the library to a process: starts the framework and the application object in the library's own module state
 * and lets the host's lookups search the library.
 * @param app the library's application object.
 * @param extension the library as the host's extension module.
 * @return FALSE when something failed; what had been started is ended again then.
 */
BOOL QorAttach(CWinThread& app, AFX_EXTENSION_MODULE& extension, HINSTANCE inst);

/** Undoes `QorAttach`; does nothing when that failed or has been undone. */
void QorDetach(CWinThread& app, AFX_EXTENSION_MODULE& extension);

/** Releases what the framework keeps for the calling thread, which is about to end. */
void QorDetachThread(HINSTANCE inst);
