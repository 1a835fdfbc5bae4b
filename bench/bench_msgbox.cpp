/** @file
 * Opening, painting and closing the library's message box, against the system's.
 */

#include "Ratio.h"

#include <QorUI/QorUI.h>

namespace
{

/** Owner of the boxes: closes a box as soon as it has nothing left to do, that is when it was painted. */
class COwner : public CWnd
{
  public:
    COwner() { CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 200, 200, nullptr, nullptr); }

  protected:
    afx_msg void OnEnterIdle(UINT /*why*/, CWnd* who) { who->PostMessage(WM_COMMAND, IDOK); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(COwner, CWnd)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

constexpr LPCWSTR kText = L"The snapshot could not be taken because the disk is full.";

void OwnBox(benchmark::State& state)
{
    COwner owner;
    for (auto _ : state) {
        benchmark::DoNotOptimize(QorMsgBox(kText, QOR_MSG_INFO, 0, &owner));
    }
}

void SystemBox(benchmark::State& state)
{
    COwner owner;
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
