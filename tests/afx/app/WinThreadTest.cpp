#include "TestApp.h"

namespace
{
class UiThread : public CWinThread
{
    DECLARE_DYNCREATE(UiThread)

  public:
    static inline HANDLE s_done = nullptr;
    static inline int s_idles = 0;
    static inline bool s_isCurrent = false;

    BOOL InitInstance() override
    {
        s_isCurrent = AfxGetThread() == this;
        return TRUE;
    }
    BOOL OnIdle(LONG lCount) override
    {
        ++s_idles;
        PostThreadMessage(WM_QUIT, 3, 0);
        return CWinThread::OnIdle(lCount);
    }
    int ExitInstance() override
    {
        const int nResult = CWinThread::ExitInstance();
        ::SetEvent(s_done);
        return nResult;
    }
};

IMPLEMENT_DYNCREATE(UiThread, CWinThread)

struct WorkerResult
{
    bool isThreadObject = false;
    bool windowWorked = false;
    HWND mainWindow = nullptr;
};

UINT Work(LPVOID pParam)
{
    auto* pResult = static_cast<WorkerResult*>(pParam);
    pResult->isThreadObject = AfxGetThread() != nullptr;
    pResult->mainWindow = AfxGetMainWnd() ? AfxGetMainWnd()->m_hWnd : nullptr;
    return 42;
}

DWORD WINAPI ForeignThread(LPVOID pParam)
{
    auto* pResult = static_cast<WorkerResult*>(pParam);
    pResult->isThreadObject = AfxGetThread() != nullptr;
    {
        CWnd wnd;
        pResult->windowWorked = wnd.CreateEx(0, nullptr, _T("worker"), WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0) &&
                                CWnd::FromHandlePermanent(wnd.m_hWnd) == &wnd;
        wnd.PostMessage(WM_USER);
        pResult->windowWorked = pResult->windowWorked && AfxPumpMessage();
    }
    AfxTermThread();
    return 0;
}

DWORD ExitCodeOf(CWinThread* pThread)
{
    EXPECT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(pThread->m_hThread, 10000));
    DWORD dwCode = 0;
    ::GetExitCodeThread(pThread->m_hThread, &dwCode);
    return dwCode;
}
} // namespace

TEST(WorkerThread, RunsItsFunctionWithAThreadObjectAndTheMainWindow)
{
    TestApp app;
    TopWnd main;
    app.m_pMainWnd = &main;
    WorkerResult result;
    CWinThread* pThread = AfxBeginThread(Work, &result, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(nullptr, pThread);
    pThread->m_bAutoDelete = FALSE;
    pThread->ResumeThread();
    EXPECT_EQ(42u, ExitCodeOf(pThread));
    EXPECT_TRUE(result.isThreadObject);
    EXPECT_EQ(main.m_hWnd, result.mainWindow);
    delete pThread;
    app.m_pMainWnd = nullptr;
}

TEST(WorkerThread, NullFunctionIsRefused)
{
    EXPECT_EQ(nullptr, AfxBeginThread(static_cast<AFX_THREADPROC>(nullptr), nullptr));
    EXPECT_EQ(nullptr, AfxBeginThread(RUNTIME_CLASS(CWnd)));
}

TEST(UiThreads, RunALoopWithIdleWork)
{
    UiThread::s_done = ::CreateEvent(nullptr, TRUE, FALSE, nullptr);
    UiThread::s_idles = 0;
    CWinThread* pThread = AfxBeginThread(RUNTIME_CLASS(UiThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(nullptr, pThread);
    pThread->m_bAutoDelete = FALSE;
    pThread->ResumeThread();
    EXPECT_EQ(3u, ExitCodeOf(pThread));
    EXPECT_GE(UiThread::s_idles, 1);
    EXPECT_TRUE(UiThread::s_isCurrent);
    delete pThread;
    ::CloseHandle(UiThread::s_done);
}

TEST(ForeignThreads, MayUseWindowsWithoutAThreadObject)
{
    WorkerResult result;
    const HANDLE hThread = ::CreateThread(nullptr, 0, ForeignThread, &result, 0, nullptr);
    ASSERT_EQ(WAIT_OBJECT_0, ::WaitForSingleObject(hThread, 10000));
    ::CloseHandle(hThread);
    EXPECT_FALSE(result.isThreadObject);
    EXPECT_TRUE(result.windowWorked);
}

TEST(TemporaryObjects, GoAwayInTheIdleTimeOfTheThread)
{
    TestApp app;
    const TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("BUTTON"), 0, 1);
    CWnd::FromHandle(hWnd);
    const CHandleMap* pMap = AfxGetHandleMap(AFX_HANDLE_HWND, nullptr);
    EXPECT_GT(pMap->GetTemporaryCount(), 0u);
    for (LONG lCount = 0; app.OnIdle(lCount); ++lCount) {
    }
    EXPECT_EQ(0u, pMap->GetTemporaryCount());
}

TEST(IdleMessages, PaintsTimersAndRepeatedMouseMovesAreNot)
{
    constexpr UINT kSystemTimer = 0x0118;
    MSG msg = {};
    msg.message = WM_PAINT;
    EXPECT_FALSE(AfxIsIdleMessage(&msg));
    msg.message = kSystemTimer;
    EXPECT_FALSE(AfxIsIdleMessage(&msg));
    msg.message = WM_KEYDOWN;
    EXPECT_TRUE(AfxIsIdleMessage(&msg));
    msg.message = WM_MOUSEMOVE;
    msg.pt = {12345, 54321};
    EXPECT_TRUE(AfxIsIdleMessage(&msg));
    EXPECT_FALSE(AfxIsIdleMessage(&msg));
    msg.pt.x = 12346;
    EXPECT_TRUE(AfxIsIdleMessage(&msg));
}
