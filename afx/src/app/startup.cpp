#include "wnd/tooltip.h"
#include "wnd/wndclass.h"

#include <afxwin.h>

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    pState->m_hCurrentInstanceHandle = hInstance;
    pState->m_hCurrentResourceHandle = hInstance;
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->m_hInstance = hInstance;
        pApp->m_lpCmdLine = lpCmdLine;
        pApp->m_nCmdShow = nCmdShow;
        pApp->SetCurrentHandles();
    }
    pState->m_bWinInitDone = TRUE;
    return TRUE;
}

void AfxWinTerm()
{
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    if (!pState->m_bWinInitDone) {
        return;
    }
    pState->m_bWinInitDone = FALSE;
    if (pState->m_bDLL) {
        AfxUnregisterWndClasses(pState->m_hCurrentInstanceHandle); // the system keeps a DLL's classes otherwise
    } else {
        AfxDestroyToolTip();
    }
    AfxLockTempMaps();
    AfxUnlockTempMaps();
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinThread* pThread = AfxGetThread();
    CWinApp* pApp = AfxGetApp();
    int nResult = -1;
    if (!pThread) {
        pThread = pApp;
    }
    if (AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) && pThread && (!pApp || pApp->InitApplication())) {
        if (pThread->InitInstance()) {
            nResult = pThread->Run();
        } else {
            if (pThread->m_pMainWnd) {
                pThread->m_pMainWnd->DestroyWindow();
            }
            nResult = pThread->ExitInstance();
        }
    }
    AfxWinTerm();
    return nResult;
}
