#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

class ConsoleFrame : public Pages
{
};

TEST_F(ConsoleFrame, ArrowKeysInTheListOfPagesShowThem)
{
    Show(L"list");
    const HWND former = *m_frame.CurrentPage();
    ts::Key(VK_DOWN);
    EXPECT_FALSE(::IsWindow(former));
    EXPECT_NE(nullptr, Control(ids::progress::kRun));
    ts::Key(VK_DOWN);
    EXPECT_NE(nullptr, Control(ids::info::kStatus));
}

} // namespace
