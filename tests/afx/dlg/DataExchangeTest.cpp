#include <tests/afx/TestWindows.h>

namespace
{
class ExchangeDialog : public CDialog
{
  public:
    CString name;
    int age = 0;
    double real = 0;
    int check = 0;
    int radio = -1;
    int listIndex = -1;
    int comboIndex = -1;
    CString listText;
    CString comboText;
    CWnd label;
    bool withStrings = false;
    bool missingControl = false;
    int maxChars = 0;
    int changes = 0;

    BOOL Make() { return Create(IDD_EXCHANGE); }
    void OnNameChange() { ++changes; }

  protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, IDC_CHECK, label);
        DDX_Text(pDX, IDC_NAME, name);
        if (maxChars) {
            DDV_MaxChars(pDX, name, maxChars);
        }
        DDX_Text(pDX, IDC_AGE, age);
        DDV_MinMaxInt(pDX, age, 0, 150);
        DDX_Text(pDX, IDC_REAL, real);
        DDX_Check(pDX, IDC_CHECK, check);
        DDX_Radio(pDX, IDC_RADIO1, radio);
        if (withStrings) {
            DDX_LBString(pDX, IDC_LIST, listText);
            DDX_CBString(pDX, IDC_COMBO, comboText);
        } else {
            DDX_LBIndex(pDX, IDC_LIST, listIndex);
            DDX_CBIndex(pDX, IDC_COMBO, comboIndex);
        }
        if (missingControl) {
            DDX_Text(pDX, 9999, name);
        }
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ExchangeDialog, CDialog)
    ON_EN_CHANGE(IDC_NAME, &ExchangeDialog::OnNameChange)
END_MESSAGE_MAP()

/** Presses the button of the message that a refused value brings. */
BOOL SaveAndAnswerMessage(ExchangeDialog& dialog, bool& messageShown)
{
    ts::ModalDriver driver;
    driver.InDialog([&](HWND hWnd) {
        messageShown = true;
        ::PostMessage(hWnd, WM_CLOSE, 0, 0);
    });
    const BOOL result = dialog.UpdateData(TRUE);
    EXPECT_TRUE(driver.Finished());
    return result;
}
} // namespace

TEST(DataExchange, MembersFillTheControlsWhenTheDialogOpens)
{
    ExchangeDialog dialog;
    dialog.name = _T("Ada");
    dialog.age = 36;
    dialog.real = 1.5;
    dialog.check = 2;
    dialog.radio = 1;
    dialog.listIndex = 1;
    dialog.comboIndex = 0;
    ASSERT_TRUE(dialog.Make());
    CString strText;
    dialog.GetDlgItemText(IDC_NAME, strText);
    EXPECT_EQ(CString(_T("Ada")), strText);
    EXPECT_EQ(36u, dialog.GetDlgItemInt(IDC_AGE));
    dialog.GetDlgItemText(IDC_REAL, strText);
    EXPECT_EQ(CString(_T("1.5")), strText);
    EXPECT_EQ(static_cast<UINT>(BST_INDETERMINATE), dialog.IsDlgButtonChecked(IDC_CHECK));
    EXPECT_EQ(IDC_RADIO2, dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO3));
    EXPECT_EQ(1, dialog.SendDlgItemMessage(IDC_LIST, LB_GETCURSEL));
    dialog.GetDlgItemText(IDC_COMBO, strText);
    EXPECT_EQ(CString(_T("Red")), strText);
    EXPECT_EQ(&dialog.label, CWnd::FromHandlePermanent(::GetDlgItem(dialog, IDC_CHECK)));
}

TEST(DataExchange, ControlsFillTheMembersWhenSaving)
{
    ExchangeDialog dialog;
    ASSERT_TRUE(dialog.Make());
    dialog.SetDlgItemText(IDC_NAME, _T("Grace"));
    dialog.SetDlgItemText(IDC_AGE, _T(" 85 "));
    dialog.SetDlgItemText(IDC_REAL, _T("-2.25"));
    dialog.CheckDlgButton(IDC_CHECK, BST_CHECKED);
    dialog.CheckRadioButton(IDC_RADIO1, IDC_RADIO3, IDC_RADIO3);
    dialog.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, 0);
    dialog.SendDlgItemMessage(IDC_COMBO, CB_SETCURSEL, 1);
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(CString(_T("Grace")), dialog.name);
    EXPECT_EQ(85, dialog.age);
    EXPECT_EQ(-2.25, dialog.real);
    EXPECT_EQ(BST_CHECKED, dialog.check);
    EXPECT_EQ(2, dialog.radio);
    EXPECT_EQ(0, dialog.listIndex);
    EXPECT_EQ(1, dialog.comboIndex);
}

