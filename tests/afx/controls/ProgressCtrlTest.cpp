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

TEST(Progress, RangePositionAndSteps)
{
    ts::AfxHost host;
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(kChild, kPlace, &host, kId));
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
