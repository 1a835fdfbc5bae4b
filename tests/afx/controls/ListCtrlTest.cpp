#include "Painted.h"
#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <memory>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 310, 210);

/** A report list with the columns Name and Size and the rows Ann 3, Bob 1, Cid 2; values are the sizes. */
class ListView : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(kChild | LVS_REPORT | LVS_SHOWSELALWAYS, kPlace, &m_host, kId));
        m_list.SetRedraw(FALSE);
        m_list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 120);
        m_list.InsertColumn(1, TEXT("Size"), LVCFMT_RIGHT, 60, 1);
        const struct
        {
            LPCTSTR name;
            LPCTSTR size;
            LPARAM value;
        } rows[] = {{TEXT("Ann"), TEXT("3"), 3}, {TEXT("Bob"), TEXT("1"), 1}, {TEXT("Cid"), TEXT("2"), 2}};
        for (int i = 0; i < 3; ++i) {
            m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, i, rows[i].name, 0, 0, 0, rows[i].value);
            m_list.SetItemText(i, 1, rows[i].size);
        }
        m_list.SetRedraw();
    }

    static int CALLBACK ByValue(LPARAM first, LPARAM second, LPARAM sign)
    {
        return static_cast<int>((first - second) * sign);
    }

    ts::AfxHost m_host;
    CListCtrl m_list;
};
} // namespace

TEST_F(ListView, RowsAndTexts)
{
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_STREQ(m_list.GetItemText(1, 0), TEXT("Bob"));
    EXPECT_STREQ(m_list.GetItemText(1, 1), TEXT("1"));
    EXPECT_TRUE(m_list.SetItemText(1, 0, TEXT("Bert")));
    TCHAR text[3] = {};
    EXPECT_EQ(m_list.GetItemText(1, 0, text, 3), 2);
    EXPECT_STREQ(text, TEXT("Be"));
    EXPECT_TRUE(m_list.GetItemText(9, 0).IsEmpty());
    EXPECT_EQ(m_list.InsertItem(0, TEXT("First")), 0);
    EXPECT_TRUE(m_list.DeleteItem(0));
    EXPECT_FALSE(m_list.DeleteItem(9));
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListView, LongTextIsGivenWhole)
{
    const CString text(TEXT('x'), 255);
    m_list.SetItemText(0, 0, text);
    EXPECT_EQ(m_list.GetItemText(0, 0).GetLength(), 255);
}

TEST_F(ListView, ItemsAreReadAndWritten)
{
    EXPECT_TRUE(m_list.SetItem(0, 0, LVIF_TEXT | LVIF_INDENT, TEXT("New"), 0, 0, 0, 0, 2));
    LVITEM item = {};
    item.mask = LVIF_INDENT | LVIF_PARAM;
    EXPECT_TRUE(m_list.GetItem(&item));
    EXPECT_EQ(item.iIndent, 2);
    EXPECT_EQ(item.lParam, 3);
    EXPECT_EQ(m_list.GetItemData(1), 1u);
    EXPECT_TRUE(m_list.SetItemData(1, 0x123456789A));
    EXPECT_EQ(m_list.GetItemData(1), 0x123456789Aull);
    EXPECT_EQ(m_list.GetItemData(9), 0u);
}

TEST_F(ListView, SelectionIsWalked)
{
    EXPECT_EQ(m_list.GetFirstSelectedItemPosition(), nullptr);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(m_list.GetSelectedCount(), 2u);
    POSITION position = m_list.GetFirstSelectedItemPosition();
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 0);
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 2);
    EXPECT_EQ(position, nullptr);
    EXPECT_EQ(m_list.GetNextSelectedItem(position), -1);
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 2);
    EXPECT_EQ(m_list.GetItemState(2, LVIS_FOCUSED), static_cast<UINT>(LVIS_FOCUSED));
    m_list.SetSelectionMark(1);
    EXPECT_EQ(m_list.GetSelectionMark(), 1);
}

TEST_F(ListView, SortsByValue)
{
    EXPECT_TRUE(m_list.SortItems(&ByValue, 1));
    EXPECT_STREQ(m_list.GetItemText(0, 0), TEXT("Bob"));
    EXPECT_STREQ(m_list.GetItemText(2, 0), TEXT("Ann"));
    m_list.SortItems(&ByValue, static_cast<DWORD_PTR>(-1));
    EXPECT_STREQ(m_list.GetItemText(0, 0), TEXT("Ann"));
}

