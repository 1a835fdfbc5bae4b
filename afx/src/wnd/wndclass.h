#pragma once

#include <afxwin.h>

/** Unregisters the window classes of a module that is being unloaded. */
void AfxUnregisterWndClasses(HINSTANCE hInstance);
