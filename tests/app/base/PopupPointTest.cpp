#include <QorUI/app/base/PopupPoint.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

/** A tree and a list, each with items, in a window. */
class PopupPoint : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_tree.SubclassWindow(m_host.Add(WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE, 10, 20, 150, 200, 1));
        m_list.SubclassWindow(
            m_host.Add(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST | LVS_SHOWSELALWAYS, 200, 30, 150, 200, 2));
        m_tree.InsertItem(L"first");
        m_second = m_tree.InsertItem(L"second");
        m_list.InsertItem(0, L"first");
        m_list.InsertItem(1, L"second");
        m_list.InsertItem(2, L"third");
    }
    void TearDown() override
    {
        m_tree.UnsubclassWindow();
        m_list.UnsubclassWindow();
    }

    static CPoint ScreenCentre(const CWnd& wnd, CRect rect)
    {
        CPoint centre((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        ::ClientToScreen(wnd.m_hWnd, &centre);
        return centre;
    }

    ts::HostWindow m_host;
    CTreeCtrl m_tree;
    CListCtrl m_list;
    HTREEITEM m_second = nullptr;
};

TEST_F(PopupPoint, MousePointIsKept)
{
    for (const CPoint given : {CPoint(0, 0), CPoint(7, 9)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(given, point);
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(given, point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeGivesTheMiddleOfTheSelectedItem)
{
    m_tree.SelectItem(m_second);
    CRect item;
    ASSERT_TRUE(m_tree.GetItemRect(m_second, &item, TRUE));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1), CPoint(-1, -1)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(ScreenCentre(m_tree, item), point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeWithoutSelectionGivesItsCorner)
{
    m_tree.SelectItem(nullptr);
    CPoint point(-1, -1);
    QorGetTreePopupPoint(m_tree, point);
    EXPECT_EQ(ScreenCentre(m_tree, CRect(0, 0, 0, 0)), point);
}

TEST_F(PopupPoint, KeyboardOverListGivesTheMiddleOfTheFirstSelectedLabel)
{
    m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(1, &label, LVIR_LABEL));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1)}) {
        CPoint point = given;
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(ScreenCentre(m_list, label), point);
    }
}

TEST_F(PopupPoint, KeyboardOverListWithoutSelectionGivesItsCorner)
{
    CPoint point(-1, -1);
    QorGetListPopupPoint(m_list, point);
    EXPECT_EQ(ScreenCentre(m_list, CRect(0, 0, 0, 0)), point);
}

} // namespace
