#include <tests/afx/TestWindows.h>

#include <afxpriv.h>

namespace
{
class TestDialog : public CDialog
{
  public:
    explicit TestDialog(UINT nTemplate = IDD_SIMPLE, CWnd* pParent = nullptr) : CDialog(nTemplate, pParent) {}

    enum class AtInit
    {
        Nothing,
        Destroy,
        End,
        Throw
    };
    AtInit atInit = AtInit::Nothing;
    Events events;
    HBRUSH brush = nullptr;
    LRESULT hitTest = HTCAPTION;
    BOOL eraseAnswer = FALSE;
    int actions = 0;

    using CDialog::m_lpszTemplateName;
    using CDialog::m_nIDHelp;

    BOOL OnInitDialog() override
    {
        events.push_back("init");
        switch (atInit) {
        case AtInit::Destroy:
            DestroyWindow();
            return TRUE;
        case AtInit::End:
            EndDialog(55);
            return TRUE;
        case AtInit::Throw:
            AfxThrowUserException();
        default:
            return CDialog::OnInitDialog();
        }
    }
    void OnOK() override
    {
        events.push_back("ok");
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        events.push_back("cancel");
        CDialog::OnCancel();
    }
    void OnAction() { ++actions; }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        return brush ? brush : CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    }
    afx_msg LRESULT OnNcHitTest(CPoint) { return hitTest; }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC) { return eraseAnswer ? eraseAnswer : CDialog::OnEraseBkgnd(pDC); }
    LRESULT OnGetDefID(WPARAM, LPARAM) { return MAKELRESULT(IDC_ACTION, DC_HASDEFID); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestDialog, CDialog)
    ON_BN_CLICKED(IDC_ACTION, &TestDialog::OnAction)
    ON_WM_CTLCOLOR()
    ON_WM_NCHITTEST()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(DM_GETDEFID, &TestDialog::OnGetDefID)
END_MESSAGE_MAP()

/** The plain dialog without handlers that change its answers. */
class PlainDialog : public CDialog
{
  public:
    explicit PlainDialog(UINT nTemplate = IDD_SIMPLE, CWnd* pParent = nullptr) : CDialog(nTemplate, pParent) {}
    bool focusSetByDialog = false;
    HWND focusAtFirst = nullptr;
    int kicks = 0;
    BOOL actionEnabled = TRUE;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (!focusSetByDialog) {
            return TRUE;
        }
        GetDlgItem(IDCANCEL)->SetFocus();
        return FALSE;
    }
    LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        ++kicks;
        UpdateDialogControls(this, FALSE);
        return 0;
    }
    void OnUpdateAction(CCmdUI* pCmdUI) { pCmdUI->Enable(actionEnabled); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PlainDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &PlainDialog::OnKickIdle)
    ON_UPDATE_COMMAND_UI(IDC_ACTION, &PlainDialog::OnUpdateAction)
END_MESSAGE_MAP()

void Press(HWND hWndDialog, int nID)
{
    ::PostMessage(hWndDialog, WM_COMMAND, MAKEWPARAM(nID, BN_CLICKED),
                  reinterpret_cast<LPARAM>(::GetDlgItem(hWndDialog, nID)));
}
} // namespace

