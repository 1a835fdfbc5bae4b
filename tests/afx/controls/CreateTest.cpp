#include "resource.h"

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

TEST(RangeControls, WithoutAWindowDoNothing)
{
    int lower = 1;
    int upper = 1;
    CSpinButtonCtrl spin;
    EXPECT_EQ(spin.GetPos(), 0);
    spin.GetRange(lower, upper);
    EXPECT_EQ(upper, 0);
    EXPECT_EQ(spin.GetBuddy(), nullptr);
    CProgressCtrl progress;
    progress.GetRange(lower, upper);
    EXPECT_EQ(progress.StepIt(), 0);
    CSliderCtrl slider;
    slider.VerifyPos();
    EXPECT_EQ(slider.GetPos(), 0);
    CAnimateCtrl animation;
    EXPECT_FALSE(animation.Open(IDA_CLIP));
}

TEST(ListControls, WithoutAWindowDoNothing)
{
    CListCtrl list;
    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(list.InsertItem(0, TEXT("x")), -1);
    EXPECT_EQ(list.InsertColumn(0, TEXT("x")), -1);
    EXPECT_EQ(list.GetNextItem(-1, LVNI_ALL), -1);
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    EXPECT_TRUE(list.GetItemText(0, 0).IsEmpty());
    EXPECT_EQ(list.HitTest(CPoint(0, 0)), -1);
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(list.GetEditControl(), nullptr);
    int order[2] = {};
    EXPECT_FALSE(list.GetColumnOrderArray(order));
    CHeaderCtrl header;
    EXPECT_EQ(header.GetItemCount(), 0);
    EXPECT_EQ(header.GetImageList(), nullptr);
}

TEST(TreeAndTab, WithoutAWindowDoNothing)
{
    CTreeCtrl tree;
    EXPECT_EQ(tree.InsertItem(TEXT("x")), nullptr);
    EXPECT_EQ(tree.GetRootItem(), nullptr);
    EXPECT_TRUE(tree.GetItemText(nullptr).IsEmpty());
    EXPECT_EQ(tree.CreateDragImage(nullptr), nullptr);
    CTabCtrl tab;
    EXPECT_EQ(tab.InsertItem(0, TEXT("x")), -1);
    EXPECT_EQ(tab.GetCurSel(), -1);
    EXPECT_EQ(tab.GetToolTips(), nullptr);
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

TEST(StandardControls, WithoutAWindowDoNothing)
{
    CString text(TEXT("before"));
    BOOL outside = FALSE;
    CListBox list;
    EXPECT_EQ(list.AddString(TEXT("x")), 0);
    list.GetText(0, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(list.ItemFromPoint(CPoint(0, 0), outside), 0u);
    CComboBox combo;
    EXPECT_EQ(combo.GetCount(), 0);
    combo.GetLBText(0, text);
    EXPECT_TRUE(text.IsEmpty());
    CEdit edit;
    int start = 0;
    int end = 0;
    edit.SetSel(0, 1);
    edit.GetSel(start, end);
    EXPECT_EQ(end, 0);
    CButton button;
    EXPECT_EQ(button.GetCheck(), 0);
    EXPECT_TRUE(button.GetNote().IsEmpty());
    CStatic label;
    EXPECT_EQ(label.GetIcon(), nullptr);
    EXPECT_FALSE(label.Create(TEXT("x"), kChild, kPlace, nullptr));
}

TEST(StandardControls, LeaveNothingBehind)
{
    ts::AfxHost host;
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            CButton button;
            CListBox list;
            CEdit edit;
            button.Create(TEXT("x"), kChild, kPlace, &host, 1);
            list.Create(kChild, kPlace, &host, 2);
            list.AddString(TEXT("x"));
            edit.Create(kChild, kPlace, &host, 3);
            host.UpdateWindow();
            button.DestroyWindow();
            list.DestroyWindow();
            edit.DestroyWindow();
        },
        50));
}