TEST_F(ListView, SortsByIndex)
{
    EXPECT_TRUE(m_list.SortItemsEx(&ByValue, static_cast<DWORD_PTR>(-1)));
    EXPECT_STREQ(m_list.GetItemText(0, 0), TEXT("Cid"));
    EXPECT_STREQ(m_list.GetItemText(2, 0), TEXT("Ann"));
}

TEST_F(ListView, ItemsAreFound)
{
    LVFINDINFO find = {};
    find.flags = LVFI_PARAM;
    find.lParam = 2;
    EXPECT_EQ(m_list.FindItem(&find), 2);
    EXPECT_EQ(m_list.FindItem(&find, 2), -1);
    find.flags = LVFI_STRING;
    find.psz = TEXT("Bob");
    EXPECT_EQ(m_list.FindItem(&find), 1);
}

TEST_F(ListView, CheckBoxesHaveTwoStates)
{
    EXPECT_EQ(m_list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT), 0u);
    EXPECT_TRUE(m_list.GetExtendedStyle() & LVS_EX_CHECKBOXES);
    EXPECT_FALSE(m_list.GetCheck(1));
    EXPECT_TRUE(m_list.SetCheck(1));
    EXPECT_TRUE(m_list.GetCheck(1));
    m_list.SetCheck(1, FALSE);
    EXPECT_FALSE(m_list.GetCheck(1));
    EXPECT_FALSE(m_list.GetCheck(9));
}

TEST_F(ListView, GeometryAndHits)
{
    CRect bounds;
    CRect sub;
    ASSERT_TRUE(m_list.GetItemRect(1, &bounds, LVIR_BOUNDS));
    EXPECT_EQ(bounds.Width(), 180);
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, sub));
    EXPECT_EQ(sub.left, 120);
    EXPECT_EQ(sub.Width(), 60);
    EXPECT_FALSE(m_list.GetItemRect(1, nullptr, LVIR_BOUNDS));
    UINT flags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(10, bounds.CenterPoint().y), &flags), 1);
    EXPECT_TRUE(flags & LVHT_ONITEM);
    LVHITTESTINFO hit = {};
    hit.pt = sub.CenterPoint();
    EXPECT_EQ(m_list.SubItemHitTest(&hit), 1);
    EXPECT_EQ(hit.iSubItem, 1);
    EXPECT_TRUE(m_list.EnsureVisible(2, FALSE));
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_GT(m_list.GetCountPerPage(), 3);
    EXPECT_GT(m_list.GetStringWidth(TEXT("Wide")), 5);
    CPoint at;
    EXPECT_TRUE(m_list.GetItemPosition(1, &at));
    EXPECT_EQ(at.y, bounds.top);
}

TEST_F(ListView, ColumnsAreChanged)
{
    LVCOLUMN column = {};
    TCHAR text[16] = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 16;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_STREQ(text, TEXT("Size"));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    column.mask = LVCF_SUBITEM;
    m_list.InsertColumn(2, TEXT("Third"), LVCFMT_LEFT, -1, 7);
    ASSERT_TRUE(m_list.GetColumn(2, &column));
    EXPECT_EQ(column.iSubItem, 7);
    EXPECT_TRUE(m_list.DeleteColumn(2));
    EXPECT_TRUE(m_list.SetColumnWidth(1, 88));
    EXPECT_EQ(m_list.GetColumnWidth(1), 88);
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<LPTSTR>(TEXT("Length"));
    EXPECT_TRUE(m_list.SetColumn(1, &column));
    int order[2] = {1, 0};
    EXPECT_TRUE(m_list.SetColumnOrderArray(2, order));
    int read[2] = {};
    EXPECT_TRUE(m_list.GetColumnOrderArray(read));
    EXPECT_EQ(read[0], 1);
    EXPECT_EQ(m_list.InsertColumn(2, &column), 2);
    EXPECT_TRUE(m_list.DeleteColumn(2));
    EXPECT_EQ(m_list.GetHeaderCtrl()->GetItemCount(), 2);
    EXPECT_EQ(m_list.InsertColumn(0, static_cast<LVCOLUMN*>(nullptr)), -1);
}