TEST(DataExchange, ListAndComboTextsRoundTrip)
{
    ExchangeDialog dialog;
    dialog.withStrings = true;
    dialog.listText = _T("Pear");
    dialog.comboText = _T("not listed");
    ASSERT_TRUE(dialog.Make());
    dialog.listText.Empty();
    dialog.comboText.Empty();
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(CString(_T("Pear")), dialog.listText);
    EXPECT_EQ(CString(_T("not listed")), dialog.comboText);
}

TEST(DataExchange, NoCheckedRadioButtonIsMinusOne)
{
    ExchangeDialog dialog;
    ASSERT_TRUE(dialog.Make());
    dialog.radio = 0;
    ASSERT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(-1, dialog.radio);
}

TEST(DataExchange, TextThatIsNoNumberIsRefusedWithAMessageAndTheFocus)
{
    ExchangeDialog dialog;
    dialog.age = 5;
    ASSERT_TRUE(dialog.Make());
    dialog.ShowWindow(SW_SHOW);
    for (const LPCTSTR text : {_T("abc"), _T(""), _T("12x"), _T("99999999999")}) {
        dialog.SetDlgItemText(IDC_AGE, text);
        bool shown = false;
        EXPECT_FALSE(SaveAndAnswerMessage(dialog, shown));
        EXPECT_TRUE(shown);
        EXPECT_EQ(5, dialog.age);
        EXPECT_EQ(IDC_AGE, ::GetDlgCtrlID(::GetFocus()));
    }
}

TEST(DataExchange, ValueOutOfRangeIsRefusedAtBothEnds)
{
    ExchangeDialog dialog;
    ASSERT_TRUE(dialog.Make());
    bool shown = false;
    dialog.SetDlgItemText(IDC_AGE, _T("151"));
    EXPECT_FALSE(SaveAndAnswerMessage(dialog, shown));
    dialog.SetDlgItemText(IDC_AGE, _T("-1"));
    EXPECT_FALSE(SaveAndAnswerMessage(dialog, shown));
    dialog.SetDlgItemText(IDC_AGE, _T("150"));
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    dialog.SetDlgItemText(IDC_AGE, _T("0"));
    EXPECT_TRUE(dialog.UpdateData(TRUE));
}

TEST(DataExchange, MaxCharsLimitsTypingAndRefusesLongText)
{
    ExchangeDialog dialog;
    dialog.maxChars = 4;
    ASSERT_TRUE(dialog.Make());
    EXPECT_EQ(4, dialog.SendDlgItemMessage(IDC_NAME, EM_GETLIMITTEXT));
    dialog.SetDlgItemText(IDC_NAME, _T("12345"));
    bool shown = false;
    EXPECT_FALSE(SaveAndAnswerMessage(dialog, shown));
    EXPECT_TRUE(shown);
    dialog.SetDlgItemText(IDC_NAME, _T("1234"));
    EXPECT_TRUE(dialog.UpdateData(TRUE));
}

TEST(DataExchange, MissingControlIsReportedAndRefused)
{
    ExchangeDialog dialog;
    ASSERT_TRUE(dialog.Make());
    dialog.missingControl = true;
    bool shown = false;
    EXPECT_FALSE(SaveAndAnswerMessage(dialog, shown));
    EXPECT_TRUE(shown);
}

TEST(DataExchange, FillingTheControlsDoesNotLookLikeTyping)
{
    ExchangeDialog dialog;
    ASSERT_TRUE(dialog.Make());
    dialog.name = _T("changed");
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(0, dialog.changes);
    dialog.SetDlgItemText(IDC_NAME, _T("typed"));
    EXPECT_EQ(1, dialog.changes);
}
