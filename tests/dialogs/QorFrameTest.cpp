#include "TestFrame.h"

#include <tests/support/Imports.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <algorithm>

namespace
{

constexpr UINT kMinimize = IDC_FRAME_MINIMIZE;
constexpr UINT kMaximize = IDC_FRAME_MAXIMIZE;
constexpr UINT kClose = IDC_FRAME_CLOSE;
constexpr WORD kCommand = 777;
constexpr int kWidth = 600; // of the frame when it opens

TEST(Frame, StylesAreFixedBeforeCreation)
{
    CTestFrame frame;
    CREATESTRUCT cs = {};
    cs.style = WS_CAPTION | WS_CHILD;
    cs.dwExStyle = WS_EX_TOPMOST;
    ASSERT_TRUE(frame.PreCreateWindow(cs));
    EXPECT_EQ(0x860B0000u, static_cast<DWORD>(cs.style));
    EXPECT_EQ(static_cast<DWORD>(WS_EX_CONTROLPARENT), cs.dwExStyle);
    ASSERT_NE(nullptr, cs.lpszClass);
    WNDCLASSW wndClass = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), cs.lpszClass, &wndClass));
    EXPECT_EQ(nullptr, wndClass.hbrBackground);
    EXPECT_EQ(0u, wndClass.style);
}

TEST(Frame, RegistersTheCallersClassWithNothingButAProcedure)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open(L"QorFrameTestClass"));
    WNDCLASSW wndClass = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), L"QorFrameTestClass", &wndClass));
    EXPECT_EQ(&::DefWindowProcW, wndClass.lpfnWndProc);
    EXPECT_EQ(0u, wndClass.style);
    EXPECT_EQ(nullptr, wndClass.hbrBackground);
    EXPECT_EQ(nullptr, wndClass.hCursor);
    EXPECT_EQ(nullptr, wndClass.hIcon);
    WCHAR name[64] = {};
    ::GetClassNameW(frame, name, 64);
    EXPECT_STREQ(L"QorFrameTestClass", name);
}

TEST(Frame, TwoFramesMayShareAClassName)
{
    CTestFrame first;
    CTestFrame second;
    EXPECT_TRUE(first.Open(L"QorFrameSharedClass"));
    EXPECT_TRUE(second.Open(L"QorFrameSharedClass"));
}

TEST(Frame, TitleButtonsStandInTheCorner)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ(CRect(CPoint(kWidth - 101, 1), CSize(26, 17)), frame.CtrlRect(kMinimize));
    EXPECT_EQ(CRect(CPoint(kWidth - 75, 1), CSize(25, 17)), frame.CtrlRect(kMaximize));
    EXPECT_EQ(CRect(CPoint(kWidth - 50, 1), CSize(42, 17)), frame.CtrlRect(kClose));
}

TEST(Frame, TitleButtonsFollowTheSize)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(500 - 101, frame.CtrlRect(kMinimize).left);
    EXPECT_EQ(500 - 75, frame.CtrlRect(kMaximize).left);
    EXPECT_EQ(500 - 50, frame.CtrlRect(kClose).left);
    EXPECT_FALSE(InShape(frame, 498, 0));
    EXPECT_TRUE(InShape(frame, 498, 150));
}

TEST(Frame, TitleButtonsShowTheirStrips)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    ts::ParkMouse();
    const int widths[] = {26, 25, 42};
    for (int i = 0; i < 3; ++i) {
        const UINT id = IDB_FRAME_MINIMIZE + static_cast<UINT>(i);
        const ts::Picture expected = ts::ResourcePicture(ts::Library(), id).Crop({0, 0, widths[i], 17});
        const HWND button = ::GetDlgItem(frame, static_cast<int>(kMinimize) + i);
        EXPECT_TRUE(ts::SamePicture(expected, ts::CaptureWindow(button))) << i;
    }
}

int g_transparent = 0;

BOOL WINAPI CountTransparent(HDC, int, int, int, int, HDC, int, int, int, int, UINT)
{
    ++g_transparent;
    return TRUE;
}

TEST(Frame, TitleButtonsAreOpaque)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "GdiTransparentBlt", &CountTransparent);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    ts::CaptureWindow(frame);
    EXPECT_EQ(0, g_transparent);
}

TEST(Frame, IsRoundedByTwelve)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    CRgn expected;
    expected.CreateRoundRectRgn(0, 0, 600, 400, 12, 12);
    EXPECT_TRUE(HasShape(frame, expected));
}

