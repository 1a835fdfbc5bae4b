#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

namespace
{
constexpr int kOkId = IDOK;
constexpr int kCommand = 501;

/** An empty dialog template in memory, as the system wants it: aligned, no menu, default class, a title. */
struct DialogData
{
    alignas(4) DLGTEMPLATE header = {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 20, 20, 120, 60};
    WORD menu = 0;
    WORD windowClass = 0;
    wchar_t title[4] = L"Dlg";
};

/** Makes an OK button; refuses every way to close but that button when told to be stubborn. */
INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT id, WPARAM wParam, LPARAM stubborn)
{
    if (id == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, stubborn);
        CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10, 60, 24, dialog,
                        reinterpret_cast<HMENU>(INT_PTR{kOkId}), nullptr, nullptr);
        return TRUE;
    }
    if (id == WM_COMMAND && LOWORD(wParam) == kOkId) {
        EndDialog(dialog, kOkId);
    }
    if (id == WM_COMMAND && LOWORD(wParam) == IDCANCEL && !GetWindowLongPtrW(dialog, DWLP_USER)) {
        EndDialog(dialog, IDCANCEL);
    }
    return FALSE;
}

INT_PTR RunDialog(HWND owner, bool stubborn = false)
{
    const DialogData data;
    return DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &data.header, owner, DialogProcedure, stubborn);
}

TEST(ModalDriver, ClicksInADialog)
{
    const ts::HostWindow host;
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) { ts::Click(GetDlgItem(dialog, kOkId)); });
    EXPECT_EQ(kOkId, RunDialog(host.Hwnd()));
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalDriver, PressesKeysInADialog)
{
    const ts::HostWindow host;
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(IDCANCEL, RunDialog(host.Hwnd()));
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalDriver, RunsStepsInOrder)
{
    const ts::HostWindow host;
    std::string order;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND) { order += "a"; })
        .Then([&] { order += "b"; })
        .When(
            "b is done", [&] { return order == "ab"; }, [&] { order += "c"; })
        .InDialog([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, kOkId, 0); });
    EXPECT_EQ(kOkId, RunDialog(host.Hwnd()));
    EXPECT_EQ("abc", order);
}

TEST(ModalDriver, WorksADialogOpenedByAStep)
{
    const ts::HostWindow host;
    ts::ModalDriver driver;
    INT_PTR inner = 0;
    driver
        .InDialog([&](HWND outer) {
            inner = RunDialog(outer);
            EndDialog(outer, 77);
        })
        .InDialog([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, kOkId, 0); });
    EXPECT_EQ(77, RunDialog(host.Hwnd()));
    EXPECT_EQ(kOkId, inner);
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalDriver, WorksAMessageBox)
{
    const ts::HostWindow host;
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) { ts::Click(GetDlgItem(dialog, IDNO)); });
    EXPECT_EQ(IDNO, MessageBoxW(host.Hwnd(), L"Really?", L"Question", MB_YESNO));
    EXPECT_TRUE(driver.Finished());
}

/** A popup menu of two items. */
class Menu
{
  public:
    Menu() : m_menu(CreatePopupMenu())
    {
        AppendMenuW(m_menu, MF_STRING, kCommand, L"First item");
        AppendMenuW(m_menu, MF_STRING, kCommand + 1, L"Second item");
    }
    ~Menu() { DestroyMenu(m_menu); }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    UINT Track(HWND owner) const
    {
        return static_cast<UINT>(TrackPopupMenu(m_menu, TPM_RETURNCMD, 300, 300, 0, owner, nullptr));
    }
    /** In screen coordinates. */
    RECT Item(UINT index) const
    {
        RECT rect = {};
        GetMenuItemRect(nullptr, m_menu, index, &rect);
        return rect;
    }

  private:
    HMENU m_menu;
};

