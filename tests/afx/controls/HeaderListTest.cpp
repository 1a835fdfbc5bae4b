#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <utility>
#include <vector>

namespace
{
constexpr UINT ID = 77;
constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;
const CRect PLACE(10, 10, 310, 210);

/** A report list with the columns Name and Size and the rows Ann 3, Bob 1, Cid 2; values are the sizes. */
class ListView : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(CHILD | LVS_REPORT | LVS_SHOWSELALWAYS, PLACE, &m_host, ID));
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
    ASSERT_TRUE(list.CreateEx(WS_EX_CLIENTEDGE, CHILD | LVS_REPORT | LVS_OWNERDATA, PLACE, &host, ID));
    EXPECT_TRUE(list.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_TRUE(list.SetItemCountEx(100000));
    EXPECT_EQ(list.GetItemCount(), 100000);
}

TEST(ListViewLabels, AreEditedInAnEditField)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT | LVS_EDITLABELS, PLACE, &host, ID));
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
    ASSERT_TRUE(list.Create(CHILD | LVS_ICON, PLACE, &host, ID));
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

TEST(Header, ItemsOrderAndHits)
{
    ts::AfxHost host;
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(CHILD | HDS_BUTTONS, CRect(0, 0, 200, 20), &host, ID));
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.fmt = HDF_STRING;
    item.cxy = 70;
    for (LPCTSTR text : {TEXT("One"), TEXT("Two")}) {
        item.pszText = const_cast<LPTSTR>(text);
        header.InsertItem(header.GetItemCount(), &item);
    }
    EXPECT_EQ(header.GetItemCount(), 2);
    CRect rect;
    ASSERT_TRUE(header.GetItemRect(1, &rect));
    EXPECT_EQ(rect.left, 70);
    int order[2] = {1, 0};
    EXPECT_TRUE(header.SetOrderArray(2, order));
    EXPECT_EQ(header.OrderToIndex(0), 1);
    int read[2] = {};
    EXPECT_TRUE(header.GetOrderArray(read));
    EXPECT_EQ(read[1], 0);
    HDHITTESTINFO hit = {};
    hit.pt = {10, 5};
    EXPECT_EQ(header.HitTest(&hit), 1);
    item.mask = HDI_WIDTH;
    item.cxy = 33;
    EXPECT_TRUE(header.SetItem(0, &item));
    item.cxy = 0;
    EXPECT_TRUE(header.GetItem(0, &item));
    EXPECT_EQ(item.cxy, 33);
    RECT area = {0, 0, 200, 100};
    WINDOWPOS place = {};
    HDLAYOUT layout = {&area, &place};
    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_GT(place.cy, 5);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(header.InsertItem(0, nullptr), -1);
    CImageList images;
    images.Create(8, 8, ILC_COLOR24, 1, 1);
    header.SetImageList(&images);
    EXPECT_EQ(header.GetImageList(), &images);
    header.SetBitmapMargin(9);
    EXPECT_EQ(header.GetBitmapMargin(), 9);
}

namespace
{
/** A list that keeps its columns wider than 50 pixels. */
class WideList : public CListCtrl
{
  public:
    int m_vetoes = 0;

  protected:
    void OnItemChanging(NMHDR* header, LRESULT* result)
    {
        const auto* change = reinterpret_cast<const NMHEADER*>(header);
        *result = (change->pitem->mask & HDI_WIDTH) && change->pitem->cxy <= 50;
        m_vetoes += *result != 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WideList, CListCtrl)
    ON_NOTIFY(HDN_ITEMCHANGINGW, 0, &WideList::OnItemChanging)
END_MESSAGE_MAP()

/** A header that does the same for itself. */
class WideHeader : public CHeaderCtrl
{
  public:
    int m_changes = 0;

  protected:
    void OnItemChanging(NMHDR* header, LRESULT* result)
    {
        const auto* change = reinterpret_cast<const NMHEADER*>(header);
        *result = (change->pitem->mask & HDI_WIDTH) && change->pitem->cxy <= 50;
    }
    void OnItemChanged(NMHDR* /*header*/, LRESULT* /*result*/) { ++m_changes; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WideHeader, CHeaderCtrl)
    ON_NOTIFY_REFLECT(HDN_ITEMCHANGINGW, &WideHeader::OnItemChanging)
    ON_NOTIFY_REFLECT(HDN_ITEMCHANGEDW, &WideHeader::OnItemChanged)
END_MESSAGE_MAP()

/** Draws every item of the header in it but the first. */
class DrawingParent : public ts::AfxHost
{
  public:
    std::vector<std::pair<DWORD, DWORD_PTR>> m_stages;
    LRESULT m_answer = CDRF_NOTIFYITEMDRAW;

