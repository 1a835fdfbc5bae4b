#include "TestFrame.h"

#include <tests/support/Imports.h>
#include <tests/support/NoWindowClasses.h>

// What dialogs and frame windows do when the system refuses them something.
namespace
{

HWND WINAPI RefuseButtons(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int cx, int cy,
                          HWND parent, HMENU menu, HINSTANCE inst, void* param)
{
    if (!IS_INTRESOURCE(className) && ::lstrcmpiW(className, L"Button") == 0) {
        return nullptr;
    }
    return ::CreateWindowExW(exStyle, className, text, style, x, y, cx, cy, parent, menu, inst, param);
}

int g_buttons = 0;

HWND WINAPI CountButtons(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int cx, int cy,
                         HWND parent, HMENU menu, HINSTANCE inst, void* param)
{
    g_buttons += !IS_INTRESOURCE(className) && ::lstrcmpiW(className, L"Button") == 0;
    return ::CreateWindowExW(exStyle, className, text, style, x, y, cx, cy, parent, menu, inst, param);
}

/** A window whose default processing refuses its creation. */
template <class Window>
class CRefused : public Window
{
  public:
    using Window::Window;

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_CREATE ? -1 : Window::DefWindowProc(message, wParam, lParam);
    }
};

HBITMAP WINAPI NoBitmap(HINSTANCE, LPCWSTR)
{
    return nullptr;
}

// --- dialogs

TEST(DialogFailure, DoesNotOpenWithoutACloseButton)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    CTestDialog modeless(IDD_OK_CANCEL, 1);
    ASSERT_FALSE(modeless.Create(IDD_OK_CANCEL));
    CTestDialog modal(IDD_OK_CANCEL, 1);
    EXPECT_EQ(-1, modal.DoModal());
}

TEST(DialogFailure, DoesNotOpenWhenTheDefaultRefusesItsCreation)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &CountButtons);
    g_buttons = 0;
    CRefused<CTestDialog> modeless(IDD_OK_CANCEL, 1);
    ASSERT_FALSE(modeless.Create(IDD_OK_CANCEL));
    EXPECT_EQ(nullptr, modeless.m_hWnd);
    CRefused<CTestDialog> modal(IDD_OK_CANCEL, 1);
    EXPECT_EQ(-1, modal.DoModal());
    EXPECT_EQ(0, g_buttons);
}

TEST(DialogFailure, FailsToOpenWithoutItsTemplate)
{
    CTestDialog dialog(9999, 1);
    EXPECT_EQ(-1, dialog.DoModal());
}

TEST(DialogFailure, LeavesNothingBehindWhenItDoesNotOpen)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_TRUE(ts::NoLeak([] {
        CTestDialog dialog(IDD_OK_CANCEL, 5);
        dialog.DoModal();
    }));
}

TEST(DialogFailure, OpensWithoutThePictureOfItsCloseButton)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "LoadBitmapW", &NoBitmap);
    CTestDialog dialog(IDD_OK_CANCEL, 1);
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, 1003)); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

// --- message box

TEST(MsgBoxFailure, ABoxThatCannotBeCreatedAnswersMinusOne)
{
    ts::HostWindow host;
    const HINSTANCE before = AfxGetModuleState()->m_hCurrentResourceHandle;
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"kernel32.dll");
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_EQ(0xFFFFFFFFu, QorMsgBox(L"x", QOR_MSG_CONFIRM, 0, CWnd::FromHandle(host.Hwnd())));
    EXPECT_TRUE(::IsWindowEnabled(host.Hwnd()));
    EXPECT_EQ(::GetModuleHandleW(nullptr), AfxGetModuleState()->m_hCurrentResourceHandle);
    AfxGetModuleState()->m_hCurrentResourceHandle = before;
}

TEST(MsgBoxFailure, LeavesNothingBehindWhenItCannotBeCreated)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_TRUE(ts::NoLeak([] { QorMsgBox(L"x", QOR_MSG_YESNO, 5, nullptr); }));
}

// --- frame windows

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
    const ts::ReplacedImport hook(L"QorUI.dll", "LoadBitmapW", &NoBitmap);
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    ts::Click(::GetDlgItem(frame, 1002));
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
