#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::drawing;

class DrawingPage : public Pages
{
};

TEST_F(DrawingPage, KeysChangeTheDrawnShare)
{
    Show(L"drawing");
    const auto pie = [this] { return ts::CaptureWindow(*m_frame.CurrentPage()).Crop(CRect(0, 168, 190, 270)); };
    const ts::Picture before = pie();
    Press(kMore, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(before, pie()));
    Press(kLess, VK_RETURN);
    EXPECT_TRUE(ts::SamePicture(before, pie()));
}

} // namespace
