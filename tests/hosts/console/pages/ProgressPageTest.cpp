#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::progress;

class ProgressPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"progress");
    }

    int Position() { return ControlAs<CProgressBar>(kPercent).GetPos(); }

    bool Runs()
    {
        const int before = Position();
        return ts::PumpUntil([&] { return Position() > before; }, 2000);
    }

    /** Whether no timer moves the bars; ends one that does. */
    bool Stands() { return !::KillTimer(*m_frame.CurrentPage(), kTimer); }
};

TEST_F(ProgressPage, RunsWhenItIsOpened)
{
    EXPECT_TRUE(Runs());
    EXPECT_TRUE(Runs());
}

TEST_F(ProgressPage, BarsAndListShowThePosition)
{
    ShowState(L"third"); // stopped at a third
    EXPECT_TRUE(Stands());
    EXPECT_EQ(333, Position());
    EXPECT_EQ(83, ControlAs<CProgressBar>(kFiles).GetPos());
    CProgressList& list = ControlAs<CProgressList>(kList);
    EXPECT_STREQ(L"done", list.GetItemText(0, 1));
    EXPECT_STREQ(L"66|Copying", list.GetItemText(1, 1));
    EXPECT_STREQ(L"waiting", list.GetItemText(2, 1));
    CRect cell;
    list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell);
    EXPECT_TRUE(ts::PixelIs(ts::CaptureWindow(list), cell.left + 5, cell.top + 3, RGB(6, 177, 36)));
    EXPECT_GE(cell.Height(), 18);
}

TEST_F(ProgressPage, BarsHaveThePagesFont)
{
    ShowState(L"empty");
    const ts::Picture bar = ts::CaptureWindow(Control(kPercent));
    const COLORREF ink = ::GetSysColor(COLOR_HIGHLIGHT);
    const ts::Picture expected = ts::DrawTo(
        bar.Width(), bar.Height(),
        [&](HDC dc) {
            CRect inside(2, 2, bar.Width() - 2, bar.Height() - 2);
            ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
            ::SetTextColor(dc, ink);
            ::DrawTextW(dc, L"0%", 2, &inside, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        },
        ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(CRect(expected.BoundsOf(ink)), CRect(bar.BoundsOf(ink)));
    EXPECT_EQ(expected.Count(ink), bar.Count(ink));
}

TEST_F(ProgressPage, WorksByKeyboardAlone)
{
    ASSERT_TRUE(TabTo(kStop));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(Stands());
    ASSERT_TRUE(TabTo(kReset));
    ts::Key(VK_SPACE);
    EXPECT_EQ(0, Position());
    EXPECT_TRUE(Stands());
    ASSERT_TRUE(TabTo(kRun));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(Runs());
    ASSERT_TRUE(TabTo(kList));
    ts::Key(VK_END);
    EXPECT_EQ(4, ControlAs<CProgressList>(kList).GetSelectedItem());
}

TEST_F(ProgressPage, StopsAtItsEndAndRunsAgainFromTheStart)
{
    ShowState(L"done");
    EXPECT_EQ(1000, Position());
    ASSERT_TRUE(TabTo(kRun));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(ts::PumpUntil([this] { return Position() > 0 && Position() < 1000; }, 2000));
}

} // namespace