TEST(ModalDialog, ReturnsTheIdOfTheButtonAndRunsTheHandlers)
{
    TestDialog dialog;
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { Press(hWnd, IDOK); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(driver.Finished());
    EXPECT_EQ((Events{"init", "ok"}), dialog.events);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModalDialog, CanBeShownAgain)
{
    TestDialog dialog;
    for (int i = 0; i < 2; ++i) {
        ts::ModalDriver driver;
        driver.InDialog([](HWND hWnd) { Press(hWnd, IDCANCEL); });
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
    }
    EXPECT_EQ((Events{"init", "cancel", "init", "cancel"}), dialog.events);
}

TEST(ModalDialog, EnterAndEscapePressTheButtons)
{
    PlainDialog dialog;
    {
        ts::ModalDriver driver;
        driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
        EXPECT_EQ(IDOK, dialog.DoModal());
    }
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(ModalDialog, CloseOfTheWindowCancels)
{
    TestDialog dialog;
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { ::PostMessage(hWnd, WM_CLOSE, 0, 0); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(ModalDialog, DisablesItsParentAndGivesItTheActivationBack)
{
    TopWnd parent;
    parent.SetForegroundWindow();
    BOOL enabledInside = TRUE;
    PlainDialog dialog(IDD_SIMPLE, &parent);
    ts::ModalDriver driver;
    driver.InDialog([&](HWND hWnd) {
        enabledInside = parent.IsWindowEnabled();
        EXPECT_EQ(parent.m_hWnd, ::GetWindow(hWnd, GW_OWNER));
        EXPECT_EQ(hWnd, ::GetActiveWindow());
        Press(hWnd, IDOK);
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_FALSE(enabledInside);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(parent.m_hWnd, ::GetActiveWindow());
}

TEST(ModalDialog, ParentThatWasDisabledStaysDisabled)
{
    TopWnd parent;
    parent.EnableWindow(FALSE);
    PlainDialog dialog(IDD_SIMPLE, &parent);
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { Press(hWnd, IDOK); });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_FALSE(parent.IsWindowEnabled());
}

TEST(ModalDialog, ChildGivenAsParentMakesItsTopWindowTheOwner)
{
    TopWnd parent;
    CWnd child;
    child.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 10, 10), &parent, 1);
    PlainDialog dialog(IDD_SIMPLE, &child);
    HWND owner = nullptr;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND hWnd) {
        owner = ::GetWindow(hWnd, GW_OWNER);
        Press(hWnd, IDOK);
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(parent.m_hWnd, owner);
}

TEST(ModalDialog, NestedDialogsEndFromTheInsideOut)
{
    TestDialog outer;
    INT_PTR innerResult = 0;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND hWndOuter) {
        EXPECT_EQ(outer.m_hWnd, hWndOuter);
        PlainDialog inner(IDD_SIMPLE, &outer);
        ts::ModalDriver innerDriver;
        innerDriver.InDialog([&](HWND hWndInner) {
            EXPECT_FALSE(outer.IsWindowEnabled());
            Press(hWndInner, IDCANCEL);
        });
        innerResult = inner.DoModal();
        EXPECT_TRUE(outer.IsWindowEnabled());
        Press(hWndOuter, IDOK);
    });
    EXPECT_EQ(IDOK, outer.DoModal());
    EXPECT_EQ(IDCANCEL, innerResult);
}

TEST(ModalDialog, MissingTemplateGivesMinusOne)
{
    TestDialog dialog(9999);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(dialog.events.empty());
    CDialog noTemplate;
    EXPECT_EQ(-1, noTemplate.DoModal());
}

TEST(ModalDialog, WindowDestroyedInInitGivesMinusOne)
{
    TopWnd parent;
    TestDialog dialog(IDD_SIMPLE, &parent);
    dialog.atInit = TestDialog::AtInit::Destroy;
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, EndInInitGivesItsResultWithoutALoop)
{
    TestDialog dialog;
    dialog.atInit = TestDialog::AtInit::End;
    EXPECT_EQ(55, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModalDialog, ExceptionInInitGivesMinusOne)
{
    TestDialog dialog;
    dialog.atInit = TestDialog::AtInit::Throw;
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModalDialog, WindowDestroyedInsideTheLoopGivesMinusOne)
{
    PlainDialog dialog;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND) { dialog.DestroyWindow(); });
    EXPECT_EQ(-1, dialog.DoModal());
}

TEST(ModalDialog, TemplateInMemoryWorks)
{
    const HINSTANCE hInst = ::GetModuleHandle(nullptr);
    const auto* pTemplate = static_cast<LPCDLGTEMPLATE>(
        ::LockResource(::LoadResource(hInst, ::FindResource(hInst, MAKEINTRESOURCE(IDD_SIMPLE), RT_DIALOG))));
    class Indirect : public CDialog
    {
    } dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(pTemplate));
    EXPECT_FALSE(CDialog().InitModalIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { Press(hWnd, IDOK); });
    EXPECT_EQ(IDOK, dialog.DoModal());
}

