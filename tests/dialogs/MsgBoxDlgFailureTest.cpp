#include "Refusals.h"

namespace
{

constexpr UINT kNotCreated = 0xFFFFFFFF;

TEST(MsgBoxFailure, ABoxThatCannotBeCreatedAnswersMinusOne)
{
    ts::HostWindow host;
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"kernel32.dll");
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_EQ(kNotCreated, QorMsgBox(L"x", QOR_MSG_CONFIRM, 0, CWnd::FromHandle(host.Hwnd())));
    EXPECT_TRUE(::IsWindowEnabled(host.Hwnd()));
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

TEST(MsgBoxFailure, LeavesNothingBehindWhenItCannotBeCreated)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_TRUE(ts::NoLeak([] { QorMsgBox(L"x", QOR_MSG_YESNO, 5, nullptr); }));
}

} // namespace
