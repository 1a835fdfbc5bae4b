#pragma once

#include <tests/afx/TestWindows.h>

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