TEST(ModalDialog, HiddenTemplateIsShownWhenIdle)
{
    PlainDialog dialog(IDD_HIDDEN);
    bool visible = false;
    ts::ModalDriver driver;
    driver.InDialog([&](HWND hWnd) {
        visible = ::IsWindowVisible(hWnd);
        Press(hWnd, IDOK);
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_TRUE(visible);
}

TEST(ModalDialog, KickIdleUpdatesItsControls)
{
    PlainDialog dialog;
    dialog.actionEnabled = FALSE;
    BOOL enabled = TRUE;
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { ::PostMessage(hWnd, WM_NULL, 0, 0); });
    driver.When(
        "an update", [&] { return dialog.kicks > 1; },
        [&] {
            enabled = dialog.GetDlgItem(IDC_ACTION)->IsWindowEnabled();
            Press(dialog, IDOK);
        });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_FALSE(enabled);
}

TEST(ModalDialog, FocusGoesToTheFirstControlUnlessInitSetIt)
{
    for (const bool setByDialog : {false, true}) {
        PlainDialog dialog;
        dialog.focusSetByDialog = setByDialog;
        int focused = 0;
        ts::ModalDriver driver;
        driver.InDialog([&](HWND hWnd) {
            focused = ::GetDlgCtrlID(::GetFocus());
            Press(hWnd, IDOK);
        });
        dialog.DoModal();
        EXPECT_EQ(setByDialog ? IDCANCEL : IDC_NAME, focused);
    }
}

TEST(ModalDialog, OverriddenPreTranslateMessageSeesKeysFirst)
{
    class Translating : public PlainDialog
    {
      public:
        int keys = 0;
        BOOL PreTranslateMessage(MSG* pMsg) override
        {
            if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN) {
                ++keys;
                EndDialog(77);
                return TRUE;
            }
            return PlainDialog::PreTranslateMessage(pMsg);
        }
    } dialog;
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Key(VK_RETURN); });
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_EQ(1, dialog.keys);
}

TEST(DialogAnswers, HandlersGiveTheRealResultsOfTheWindow)
{
    TestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    dialog.brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    CClientDC dc(&dialog);
    EXPECT_EQ(reinterpret_cast<LRESULT>(dialog.brush),
              dialog.SendMessage(WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc.m_hDC),
                                 reinterpret_cast<LPARAM>(dialog.m_hWnd)));
    EXPECT_EQ(HTCAPTION, dialog.SendMessage(WM_NCHITTEST, 0, 0));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDC_ACTION, DC_HASDEFID)), dialog.GetDefID());
    dialog.eraseAnswer = 123;
    EXPECT_EQ(123, dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0));
}

TEST(DialogAnswers, BrushOfTheColorHandlerFillsTheDialog)
{
    TestDialog dialog;
    CBrush red(RGB(255, 0, 0));
    dialog.brush = red;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    dialog.RedrawWindow();
    CClientDC dc(&dialog);
    EXPECT_EQ(RGB(255, 0, 0), dc.GetPixel(2, 2));
}

TEST(DialogAnswers, EnterPressesTheButtonThatTheDialogNamesAsItsDefault)
{
    TestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    MSG msg = {::GetDlgItem(dialog, IDC_NAME), WM_KEYDOWN, VK_RETURN, 1, 0, {0, 0}};
    EXPECT_TRUE(dialog.PreTranslateMessage(&msg));
    EXPECT_EQ(1, dialog.actions);
    EXPECT_EQ(Events{"init"}, dialog.events);
}

TEST(ModelessDialog, CreatesItsWindowAndControls)
{
    PlainDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_NE(nullptr, dialog.GetDlgItem(IDC_NAME));
    EXPECT_EQ(&dialog, CWnd::FromHandlePermanent(dialog.m_hWnd));
    EXPECT_TRUE(dialog.DestroyWindow());
}

TEST(ModelessDialog, MissingTemplateFails)
{
    PlainDialog dialog;
    EXPECT_FALSE(dialog.Create(9999));
    EXPECT_FALSE(dialog.CreateIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModelessDialog, InitThatEndsItMakesCreateFail)
{
    TestDialog dialog;
    dialog.atInit = TestDialog::AtInit::End;
    EXPECT_FALSE(dialog.Create(IDD_SIMPLE));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModelessDialog, DefaultButtonAndFocusMoves)
{
    PlainDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)), dialog.GetDefID());
    dialog.SetDefID(IDC_ACTION);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDC_ACTION, DC_HASDEFID)), dialog.GetDefID());
    dialog.SetForegroundWindow();
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_NAME));
    EXPECT_EQ(IDC_NAME, ::GetDlgCtrlID(::GetFocus()));
    dialog.NextDlgCtrl();
    EXPECT_EQ(IDC_ACTION, ::GetDlgCtrlID(::GetFocus()));
    dialog.PrevDlgCtrl();
    EXPECT_EQ(IDC_NAME, ::GetDlgCtrlID(::GetFocus()));
}

