#include <tests/afx/TestWindows.h>

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
