#include "TestDialogs.h"

#include <tests/support/Imports.h>

namespace
{

TEST(DialogClosing, CloseButtonCancels)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDC_DLG_CLOSE)); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(1, dialog.m_canceled) << "by way of the dialog's own OnCancel";
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, EscapeCancels)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, EnterConfirms)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisabledNothingClosesItButConfirming)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([&dialog](HWND) {
        dialog.DisableClose(TRUE);
        ts::Key(VK_ESCAPE);
    });
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDC_DLG_CLOSE)); });
    driver.InDialog([](HWND wnd) { ::PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0); });
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDCANCEL)); });
    driver.When(
        "the Cancel button was pressed", [&dialog] { return dialog.m_canceled >= 2; },
        [&dialog] { ::PostMessageW(dialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisablingGraysTheCloseButtonAndTheSystemMenu)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.DisableClose(TRUE);
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, IDC_DLG_CLOSE)));
    EXPECT_NE(0u, ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
    dialog.DisableClose(FALSE);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialog, IDC_DLG_CLOSE)));
    EXPECT_EQ(0u, ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED);
}

std::vector<UINT> g_menuFlags;

BOOL WINAPI RecordMenuFlags(HMENU menu, UINT item, UINT flags)
{
    EXPECT_EQ(static_cast<UINT>(SC_CLOSE), item);
    g_menuFlags.push_back(flags);
    return ::EnableMenuItem(menu, item, flags);
}

TEST(DialogClosing, DisablingMakesTheMenuItemBothGrayAndDisabled)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    const ts::ReplacedImport hook(L"afx.dll", "EnableMenuItem", &RecordMenuFlags);
    g_menuFlags.clear();
    const UINT both = MF_GRAYED | MF_DISABLED;
    const auto state = [&dialog] {
        return ::GetMenuState(dialog.GetSystemMenu(FALSE)->m_hMenu, SC_CLOSE, MF_BYCOMMAND);
    };
    dialog.DisableClose(TRUE);
    EXPECT_EQ(both, state() & both);
    dialog.DisableClose(FALSE);
    EXPECT_EQ(0u, state() & both);
    EXPECT_EQ((std::vector<UINT>{MF_BYCOMMAND | both, MF_BYCOMMAND | MF_ENABLED}), g_menuFlags);
}

TEST(DialogClosing, DisablingKeepsTheBandAndTheSizingBorder)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    for (const BOOL disable : {TRUE, FALSE}) {
        dialog.DisableClose(disable);
        CRect place;
        dialog.GetClientPos(place);
        EXPECT_EQ(dialog.ClientSize().cy - 51, place.bottom) << disable;
        EXPECT_EQ(HTLEFT, dialog.Hit(2, 100)) << disable;
    }
}

TEST(DialogClosing, DisabledAndEnabledAgainItCanBeCanceled)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([&dialog](HWND) {
        dialog.DisableClose(TRUE);
        dialog.DisableClose(FALSE);
        ts::Key(VK_ESCAPE);
    });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(DialogClosing, DisablingWithoutSystemMenuIsSafe)
{
    CTestDialog dialog(IDD_OK_ONLY, kBand);
    ASSERT_TRUE(dialog.Open());
    dialog.DisableClose(TRUE);
    dialog.PostMessage(WM_COMMAND, IDCANCEL);
    ts::Settle();
    EXPECT_TRUE(::IsWindow(dialog));
    EXPECT_EQ(1, dialog.m_canceled);
}

} // namespace
