#include "TestApp.h"

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
    EXPECT_EQ(CString(_T("afx_app_test")), AfxGetAppName());
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

TEST(NoApplication, MessageBoxIsTheSystemsOne)
{
    ts::ModalDriver driver;
    CString strTitle;
    driver.InDialog([&](HWND hWnd) {
        CWnd::FromHandle(hWnd)->GetWindowText(strTitle);
        ::PostMessage(hWnd, WM_COMMAND, IDNO, 0);
    });
    EXPECT_EQ(IDNO, AfxMessageBox(_T("text"), MB_YESNO));
    EXPECT_EQ(CString(_T("afx_app_test")), strTitle);
}
