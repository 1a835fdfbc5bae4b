#include <tests/afx/TestWindows.h>

TEST(DialogInitData, FillsListAndComboBoxes)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_EXCHANGE));
    EXPECT_EQ(2, dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT));
    EXPECT_EQ(2, dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT));
    TCHAR szText[16] = {};
    dialog.SendDlgItemMessage(IDC_LIST, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(szText));
    EXPECT_STREQ(_T("Pear"), szText);
}
