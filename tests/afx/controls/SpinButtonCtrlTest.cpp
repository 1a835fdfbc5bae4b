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

TEST(Spin, RangePositionAndBuddy)
{
    ts::AfxHost host;
    CEdit edit;
    edit.Create(kChild, kPlace, &host, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(kChild | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(0, 0, 20, 30), &host, kId));
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
    ASSERT_TRUE(spin.CreateEx(0, kChild, CRect(0, 0, 20, 30), &host, kId));
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
