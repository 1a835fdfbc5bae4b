/** @file
 * Opening, painting and closing the library's message box, against the system's.
 */

#include "Runner.h"

#include <common/Owner.h>
#include <QorUI/QorUI.h>

namespace
{

constexpr UINT kBoxIsActive = WM_APP; // wParam: the box

/** Owner of the boxes: as soon as a box is active, has it painted whole and closes it. */
class CBoxOwner : public CWnd
{
  public:
    CBoxOwner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 200, 200, nullptr, nullptr);
        s_owner = m_hWnd;
        m_hook.Reset(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId()));
    }
    ~CBoxOwner() override
    {
        m_hook.Reset();
        DestroyWindow();
    }

  protected:
    afx_msg LRESULT OnBoxIsActive(WPARAM wParam, LPARAM)
    {
        const auto box = reinterpret_cast<HWND>(wParam);
        ::RedrawWindow(box, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

  private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_ACTIVATE && reinterpret_cast<HWND>(wParam) != s_owner) {
            ::PostMessageW(s_owner, kBoxIsActive, wParam, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline HWND s_owner = nullptr;
    own::Owner<own::FreedBy<HHOOK, ::UnhookWindowsHookEx>> m_hook;
};

BEGIN_MESSAGE_MAP(CBoxOwner, CWnd)
    ON_MESSAGE(kBoxIsActive, &CBoxOwner::OnBoxIsActive)
END_MESSAGE_MAP()

constexpr LPCWSTR kText = L"The snapshot could not be taken because the disk is full.";

void OwnBox(benchmark::State& state)
{
    CBoxOwner owner;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QorMsgBox(kText, QOR_MSG_INFO, 0, &owner));
    }
}

void SystemBox(benchmark::State& state)
{
    CBoxOwner owner;
    for (auto _ : state) {
        benchmark::DoNotOptimize(::MessageBoxW(owner, kText, L"Information", MB_OK | MB_ICONINFORMATION));
    }
}

} // namespace

int main(int argc, char** argv)
{
    ComparePair("message box", &OwnBox, &SystemBox);
    return RunBenchmarks(argc, argv);
}
