#pragma once

#include "TestDialogs.h"

/** Opens what is protected, for the tests, and keeps the commands it receives. */
class CTestFrame : public CProbed<CQorFrame>
{
  public:
    using CQorFrame::DisableTitleBtn;
    using CQorFrame::GetClientPos;
    using CQorFrame::m_hAccel;
    using CQorFrame::PreCreateWindow;
    using CQorFrame::PreTranslateMessage;

    ~CTestFrame() override
    {
        if (m_hWnd) {
            DestroyWindow();
        }
    }

    bool Open(LPCWSTR className = nullptr)
    {
        if (!CreateEx(0, className, L"Frame", 0, CRect(100, 50, 700, 450), nullptr, 0)) {
            return false;
        }
        ShowWindow(SW_SHOW);
        ts::Settle();
        return true;
    }

    std::vector<WPARAM> m_sysCommands;
    bool m_swallowSysCommands = false;
    WORD m_command = 0;
    std::vector<UINT> m_defaults; // messages that got the default processing

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SYSCOMMAND) {
            m_sysCommands.push_back(wParam);
            if (m_swallowSysCommands) {
                return 0;
            }
        }
        if (message == WM_COMMAND && lParam == 0) {
            m_command = LOWORD(wParam);
        }
        return CQorFrame::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_defaults.push_back(message);
        return message == WM_NCLBUTTONDOWN ? 0 : CQorFrame::DefWindowProc(message, wParam, lParam);
    }
};
