#include <common/Owner.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

#include <algorithm>
#include <array>
#include <vector>

namespace
{

using namespace ids::info;

class InfoPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"info");
    }

    ts::Picture Chart() { return ts::CaptureWindow(Control(kChart)); }

    static std::vector<_QORVEX_SNAP> Snapshots()
    {
        int count = 0;
        const own::TaskMemory list(QorGetAllInfo(QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), &count, 0));
        const auto* first = static_cast<const _QORVEX_SNAP*>(list.Get());
        return {first, first + count};
    }
};

TEST_F(InfoPage, ChartShowsTheSnapshotsOfTheStore)
{
    static constexpr std::array<COLORREF, 5> kSeries = {RGB(47, 162, 244), RGB(250, 160, 90), RGB(248, 194, 57),
                                                        RGB(247, 101, 43), RGB(130, 205, 195)};
    const std::vector<_QORVEX_SNAP> snapshots = Snapshots();
    ASSERT_EQ(5u, snapshots.size());
    ShowState(L"bars");
    const ts::Picture chart = Chart();
    ULONGLONG most = 1;
    for (const _QORVEX_SNAP& snapshot : snapshots) {
        most = (std::max)(most, snapshot.nSize >> 20);
    }
    for (int i = 0; i < 5; ++i) {
        const COLORREF colour = kSeries.at(static_cast<size_t>(i));
        const int y = 33 + 20 * i;
        EXPECT_TRUE(ts::PixelIs(chart, 121, y, colour)) << i;
        const CRect bar = chart.Crop(CRect(0, y - 6, 115, y + 6)).BoundsOf(colour);
        const auto length = static_cast<int>((snapshots[static_cast<size_t>(i)].nSize >> 20) * 90 / most);
        EXPECT_NEAR(13 + length + 4, bar.right, 1) << i;
    }
    EXPECT_TRUE(ts::PixelIs(chart, 121, 33 + 20 * 5, RGB(255, 255, 255)));
}

TEST_F(InfoPage, WorksByKeyboardAlone)
{
    ASSERT_TRUE(TabTo(kRing));
    const ts::Picture ring = Chart();
    ts::Key(VK_DOWN);
    EXPECT_EQ(Control(kBars), ::GetFocus());
    EXPECT_FALSE(ts::SamePicture(ring, Chart()));
    ts::Key(VK_UP);
    EXPECT_TRUE(ts::SamePicture(ring, Chart()));
    ASSERT_TRUE(TabTo(kSnapshots));
    const ts::Picture first = ts::CaptureWindow(Control(kInfo));
    const ts::Picture status = ts::CaptureWindow(Control(kStatus));
    ts::Key(VK_DOWN);
    EXPECT_FALSE(ts::SamePicture(first, ts::CaptureWindow(Control(kInfo))));
    EXPECT_FALSE(ts::SamePicture(status, ts::CaptureWindow(Control(kStatus))));
}

TEST_F(InfoPage, DesktopTextIsShownAndHiddenByKeyboard)
{
    const auto tip = [] { return ::FindWindowW(nullptr, ConText(L"STR_CON_TIP_TEXT")); };
    ASSERT_TRUE(TabTo(kTip));
    ts::Key(VK_RETURN);
    ASSERT_NE(nullptr, tip());
    EXPECT_TRUE(::IsWindowVisible(tip()));
    EXPECT_EQ(Control(kTip), ::GetFocus());
    ts::Key(VK_RETURN);
    EXPECT_EQ(nullptr, tip());
    ts::Key(VK_RETURN);
    const HWND shown = tip();
    Show(L"progress");
    EXPECT_FALSE(::IsWindow(shown));
}

} // namespace
