#include <tests/afx/TestWindows.h>

namespace
{
/** Every kind of command and notification row. */
class CommandTarget : public CCmdTarget
{
  public:
    Events events;
    BOOL answer = TRUE;

    void OnPlain() { events.push_back("plain"); }
    BOOL OnEx(UINT nID)
    {
        events.push_back("ex " + std::to_string(nID));
        return answer;
    }
    void OnRange(UINT nID) { events.push_back("range " + std::to_string(nID)); }
    void OnControl() { events.push_back("control"); }
    void OnNotify(NMHDR* pNMHDR, LRESULT* pResult)
    {
        events.push_back("notify " + std::to_string(static_cast<int>(pNMHDR->code)));
        *pResult = 5;
    }
    void OnNotifyRange(UINT nID, NMHDR*, LRESULT* pResult)
    {
        events.push_back("notify range " + std::to_string(nID));
        *pResult = 6;
    }
    BOOL OnNotifyEx(UINT nID, NMHDR*, LRESULT* pResult)
    {
        events.push_back("notify ex " + std::to_string(nID));
        *pResult = 7;
        return answer;
    }
    void OnUpdate(CCmdUI* pCmdUI) { events.push_back("update " + std::to_string(pCmdUI->m_nID)); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandTarget, CCmdTarget)
    ON_COMMAND(10, &CommandTarget::OnPlain)
    ON_COMMAND_EX(11, &CommandTarget::OnEx)
    ON_COMMAND_RANGE(20, 29, &CommandTarget::OnRange)
    ON_COMMAND_EX_RANGE(30, 39, &CommandTarget::OnEx)
    ON_EN_CHANGE(40, &CommandTarget::OnControl)
    ON_CONTROL_RANGE(LBN_SELCHANGE, 41, 49, &CommandTarget::OnRange)
    ON_NOTIFY(NM_CLICK, 50, &CommandTarget::OnNotify)
    ON_NOTIFY_RANGE(NM_CLICK, 51, 59, &CommandTarget::OnNotifyRange)
    ON_NOTIFY_EX(NM_RCLICK, 50, &CommandTarget::OnNotifyEx)
    ON_NOTIFY_EX_RANGE(NM_RCLICK, 51, 59, &CommandTarget::OnNotifyEx)
    ON_UPDATE_COMMAND_UI(10, &CommandTarget::OnUpdate)
    ON_UPDATE_COMMAND_UI_RANGE(20, 29, &CommandTarget::OnUpdate)
END_MESSAGE_MAP()
} // namespace

TEST(CommandRouting, CommandRowsAreFoundByIdAndRange)
{
    CommandTarget target;
    EXPECT_TRUE(target.OnCmdMsg(10, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(11, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(20, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(29, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(39, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ((Events{"plain", "ex 11", "range 20", "range 29", "ex 39"}), target.events);
}

TEST(CommandRouting, UnknownIdsAndCodesAreNotTaken)
{
    CommandTarget target;
    EXPECT_FALSE(target.OnCmdMsg(9, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(19, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(40, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(40, EN_UPDATE, nullptr, nullptr));
    EXPECT_TRUE(target.events.empty());
}

TEST(CommandRouting, ExtendedHandlerThatDeclinesLeavesTheCommandUntaken)
{
    CommandTarget target;
    target.answer = FALSE;
    EXPECT_FALSE(target.OnCmdMsg(11, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(35, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ((Events{"ex 11", "ex 35"}), target.events);
}

TEST(CommandRouting, ControlNotificationsAreFoundByCodeIdAndRange)
{
    CommandTarget target;
    EXPECT_TRUE(target.OnCmdMsg(40, EN_CHANGE, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(49, LBN_SELCHANGE, nullptr, nullptr));
    EXPECT_EQ((Events{"control", "range 49"}), target.events);
}

TEST(CommandRouting, NotifyHandlersGetTheHeaderAndSetTheResult)
{
    CommandTarget target;
    NMHDR header = {nullptr, 50, static_cast<UINT>(NM_CLICK)};
    LRESULT result = 0;
    AFX_NOTIFY notify = {&result, &header};
    const auto code = [&](int n) { return static_cast<int>(MAKELONG(static_cast<WORD>(n), WM_NOTIFY)); };
    EXPECT_TRUE(target.OnCmdMsg(50, code(NM_CLICK), &notify, nullptr));
    EXPECT_EQ(5, result);
    EXPECT_TRUE(target.OnCmdMsg(55, code(NM_CLICK), &notify, nullptr));
    EXPECT_EQ(6, result);
    EXPECT_TRUE(target.OnCmdMsg(50, code(NM_RCLICK), &notify, nullptr));
    EXPECT_EQ(7, result);
    target.answer = FALSE;
    EXPECT_FALSE(target.OnCmdMsg(59, code(NM_RCLICK), &notify, nullptr));
    EXPECT_EQ((Events{"notify -2", "notify range 55", "notify ex 50", "notify ex 59"}), target.events);
}

TEST(CommandRouting, HandlerInfoTellsTheTargetWithoutCallingIt)
{
    CommandTarget target;
    AFX_CMDHANDLERINFO info = {nullptr, nullptr};
    EXPECT_TRUE(target.OnCmdMsg(10, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&target, info.pTarget);
    EXPECT_FALSE(target.OnCmdMsg(9, CN_COMMAND, nullptr, &info));
    EXPECT_TRUE(target.events.empty());
}

TEST(CommandRouting, UpdatesReachTheirHandlersByIdAndRange)
{
    CommandTarget target;
    CCmdUI state;
    state.m_nID = 10;
    EXPECT_TRUE(state.DoUpdate(&target, FALSE));
    state.m_nID = 25;
    EXPECT_TRUE(state.DoUpdate(&target, FALSE));
    state.m_nID = 11;
    EXPECT_FALSE(state.DoUpdate(&target, FALSE));
    EXPECT_EQ((Events{"update 10", "update 25"}), target.events);
}

TEST(CommandRouting, UpdateWithoutAnObjectIsRefused)
{
    CommandTarget target;
    EXPECT_FALSE(target.OnCmdMsg(10, static_cast<int>(CN_UPDATE_COMMAND_UI), nullptr, nullptr));
    EXPECT_TRUE(target.events.empty());
}
