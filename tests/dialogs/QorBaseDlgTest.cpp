#include "TestDialogs.h"

namespace
{

LRESULT DefId(CWnd& dialog)
{
    return dialog.SendMessage(DM_GETDEFID);
}

TEST(BaseDialog, KnowsItsTemplateName)
{
    const CTestBaseDlg dialog(IDD_PLAIN);
    EXPECT_EQ(MAKEINTRESOURCEW(IDD_PLAIN), dialog.GetDlgId());
}

TEST(BaseDialog, TextIsItsKeyBeforeTheLanguageIsSet)
{
    const CTestBaseDlg dialog;
    EXPECT_STREQ(L"STR_ANY", dialog.GetDlgString(L"STR_ANY"));
}

TEST(BaseDialog, TakesTextsFromItsLanguageElement)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
    EXPECT_STRNE(L"STR_LOGON_FAIL", dialog.GetDlgString(L"STR_LOGON_FAIL"));
    EXPECT_STREQ(L"STR_NOT_THERE", dialog.GetDlgString(L"STR_NOT_THERE"));
}

TEST(BaseDialog, LanguageElementSetsItsTextsWhenAskedTo)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    CString text;
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 0);
    dialog.GetWindowText(text);
    EXPECT_STREQ(L"", text);
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
    dialog.GetWindowText(text);
    EXPECT_STREQ(dialog.GetDlgString(L"Text"), text);
    EXPECT_FALSE(text.IsEmpty());
}

TEST(BaseDialog, LanguageElementIsFoundWithoutAWindow)
{
    CTestBaseDlg dialog;
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
    EXPECT_STRNE(L"STR_LOGON_FAIL", dialog.GetDlgString(L"STR_LOGON_FAIL"));
}

TEST(BaseDialog, UnknownLanguageElementGivesKeys)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_NONE", 1);
    EXPECT_STREQ(L"STR_ANY", dialog.GetDlgString(L"STR_ANY"));
}

TEST(BaseDialog, FillsPlaceholdersOfAControl)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDlgCtrlText(IDC_FIRST, 7, L"nine");
    CString text;
    dialog.GetDlgItemText(IDC_FIRST, text);
    EXPECT_STREQ(L"value 7 of nine", text);
}

TEST(BaseDialog, FillingAMissingControlDoesNothing)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDlgCtrlText(kNoSuchId, 7);
    CString text;
    dialog.GetDlgItemText(IDC_FIRST, text);
    EXPECT_STREQ(L"value %d of %s", text);
}

TEST(BaseDialog, EnterDoesNotCloseIt)
{
    CTestBaseDlg dialog;
    ts::ModalDriver driver;
    driver.InDialog([](HWND wnd) {
        ::SetFocus(::GetDlgItem(wnd, IDC_EDIT));
        ts::Key(VK_RETURN);
    });
    driver.InDialog([&dialog](HWND wnd) {
        EXPECT_TRUE(::IsWindow(wnd));
        dialog.EndDialog(77);
    });
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
}

TEST(BaseDialog, EnterPressesTheDefaultButtonWhenAnEditHasTheFocus)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    dialog.SetDefID(IDC_PUSH);
    dialog.GetDlgItem(IDC_EDIT)->SetFocus();
    ts::MessageRecorder recorder(dialog);
    recorder.RecordOnly({WM_COMMAND});
    MSG enter = {};
    enter.hwnd = *dialog.GetDlgItem(IDC_EDIT);
    enter.message = WM_KEYDOWN;
    enter.wParam = VK_RETURN;
    EXPECT_TRUE(dialog.PreTranslateMessage(&enter));
    const auto push = reinterpret_cast<LPARAM>(::GetDlgItem(dialog, IDC_PUSH));
    EXPECT_TRUE(recorder.Is({ts::Msg(WM_COMMAND, MAKEWPARAM(IDC_PUSH, BN_CLICKED), push)}));
}

TEST(BaseDialog, FocusedPushButtonOfOwnerDrawnStyleIsTheDefault)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    dialog.GetDlgItem(IDC_PUSH)->ModifyStyle(0, BS_OWNERDRAW);
    dialog.GetDlgItem(IDC_PUSH)->SetFocus();
    EXPECT_EQ(MAKELONG(IDC_PUSH, DC_HASDEFID), DefId(dialog));
}

