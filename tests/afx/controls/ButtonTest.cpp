#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);
} // namespace

TEST(Button, ChecksAndStates)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Check"), kChild | BS_AUTO3STATE, kPlace, &host, kId));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
}

TEST(Button, KeepsPicturesAndMeasuresItself)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Push"), kChild | BS_ICON, kPlace, &host, kId));
    HICON icon = ::LoadIcon(nullptr, IDI_ERROR);
    EXPECT_EQ(button.SetIcon(icon), nullptr);
    EXPECT_EQ(button.GetIcon(), icon);
    SIZE size = {};
    EXPECT_TRUE(button.GetIdealSize(&size));
    EXPECT_GT(size.cx, 0);
    RECT margin = {1, 2, 3, 4};
    EXPECT_TRUE(button.SetTextMargin(&margin));
    RECT read = {};
    EXPECT_TRUE(button.GetTextMargin(&read));
    EXPECT_EQ(read.right, 3);
}

TEST(Button, CommandLinkKeepsItsNote)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Link"), kChild | BS_COMMANDLINK, kPlace, &host, kId));
    EXPECT_TRUE(button.SetNote(TEXT("More words")));
    EXPECT_EQ(button.GetNoteLength(), 10u);
    EXPECT_STREQ(button.GetNote(), TEXT("More words"));
}

TEST(OwnerDraw, ButtonDrawsItself)
{
    ts::AfxHost host;
    Painted<CButton> button;
    ASSERT_TRUE(button.Create(TEXT("x"), kChild | BS_OWNERDRAW, kPlace, &host, kId));
    EXPECT_TRUE(IsPainted(button));
    EXPECT_EQ(button.type, static_cast<UINT>(ODT_BUTTON));
}