TEST(Frame, TakesTheApplicationIcon)
{
    const HICON icon = ::LoadIconW(nullptr, IDI_ASTERISK);
    QorSetAppIcon(icon, FALSE);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ(reinterpret_cast<LRESULT>(icon), frame.SendMessage(WM_GETICON, ICON_SMALL));
    EXPECT_EQ(0, frame.SendMessage(WM_GETICON, ICON_BIG));
    QorSetAppIcon(nullptr, FALSE);
}

// --- hit-testing

TEST(FrameHitTest, TitleButtonsAreClientArea)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ(HTCLIENT, frame.Hit(kWidth - 101, 1));
    EXPECT_EQ(HTCLIENT, frame.Hit(kWidth - 75, 10));
    EXPECT_EQ(HTCLIENT, frame.Hit(kWidth - 9, 17));
}

TEST(FrameHitTest, BorderSizes)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ(HTLEFT, frame.Hit(2, 200));
    EXPECT_EQ(HTTOPLEFT, frame.Hit(6, 6));
    EXPECT_EQ(HTBOTTOMRIGHT, frame.Hit(597, 397));
    EXPECT_EQ(HTBOTTOM, frame.Hit(300, 398));
    EXPECT_EQ(HTTOP, frame.Hit(300, 3));
}

TEST(FrameHitTest, WithoutTheFlagTheBannerIsEightyFourHigh)
{
    QorSetAppIcon(nullptr, FALSE);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ(HTCAPTION, frame.Hit(300, 70));
    EXPECT_EQ(HTCAPTION, frame.Hit(300, 84));
    EXPECT_EQ(HTCLIENT, frame.Hit(300, 85));
}

TEST(FrameHitTest, WithTheFlagTheBannerIsSixtyFourHigh)
{
    QorSetAppIcon(nullptr, TRUE);
    CTestFrame frame;
    const bool opened = frame.Open();
    const LRESULT last = frame.Hit(300, 64);
    const LRESULT below = frame.Hit(300, 70);
    QorSetAppIcon(nullptr, FALSE);
    ASSERT_TRUE(opened);
    EXPECT_EQ(HTCAPTION, last);
    EXPECT_EQ(HTCLIENT, below);
}

TEST(FrameHitTest, NeverAsksForTheDefault)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_defaults.clear();
    EXPECT_EQ(HTCLIENT, frame.Hit(300, 250));
    EXPECT_EQ(HTTOPLEFT, frame.Hit(-50, -50)); // the default would answer HTNOWHERE
    EXPECT_TRUE(frame.m_defaults.empty());
}

// --- cursors and sizing

TEST(Frame, CursorFollowsTheBorder)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const std::pair<UINT, LPCWSTR> cursors[] = {
        {HTLEFT, IDC_SIZEWE},       {HTRIGHT, IDC_SIZEWE},        {HTTOP, IDC_SIZENS},
        {HTBOTTOM, IDC_SIZENS},     {HTTOPLEFT, IDC_SIZENWSE},    {HTBOTTOMRIGHT, IDC_SIZENWSE},
        {HTTOPRIGHT, IDC_SIZENESW}, {HTBOTTOMLEFT, IDC_SIZENESW}, {HTCLIENT, IDC_ARROW},
        {HTCAPTION, IDC_ARROW},
    };
    for (const auto& [hit, cursor] : cursors) {
        ::SetCursor(nullptr);
        const LRESULT done =
            frame.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(frame.m_hWnd), MAKELPARAM(hit, WM_MOUSEMOVE));
        EXPECT_EQ(TRUE, done) << hit;
        EXPECT_EQ(::LoadCursorW(nullptr, cursor), ::GetCursor()) << hit;
    }
}

TEST(Frame, BorderStartsTheSizingCommand)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_swallowSysCommands = true;
    for (UINT hit = HTLEFT; hit <= HTBOTTOMRIGHT; ++hit) {
        frame.m_sysCommands.clear();
        frame.SendMessage(WM_NCLBUTTONDOWN, hit, MAKELPARAM(5, 6));
        ASSERT_EQ(1u, frame.m_sysCommands.size()) << hit;
        EXPECT_EQ(static_cast<WPARAM>(SC_SIZE + hit - 9), frame.m_sysCommands[0]);
    }
}

