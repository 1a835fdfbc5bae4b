#include "Windows.h"

namespace
{
const UINT kRegistered = ::RegisterWindowMessage(_T("afx_wnd_test"));
constexpr UINT kPlainMessage = WM_USER + 10;

class BaseWnd : public CWnd
{
  public:
    Events events;

    LRESULT OnPlain(WPARAM wParam, LPARAM lParam)
    {
        events.push_back("base plain");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT OnRegistered(WPARAM, LPARAM)
    {
        events.push_back("registered");
        return 77;
    }
    void OnBaseCommand() { events.push_back("base command"); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { events.push_back("base timer " + std::to_string(nIDEvent)); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
    ON_MESSAGE(kPlainMessage, &BaseWnd::OnPlain)
    ON_REGISTERED_MESSAGE(kRegistered, &BaseWnd::OnRegistered)
    ON_COMMAND(1, &BaseWnd::OnBaseCommand)
    ON_COMMAND(2, &BaseWnd::OnBaseCommand)
    ON_WM_TIMER()
END_MESSAGE_MAP()

class DerivedWnd : public BaseWnd
{
  public:
    void OnDerivedCommand() { events.push_back("derived command"); }
    afx_msg void OnTimer(UINT_PTR nIDEvent)
    {
        events.push_back("derived timer");
        BaseWnd::OnTimer(nIDEvent);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
    ON_COMMAND(1, &DerivedWnd::OnDerivedCommand)
    ON_WM_TIMER()
END_MESSAGE_MAP()

template <class T>
class TemplateWnd : public CWnd
{
  public:
    T value = T();
    LRESULT OnPlain(WPARAM wParam, LPARAM)
    {
        value = static_cast<T>(wParam);
        return 1;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(TemplateWnd, T, CWnd)
    ON_MESSAGE(kPlainMessage, &TemplateWnd<T>::OnPlain)
END_MESSAGE_MAP()

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

template <AFX_SIG sig, class Handler>
concept FitsHandler = requires(Handler pfn)
{
    static_cast<typename AfxSigFn<sig>::type>(pfn);
};

struct Wrong : CWnd
{
    int ReturnsInt() { return 0; }
    void NoArguments() {}
    void TakesInt(int) {}
    LRESULT TakesWParam(WPARAM) { return 0; }
    BOOL TakesPoint(CPoint) { return FALSE; }
};
} // namespace

TEST(MessageMapTypes, HandlersWithAnotherSignatureAreRefusedByTheCompiler)
{
    EXPECT_TRUE((FitsHandler<AfxSig_void, decltype(&Wrong::NoArguments)>));
    EXPECT_FALSE((FitsHandler<AfxSig_void, decltype(&Wrong::ReturnsInt)>));
    EXPECT_FALSE((FitsHandler<AfxSig_void, decltype(&Wrong::TakesInt)>));
    EXPECT_FALSE((FitsHandler<AfxSig_void_UINT, decltype(&Wrong::TakesInt)>));
    EXPECT_FALSE((FitsHandler<AfxSig_Message, decltype(&Wrong::TakesWParam)>));
    EXPECT_FALSE((FitsHandler<AfxSig_LRESULT_Point, decltype(&Wrong::TakesPoint)>));
    EXPECT_FALSE((FitsHandler<AfxSig_Command, decltype(&Wrong::ReturnsInt)>));
    EXPECT_FALSE((FitsHandler<AfxSig_void, void (*)()>));
}

TEST(MessageMap, PrivateMessageReachesItsHandlerWithBothParametersAndReturnsItsResult)
{
    BaseWnd wnd;
    EXPECT_EQ(42, AfxCallWndProc(&wnd, nullptr, kPlainMessage, 40, 2));
    EXPECT_EQ(Events{"base plain"}, wnd.events);
}

TEST(MessageMap, RegisteredMessageReachesItsHandler)
{
    BaseWnd wnd;
    EXPECT_EQ(77, AfxCallWndProc(&wnd, nullptr, kRegistered, 0, 0));
    AfxCallWndProc(&wnd, nullptr, kRegistered + 1, 0, 0);
    EXPECT_EQ(Events{"registered"}, wnd.events);
}

TEST(MessageMap, DerivedMapComesBeforeItsBaseAndInheritsTheRest)
{
    DerivedWnd wnd;
    wnd.OnCmdMsg(1, CN_COMMAND, nullptr, nullptr);
    wnd.OnCmdMsg(2, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(42, AfxCallWndProc(&wnd, nullptr, kPlainMessage, 42, 0));
    EXPECT_EQ((Events{"derived command", "base command", "base plain"}), wnd.events);
}

TEST(MessageMap, HandlerMayCallTheHandlerOfItsBase)
{
    DerivedWnd wnd;
    AfxCallWndProc(&wnd, nullptr, WM_TIMER, 9, 0);
    EXPECT_EQ((Events{"derived timer", "base timer 9"}), wnd.events);
}

TEST(MessageMap, ClassTemplatesHaveMapsOfTheirOwn)
{
    TemplateWnd<short> shortWnd;
    TemplateWnd<int> intWnd;
    EXPECT_EQ(1, AfxCallWndProc(&shortWnd, nullptr, kPlainMessage, 0x10005, 0));
    EXPECT_EQ(1, AfxCallWndProc(&intWnd, nullptr, kPlainMessage, 0x10005, 0));
    EXPECT_EQ(5, shortWnd.value);
    EXPECT_EQ(0x10005, intWnd.value);
}

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
