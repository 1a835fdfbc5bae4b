#include <tests/afx/TestWindows.h>

TEST(WindowWrappers, DialogItemsAreReadAndWrittenById)
{
    TopWnd parent;
    MakeControl(parent, _T("EDIT"), 0, 5);
    parent.SetDlgItemText(5, _T("some text"));
    CString strText;
    EXPECT_EQ(9, parent.GetDlgItemText(5, strText));
    EXPECT_EQ(CString(_T("some text")), strText);
    EXPECT_EQ(0, parent.GetDlgItemText(6, strText));
    EXPECT_TRUE(strText.IsEmpty());
    parent.SetDlgItemInt(5, static_cast<UINT>(-12));
    BOOL bOk = FALSE;
    EXPECT_EQ(-12, static_cast<int>(parent.GetDlgItemInt(5, &bOk)));
    EXPECT_TRUE(bOk);
    EXPECT_EQ(nullptr, parent.GetDlgItem(99));
    EXPECT_EQ(5, parent.GetDlgItem(5)->GetDlgCtrlID());
}

TEST(WindowWrappers, RadioButtonsReportTheCheckedOne)
{
    TopWnd parent;
    for (int id = 1; id <= 3; ++id) {
        MakeControl(parent, _T("BUTTON"), BS_AUTORADIOBUTTON, id);
    }
    EXPECT_EQ(0, parent.GetCheckedRadioButton(1, 3));
    parent.CheckRadioButton(1, 3, 2);
    EXPECT_EQ(2, parent.GetCheckedRadioButton(1, 3));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), parent.IsDlgButtonChecked(2));
}