TEST(Frame, OtherCodesThanTheBordersGetTheDefault)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_swallowSysCommands = true;
    frame.m_defaults.clear();
    for (UINT hit = HTLEFT; hit <= HTBOTTOMRIGHT; ++hit) {
        frame.SendMessage(WM_NCLBUTTONDOWN, hit, 0);
    }
    EXPECT_EQ(0, std::count(frame.m_defaults.begin(), frame.m_defaults.end(), static_cast<UINT>(WM_NCLBUTTONDOWN)));
    frame.m_sysCommands.clear();
    for (const UINT hit : {HTCAPTION, HTCLIENT, HTVSCROLL, HTBORDER}) {
        frame.SendMessage(WM_NCLBUTTONDOWN, hit, 0);
    }
    EXPECT_EQ(4, std::count(frame.m_defaults.begin(), frame.m_defaults.end(), static_cast<UINT>(WM_NCLBUTTONDOWN)));
    EXPECT_TRUE(frame.m_sysCommands.empty());
}

TEST(Frame, SizesLimitsAndActivationGetTheDefaultToo)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_defaults.clear();
    MINMAXINFO info = {};
    frame.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    frame.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(600, 400));
    frame.SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    for (const UINT message : {WM_GETMINMAXINFO, WM_SIZE, WM_ACTIVATE}) {
        EXPECT_EQ(1, std::count(frame.m_defaults.begin(), frame.m_defaults.end(), message)) << message;
    }
}

TEST(Frame, SizeLimitsAreTheSmallestSizeAndTheWorkArea)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    MINMAXINFO info = {};
    info.ptMaxSize.x = 1234;
    frame.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(1234, info.ptMaxSize.x);
    EXPECT_EQ(CPoint(360, 260), CPoint(info.ptMinTrackSize));
    CRect work;
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0));
    EXPECT_EQ(work.bottom - work.top + 1, info.ptMaxSize.y);
}

// --- title buttons

TEST(FrameButtons, MinimizeMaximizeAndCloseSendTheirSystemCommands)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.m_swallowSysCommands = true;
    for (const UINT id : {kMinimize, kMaximize, kClose}) {
        ts::Click(::GetDlgItem(frame, static_cast<int>(id)));
    }
    EXPECT_EQ((std::vector<WPARAM>{SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE}), frame.m_sysCommands);
}

TEST(FrameButtons, MaximizingTwiceRestores)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.SendMessage(WM_COMMAND, kMaximize);
    EXPECT_TRUE(frame.IsZoomed());
    frame.SendMessage(WM_COMMAND, kMaximize);
    EXPECT_FALSE(frame.IsZoomed());
    CRect rect;
    frame.GetWindowRect(rect);
    EXPECT_EQ(CRect(100, 50, 700, 450), rect);
}

TEST(FrameButtons, CloseDestroysTheWindow)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    ts::Click(::GetDlgItem(frame, kClose));
    EXPECT_TRUE(ts::PumpUntil([&frame] { return frame.m_hWnd == nullptr; }));
}

TEST(FrameButtons, DisablingMinimizeRemovesItsStyle)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.DisableTitleBtn(CQorFrame::MinimizeButton, TRUE);
    EXPECT_EQ(0u, frame.GetStyle() & WS_MINIMIZEBOX);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(frame, kMinimize)));
    frame.DisableTitleBtn(CQorFrame::MinimizeButton, FALSE);
    EXPECT_NE(0u, frame.GetStyle() & WS_MINIMIZEBOX);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(frame, kMinimize)));
}

TEST(FrameButtons, DisablingMaximizeRemovesItsStyle)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.DisableTitleBtn(CQorFrame::MaximizeButton, TRUE);
    EXPECT_EQ(0u, frame.GetStyle() & WS_MAXIMIZEBOX);
    EXPECT_NE(0u, frame.GetStyle() & WS_MINIMIZEBOX);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(frame, kMaximize)));
    frame.DisableTitleBtn(CQorFrame::MaximizeButton, FALSE);
    EXPECT_NE(0u, frame.GetStyle() & WS_MAXIMIZEBOX);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(frame, kMaximize)));
}

