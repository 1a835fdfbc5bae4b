#include <QorUI/QorUI.h>
#include <QorUI/res/resource.h>
#include <tests/app/res/resource.h>
#include <tests/doubles/QorApi/QorApiDouble.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>

#include <gtest/gtest.h>

namespace
{

/** The library while its services fail. */
class Services : public testing::Test
{
  protected:
    ~Services() override { qordouble::Reset(); }

    static void FailTexts()
    {
        for (const char* call : {"QorGetString", "QorGetModuleLang", "QorSetDlgLang"}) {
            qordouble::Fail(call, ERROR_INTERNAL_ERROR);
        }
    }
};

TEST_F(Services, TextsAreThereWhileNothingFails)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) {
        EXPECT_STRNE(L"STR_OK", ts::TextOf(dialog, IDOK));
        ts::Key(VK_RETURN);
    });
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(L"Text", QOR_MSG_ERROR, 0, nullptr));
    EXPECT_GT(qordouble::CountCalls("QorGetModuleLang"), 0);
}

TEST_F(Services, MessageBoxShowsKeysInPlaceOfTexts)
{
    FailTexts();
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"STR_ERROR", ts::TextOf(dialog));
        EXPECT_STREQ(L"STR_OK", ts::TextOf(dialog, IDOK));
        EXPECT_EQ(L"STR_OPERATE_FAIL\r\nSTR_ERROR: " + QorFormatMsg(ERROR_BUSY), ts::TextOf(dialog, IDC_BOX_TEXT));
        ts::Key(VK_RETURN);
    });
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(nullptr, QOR_MSG_ERROR, ERROR_BUSY, nullptr));
    EXPECT_TRUE(driver.Finished());
}

TEST_F(Services, MessageBoxOfThreeButtonsShowsKeys)
{
    FailTexts();
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"STR_CONFIRM", ts::TextOf(dialog));
        EXPECT_STREQ(L"STR_CANCEL", ts::TextOf(dialog, IDCANCEL));
        ts::Key(VK_ESCAPE);
    });
    EXPECT_EQ(UINT{IDCANCEL}, QorMsgBox(L"Text", QOR_MSG_RETRY, 0, nullptr));
    EXPECT_TRUE(driver.Finished());
}

TEST_F(Services, RefusedTextIsToldByItsKey)
{
    FailTexts();
    ts::AfxHost host(200, 100);
    CFlatEditEx edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(5, 5, 100, 25), &host, ts::kControlId));
    edit.SetIllegalChars(L":/");
    std::wstring tip;
    ts::MessageRecorder recorder(edit);
    recorder.Answer(EM_SHOWBALLOONTIP, [&](const ts::Message& message) -> std::optional<LRESULT> {
        tip = reinterpret_cast<const EDITBALLOONTIP*>(message.lParam)->pszText;
        return TRUE;
    });
    edit.SetWindowText(L"a:b");
    EXPECT_EQ(L"STR_INVALID_TEXT", tip);
}

/** A dialog that asks for its texts as every dialog of the library does. */
class TextsDlg : public CQorDialog
{
  public:
    TextsDlg() : CQorDialog(IDD_BUTTONS, nullptr, 0) {}
    std::wstring m_own;

  protected:
    BOOL OnInitDialog() override
    {
        CQorDialog::OnInitDialog();
        SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
        m_own = GetDlgString(L"STR_LOGON_FAIL");
        EndDialog(IDOK);
        return TRUE;
    }
};

TEST_F(Services, DialogGetsKeysForItsOwnTexts)
{
    FailTexts();
    TextsDlg dialog;
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(L"STR_LOGON_FAIL", dialog.m_own);
    EXPECT_EQ(1, qordouble::CountCalls("QorSetDlgLang"));
}

} // namespace
