#include "Windows.h"

namespace
{
/** An application object as a program has it, for the time of a test. */
class TestApp : public CWinApp
{
  public:
    TestApp() : CWinApp(_T("test app")) { AfxWinInit(::GetModuleHandle(nullptr), nullptr, nullptr, SW_SHOW); }
    ~TestApp() override { AfxWinTerm(); }

    Events events;
    int boxResult = IDYES;

    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) override
    {
        events.push_back(CStringA(lpszPrompt).GetString() + (" " + std::to_string(nType)));
        return boxResult;
    }
    LRESULT ProcessWndProcException(CException*, const MSG*) override
    {
        events.push_back("exception");
        return 0;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == WM_USER + 1) {
            events.push_back("app translate");
        }
        return CWinApp::PreTranslateMessage(pMsg);
    }
    void OnThreadMessage(WPARAM wParam, LPARAM lParam)
    {
        events.push_back("thread message " + std::to_string(wParam) + " " + std::to_string(lParam));
        ::PostQuitMessage(5);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestApp, CWinApp)
    ON_THREAD_MESSAGE(WM_USER + 20, &TestApp::OnThreadMessage)
END_MESSAGE_MAP()

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

/** Runs a program that stands beside this one. @return its exit code, or -1. */
int RunProgram(LPCTSTR name)
{
    TCHAR szPath[MAX_PATH];
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    CString strProgram(szPath);
    strProgram = strProgram.Left(strProgram.ReverseFind(_T('\\')) + 1) + name;
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(strProgram, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return -1;
    }
    DWORD dwCode = static_cast<DWORD>(-1);
    if (::WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0) {
        ::GetExitCodeProcess(process.hProcess, &dwCode);
    } else {
        ::TerminateProcess(process.hProcess, 1);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(dwCode);
}
} // namespace

TEST(Application, IsKnownWhileItLives)
{
    {
        const TestApp app;
        EXPECT_EQ(&app, AfxGetApp());
        EXPECT_EQ(&app, AfxGetThread());
        EXPECT_EQ(CString(_T("test app")), AfxGetAppName());
        EXPECT_EQ(::GetModuleHandle(nullptr), app.m_hInstance);
        EXPECT_EQ(SW_SHOW, app.m_nCmdShow);
    }
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetThread());
}

TEST(Application, NameIsTheProgramsWithoutAnApplicationObject)
{
    EXPECT_EQ(CString(_T("afx_wnd_test")), AfxGetAppName());
}

TEST(Application, MainWindowIsKnownAndItsEndEndsTheLoop)
{
    TestApp app;
    CWnd main;
    ASSERT_TRUE(main.CreateEx(0, nullptr, _T(""), WS_OVERLAPPEDWINDOW, CRect(0, 0, 50, 50), nullptr, 0));
    app.m_pMainWnd = &main;
    EXPECT_EQ(&main, AfxGetMainWnd());
    main.PostMessage(WM_CLOSE);
    EXPECT_EQ(0, app.Run());
    EXPECT_EQ(nullptr, app.m_pMainWnd);
}

TEST(Application, LoopWithoutAMainWindowEndsAtOnce)
{
    TestApp app;
    EXPECT_EQ(0, app.Run());
}

TEST(Application, ThreadMessagesReachTheirHandlersAndQuitGivesTheExitCode)
{
    TestApp app;
    CWnd main;
    ASSERT_TRUE(main.CreateEx(0, nullptr, _T(""), WS_OVERLAPPEDWINDOW, CRect(0, 0, 50, 50), nullptr, 0));
    app.m_pMainWnd = &main;
    ::PostThreadMessage(::GetCurrentThreadId(), WM_USER + 20, 7, 8);
    EXPECT_EQ(5, app.Run());
    EXPECT_EQ(Events{"thread message 7 8"}, app.events);
}

TEST(Application, PreTranslatesBeforeTheWindowsDo)
{
    TestApp app;
    TopWnd wnd;
    wnd.PostMessage(WM_USER + 1);
    while (app.events.empty() && AfxPumpMessage()) {
    }
    EXPECT_EQ(Events{"app translate"}, app.events);
}

TEST(Application, ExceptionOfAHandlerIsItsToProcess)
{
    class Throwing : public CWnd
    {
      public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                AfxThrowMemoryException();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    TestApp app;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_EQ(0, wnd.SendMessage(WM_USER));
    EXPECT_EQ(Events{"exception"}, app.events);
}

TEST(Application, MessageBoxGoesThroughIt)
{
    TestApp app;
    EXPECT_EQ(IDYES, AfxMessageBox(_T("question"), MB_YESNO));
    EXPECT_EQ(IDYES, AfxMessageBox(IDS_GREETING, MB_OK));
    EXPECT_EQ((Events{"question 4", "Hello from the string table 0"}), app.events);
}

TEST(Application, SecondOneInTheSameModuleDoesNotReplaceTheFirst)
{
    const TestApp app;
#ifndef _DEBUG
    {
        const CWinApp second;
        EXPECT_EQ(&app, AfxGetApp());
    }
#endif
    EXPECT_EQ(&app, AfxGetApp());
    EXPECT_EQ(&app, AfxGetThread());
}

TEST(Application, WaitCursorNestsAndComesBack)
{
    TestApp app;
    ::SetCursor(app.LoadStandardCursor(IDC_CROSS));
    const HCURSOR hBefore = ::GetCursor();
    {
        CWaitCursor outer;
        const HCURSOR hWait = ::GetCursor();
        EXPECT_NE(hBefore, hWait);
        {
            CWaitCursor inner;
        }
        EXPECT_EQ(hWait, ::GetCursor());
        ::SetCursor(hBefore);
        outer.Restore();
        EXPECT_EQ(hWait, ::GetCursor());
    }
    EXPECT_EQ(hBefore, ::GetCursor());
}

TEST(NoApplication, WaitCursorWorksToo)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
    const HCURSOR hBefore = ::GetCursor();
    {
        const CWaitCursor wait;
        EXPECT_NE(hBefore, ::GetCursor());
    }
    EXPECT_EQ(hBefore, ::GetCursor());
}

TEST(NoApplication, MessageBoxIsTheSystemsOne)
{
    ts::ModalDriver driver;
    CString strTitle;
    driver.InDialog([&](HWND hWnd) {
        CWnd::FromHandle(hWnd)->GetWindowText(strTitle);
        ::PostMessage(hWnd, WM_COMMAND, IDNO, 0);
    });
    EXPECT_EQ(IDNO, AfxMessageBox(_T("text"), MB_YESNO));
    EXPECT_EQ(CString(_T("afx_wnd_test")), strTitle);
}

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

TEST(Programs, PlainProgramWithoutAnApplicationObjectUsesDialogsAndLoops)
{
    EXPECT_EQ(17, RunProgram(_T("afx_wnd_plain_host.exe")));
}

TEST(Programs, ProgramWithAnApplicationObjectRunsAndEndsWithItsMainWindow)
{
    EXPECT_EQ(23, RunProgram(_T("afx_wnd_app_host.exe")));
}
