#include "wnd/dispatch.h"
#include "wnd/modalloop.h"
#include "wnd/tooltip.h"
#include "wnd/wndproc.h"

#include <afxwin.h>

#include <process.h>

#include <memory>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace
{
/** What a new thread needs of its maker. */
struct ThreadStart
{
    CWinThread* pThread;
    AFX_MODULE_STATE* pModuleState;
    HWND hWndMain;
};

int RunThread(CWinThread* pThread)
{
    if (pThread->m_pfnThreadProc) {
        return static_cast<int>(pThread->m_pfnThreadProc(pThread->m_pThreadParams));
    }
    return pThread->InitInstance() ? pThread->Run() : pThread->ExitInstance();
}

UINT __stdcall ThreadEntry(void* pParam)
{
    const ThreadStart start = *std::unique_ptr<ThreadStart>(static_cast<ThreadStart*>(pParam));
    AfxSetModuleState(start.pModuleState);
    AfxGetModuleThreadState()->m_pCurrentWinThread = start.pThread;
    CWnd wndMain;
    if (start.hWndMain && !start.pThread->m_pMainWnd) {
        wndMain.Attach(start.hWndMain);
        start.pThread->m_pMainWnd = &wndMain;
    }
    const int nResult = RunThread(start.pThread);
    wndMain.Detach();
    AfxGetModuleThreadState()->m_pCurrentWinThread = nullptr;
    start.pThread->m_pMainWnd = nullptr;
    start.pThread->Delete();
    AfxTermThread();
    return static_cast<UINT>(nResult);
}

CWinThread* Start(CWinThread* pThread, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                  LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (!pThread->CreateThread(dwCreateFlags | CREATE_SUSPENDED, nStackSize, lpSecurityAttrs)) {
        pThread->Delete();
        return nullptr;
    }
    pThread->SetThreadPriority(nPriority);
    if (!(dwCreateFlags & CREATE_SUSPENDED)) {
        pThread->ResumeThread();
    }
    return pThread;
}
} // namespace

CWinThread::CWinThread() : CWinThread(nullptr, nullptr) {}

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pMainWnd(nullptr),
      m_pActiveWnd(nullptr),
      m_bAutoDelete(TRUE),
      m_hThread(nullptr),
      m_nThreadID(0),
      m_pThreadParams(pParam),
      m_pfnThreadProc(pfnThreadProc)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread) {
        ::CloseHandle(m_hThread);
    }
    AFX_MODULE_THREAD_STATE* pState = AfxGetModuleThreadState();
    if (pState->m_pCurrentWinThread == this) {
        pState->m_pCurrentWinThread = nullptr;
    }
}

CWinThread::operator HANDLE() const
{
    return m_hThread;
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(!m_hThread);
    if (m_hThread) {
        return FALSE;
    }
    std::unique_ptr<ThreadStart> pStart(new ThreadStart{this, AfxGetModuleState(), AfxGetMainWnd()->GetSafeHwnd()});
    unsigned nThreadID = 0;
    m_hThread = reinterpret_cast<HANDLE>(::_beginthreadex(lpSecurityAttrs, nStackSize, ThreadEntry, pStart.get(),
                                                          dwCreateFlags | CREATE_SUSPENDED, &nThreadID));
    if (!m_hThread) {
        return FALSE;
    }
    static_cast<void>(pStart.release()); // the thread's own now
    m_nThreadID = nThreadID;
    if (!(dwCreateFlags & CREATE_SUSPENDED)) {
        ::ResumeThread(m_hThread);
    }
    return TRUE;
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority)
{
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    const MSG& msg = AfxGetThreadState()->m_msgCur;
    return msg.message == WM_QUIT ? static_cast<int>(msg.wParam) : 0;
}

void CWinThread::Delete()
{
    if (m_bAutoDelete) {
        delete this;
    }
}

CWnd* CWinThread::GetMainWnd()
{
    if (m_pActiveWnd) {
        return m_pActiveWnd;
    }
    return m_pMainWnd ? m_pMainWnd : CWnd::GetActiveWindow();
}

