#pragma once

#include <afxwin.h>

/** Calls the handler of a window message row; see AFX_SIG. */
LRESULT AfxCallHandler(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam);

/** True for WM_CTLCOLORMSGBOX ... WM_CTLCOLORSTATIC. */
bool AfxIsCtlColor(UINT message);

/** The row for a window or thread message in a map and its base maps, or null. */
const AFX_MSGMAP_ENTRY* AfxFindHandler(const AFX_MSGMAP* pMap, UINT message);
