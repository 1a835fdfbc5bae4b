#include <tests/afx/TestWindows.h>

namespace
{
/** Writes down the messages it is asked to translate. */
class TranslatingWnd : public CWnd
{
  public:
    TranslatingWnd(Events& log, std::string name) : events(log), m_name(std::move(name)) {}
    Events& events;
    bool take = false;

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == WM_USER) {
            events.push_back(m_name);
            return take;
        }
        return CWnd::PreTranslateMessage(pMsg);
    }

  private:
    std::string m_name;
};

struct Chain
{
    Events events;
    TranslatingWnd top{events, "top"};
    TranslatingWnd middle{events, "middle"};
    TranslatingWnd leaf{events, "leaf"};

    Chain()
    {
        top.CreateEx(0, nullptr, _T(""), WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
        middle.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 50, 50), &top, 1);
        leaf.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 20, 20), &middle, 1);
    }
    BOOL Walk(HWND stop)
    {
        MSG msg = {leaf.m_hWnd, WM_USER, 0, 0, 0, {0, 0}};
        return CWnd::WalkPreTranslateTree(stop, &msg);
    }
};
} // namespace

TEST(PreTranslation, RunsFromTheWindowUpItsParents)
{
    Chain chain;
    EXPECT_FALSE(chain.Walk(nullptr));
    EXPECT_EQ((Events{"leaf", "middle", "top"}), chain.events);
}

TEST(PreTranslation, StopsAtTheWindowThatTakesTheMessage)
{
    Chain chain;
    chain.middle.take = true;
    EXPECT_TRUE(chain.Walk(nullptr));
    EXPECT_EQ((Events{"leaf", "middle"}), chain.events);
}

TEST(PreTranslation, StopsBehindTheGivenWindow)
{
    Chain chain;
    EXPECT_FALSE(chain.Walk(chain.middle.m_hWnd));
    EXPECT_EQ((Events{"leaf", "middle"}), chain.events);
}

TEST(PreTranslation, PumpDropsATakenMessage)
{
    Chain chain;
    class Receiver : public TranslatingWnd
    {
      public:
        using TranslatingWnd::TranslatingWnd;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                events.push_back("dispatched");
            }
            return TranslatingWnd::WindowProc(message, wParam, lParam);
        }
    } receiver(chain.events, "receiver");
    receiver.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 5, 5), &chain.top, 2);
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE)) {
        ::DispatchMessage(&msg);
    }
    chain.events.clear();
    receiver.PostMessage(WM_USER);
    EXPECT_TRUE(AfxPumpMessage());
    chain.top.take = true;
    receiver.PostMessage(WM_USER);
    EXPECT_TRUE(AfxPumpMessage());
    EXPECT_EQ((Events{"receiver", "top", "dispatched", "receiver", "top"}), chain.events);
}
