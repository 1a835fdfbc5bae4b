#pragma once

#include <afxwin.h>

bool AfxHasChildStyle(HWND hWnd);

/** Parent of a child window, owner of another. */
HWND AfxGetParentOwner(HWND hWnd);
