#pragma once

#include <tests/afx/TestWindows.h>

constexpr UINT kCommand = 0x8100;
constexpr UINT kUnhandled = 0x8101;

/** A window with a command that it runs and updates. */
class UpdatedTarget : public TopWnd
{
  public:
    BOOL enable = TRUE;
    int check = 0;
    bool keepRouting = false;
    int commands = 0;

    void OnRun() { ++commands; }
    void OnUpdate(CCmdUI* pCmdUI)
    {
        pCmdUI->Enable(enable);
        pCmdUI->SetCheck(check);
        pCmdUI->SetText(_T("new text"));
        if (keepRouting) {
            pCmdUI->ContinueRouting();
        }
    }

    DECLARE_MESSAGE_MAP()
};