  protected:
    void OnCustomDraw(NMHDR* header, LRESULT* result)
    {
        const auto* draw = reinterpret_cast<const NMCUSTOMDRAW*>(header);
        m_stages.emplace_back(draw->dwDrawStage, draw->dwItemSpec);
        *result = m_answer;
        if (draw->dwDrawStage == CDDS_ITEMPREPAINT) {
            ::FillRect(draw->hdc, &draw->rc, CBrush(RGB(255, 0, 255)));
            *result = draw->dwItemSpec == 0 ? CDRF_DODEFAULT : CDRF_SKIPDEFAULT;
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DrawingParent, CWnd)
    ON_NOTIFY(NM_CUSTOMDRAW, ID, &DrawingParent::OnCustomDraw)
END_MESSAGE_MAP()

/** Adds two items of 70 pixels. */
void AddItems(CHeaderCtrl& header)
{
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.fmt = HDF_STRING;
    item.cxy = 70;
    item.pszText = const_cast<LPTSTR>(TEXT("Item"));
    header.InsertItem(0, &item);
    header.InsertItem(1, &item);
}

BOOL SetWidth(CHeaderCtrl& header, int width)
{
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    return header.SetItem(1, &item);
}
} // namespace

TEST(HeaderNotifications, ListVetoesTheWidthOfAColumn)
{
    ts::AfxHost host;
    WideList list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT, PLACE, &host, ID));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 120);
    list.InsertColumn(1, TEXT("Size"), LVCFMT_LEFT, 70);
    EXPECT_FALSE(SetWidth(*list.GetHeaderCtrl(), 30));
    EXPECT_EQ(list.m_vetoes, 1);
    EXPECT_EQ(list.GetColumnWidth(1), 70);
    EXPECT_TRUE(SetWidth(*list.GetHeaderCtrl(), 80));
    EXPECT_EQ(list.m_vetoes, 1);
    EXPECT_EQ(list.GetColumnWidth(1), 80);
}

TEST(HeaderNotifications, HeaderGetsItsOwnReflected)
{
    ts::AfxHost host;
    WideHeader header;
    ASSERT_TRUE(header.Create(CHILD, CRect(0, 0, 200, 20), &host, ID));
    AddItems(header);
    CRect rect;
    EXPECT_FALSE(SetWidth(header, 30));
    EXPECT_EQ(header.m_changes, 0);
    header.GetItemRect(1, &rect);
    EXPECT_EQ(rect.Width(), 70);
    EXPECT_TRUE(SetWidth(header, 80));
    EXPECT_EQ(header.m_changes, 1);
    header.GetItemRect(1, &rect);
    EXPECT_EQ(rect.Width(), 80);
}

TEST(HeaderNotifications, ParentDrawsTheItems)
{
    DrawingParent host;
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(CHILD, CRect(0, 0, 200, 20), &host, ID));
    AddItems(header);
    header.UpdateWindow();
    host.m_stages.clear();
    ::RedrawWindow(header, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    using Stages = std::vector<std::pair<DWORD, DWORD_PTR>>;
    ASSERT_EQ(host.m_stages.size(), 3u);
    EXPECT_EQ(host.m_stages[0].first, static_cast<DWORD>(CDDS_PREPAINT));
    EXPECT_EQ(Stages(host.m_stages.begin() + 1, host.m_stages.end()),
              (Stages{{CDDS_ITEMPREPAINT, 0}, {CDDS_ITEMPREPAINT, 1}}));
    const ts::Picture look = ts::CaptureWindow(header);
    EXPECT_FALSE(ts::AreaIs(look, CRect(0, 0, 70, 20), RGB(255, 0, 255)));
    EXPECT_TRUE(ts::AreaIs(look, CRect(70, 0, 140, 20), RGB(255, 0, 255)));
    host.m_stages.clear();
    host.m_answer = CDRF_DODEFAULT;
    ::RedrawWindow(header, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(host.m_stages.size(), 1u);
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
