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

TEST(HotKey, CombinationIsSetAndRead)
{
    ts::AfxHost host;
    CHotKeyCtrl hotKey;
    ASSERT_TRUE(hotKey.Create(kChild, kPlace, &host, kId));
    hotKey.SetHotKey(VK_F5, HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    EXPECT_EQ(hotKey.GetHotKey(), static_cast<DWORD>(MAKEWORD(VK_F5, HOTKEYF_CONTROL | HOTKEYF_SHIFT)));
    WORD key = 0;
    WORD modifiers = 0;
    hotKey.GetHotKey(key, modifiers);
    EXPECT_EQ(key, VK_F5);
    EXPECT_EQ(modifiers, HOTKEYF_CONTROL | HOTKEYF_SHIFT);
}

TEST(HotKey, RulesReplaceRefusedModifiers)
{
    ts::AfxHost host;
    CHotKeyCtrl hotKey;
    ASSERT_TRUE(hotKey.Create(kChild, kPlace, &host, kId));
    hotKey.SetRules(HKCOMB_NONE, HOTKEYF_ALT);
    hotKey.SetFocus();
    ts::Key(VK_F6);
    WORD key = 0;
    WORD modifiers = 0;
    hotKey.GetHotKey(key, modifiers);
    EXPECT_EQ(key, VK_F6);
    EXPECT_EQ(modifiers, HOTKEYF_ALT);
}

TEST(HotKey, NameHasModifiersAndKey)
{
    ts::AfxHost host;
    CHotKeyCtrl hotKey;
    ASSERT_TRUE(hotKey.Create(kChild, kPlace, &host, kId));
    EXPECT_TRUE(hotKey.GetHotKeyName().IsEmpty());
    hotKey.SetHotKey(VK_F5, HOTKEYF_CONTROL);
    const CString expected =
        CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + TEXT(" + ") + CHotKeyCtrl::GetKeyName(VK_F5, FALSE);
    EXPECT_STREQ(hotKey.GetHotKeyName(), expected);
    EXPECT_FALSE(CHotKeyCtrl::GetKeyName(VK_F5, FALSE).IsEmpty());
}
