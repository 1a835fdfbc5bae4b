#include <QorUI/app/look/Skin.h>

#include <gtest/gtest.h>

namespace
{

TEST(Skin, DialogBrushHasTheBodyColour)
{
    LOGBRUSH brush = {};
    ASSERT_NE(0, ::GetObjectW(QorGetDlgBkBrush(), sizeof(brush), &brush));
    EXPECT_EQ(UINT{BS_SOLID}, brush.lbStyle);
    EXPECT_EQ(RGB(236, 245, 250), brush.lbColor);
}

TEST(Skin, SetAppIconReturnsTrue)
{
    EXPECT_EQ(TRUE, QorSetAppIcon(::LoadIconW(nullptr, IDI_APPLICATION), TRUE));
    EXPECT_EQ(TRUE, QorSetAppIcon(nullptr, 0));
}

} // namespace
