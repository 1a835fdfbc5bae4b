#include <QorUI/app/base/HotState.h>
#include <tests/support/Support.h>

namespace
{

constexpr RECT kPart = {2, 3, 12, 13};

/** A window under no mouse, and what becomes invalid of it. */
class Hot : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_wnd.Attach(m_host.Hwnd());
        ::UpdateWindow(m_host.Hwnd());
        ::ValidateRect(m_host.Hwnd(), nullptr);
    }
    void TearDown() override { m_wnd.Detach(); }

    CRect Invalid()
    {
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(m_host.Hwnd(), &rect, FALSE);
        return rect;
    }

    ts::HostWindow m_host;
    CWnd m_wnd;
    HotState m_hot;
};

TEST_F(Hot, IsColdAtFirst)
{
    EXPECT_FALSE(m_hot);
}

TEST_F(Hot, FirstMoveMakesHotAndRepaintsTheArea)
{
    m_hot.OnMouseMove(m_wnd, &kPart);
    EXPECT_TRUE(m_hot);
    EXPECT_EQ(CRect(kPart), Invalid());
}

TEST_F(Hot, FurtherMovesRepaintNothing)
{
    m_hot.OnMouseMove(m_wnd, &kPart);
    ::ValidateRect(m_host.Hwnd(), nullptr);
    m_hot.OnMouseMove(m_wnd, &kPart);
    EXPECT_TRUE(m_hot);
    EXPECT_TRUE(Invalid().IsRectEmpty());
}

TEST_F(Hot, LeavingMakesColdAndRepaintsTheArea)
{
    m_hot.OnMouseMove(m_wnd, &kPart);
    ::ValidateRect(m_host.Hwnd(), nullptr);
    EXPECT_EQ(1, m_hot.OnMouseLeave(m_wnd, &kPart));
    EXPECT_FALSE(m_hot);
    EXPECT_EQ(CRect(kPart), Invalid());
}

TEST_F(Hot, NewWindowMakesColdAndRepaintsNothing)
{
    m_hot.OnMouseMove(m_wnd);
    ::ValidateRect(m_host.Hwnd(), nullptr);
    m_hot.OnNewWindow();
    EXPECT_FALSE(m_hot);
    EXPECT_TRUE(Invalid().IsRectEmpty());
}

} // namespace
