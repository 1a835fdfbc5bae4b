#include <tests/hosts/console/PagesFixture.h>

#include <algorithm>
#include <ranges>
#include <string>
#include <vector>

namespace
{

class EveryPage : public Pages, public testing::WithParamInterface<const wchar_t*>
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(GetParam());
    }

    /** The page's controls that Tab has to stop at, in its order. */
    std::vector<HWND> TabStops()
    {
        constexpr LONG_PTR kWanted = WS_TABSTOP | WS_VISIBLE;
        std::vector<HWND> stops;
        HWND child = ::GetWindow(*m_frame.CurrentPage(), GW_CHILD);
        for (; child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            if ((::GetWindowLongPtrW(child, GWL_STYLE) & (kWanted | WS_DISABLED)) == kWanted) {
                stops.push_back(child);
            }
        }
        return stops;
    }

    /** The page's controls that have the focus one after the other until it is in the list of pages again. */
    std::vector<HWND> Round(bool back)
    {
        std::vector<HWND> stops;
        for (int i = 0; i < kMostTabStops; ++i) {
            if (back) {
                ts::Chord({VK_SHIFT, VK_TAB});
            } else {
                ts::Key(VK_TAB);
            }
            const HWND control = FocusedControl();
            if (control == PageList()) {
                return stops;
            }
            if (::GetParent(control) == *m_frame.CurrentPage()) {
                stops.push_back(control);
            }
        }
        ADD_FAILURE() << "the focus does not come back to the list of pages";
        return stops;
    }

    /** What a failure shows of controls. */
    static std::vector<std::string> Names(const std::vector<HWND>& controls)
    {
        std::vector<std::string> names;
        names.reserve(controls.size());
        for (const HWND control : controls) {
            names.push_back(std::to_string(::GetDlgCtrlID(control)) + " " +
                            ts::ToUtf8(ts::TextOf(control).GetString()));
        }
        return names;
    }
};

TEST_P(EveryPage, TabGoesOnceToEveryControlAndShiftTabBack)
{
    std::vector<HWND> stops = TabStops();
    EXPECT_FALSE(stops.empty());
    EXPECT_EQ(Names(stops), Names(Round(false)));
    std::ranges::reverse(stops);
    EXPECT_EQ(Names(stops), Names(Round(true)));
}

TEST_P(EveryPage, IsLeftFromItsLastControlByKeyboard)
{
    for (int i = 0; i < kMostTabStops && ::GetParent(FocusedControl()) != *m_frame.CurrentPage(); ++i) {
        ts::Chord({VK_SHIFT, VK_TAB}); // past the buttons of the title
    }
    for (int i = 0; i < kMostTabStops && FocusedControl() != PageList(); ++i) {
        ts::Key(VK_TAB);
    }
    const HWND page = *m_frame.CurrentPage();
    const auto index = ::SendMessageW(PageList(), LB_GETCURSEL, 0, 0);
    ts::Key(index == 0 ? VK_DOWN : VK_UP);
    EXPECT_FALSE(::IsWindow(page));
    EXPECT_EQ(index == 0 ? 1 : index - 1, ::SendMessageW(PageList(), LB_GETCURSEL, 0, 0));
    EXPECT_EQ(PageList(), ::GetFocus());
}

std::vector<const wchar_t*> PageNames()
{
    std::vector<const wchar_t*> names;
    for (const PageInfo& page : AllPages()) {
        names.push_back(page.name);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Console, EveryPage, testing::ValuesIn(PageNames()),
                         [](const auto& page) { return ts::ToUtf8(page.param); });

} // namespace
