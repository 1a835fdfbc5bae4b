#include "Refusals.h"

namespace
{

TEST(DialogFailure, DoesNotOpenWithoutACloseButton)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    CTestDialog modeless(IDD_OK_CANCEL, kBand);
    ASSERT_FALSE(modeless.Create(IDD_OK_CANCEL));
    CTestDialog modal(IDD_OK_CANCEL, kBand);
    EXPECT_EQ(-1, modal.DoModal());
}

TEST(DialogFailure, DoesNotOpenWhenTheDefaultRefusesItsCreation)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &CountButtons);
    g_buttons = 0;
    CRefused<CTestDialog> modeless(IDD_OK_CANCEL, kBand);
    ASSERT_FALSE(modeless.Create(IDD_OK_CANCEL));
    EXPECT_EQ(nullptr, modeless.m_hWnd);
    CRefused<CTestDialog> modal(IDD_OK_CANCEL, kBand);
    EXPECT_EQ(-1, modal.DoModal());
    EXPECT_EQ(0, g_buttons);
}

TEST(DialogFailure, FailsToOpenWithoutItsTemplate)
{
    CTestDialog dialog(kNoSuchId, kBand);
    EXPECT_EQ(-1, dialog.DoModal());
}

TEST(DialogFailure, LeavesNothingBehindWhenItDoesNotOpen)
{
    const ts::ReplacedImport hook(L"afx.dll", "CreateWindowExW", &RefuseButtons);
    EXPECT_TRUE(ts::NoLeak([] {
        CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
        dialog.DoModal();
    }));
}

TEST(DialogFailure, OpensWithoutThePictureOfItsCloseButton)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "LoadBitmapW", &ts::NoBitmapResource);
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) { ts::Click(::GetDlgItem(wnd, IDC_DLG_CLOSE)); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

} // namespace