TEST(ModalDriver, ChoosesAMenuItemByKeys)
{
    const ts::HostWindow host;
    const Menu menu;
    ts::ModalDriver driver;
    driver.InMenu([](HWND) {
        ts::Key(VK_DOWN);
        ts::Key(VK_DOWN);
        ts::Key(VK_RETURN);
    });
    EXPECT_EQ(UINT{kCommand + 1}, menu.Track(host.Hwnd()));
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalDriver, ChoosesAMenuItemByTheMouse)
{
    const ts::HostWindow host;
    const Menu menu;
    ts::ModalDriver driver;
    driver.InMenu([&](HWND popup) {
        const RECT item = menu.Item(1);
        POINT middle = {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
        ScreenToClient(popup, &middle);
        ts::Click(popup, middle.x, middle.y);
    });
    EXPECT_EQ(UINT{kCommand + 1}, menu.Track(host.Hwnd()));
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalDriver, DragsAWindowByItsCaption)
{
    ts::HostWindow host;
    RECT before = {};
    GetWindowRect(host.Hwnd(), &before);
    ts::ModalDriver driver;
    ts::MoveMouse(host.Hwnd(), 100, -10);
    driver.Then([] { ts::MouseDown(); })
        .When(
            "the move", [&] { return host.Hwnd() == GetCapture(); }, [&] { ts::MoveMouse(host.Hwnd(), 150, 30); })
        .Then([] { ts::MouseUp(); });
    EXPECT_TRUE(ts::PumpUntil([&] { return driver.Finished() && !GetCapture(); }));
    RECT after = {};
    GetWindowRect(host.Hwnd(), &after);
    EXPECT_EQ(before.left + 50, after.left);
    EXPECT_EQ(before.top + 40, after.top);
}

void LeaveDialogOpen()
{
    const ts::HostWindow host;
    ts::ModalDriver driver(200);
    driver.InDialog([](HWND) {});
    EXPECT_EQ(IDCANCEL, RunDialog(host.Hwnd()));
    EXPECT_FALSE(driver.Finished());
}

TEST(ModalDriver, EndsADialogThatStays)
{
    EXPECT_NONFATAL_FAILURE(LeaveDialogOpen(), "still there after the last step");
}

void LeaveStubbornDialogOpen()
{
    const ts::HostWindow host;
    ts::ModalDriver driver(200);
    driver.InDialog([](HWND) {});
    RunDialog(host.Hwnd(), true);
}

TEST(ModalDriver, EndsADialogThatRefusesToClose)
{
    EXPECT_NONFATAL_FAILURE(LeaveStubbornDialogOpen(), "still there after the last step");
}

/** A modeless dialog in a loop of its own, as a class library runs its modal dialogs. */
void LeaveDialogWithItsOwnLoopOpen()
{
    const ts::HostWindow host;
    const DialogData data;
    ts::ModalDriver driver(200);
    driver.InDialog([](HWND) {});
    const HWND dialog =
        CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &data.header, host.Hwnd(), DialogProcedure, TRUE);
    MSG message;
    while (IsWindow(dialog) && GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
}

TEST(ModalDriver, EndsADialogWithALoopOfItsOwnThatRefusesToClose)
{
    EXPECT_NONFATAL_FAILURE(LeaveDialogWithItsOwnLoopOpen(), "still there after the last step");
}

void WaitForMenuInDialog()
{
    const ts::HostWindow host;
    ts::ModalDriver driver(200);
    driver.InMenu([](HWND) {});
    RunDialog(host.Hwnd());
}

TEST(ModalDriver, GivesUpWaitingForSomethingThatNeverComes)
{
    EXPECT_NONFATAL_FAILURE(WaitForMenuInDialog(), "waited in vain for a popup menu");
}

void LeaveMenuOpen()
{
    const ts::HostWindow host;
    const Menu menu;
    ts::ModalDriver driver(200);
    driver.InMenu([](HWND) {});
    EXPECT_EQ(0u, menu.Track(host.Hwnd()));
}

TEST(ModalDriver, EndsAMenuThatStays)
{
    EXPECT_NONFATAL_FAILURE(LeaveMenuOpen(), "still there after the last step");
}

void OpenNothing()
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND) {});
}

TEST(ModalDriver, FailsWhenAStepNeverRan)
{
    EXPECT_NONFATAL_FAILURE(OpenNothing(), "never ran");
}

} // namespace
