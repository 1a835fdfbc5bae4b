#pragma once

#include <afxwin.h>

/** The parts of CWnd that the framework's own functions reach into. */
class AfxWndAccess
{
  public:
    static WNDPROC* SuperProcAddress(CWnd* pWnd) { return pWnd->GetSuperWndProcAddr(); }
    static LRESULT CallWindowProc(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return pWnd->WindowProc(message, wParam, lParam);
    }
};

/** The HWND map of this thread, made at first use. */
CHandleMap* AfxWndMap();

/** Calls the handler of a window message row; see AFX_SIG. */
LRESULT AfxCallHandler(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam);

/** True for WM_CTLCOLORMSGBOX ... WM_CTLCOLORSTATIC. */
bool AfxIsCtlColor(UINT message);

/** The row for a window or thread message in a map and its base maps, or null. */
const AFX_MSGMAP_ENTRY* AfxFindHandler(const AFX_MSGMAP* pMap, UINT message);

/** Parent of a child window, owner of another. */
HWND AfxGetParentOwner(HWND hWnd);

/** Unregisters the window classes of a module that is being unloaded. */
void AfxUnregisterWndClasses(HINSTANCE hInstance);

/** Ends the tool tip window of this thread. */
void AfxDestroyToolTip();

/** Decides what becomes of an exception that left a message handler. @return the message's result. */
LRESULT AfxProcessWndProcException(CException* e, const MSG* pMsg);

/** Loads and locks a resource found in the resource chain. @return null when it is missing. */
void* AfxLoadLockedResource(LPCTSTR lpszName, LPCTSTR lpszType, HINSTANCE* phInst = nullptr);

/** The registered message by which drag list boxes talk to their parent. */
extern const UINT g_nDragListMessage;
