#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 310, 210);

/** A tab row with One and Two. */
class Tab : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_tab.Create(kChild, kPlace, &m_host, kId));
        m_tab.InsertItem(0, TEXT("One"));
        m_tab.InsertItem(1, TEXT("Two"));
    }

    ts::AfxHost m_host;
    CTabCtrl m_tab;
};
} // namespace

TEST_F(Tab, ItemsAreAddedReadAndDeleted)
{
    EXPECT_EQ(m_tab.GetItemCount(), 2);
    EXPECT_EQ(m_tab.InsertItem(TCIF_TEXT | TCIF_PARAM, 2, TEXT("Three"), -1, 33), 2);
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(m_tab.GetItem(2, &item));
    EXPECT_EQ(item.lParam, 33);
    item.lParam = 44;
    EXPECT_TRUE(m_tab.SetItem(2, &item));
    m_tab.GetItem(2, &item);
    EXPECT_EQ(item.lParam, 44);
    EXPECT_TRUE(m_tab.DeleteItem(2));
    EXPECT_FALSE(m_tab.DeleteItem(9));
    EXPECT_TRUE(m_tab.DeleteAllItems());
    EXPECT_EQ(m_tab.GetItemCount(), 0);
    EXPECT_EQ(m_tab.InsertItem(0, static_cast<TCITEM*>(nullptr)), -1);
}

TEST_F(Tab, SelectionStateAndGeometry)
{
    EXPECT_EQ(m_tab.SetCurSel(1), 0);
    EXPECT_EQ(m_tab.GetCurSel(), 1);
    m_tab.SetCurFocus(0);
    EXPECT_EQ(m_tab.GetCurFocus(), 0);
    CRect rect;
    ASSERT_TRUE(m_tab.GetItemRect(1, &rect));
    TCHITTESTINFO hit = {};
    hit.pt = rect.CenterPoint();
    EXPECT_EQ(m_tab.HitTest(&hit), 1);
    EXPECT_EQ(m_tab.GetRowCount(), 1);
    CRect page(0, 0, 300, 200);
    m_tab.AdjustRect(FALSE, &page);
    EXPECT_GT(page.top, 10);
    m_tab.AdjustRect(TRUE, &page);
    EXPECT_EQ(page, CRect(0, 0, 300, 200));
    EXPECT_TRUE(m_tab.HighlightItem(1));
    EXPECT_TRUE(m_tab.GetItemState(1, TCIS_HIGHLIGHTED) & TCIS_HIGHLIGHTED);
}

TEST_F(Tab, SizesAndImages)
{
    m_tab.ModifyStyle(0, TCS_FIXEDWIDTH);
    m_tab.SetItemSize(CSize(90, 30));
    EXPECT_EQ(m_tab.SetItemSize(CSize(80, 30)), CSize(90, 30));
    m_tab.SetPadding(CSize(9, 4));
    m_tab.SetMinTabWidth(20);
    EXPECT_EQ(m_tab.SetMinTabWidth(30), 20);
    CImageList images;
    images.Create(8, 8, ILC_COLOR24, 1, 1);
    EXPECT_EQ(m_tab.SetImageList(&images), nullptr);
    EXPECT_EQ(m_tab.GetImageList(), &images);
    m_tab.SetImageList(nullptr);
}

TEST(OwnerDraw, TabDrawsItself)
{
    ts::AfxHost host;
    Painted<CTabCtrl> tab;
    ASSERT_TRUE(tab.Create(kChild | TCS_OWNERDRAWFIXED, CRect(10, 10, 160, 130), &host, kId));
    tab.InsertItem(0, TEXT("One"));
    CRect rect;
    tab.GetItemRect(0, &rect);
    EXPECT_TRUE(IsPainted(tab, rect.CenterPoint().x, rect.CenterPoint().y));
    EXPECT_EQ(tab.type, static_cast<UINT>(ODT_TAB));
}
