#include <tests/afx/TestWindows.h>

namespace
{
/** A window with a modal loop that ends itself at the idle moment asked for. */
class ModalWnd : public CWnd
{
  public:
    Events events;
    int endAtKick = -1;
    int kicks = 0;
    int result = 7;

    LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam)
    {
        events.push_back("kick " + std::to_string(wParam) + " " + std::to_string(lParam));
        if (++kicks == endAtKick) {
            EndModalLoop(result);
        }
        return kicks < 3;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ModalWnd, CWnd)
    ON_MESSAGE(WM_KICKIDLE, &ModalWnd::OnKickIdle)
END_MESSAGE_MAP()

class IdleParent : public TopWnd
{
  public:
    int idles = 0;
    HWND idleWindow = nullptr;

    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho)
    {
        idles += nWhy == MSGF_DIALOGBOX;
        idleWindow = pWho->m_hWnd;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IdleParent, CWnd)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

BOOL MakePopup(CWnd& wnd, CWnd* pOwner = nullptr, DWORD style = WS_POPUP)
{
    return wnd.CreateEx(0, nullptr, _T("modal"), style, CRect(10, 10, 110, 90), pOwner, 0);
}
} // namespace

TEST(ModalLoop, KicksWhenIdleUntilTheWindowIsContentAndReturnsTheResult)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.endAtKick = 3;
    EXPECT_EQ(7, wnd.RunModalLoop());
    EXPECT_EQ((Events{"kick 0 0", "kick 0 1", "kick 0 2"}), wnd.events);
}

TEST(ModalLoop, MessageMakesItIdleAgain)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.endAtKick = 4;
    ts::ModalDriver driver;
    driver.When(
        "three kicks", [&] { return wnd.kicks >= 3; }, [&] { wnd.PostMessage(WM_USER); });
    EXPECT_EQ(7, wnd.RunModalLoop());
    EXPECT_EQ("kick 0 0", wnd.events[3]);
    EXPECT_TRUE(driver.Finished());
}

TEST(ModalLoop, NoKickIdleFlagKeepsKicksAway)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    ts::ModalDriver driver;
    driver.Then([&] { wnd.EndModalLoop(4); });
    EXPECT_EQ(4, wnd.RunModalLoop(MLF_NOKICKIDLE));
    EXPECT_TRUE(wnd.events.empty());
}

TEST(ModalLoop, ParentHearsOfIdleMomentsUnlessForbidden)
{
    IdleParent parent;
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd, &parent));
    wnd.endAtKick = 2;
    wnd.RunModalLoop();
    EXPECT_GE(parent.idles, 1);
    EXPECT_EQ(wnd.m_hWnd, parent.idleWindow);
    parent.idles = 0;
    wnd.kicks = 0;
    wnd.RunModalLoop(MLF_NOIDLEMSG);
    EXPECT_EQ(0, parent.idles);
}

TEST(ModalLoop, ShowOnIdleShowsTheWindow)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.endAtKick = 1;
    EXPECT_FALSE(wnd.IsWindowVisible());
    wnd.RunModalLoop();
    EXPECT_FALSE(wnd.IsWindowVisible());
    wnd.kicks = 0;
    wnd.RunModalLoop(MLF_SHOWONIDLE);
    EXPECT_TRUE(wnd.IsWindowVisible());
}

TEST(ModalLoop, EndsWithMinusOneWhenItsWindowIsDestroyed)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    ts::ModalDriver driver;
    driver.Then([&] { wnd.DestroyWindow(); });
    EXPECT_EQ(-1, wnd.RunModalLoop());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
}

TEST(ModalLoop, SurvivesAnObjectThatEndsInside)
{
    class Heap : public ModalWnd
    {
      public:
        void PostNcDestroy() override { delete this; }
    };
    auto* pWnd = new Heap;
    ASSERT_TRUE(MakePopup(*pWnd));
    const HWND hWnd = pWnd->m_hWnd;
    ts::ModalDriver driver;
    driver.Then([&] { ::DestroyWindow(hWnd); });
    EXPECT_EQ(-1, pWnd->RunModalLoop());
}

TEST(ModalLoop, QuitMessageEndsItAndStaysForTheOuterLoop)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    ts::ModalDriver driver;
    driver.Then([] { ::PostQuitMessage(9); });
    EXPECT_EQ(-1, wnd.RunModalLoop());
    MSG msg = {};
    EXPECT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(9u, msg.wParam);
}

TEST(ModalLoop, SecondLoopOfTheSameWindowIsRefused)
{
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    int inner = 0;
    ts::ModalDriver driver;
    driver.Then([&] {
        inner = wnd.RunModalLoop();
        wnd.EndModalLoop(3);
    });
    EXPECT_EQ(3, wnd.RunModalLoop());
    EXPECT_EQ(-1, inner);
}

TEST(ModalLoop, WorksWithoutAThreadObject)
{
    ASSERT_EQ(nullptr, AfxGetThread());
    ASSERT_EQ(nullptr, AfxGetApp());
    ASSERT_EQ(nullptr, AfxGetMainWnd());
    ModalWnd wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.endAtKick = 1;
    EXPECT_EQ(7, wnd.RunModalLoop());
}

TEST(ModalLoop, ExceptionFromTheLoopLeavesTheWindowReadyForAnother)
{
    class Throwing : public ModalWnd
    {
      public:
        bool armed = true;
        BOOL PreTranslateMessage(MSG* pMsg) override
        {
            if (armed && pMsg->message == WM_USER) {
                throw std::string("from the loop");
            }
            return ModalWnd::PreTranslateMessage(pMsg);
        }
    } wnd;
    ASSERT_TRUE(MakePopup(wnd));
    wnd.PostMessage(WM_USER);
    EXPECT_THROW(wnd.RunModalLoop(), std::string);
    wnd.armed = false;
    wnd.endAtKick = wnd.kicks + 1;
    EXPECT_EQ(7, wnd.RunModalLoop());
}