TEST(BaseDialog, FocusedDefaultPushButtonIsTheDefault)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    dialog.SetDefID(IDC_THIRD);
    CWnd* push = dialog.GetDlgItem(IDC_PUSH);
    push->SetFocus();
    push->ModifyStyle(BS_TYPEMASK, BS_DEFPUSHBUTTON);
    EXPECT_EQ(MAKELONG(IDC_PUSH, DC_HASDEFID), DefId(dialog));
}

TEST(BaseDialog, FocusedCheckBoxIsTheDefault)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    dialog.GetDlgItem(IDC_CHECK)->SetFocus();
    EXPECT_EQ(MAKELONG(IDC_CHECK, DC_HASDEFID), DefId(dialog));
}

TEST(BaseDialog, WithoutABitInTheFocusedStyleTheDefaultIdStays)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    dialog.SetDefID(IDC_THIRD);
    CWnd* push = dialog.GetDlgItem(IDC_PUSH);
    push->SetFocus();
    for (const DWORD style : {BS_PUSHBUTTON, BS_CHECKBOX, BS_RADIOBUTTON}) {
        push->ModifyStyle(BS_TYPEMASK, style);
        ASSERT_EQ(0, push->GetStyle() & BS_DEFPUSHBUTTON);
        EXPECT_EQ(MAKELONG(IDC_THIRD, DC_HASDEFID), DefId(dialog)) << style;
    }
}

TEST(BaseDialog, WithoutAFocusTheDefaultIdStays)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.SetDefID(IDC_THIRD);
    ::SetFocus(nullptr);
    ASSERT_EQ(nullptr, ::GetFocus());
    EXPECT_EQ(MAKELONG(IDC_THIRD, DC_HASDEFID), DefId(dialog));
}

TEST(BaseDialog, LeavesTheKeyboardToTheWindowAroundItWhenEmbedded)
{
    ts::HostWindow host;
    CWnd* parent = CWnd::FromHandle(host.Hwnd());
    CTestBaseDlg dialog(IDD_EMBEDDED, parent);
    ASSERT_TRUE(dialog.Create(IDD_EMBEDDED, parent));
    MSG tab = {};
    tab.hwnd = ::GetDlgItem(dialog, IDC_EDIT);
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    ::SetFocus(tab.hwnd);
    EXPECT_FALSE(dialog.PreTranslateMessage(&tab));
    EXPECT_EQ(tab.hwnd, ::GetFocus());
}

TEST(BaseDialog, TakesKeysOfItsOwnWhenItIsAPopup)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    dialog.ShowWindow(SW_SHOW);
    MSG tab = {};
    tab.hwnd = ::GetDlgItem(dialog, IDC_EDIT);
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    ::SetFocus(tab.hwnd);
    EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
    EXPECT_EQ(::GetDlgItem(dialog, IDC_CHECK), ::GetFocus());
}

TEST(BaseDialog, EditsAreWhiteAndEverythingElseIsTheDialogBody)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    CClientDC dc(&dialog);
    dc.SetBkMode(OPAQUE);
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), dialog.OnCtlColor(&dc, &dialog, CTLCOLOR_EDIT));
    EXPECT_EQ(OPAQUE, dc.GetBkMode());
    for (const UINT kind : {CTLCOLOR_BTN, CTLCOLOR_DLG, CTLCOLOR_LISTBOX, CTLCOLOR_STATIC, CTLCOLOR_SCROLLBAR}) {
        dc.SetBkMode(OPAQUE);
        EXPECT_EQ(QorGetDlgBkBrush(), dialog.OnCtlColor(&dc, &dialog, kind)) << kind;
        EXPECT_EQ(TRANSPARENT, dc.GetBkMode()) << kind;
    }
}

TEST(BaseDialog, ControlsReallyGetTheBodyColour)
{
    CTestBaseDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    CClientDC dc(&dialog);
    const auto brush = dialog.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                          reinterpret_cast<LPARAM>(::GetDlgItem(dialog, IDC_FIRST)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(QorGetDlgBkBrush()), brush);
}

TEST(BaseDialog, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CTestBaseDlg dialog;
        dialog.Create(IDD_PLAIN);
        dialog.SetDlgLang(L"QorUI.dll", L"IDD_DLG_LOGON", 1);
        dialog.SetDlgCtrlText(IDC_FIRST, 7, L"nine");
        dialog.ShowWindow(SW_SHOW);
        dialog.UpdateWindow();
        dialog.DestroyWindow();
    }));
}

} // namespace
