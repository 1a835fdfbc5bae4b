#pragma once

#include <afxwin.h>

/** Decides what becomes of an exception that left a message handler. @return the message's result. */
LRESULT AfxProcessWndProcException(CException* e, const MSG* pMsg);
