#include "Windows.h"

namespace
{
constexpr UINT kCommand = 0x8100;
constexpr UINT kUnhandled = 0x8101;

class Target : public TopWnd
{
  public:
    BOOL enable = TRUE;
    int check = 0;
    bool keepRouting = false;
    int commands = 0;

    void OnRun() { ++commands; }
    void OnUpdate(CCmdUI* pCmdUI)
    {
        pCmdUI->Enable(enable);
        pCmdUI->SetCheck(check);
        pCmdUI->SetText(_T("new text"));
        if (keepRouting) {
            pCmdUI->ContinueRouting();
        }
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(kCommand, &Target::OnRun)
    ON_UPDATE_COMMAND_UI(kCommand, &Target::OnUpdate)
END_MESSAGE_MAP()

struct MenuBench
{
    Target target;
    CMenu menu;
    CCmdUI state;

    MenuBench()
    {
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, kCommand, _T("old text"));
        menu.AppendMenu(MF_STRING, kUnhandled, _T("nobody's"));
        state.m_pMenu = &menu;
        state.m_nIndexMax = 2;
        Choose(0);
    }
    void Choose(UINT nIndex)
    {
        state.m_nIndex = nIndex;
        state.m_nID = menu.GetMenuItemID(static_cast<int>(nIndex));
    }
    UINT State() const { return menu.GetMenuState(state.m_nIndex, MF_BYPOSITION); }
};

/** A control that updates itself. */
class SelfUpdating : public CWnd
{
  public:
    int updates = 0;
    void OnUpdate(CCmdUI* pCmdUI)
    {
        ++updates;
        pCmdUI->Enable(FALSE);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SelfUpdating, CWnd)
    ON_UPDATE_COMMAND_UI_REFLECT(&SelfUpdating::OnUpdate)
END_MESSAGE_MAP()
} // namespace

TEST(CommandUpdate, SetsStateAndTextOfAMenuItem)
{
    MenuBench bench;
    bench.target.enable = FALSE;
    bench.target.check = 1;
    EXPECT_TRUE(bench.state.DoUpdate(&bench.target, FALSE));
    EXPECT_NE(0u, bench.State() & (MF_GRAYED | MF_DISABLED));
    EXPECT_NE(0u, bench.State() & MF_CHECKED);
    CString strText;
    bench.menu.GetMenuString(0, strText, MF_BYPOSITION);
    EXPECT_EQ(CString(_T("new text")), strText);
    bench.target.enable = TRUE;
    bench.target.check = 0;
    bench.state.DoUpdate(&bench.target, FALSE);
    EXPECT_EQ(0u, bench.State() & (MF_GRAYED | MF_DISABLED | MF_CHECKED));
}

TEST(CommandUpdate, DisablesACommandThatNobodyHandlesWhenAsked)
{
    MenuBench bench;
    bench.Choose(1);
    EXPECT_FALSE(bench.state.DoUpdate(&bench.target, FALSE));
    EXPECT_EQ(0u, bench.State() & MF_GRAYED);
    EXPECT_FALSE(bench.state.DoUpdate(&bench.target, TRUE));
    EXPECT_NE(0u, bench.State() & MF_GRAYED);
}

TEST(CommandUpdate, RadioItemsGetABullet)
{
    MenuBench bench;
    bench.state.SetRadio();
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    ASSERT_TRUE(bench.menu.GetMenuItemInfo(0, &info, TRUE));
    EXPECT_NE(0u, info.fType & MFT_RADIOCHECK);
    EXPECT_NE(0u, info.fState & MFS_CHECKED);
}

TEST(CommandUpdate, ContinueRoutingLeavesTheUpdateUntaken)
{
    MenuBench bench;
    bench.target.keepRouting = true;
    EXPECT_FALSE(bench.state.DoUpdate(&bench.target, FALSE));
}

TEST(CommandUpdate, NullTargetAndSeparatorsAreIgnored)
{
    MenuBench bench;
    EXPECT_TRUE(bench.state.DoUpdate(nullptr, TRUE));
    bench.state.m_nID = 0;
    EXPECT_TRUE(bench.state.DoUpdate(&bench.target, TRUE));
    EXPECT_EQ(0u, bench.menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
}

TEST(CommandUpdate, MenuCommandThatIsDisabledIsNotRun)
{
    Target target;
    target.SendMessage(WM_COMMAND, kCommand, 0);
    EXPECT_EQ(1, target.commands);
    target.enable = FALSE;
    target.SendMessage(WM_COMMAND, kCommand, 0);
    EXPECT_EQ(1, target.commands);
}

TEST(DialogControlUpdate, ReachesEveryControlAndReflectsToThoseThatUpdateThemselves)
{
    Target target;
    const HWND hButton = MakeControl(target, _T("BUTTON"), BS_AUTO3STATE, kCommand);
    SelfUpdating own;
    own.SubclassWindow(MakeControl(target, _T("BUTTON"), BS_PUSHBUTTON, kUnhandled));
    target.enable = FALSE;
    target.check = 1;
    target.UpdateDialogControls(&target, FALSE);
    EXPECT_FALSE(::IsWindowEnabled(hButton));
    EXPECT_EQ(BST_CHECKED, ::SendMessage(hButton, BM_GETCHECK, 0, 0));
    EXPECT_EQ(8, ::GetWindowTextLength(hButton));
    EXPECT_EQ(1, own.updates);
    EXPECT_FALSE(own.IsWindowEnabled());
}

TEST(DialogControlUpdate, DisablesOnlyPushButtonsThatNobodyHandles)
{
    Target target;
    const HWND hPush = MakeControl(target, _T("BUTTON"), BS_PUSHBUTTON, 0x8201);
    const HWND hCheck = MakeControl(target, _T("BUTTON"), BS_AUTOCHECKBOX, 0x8202);
    const HWND hEdit = MakeControl(target, _T("EDIT"), 0, 0x8203);
    target.UpdateDialogControls(&target, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(hPush));
    EXPECT_TRUE(::IsWindowEnabled(hCheck));
    EXPECT_TRUE(::IsWindowEnabled(hEdit));
}

TEST(DialogControlUpdate, DisabledControlHandsTheFocusOn)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    dialog.SetForegroundWindow();
    CWnd* pAction = dialog.GetDlgItem(IDC_ACTION);
    pAction->SetFocus();
    CCmdUI state;
    state.m_pOther = pAction;
    state.m_nID = IDC_ACTION;
    state.Enable(FALSE);
    EXPECT_FALSE(::IsWindowEnabled(*dialog.GetDlgItem(IDC_ACTION)));
    EXPECT_EQ(IDOK, ::GetDlgCtrlID(::GetFocus()));
}
