#pragma once

#include "Store.h"

/** Name of the event that exists while an update check for this store runs, in any process of the user's session. */
CString GetUpdateEventName();

/** Stores a text without asking for a right, for results that the library finds itself. */
DWORD PutInfoText(CDatabase& db, UINT id, const CString& text);

/** Reads a text setting; the default when it was never set. */
DWORD GetInfoText(UINT id, CString& text);