TEST(FrameButtons, DisablingCloseGraysTheSystemMenu)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    frame.DisableTitleBtn(CQorFrame::CloseButton, TRUE);
    EXPECT_NE(0u, ::GetMenuState(::GetSystemMenu(frame, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(frame, kClose)));
    frame.DisableTitleBtn(CQorFrame::CloseButton, FALSE);
    EXPECT_EQ(0u, ::GetMenuState(::GetSystemMenu(frame, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(frame, kClose)));
}

TEST(FrameButtons, AnIndexBeyondTheThreeDoesNothing)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const DWORD style = frame.GetStyle();
    frame.DisableTitleBtn(CQorFrame::TitleButtons, TRUE);
    frame.DisableTitleBtn(0xFFFFFFFF, TRUE);
    EXPECT_EQ(style, frame.GetStyle());
    for (const UINT id : {kMinimize, kMaximize, kClose}) {
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(frame, static_cast<int>(id))));
    }
}

// --- content

TEST(Frame, ClientPlaceLiesBelowTheBanner)
{
    QorSetAppIcon(nullptr, FALSE);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    CRect place;
    frame.GetClientPos(place);
    EXPECT_EQ(CRect(9, 83, 590, 390), place);
    QorSetAppIcon(nullptr, TRUE);
    frame.GetClientPos(place);
    QorSetAppIcon(nullptr, FALSE);
    EXPECT_EQ(CRect(9, 63, 590, 390), place);
}

// --- keyboard and focus

struct FrameWithEdits
{
    FrameWithEdits()
    {
        frame.Open();
        for (int i = 0; i < 2; ++i) {
            edits[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(20, 100 + i * 30, 200, 120 + i * 30), &frame,
                            50 + i);
        }
    }
    CTestFrame frame;
    CEdit edits[2];
};

TEST(FrameKeyboard, TabMovesBetweenChildren)
{
    FrameWithEdits content;
    content.edits[0].SetFocus();
    MSG tab = {};
    tab.hwnd = content.edits[0];
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    EXPECT_TRUE(content.frame.PreTranslateMessage(&tab));
    EXPECT_EQ(content.edits[1].m_hWnd, ::GetFocus());
}

TEST(FrameKeyboard, AcceleratorsComeFirst)
{
    FrameWithEdits content;
    ACCEL accel = {FVIRTKEY, VK_TAB, kCommand};
    content.frame.m_hAccel = ::CreateAcceleratorTableW(&accel, 1);
    content.edits[0].SetFocus();
    MSG tab = {};
    tab.hwnd = content.edits[0];
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    EXPECT_TRUE(content.frame.PreTranslateMessage(&tab));
    EXPECT_EQ(kCommand, content.frame.m_command);
    EXPECT_EQ(content.edits[0].m_hWnd, ::GetFocus());
    ::DestroyAcceleratorTable(content.frame.m_hAccel);
    content.frame.m_hAccel = nullptr;
}

TEST(FrameKeyboard, OtherMessagesAreNotTranslated)
{
    FrameWithEdits content;
    ts::HostWindow other;
    MSG foreign = {};
    foreign.hwnd = other.Hwnd();
    foreign.message = WM_KEYDOWN;
    foreign.wParam = VK_TAB;
    EXPECT_FALSE(content.frame.PreTranslateMessage(&foreign));
}

TEST(FrameKeyboard, FocusComesBackAfterDeactivation)
{
    FrameWithEdits content;
    content.edits[1].SetFocus();
    ts::HostWindow other;
    ASSERT_TRUE(ts::BringToFront(other.Hwnd()));
    ASSERT_NE(content.edits[1].m_hWnd, ::GetFocus());
    ASSERT_TRUE(ts::BringToFront(content.frame));
    EXPECT_EQ(content.edits[1].m_hWnd, ::GetFocus());
}

TEST(FrameKeyboard, ADestroyedFocusIsForgotten)
{
    FrameWithEdits content;
    content.edits[1].SetFocus();
    ts::HostWindow other;
    ASSERT_TRUE(ts::BringToFront(other.Hwnd()));
    content.edits[1].DestroyWindow();
    ASSERT_TRUE(ts::BringToFront(content.frame));
    EXPECT_TRUE(::IsWindow(content.frame));
}

TEST(Frame, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CTestFrame frame;
        frame.CreateEx(0, nullptr, L"Frame", 0, CRect(100, 50, 700, 450), nullptr, 0);
        frame.ShowWindow(SW_SHOW);
        frame.UpdateWindow();
        frame.SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
        frame.UpdateWindow();
        frame.DestroyWindow();
    }));
}

} // namespace
