#include <tests/support/Support.h>

namespace
{

TEST(FontGuard, FindsTheStandardDialogFont)
{
    EXPECT_TRUE(ts::HasStandardDialogFont());
    const SIZE size = ts::DialogUnitsToPixels(265, 121);
    EXPECT_EQ(398, size.cx);
    EXPECT_EQ(197, size.cy);
}

} // namespace
