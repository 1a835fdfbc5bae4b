#include <QorUI/app/base/VisualState.h>
#include <tests/support/Support.h>

namespace
{

TEST(VisualState, OrdersTheFacesAsTheStyleTableDoes)
{
    EXPECT_EQ(0u, VisualState::kNormal);
    EXPECT_EQ(1u, VisualState::kHot);
    EXPECT_EQ(2u, VisualState::kPressed);
    EXPECT_EQ(3u, VisualState::kDisabled);
}

TEST(VisualState, OfAnItemAtRestIsNormal)
{
    const VisualState state = QorStateOfItem(0, false);
    EXPECT_EQ(VisualState::kNormal, state.face);
    EXPECT_FALSE(state.focused);
    EXPECT_FALSE(state.isDefault);
    EXPECT_FALSE(state.IsDisabled());
}

TEST(VisualState, OfAnItemUnderTheMouseIsHot)
{
    EXPECT_EQ(VisualState::kHot, QorStateOfItem(0, true).face);
}

TEST(VisualState, PressedComesBeforeHot)
{
    EXPECT_EQ(VisualState::kPressed, QorStateOfItem(ODS_SELECTED, true).face);
}

TEST(VisualState, DisabledComesBeforePressedAndHot)
{
    EXPECT_EQ(VisualState::kDisabled, QorStateOfItem(ODS_DISABLED | ODS_SELECTED, true).face);
    EXPECT_TRUE(QorStateOfItem(ODS_DISABLED, false).IsDisabled());
}

TEST(VisualState, TellsFocusAndDefaultBesideTheFace)
{
    const VisualState focused = QorStateOfItem(ODS_FOCUS, false);
    EXPECT_TRUE(focused.focused);
    EXPECT_FALSE(focused.isDefault);
    const VisualState standard = QorStateOfItem(ODS_DEFAULT | ODS_SELECTED, false);
    EXPECT_TRUE(standard.isDefault);
    EXPECT_FALSE(standard.focused);
    EXPECT_EQ(VisualState::kPressed, standard.face);
}

TEST(VisualState, OfAWindowFollowsEnablingAndFocus)
{
    ts::HostWindow host;
    const HWND one = host.Add(L"BUTTON", L"", WS_TABSTOP, 0, 0, 20, 20, 1);
    ::SetFocus(one);
    EXPECT_TRUE(QorStateOfWindow(one, false).focused);
    EXPECT_EQ(VisualState::kNormal, QorStateOfWindow(one, false).face);
    EXPECT_EQ(VisualState::kHot, QorStateOfWindow(one, true).face);
    ::EnableWindow(one, FALSE);
    EXPECT_EQ(VisualState::kDisabled, QorStateOfWindow(one, true).face);
}

} // namespace
