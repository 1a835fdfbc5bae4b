#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT ID = 77;
constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;
const CRect PLACE(10, 10, 210, 40);
} // namespace

TEST(Spin, RangePositionAndBuddy)
{
    ts::AfxHost host;
    CEdit edit;
    edit.Create(CHILD, PLACE, &host, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(CHILD | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(0, 0, 20, 30), &host, ID));
    EXPECT_EQ(spin.SetBuddy(&edit), nullptr);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    spin.SetRange(-5, 500);
    int lower = 0;
    int upper = 0;
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 500);
    spin.SetPos(-3);
    EXPECT_EQ(spin.GetPos(), -3);
    EXPECT_EQ(spin.SetPos(7), -3);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, TEXT("7"));
    EXPECT_EQ(spin.SetBase(16), 10);
    EXPECT_EQ(spin.GetBase(), 16u);
}

TEST(Spin, TakesNumbersOf32Bits)
{
    ts::AfxHost host;
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.CreateEx(0, CHILD, CRect(0, 0, 20, 30), &host, ID));
    spin.SetRange32(-100000, 100000);
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    EXPECT_EQ(lower, -100000);
    EXPECT_EQ(upper, 100000);
    EXPECT_EQ(spin.SetPos32(-70000), 0);
    EXPECT_EQ(spin.GetPos32(), -70000);
    UDACCEL accelerations[2] = {{0, 1}, {2, 10}};
    EXPECT_TRUE(spin.SetAccel(2, accelerations));
    UDACCEL read[2] = {};
    EXPECT_EQ(spin.GetAccel(2, read), 2u);
    EXPECT_EQ(read[1].nInc, 10u);
}

TEST(Slider, RangePositionAndTicks)
{
    ts::AfxHost host;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(CHILD | TBS_AUTOTICKS | TBS_ENABLESELRANGE, PLACE, &host, ID));
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

TEST(Progress, RangePositionAndSteps)
{
    ts::AfxHost host;
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(CHILD, PLACE, &host, ID));
    progress.SetRange32(10, 100000);
    int lower = 0;
    int upper = 0;
    progress.GetRange(lower, upper);
    EXPECT_EQ(lower, 10);
    EXPECT_EQ(upper, 100000);
    progress.SetRange(0, 100);
    progress.SetPos(40);
    EXPECT_EQ(progress.SetPos(50), 40);
    EXPECT_EQ(progress.GetPos(), 50);
    EXPECT_EQ(progress.OffsetPos(5), 50);
    EXPECT_EQ(progress.SetStep(20), 10);
    EXPECT_EQ(progress.GetStep(), 20);
    EXPECT_EQ(progress.StepIt(), 55);
    EXPECT_EQ(progress.GetPos(), 75);
    progress.SetBarColor(RGB(1, 2, 3));
    EXPECT_EQ(progress.GetBarColor(), RGB(1, 2, 3));
    progress.SetBkColor(RGB(4, 5, 6));
    EXPECT_EQ(progress.GetBkColor(), RGB(4, 5, 6));
    EXPECT_EQ(progress.GetState(), PBST_NORMAL);
}

TEST(Animate, PlaysAnAnimationOfTheResources)
{
    ts::AfxHost host;
    CAnimateCtrl animation;
    ASSERT_TRUE(animation.Create(CHILD | ACS_TIMER, CRect(0, 0, 16, 16), &host, ID));
    ASSERT_TRUE(animation.Open(IDA_CLIP));
    EXPECT_TRUE(animation.Seek(0));
    EXPECT_TRUE(ts::PumpUntil([&] { return ts::CaptureWindow(animation).At(8, 8) == RGB(255, 0, 0); }));
    EXPECT_TRUE(animation.Seek(2));
    EXPECT_TRUE(ts::PumpUntil([&] { return ts::CaptureWindow(animation).At(8, 8) == RGB(0, 0, 255); }));
    bool stopped = false;
    host.Log().Answer(WM_COMMAND, [&](const ts::Message& message) -> std::optional<LRESULT> {
        stopped |= HIWORD(message.wParam) == ACN_STOP;
        return std::nullopt;
    });
    EXPECT_TRUE(animation.Play(0, static_cast<UINT>(-1), static_cast<UINT>(-1)));
    EXPECT_TRUE(animation.Stop());
    EXPECT_TRUE(ts::PumpUntil([&] { return stopped; }));
    animation.Close();
}

TEST(Animate, MissingAnimationIsRefused)
{
    ts::AfxHost host;
    CAnimateCtrl animation;
    ASSERT_TRUE(animation.CreateEx(WS_EX_CLIENTEDGE, CHILD, CRect(0, 0, 16, 16), &host, ID));
    EXPECT_FALSE(animation.Open(9999));
    EXPECT_FALSE(animation.Open(TEXT("no such file.avi")));
    EXPECT_FALSE(animation.Play(0, 1, 1));
}

TEST(RangeControls, WithoutAWindowDoNothing)
{
    int lower = 1;
    int upper = 1;
    CSpinButtonCtrl spin;
    EXPECT_EQ(spin.GetPos(), 0);
    spin.GetRange(lower, upper);
    EXPECT_EQ(upper, 0);
    EXPECT_EQ(spin.GetBuddy(), nullptr);
    CProgressCtrl progress;
    progress.GetRange(lower, upper);
    EXPECT_EQ(progress.StepIt(), 0);
    CSliderCtrl slider;
    slider.VerifyPos();
    EXPECT_EQ(slider.GetPos(), 0);
    CAnimateCtrl animation;
    EXPECT_FALSE(animation.Open(IDA_CLIP));
}
