#include <tests/afx/UpdatedTarget.h>

namespace
{
struct MenuBench
{
    UpdatedTarget target;
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
    UpdatedTarget target;
    target.SendMessage(WM_COMMAND, kCommand, 0);
    EXPECT_EQ(1, target.commands);
    target.enable = FALSE;
    target.SendMessage(WM_COMMAND, kCommand, 0);
    EXPECT_EQ(1, target.commands);
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
