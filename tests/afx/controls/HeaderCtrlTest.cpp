#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <utility>
#include <vector>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 310, 210);

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
    ON_NOTIFY(NM_CUSTOMDRAW, kId, &DrawingParent::OnCustomDraw)
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

TEST(Header, ItemsOrderAndHits)
{
    ts::AfxHost host;
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(kChild | HDS_BUTTONS, CRect(0, 0, 200, 20), &host, kId));
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

TEST(HeaderNotifications, ListVetoesTheWidthOfAColumn)
{
    ts::AfxHost host;
    WideList list;
    ASSERT_TRUE(list.Create(kChild | LVS_REPORT, kPlace, &host, kId));
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
    ASSERT_TRUE(header.Create(kChild, CRect(0, 0, 200, 20), &host, kId));
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
    ASSERT_TRUE(header.Create(kChild, CRect(0, 0, 200, 20), &host, kId));
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

TEST(OwnerDraw, HeaderOfAListViewDrawsItself)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(kChild | LVS_REPORT, CRect(10, 10, 160, 130), &host, kId));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 100);
    Painted<CHeaderCtrl> header;
    ASSERT_TRUE(header.SubclassWindow(list.GetHeaderCtrl()->m_hWnd));
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_OWNERDRAW;
    ASSERT_TRUE(header.SetItem(0, &item));
    EXPECT_TRUE(IsPainted(header, 50, 8));
    EXPECT_EQ(header.lastItem, 0);
    header.UnsubclassWindow();
}

TEST(OwnerDraw, HeaderOfItsOwnDrawsItself)
{
    ts::AfxHost host;
    Painted<CHeaderCtrl> header;
    ASSERT_TRUE(header.Create(kChild, CRect(0, 0, 200, 20), &host, kId));
    HDITEM item = {};
    item.mask = HDI_FORMAT | HDI_WIDTH;
    item.fmt = HDF_OWNERDRAW;
    item.cxy = 80;
    EXPECT_EQ(header.InsertItem(0, &item), 0);
    EXPECT_TRUE(IsPainted(header, 40, 8));
}