TEST_F(ListView, ColoursViewAndImages)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(m_list.GetBkColor(), RGB(1, 2, 3));
    EXPECT_TRUE(m_list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(m_list.GetTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(m_list.SetTextBkColor(CLR_NONE));
    EXPECT_EQ(m_list.GetTextBkColor(), CLR_NONE);
    CImageList images;
    images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255));
    EXPECT_EQ(m_list.SetImageList(&images, LVSIL_STATE), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_STATE), &images);
    EXPECT_EQ(m_list.SetImageList(nullptr, LVSIL_STATE), &images);
    EXPECT_GT(m_list.ApproximateViewRect().cy, 0);
    EXPECT_EQ(m_list.SetView(LV_VIEW_SMALLICON), 1u);
    EXPECT_EQ(m_list.GetView(), static_cast<DWORD>(LV_VIEW_SMALLICON));
    int across = 0;
    int down = 0;
    EXPECT_TRUE(m_list.GetItemSpacing(FALSE, &across, &down));
    EXPECT_GT(across, 0);
}

TEST_F(ListView, RedrawScrollAndUpdate)
{
    EXPECT_TRUE(m_list.RedrawItems(0, 2));
    EXPECT_TRUE(m_list.Update(1));
    EXPECT_TRUE(m_list.Scroll(CSize(0, 0)));
    m_list.SetHoverTime(300);
    EXPECT_EQ(m_list.GetHoverTime(), 300u);
    m_list.SetItemCount(50);
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_EQ(m_list.MapIndexToID(0), m_list.MapIndexToID(m_list.MapIDToIndex(m_list.MapIndexToID(0))));
}

TEST(ListViewOwnerData, CountIsSetWithoutItems)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.CreateEx(WS_EX_CLIENTEDGE, kChild | LVS_REPORT | LVS_OWNERDATA, kPlace, &host, kId));
    EXPECT_TRUE(list.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_TRUE(list.SetItemCountEx(100000));
    EXPECT_EQ(list.GetItemCount(), 100000);
}

TEST(ListViewLabels, AreEditedInAnEditField)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(kChild | LVS_REPORT | LVS_EDITLABELS, kPlace, &host, kId));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 120);
    list.InsertItem(0, TEXT("Ann"));
    list.SetFocus();
    CEdit* edit = list.EditLabel(0);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(list.GetEditControl()->m_hWnd, edit->m_hWnd);
    CString text;
    edit->GetWindowText(text);
    EXPECT_STREQ(text, TEXT("Ann"));
    list.CancelEditLabel();
    EXPECT_EQ(list.GetEditControl(), nullptr);
}

TEST(ListViewDragImage, IsTheCallers)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(kChild | LVS_ICON, kPlace, &host, kId));
    CImageList images;
    images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 1, 1);
    images.Add(::LoadIcon(nullptr, IDI_ERROR));
    list.SetImageList(&images, LVSIL_NORMAL);
    list.InsertItem(0, TEXT("Ann"), 0);
    POINT at = {};
    const std::unique_ptr<CImageList> drag(list.CreateDragImage(0, &at));
    list.SetImageList(nullptr, LVSIL_NORMAL);
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->GetImageCount(), 1);
    EXPECT_EQ(CImageList::FromHandlePermanent(*drag), drag.get());
    EXPECT_EQ(CListCtrl().CreateDragImage(0, &at), nullptr);
}

TEST(OwnerDraw, ListViewDrawsItself)
{
    ts::AfxHost host;
    Painted<CListCtrl> list;
    ASSERT_TRUE(list.Create(kChild | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(10, 10, 160, 130), &host, kId));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 100);
    list.InsertItem(0, TEXT("x"));
    CRect rect;
    list.GetItemRect(0, &rect, LVIR_BOUNDS);
    EXPECT_TRUE(IsPainted(list, rect.left + 3, rect.CenterPoint().y));
    EXPECT_EQ(list.type, static_cast<UINT>(ODT_LISTVIEW));
    EXPECT_EQ(list.lastItem, 0);
}
