#include <QorUI/app/base/WndClass.h>
#include <tests/support/NoWindowClasses.h>

#include <gtest/gtest.h>

namespace
{

TEST(WndClass, HasItsStyleAndNothingElse)
{
    WNDCLASSW known = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), QorRegisterWndClass(CS_DBLCLKS), &known));
    EXPECT_EQ(UINT{CS_DBLCLKS}, known.style);
    EXPECT_EQ(nullptr, known.hCursor);
    EXPECT_EQ(nullptr, known.hbrBackground);
    EXPECT_EQ(nullptr, known.hIcon);
}

TEST(WndClass, ThatTheSystemRefusesHasNoName)
{
    const ts::NoWindowClasses none;
    EXPECT_EQ(nullptr, QorRegisterWndClass(CS_HREDRAW));
}

} // namespace