TEST(ModelessDialog, DialogUnitsFollowTheFont)
{
    PlainDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    CRect client;
    dialog.GetClientRect(&client);
    CRect rect(0, 0, 180, 90);
    dialog.MapDialogRect(&rect);
    EXPECT_EQ(client.Size(), rect.Size());
}

TEST(DialogPlace, TemplateAtTheOriginIsCenteredAndAnotherPlaceIsKept)
{
    TopWnd owner;
    owner.MoveWindow(100, 100, 600, 500);
    PlainDialog centered;
    ASSERT_TRUE(centered.Create(IDD_SIMPLE, &owner));
    CRect rect;
    centered.GetWindowRect(&rect);
    EXPECT_NEAR(400, rect.CenterPoint().x, 1);
    EXPECT_NEAR(350, rect.CenterPoint().y, 1);
    PlainDialog placed;
    ASSERT_TRUE(placed.Create(IDD_PLACED, &owner));
    placed.GetWindowRect(&rect);
    EXPECT_NE(400, rect.CenterPoint().x);
}

TEST(DialogMembers, TemplateAndHelpAreKnownToDerivedClasses)
{
    const TestDialog dialog(IDD_SIMPLE);
    EXPECT_EQ(MAKEINTRESOURCE(IDD_SIMPLE), dialog.m_lpszTemplateName);
    EXPECT_EQ(static_cast<UINT>(IDD_SIMPLE), dialog.m_nIDHelp);
}

TEST(DialogCommands, GoOnToTheOwnerOnlyForCommandIds)
{
    class Owner : public TopWnd
    {
      public:
        Events events;
        BOOL OnCmdMsg(UINT nID, int, void*, AFX_CMDHANDLERINFO*) override
        {
            events.push_back(std::to_string(nID));
            return TRUE;
        }
    } owner;
    PlainDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE, &owner));
    owner.events.clear();
    EXPECT_TRUE(dialog.OnCmdMsg(0xE100, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(dialog.OnCmdMsg(100, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(dialog.OnCmdMsg(0xE100, EN_CHANGE, nullptr, nullptr));
    EXPECT_EQ(Events{"57600"}, owner.events);
}

TEST(ModalDialog, ForeignExceptionFromTheLoopEnablesTheParentAgain)
{
    class Throwing : public PlainDialog
    {
      public:
        using PlainDialog::PlainDialog;
        BOOL PreTranslateMessage(MSG* pMsg) override
        {
            if (pMsg->message == WM_USER + 7) {
                throw 42;
            }
            return PlainDialog::PreTranslateMessage(pMsg);
        }
    };
    TopWnd parent;
    Throwing dialog(IDD_SIMPLE, &parent);
    ts::ModalDriver driver;
    driver.InDialog([](HWND hWnd) { ::PostMessage(hWnd, WM_USER + 7, 0, 0); });
    EXPECT_THROW(dialog.DoModal(), int);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModelessDialog, ChildDialogStandsInItsParentAndIsNotCentered)
{
    TopWnd parent;
    CDialogTemplate dialogTemplate;
    ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(IDD_SIMPLE)));
    auto* pTemplate = static_cast<DLGTEMPLATE*>(::GlobalLock(dialogTemplate.m_hTemplate));
    pTemplate->style = (pTemplate->style & ~static_cast<DWORD>(WS_POPUP | WS_CAPTION | DS_MODALFRAME)) | WS_CHILD;
    PlainDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(pTemplate, &parent));
    ::GlobalUnlock(dialogTemplate.m_hTemplate);
    EXPECT_EQ(&parent, dialog.GetParent());
    CRect rect;
    dialog.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(CPoint(0, 0), rect.TopLeft());
}
