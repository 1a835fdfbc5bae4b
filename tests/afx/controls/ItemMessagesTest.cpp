#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);
} // namespace

TEST(OwnerDraw, ControlsThatDrawNothingAreHarmless)
{
    ts::AfxHost host;
    CButton button;
    CListBox list;
    CTabCtrl tab;
    button.Create(TEXT("x"), kChild | BS_OWNERDRAW, kPlace, &host, 1);
    list.Create(kChild | LBS_OWNERDRAWFIXED | LBS_SORT, kPlace, &host, 2);
    tab.Create(kChild | TCS_OWNERDRAWFIXED, kPlace, &host, 3);
    tab.InsertItem(0, TEXT("One"));
    list.AddString(nullptr);
    list.AddString(nullptr);
    ts::Settle();
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.SendMessage(WM_CHAR, L'x', 1), 0);
}
