#include "TestDialogs.h"

#include <tests/doubles/QorApi/QorApiDouble.h>

// The service library answers with empty elements and keys when it fails: the dialogs show the keys and stay usable.
namespace
{

class ServiceFailure : public testing::Test
{
  protected:
    ~ServiceFailure() override { qordouble::Reset(); }
};

TEST_F(ServiceFailure, ADialogsButtonsShowTheirKeys)
{
    qordouble::Fail("QorGetModuleLang", ERROR_FILE_NOT_FOUND);
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_STREQ(L"STR_OK", ts::TextOf(dialog, IDOK));
    EXPECT_STREQ(L"STR_CANCEL", ts::TextOf(dialog, IDCANCEL));
}

TEST_F(ServiceFailure, ADialogWithoutItsElementKeepsItsTextsAndGivesKeys)
{
    qordouble::Fail("QorSetDlgLang", ERROR_FILE_NOT_FOUND);
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
    EXPECT_EQ(1, qordouble::CountCalls("QorSetDlgLang"));
    EXPECT_STREQ(L"STR_LOGON_FAIL", dialog.GetDlgString(L"STR_LOGON_FAIL"));
    dialog.SetDlgCtrlText(IDC_FIRST, 7, L"nine");
    EXPECT_STREQ(L"value 7 of nine", ts::TextOf(dialog, IDC_FIRST));
    EXPECT_STREQ(L"second", ts::TextOf(dialog, IDC_SECOND));
}

TEST_F(ServiceFailure, AMessageBoxShowsKeysAndAnswers)
{
    qordouble::Fail("QorGetModuleLang", ERROR_FILE_NOT_FOUND);
    qordouble::Fail("QorGetString", ERROR_FILE_NOT_FOUND);
    CString caption;
    CString buttons;
    CString message;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND box) {
        caption = ts::TextOf(box);
        buttons = ts::TextOf(box, IDYES) + L" " + ts::TextOf(box, IDNO) + L" " + ts::TextOf(box, IDCANCEL);
        message = ts::TextOf(box, IDC_BOX_TEXT);
        ts::Click(::GetDlgItem(box, IDYES));
    });
    EXPECT_EQ(UINT{IDYES}, QorMsgBox(L"Go on?", QOR_MSG_YESNO, ERROR_ACCESS_DENIED, nullptr));
    EXPECT_STREQ(L"STR_CONFIRM", caption);
    EXPECT_STREQ(L"STR_YES STR_NO STR_CANCEL", buttons);
    EXPECT_STREQ(L"Go on?\r\nSTR_ERROR: " + QorFormatMsg(ERROR_ACCESS_DENIED), message);
}

TEST_F(ServiceFailure, AnEmptyErrorMessageShowsItsKey)
{
    qordouble::Fail("QorGetModuleLang", ERROR_FILE_NOT_FOUND);
    CString message;
    ts::ModalDriver driver;
    driver.InDialog([&message](HWND box) {
        message = ts::TextOf(box, IDC_BOX_TEXT);
        ts::Click(::GetDlgItem(box, IDOK));
    });
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(L"", QOR_MSG_ERROR, 0, nullptr));
    EXPECT_STREQ(L"STR_OPERATE_FAIL", message);
}

} // namespace