int CWinThread::Run()
{
    MSG* pMsg = &AfxGetThreadState()->m_msgCur;
    bool idle = true;
    LONG lIdleCount = 0;
    for (;;) {
        while (idle && !::PeekMessage(pMsg, nullptr, 0, 0, PM_NOREMOVE)) {
            idle = OnIdle(lIdleCount++);
        }
        do {
            if (!PumpMessage()) {
                return ExitInstance();
            }
            if (IsIdleMessage(pMsg)) {
                idle = true;
                lIdleCount = 0;
            }
        } while (::PeekMessage(pMsg, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0 && m_pMainWnd && ::IsWindow(m_pMainWnd->m_hWnd) && m_pMainWnd->IsWindowVisible()) {
        CWnd* pMainWnd = m_pMainWnd;
        AfxCallWndProc(pMainWnd, pMainWnd->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
        pMainWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    } else if (lCount > 0) {
        AfxLockTempMaps();
        AfxUnlockTempMaps();
    }
    return lCount <= 0; // one more round frees the temporary objects
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        // The system repeats the last mouse message now and then although nothing moved.
        _AFX_THREAD_STATE* pState = AfxGetThreadState();
        if (pState->m_ptCursorLast.x == pMsg->pt.x && pState->m_ptCursorLast.y == pMsg->pt.y &&
            pState->m_nMsgLast == pMsg->message) {
            return FALSE;
        }
        pState->m_ptCursorLast = pMsg->pt;
        pState->m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != kSystemTimer;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (!pMsg->hwnd && DispatchThreadMessageEx(pMsg)) {
        return TRUE;
    }
    CWnd* pMainWnd = AfxGetMainWnd();
    if (CWnd::WalkPreTranslateTree(pMainWnd->GetSafeHwnd(), pMsg)) {
        return TRUE;
    }
    if (!pMainWnd || !pMsg->hwnd || !::IsWindow(pMsg->hwnd)) {
        return FALSE;
    }
    // Windows that do not stand below the main window still offer it their keys.
    CWnd* pWnd = CWnd::FromHandle(pMsg->hwnd);
    CWnd* pTop = pWnd ? pWnd->GetTopLevelParent() : nullptr;
    return pTop && pTop->m_hWnd != pMainWnd->m_hWnd ? pMainWnd->PreTranslateMessage(pMsg) : FALSE;
}

BOOL CWinThread::PumpMessage()
{
    MSG* pMsg = &AfxGetThreadState()->m_msgCur;
    if (!::GetMessage(pMsg, nullptr, 0, 0)) {
        return FALSE;
    }
    if (pMsg->message != WM_KICKIDLE && !AfxPreTranslateMessage(pMsg)) {
        ::TranslateMessage(pMsg);
        ::DispatchMessage(pMsg);
    }
    return TRUE;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    UNUSED_ALWAYS(e);
    if (pMsg->message == WM_CREATE) {
        return -1; // no half-made windows
    }
    if (pMsg->message == WM_PAINT) {
        ::ValidateRect(pMsg->hwnd, nullptr); // or the same painting would fail for ever
    }
    return 0;
}

void CWinThread::DispatchThreadMessage(MSG* pMsg)
{
    DispatchThreadMessageEx(pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg)
{
    const AFX_MSGMAP_ENTRY* pEntry = AfxFindHandler(GetMessageMap(), pMsg->message);
    if (!pEntry) {
        return FALSE;
    }
    (this->*AfxUnpackHandler<AfxSig_ThreadMessage>(pEntry->pfn))(pMsg->wParam, pMsg->lParam);
    return TRUE;
}

CWinThread* AfxGetThread()
{
    return AfxGetModuleThreadState()->m_pCurrentWinThread;
}

CWnd* AfxGetMainWnd()
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->GetMainWnd() : nullptr;
}

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (!pfnThreadProc) {
        return nullptr;
    }
    return Start(new CWinThread(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (!pThreadClass || !pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread))) {
        return nullptr;
    }
    auto* pThread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    return pThread ? Start(pThread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs) : nullptr;
}

void AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    AFX_MODULE_THREAD_STATE* pState = AfxGetModuleThreadState();
    CWinThread* pThread = pState->m_pCurrentWinThread;
    pState->m_pCurrentWinThread = nullptr;
    if (pThread && bDelete) {
        pThread->Delete();
    }
    AfxTermThread();
    ::_endthreadex(nExitCode);
}

void AfxTermThread(HINSTANCE)
{
    AfxDestroyToolTip();
    AfxLockTempMaps();
    AfxUnlockTempMaps();
    AfxFreeThreadState();
}

BOOL AfxPumpMessage()
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->PumpMessage() : CWinThread().PumpMessage();
}

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL AfxIsIdleMessage(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->IsIdleMessage(pMsg) : CWinThread().IsIdleMessage(pMsg);
}

LRESULT AfxProcessWndProcException(CException* e, const MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->ProcessWndProcException(e, pMsg) : CWinThread().ProcessWndProcException(e, pMsg);
}
