#include <tests/afx/UpdatedTarget.h>

namespace
{
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

TEST(DialogControlUpdate, ReachesEveryControlAndReflectsToThoseThatUpdateThemselves)
{
    UpdatedTarget target;
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
    UpdatedTarget target;
    const HWND hPush = MakeControl(target, _T("BUTTON"), BS_PUSHBUTTON, 0x8201);
    const HWND hCheck = MakeControl(target, _T("BUTTON"), BS_AUTOCHECKBOX, 0x8202);
    const HWND hEdit = MakeControl(target, _T("EDIT"), 0, 0x8203);
    target.UpdateDialogControls(&target, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(hPush));
    EXPECT_TRUE(::IsWindowEnabled(hCheck));
    EXPECT_TRUE(::IsWindowEnabled(hEdit));
}
