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

TEST(DateTime, TimeIsSetAndRead)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(CHILD | DTS_SHOWNONE, PLACE, &host, ID));
    EXPECT_TRUE(picker.SetFormat(TEXT("HH:mm")));
    SYSTEMTIME time = {2024, 2, 4, 29, 13, 14, 15, 0};
    EXPECT_TRUE(picker.SetTime(&time));
    SYSTEMTIME read = {};
    EXPECT_EQ(picker.GetTime(&read), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(read.wDay, 29);
    EXPECT_EQ(read.wHour, 13);
    EXPECT_TRUE(picker.SetTime());
    EXPECT_EQ(picker.GetTime(&read), static_cast<DWORD>(GDT_NONE));
}

TEST(DateTime, RangeAndColours)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.CreateEx(0, CHILD, PLACE, &host, ID));
    SYSTEMTIME range[2] = {{2024, 1, 0, 1, 0, 0, 0, 0}, {2024, 12, 0, 31, 0, 0, 0, 0}};
    EXPECT_TRUE(picker.SetRange(GDTR_MIN | GDTR_MAX, range));
    SYSTEMTIME read[2] = {};
    EXPECT_EQ(picker.GetRange(read), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(read[1].wMonth, 12);
    picker.SetMonthCalColor(MCSC_MONTHBK, RGB(1, 2, 3));
    EXPECT_EQ(picker.GetMonthCalColor(MCSC_MONTHBK), RGB(1, 2, 3));
}

TEST(DateTime, AutomationDatesAreTaken)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(CHILD | DTS_SHOWNONE, PLACE, &host, ID));
    EXPECT_TRUE(picker.SetTime(COleDateTime(2024, 2, 29, 13, 14, 15)));
    COleDateTime read;
    EXPECT_TRUE(picker.GetTime(read));
    EXPECT_EQ(read.GetDay(), 29);
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    EXPECT_TRUE(picker.SetTime(none));
    EXPECT_TRUE(picker.GetTime(read));
    EXPECT_EQ(read.GetStatus(), COleDateTime::null);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(picker.SetTime(invalid));
    EXPECT_FALSE(CDateTimeCtrl().GetTime(read));
}

TEST(HotKey, CombinationIsSetAndRead)
{
    ts::AfxHost host;
    CHotKeyCtrl hotKey;
    ASSERT_TRUE(hotKey.Create(CHILD, PLACE, &host, ID));
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
    ASSERT_TRUE(hotKey.Create(CHILD, PLACE, &host, ID));
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
    ASSERT_TRUE(hotKey.Create(CHILD, PLACE, &host, ID));
    EXPECT_TRUE(hotKey.GetHotKeyName().IsEmpty());
    hotKey.SetHotKey(VK_F5, HOTKEYF_CONTROL);
    const CString expected =
        CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + TEXT(" + ") + CHotKeyCtrl::GetKeyName(VK_F5, FALSE);
    EXPECT_STREQ(hotKey.GetHotKeyName(), expected);
    EXPECT_FALSE(CHotKeyCtrl::GetKeyName(VK_F5, FALSE).IsEmpty());
}

TEST(IpAddress, FieldsAreSetAndRead)
{
    ts::AfxHost host;
    CIPAddressCtrl address;
    ASSERT_TRUE(address.Create(CHILD, PLACE, &host, ID));
    EXPECT_TRUE(address.IsBlank());
    address.SetAddress(192, 168, 1, 20);
    BYTE fields[4] = {};
    EXPECT_EQ(address.GetAddress(fields[0], fields[1], fields[2], fields[3]), 4);
    EXPECT_EQ(fields[0], 192);
    EXPECT_EQ(fields[3], 20);
    DWORD whole = 0;
    EXPECT_EQ(address.GetAddress(whole), 4);
    EXPECT_EQ(whole, 0xC0A80114u);
    address.SetAddress(0x0A000001u);
    address.GetAddress(whole);
    EXPECT_EQ(whole, 0x0A000001u);
    EXPECT_FALSE(address.IsBlank());
    address.ClearAddress();
    EXPECT_TRUE(address.IsBlank());
}

TEST(IpAddress, FieldHasItsRange)
{
    ts::AfxHost host;
    CIPAddressCtrl address;
    ASSERT_TRUE(address.Create(CHILD, PLACE, &host, ID));
    address.SetFieldRange(0, 10, 20);
    address.SetFieldFocus(0);
    ts::Type(L"99");
    ts::Key(VK_TAB);
    address.SetFieldFocus(1);
    DWORD whole = 0;
    address.GetAddress(whole);
    EXPECT_EQ(FIRST_IPADDRESS(whole), 20u);
}

TEST(Pickers, WithoutAWindowDoNothing)
{
    SYSTEMTIME time = {};
    EXPECT_EQ(CDateTimeCtrl().GetTime(&time), static_cast<DWORD>(GDT_ERROR));
    EXPECT_EQ(CDateTimeCtrl().GetTime(static_cast<LPSYSTEMTIME>(nullptr)), static_cast<DWORD>(GDT_ERROR));
    EXPECT_FALSE(CDateTimeCtrl().SetTime(&time));
    EXPECT_EQ(CHotKeyCtrl().GetHotKey(), 0u);
    DWORD address = 5;
    EXPECT_EQ(CIPAddressCtrl().GetAddress(address), 0);
}
