#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 210, 40);
} // namespace

TEST(Slider, RangePositionAndTicks)
{
    ts::AfxHost host;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(kChild | TBS_AUTOTICKS | TBS_ENABLESELRANGE, kPlace, &host, kId));
    slider.SetRange(-10, 50, TRUE);
    int least = 0;
    int greatest = 0;
    slider.GetRange(least, greatest);
    EXPECT_EQ(least, -10);
    EXPECT_EQ(greatest, 50);
    slider.SetPos(20);
    EXPECT_EQ(slider.GetPos(), 20);
    slider.SetPos(99);
    slider.VerifyPos();
    EXPECT_EQ(slider.GetPos(), 50);
    slider.SetLineSize(3);
    EXPECT_EQ(slider.SetLineSize(4), 3);
    EXPECT_EQ(slider.GetLineSize(), 4);
    slider.SetPageSize(15);
    EXPECT_EQ(slider.GetPageSize(), 15);
    slider.SetTicFreq(10);
    EXPECT_EQ(slider.GetNumTics(), 7u);
    EXPECT_EQ(slider.GetTic(0), 0);
    slider.SetSelection(5, 15);
    slider.GetSelection(least, greatest);
    EXPECT_EQ(least, 5);
    EXPECT_EQ(greatest, 15);
    CRect thumb;
    slider.GetThumbRect(&thumb);
    EXPECT_GT(thumb.Width(), 3);
    CRect channel;
    slider.GetChannelRect(&channel);
    EXPECT_GT(channel.Width(), 100);
}
