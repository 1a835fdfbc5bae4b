#include "Refusals.h"
#include "TestFrame.h"

#include <tests/support/NoWindowClasses.h>

namespace
{

TEST(FrameFailure, IsNotCreatedWhenItsClassCannotBeRegistered)
{
    const ts::NoWindowClasses none;
    CTestFrame frame;
    CREATESTRUCT cs = {};
    cs.lpszClass = L"QorFrameRefusedClass";
    EXPECT_FALSE(frame.PreCreateWindow(cs));
    EXPECT_FALSE(frame.Open(L"QorFrameRefusedClass"));
}

TEST(FrameFailure, IsNotCreatedWhenTheDefaultClassCannotBeRegistered)
{
    const ts::NoWindowClasses none;
    CTestFrame frame;
    CREATESTRUCT cs = {};
    EXPECT_FALSE(frame.PreCreateWindow(cs));
    EXPECT_FALSE(frame.Open());
    EXPECT_EQ(nullptr, frame.m_hWnd);
}

TEST(FrameFailure, IsNotCreatedWhenTheDefaultRefusesIt)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &CountButtons);
    g_buttons = 0;
    CRefused<CTestFrame> frame;
    EXPECT_FALSE(frame.Open());
    EXPECT_EQ(nullptr, frame.m_hWnd);
    EXPECT_EQ(0, g_buttons);
}

TEST(FrameFailure, IsNotCreatedWithoutItsTitleButtons)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    CTestFrame frame;
    EXPECT_FALSE(frame.Open());
    EXPECT_EQ(nullptr, frame.m_hWnd);
}

TEST(FrameFailure, LeavesNothingBehindWhenItIsNotCreated)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_TRUE(ts::NoLeak([] {
        CTestFrame frame;
        frame.CreateEx(0, nullptr, L"Frame", 0, CRect(100, 50, 700, 450), nullptr, 0);
    }));
}

TEST(FrameFailure, OpensWithoutThePicturesOfItsTitleButtons)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "LoadBitmapW", &ts::NoBitmapResource);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    ts::Click(::GetDlgItem(frame, IDC_FRAME_CLOSE));
    EXPECT_TRUE(ts::PumpUntil([&frame] { return frame.m_hWnd == nullptr; }));
}

BOOL WINAPI NoSystemParameters(UINT, UINT, void*, UINT)
{
    return FALSE;
}

TEST(FrameFailure, WithoutAWorkAreaTheMaximizedHeightStays)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "SystemParametersInfoW", &NoSystemParameters);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    MINMAXINFO info = {};
    info.ptMaxSize = {1234, 567};
    frame.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(CPoint(1234, 567), CPoint(info.ptMaxSize));
}

} // namespace
