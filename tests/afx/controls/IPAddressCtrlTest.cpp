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

TEST(IpAddress, FieldsAreSetAndRead)
{
    ts::AfxHost host;
    CIPAddressCtrl address;
    ASSERT_TRUE(address.Create(kChild, kPlace, &host, kId));
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
    ASSERT_TRUE(address.Create(kChild, kPlace, &host, kId));
    address.SetFieldRange(0, 10, 20);
    address.SetFieldFocus(0);
    ts::Type(L"99");
    ts::Key(VK_TAB);
    address.SetFieldFocus(1);
    DWORD whole = 0;
    address.GetAddress(whole);
    EXPECT_EQ(FIRST_IPADDRESS(whole), 20u);
}
