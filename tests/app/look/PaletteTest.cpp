#include <QorUI/app/look/Palette.h>

#include <gtest/gtest.h>

namespace
{

TEST(Look, HasTheFixedColours)
{
    EXPECT_EQ(RGB(236, 245, 250), QorLook::kDlgBody);
    EXPECT_EQ(RGB(255, 255, 255), QorLook::kDlgCaption);
    EXPECT_EQ(RGB(189, 189, 189), QorLook::kOutline);
    EXPECT_EQ(RGB(186, 210, 234), QorLook::kFrameBack);
    EXPECT_EQ(RGB(128, 128, 128), QorLook::kFlatBorder);
}

} // namespace
