#include <tests/afx/TestWindows.h>

namespace
{
constexpr UINT kFirstBar = 500;
constexpr UINT kSecondBar = 501;
constexpr UINT kOther = 510;
constexpr UINT kRest = 600;

/** Takes some of the room of its parent, from above. */
class Bar : public CWnd
{
  public:
    int height = 20;

    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM lParam)
    {
        auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
        RECT place = layout.rect;
        place.bottom = place.top + height;
        layout.rect.top += height;
        layout.sizeTotal.cy += height;
        layout.sizeTotal.cx = place.right - place.left;
        if (layout.hDWP) {
            layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, place.left, place.top,
                                           place.right - place.left, height, SWP_NOZORDER);
        }
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Bar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &Bar::OnSizeParent)
END_MESSAGE_MAP()

/** Two bars in the range, one outside, and a window for the rest. */
class Bars : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_second.height = 30;
        Make(m_first, kFirstBar);
        Make(m_second, kSecondBar);
        Make(m_other, kOther);
        Make(m_rest, kRest);
        m_parent.GetClientRect(m_client);
    }

    void Make(CWnd& wnd, UINT id)
    {
        ASSERT_TRUE(
            wnd.Create(AfxRegisterWndClass(0), nullptr, WS_CHILD | WS_VISIBLE, CRect(1, 2, 3, 4), &m_parent, id));
    }

    CRect PlaceOf(CWnd& wnd)
    {
        CRect rect;
        wnd.GetWindowRect(rect);
        m_parent.ScreenToClient(rect);
        return rect;
    }

    TopWnd m_parent;
    CRect m_client;
    Bar m_first;
    Bar m_second;
    Bar m_other;
    CWnd m_rest;
};

/** Its scroll bar is a control beside it. */
class ControlledWnd : public TopWnd
{
  public:
    CScrollBar bar;

    CScrollBar* GetScrollBarCtrl(int) const override { return const_cast<CScrollBar*>(&bar); }
};
} // namespace

TEST_F(Bars, TakeTheirShareAndLeaveTheRestToOneWindow)
{
    m_parent.RepositionBars(kFirstBar, kSecondBar, kRest);
    EXPECT_EQ(PlaceOf(m_first), CRect(0, 0, m_client.right, 20));
    EXPECT_EQ(PlaceOf(m_second), CRect(0, 20, m_client.right, 50));
    EXPECT_EQ(PlaceOf(m_rest), CRect(0, 50, m_client.right, m_client.bottom));
    EXPECT_EQ(PlaceOf(m_other), CRect(1, 2, 3, 4));
}

TEST_F(Bars, QueryTellsWhatWouldBeLeftAndMovesNothing)
{
    CRect left;
    m_parent.RepositionBars(kFirstBar, kSecondBar, kRest, CWnd::reposQuery, left);
    EXPECT_EQ(left, CRect(0, 50, m_client.right, m_client.bottom));
    EXPECT_EQ(PlaceOf(m_first), CRect(1, 2, 3, 4));
    EXPECT_EQ(PlaceOf(m_rest), CRect(1, 2, 3, 4));
}

TEST_F(Bars, QueryWithoutStretchingTellsWhatTheBarsTake)
{
    CRect taken;
    m_parent.RepositionBars(kFirstBar, kSecondBar, kRest, CWnd::reposQuery, taken, nullptr, FALSE);
    EXPECT_EQ(taken, CRect(0, 0, m_client.right, 50));
}

TEST_F(Bars, ExtraBordersStayFree)
{
    CRect border(1, 2, 3, 4);
    m_parent.RepositionBars(kFirstBar, kSecondBar, kRest, CWnd::reposExtra, border, CRect(0, 0, 200, 100));
    EXPECT_EQ(PlaceOf(m_rest), CRect(1, 52, 197, 96));
}

TEST_F(Bars, RestStaysWhereItIsWhenAsked)
{
    m_parent.RepositionBars(kFirstBar, kSecondBar, kRest, CWnd::reposDefault | CWnd::reposNoPosLeftOver);
    EXPECT_EQ(PlaceOf(m_first), CRect(0, 0, m_client.right, 20));
    EXPECT_EQ(PlaceOf(m_rest), CRect(1, 2, 3, 4));
}

TEST(ScrollBars, ControlThatStandsForOneIsEnabledInItsPlace)
{
    ControlledWnd wnd;
    ASSERT_TRUE(wnd.bar.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 50, 16), &wnd, 1));
    wnd.EnableScrollBarCtrl(SB_BOTH, FALSE);
    EXPECT_FALSE(wnd.bar.IsWindowEnabled());
    wnd.EnableScrollBarCtrl(SB_HORZ, TRUE);
    EXPECT_TRUE(wnd.bar.IsWindowEnabled());
    EXPECT_TRUE(wnd.bar.IsWindowVisible());
}
