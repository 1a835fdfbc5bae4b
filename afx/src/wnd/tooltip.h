#pragma once

#include <afxwin.h>

/** Ends the tool tip window of this thread. */
void AfxDestroyToolTip();
