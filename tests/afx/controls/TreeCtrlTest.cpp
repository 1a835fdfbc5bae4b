#include "resource.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 310, 210);

/** A tree: Root with Bob and Ann, Other without children. */
class Tree : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_tree.Create(kChild | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_EDITLABELS, kPlace,
                                  &m_host, kId));
        m_tree.SetRedraw(FALSE);
        m_root = m_tree.InsertItem(TEXT("Root"));
        m_bob = m_tree.InsertItem(TEXT("Bob"), m_root);
        m_ann = m_tree.InsertItem(TVIF_TEXT | TVIF_PARAM, TEXT("Ann"), 0, 0, 0, 0, 7, m_root, TVI_LAST);
        m_other = m_tree.InsertItem(TEXT("Other"), TVI_ROOT, m_root);
        m_tree.SetRedraw();
    }

    static int CALLBACK ByLength(LPARAM first, LPARAM second, LPARAM) { return static_cast<int>(first - second); }

    ts::AfxHost m_host;
    CTreeCtrl m_tree;
    HTREEITEM m_root = nullptr;
    HTREEITEM m_bob = nullptr;
    HTREEITEM m_ann = nullptr;
    HTREEITEM m_other = nullptr;
};
} // namespace

TEST_F(Tree, RelationsAreWalked)
{
    EXPECT_EQ(m_tree.GetCount(), 4u);
    EXPECT_EQ(m_tree.GetRootItem(), m_root);
    EXPECT_EQ(m_tree.GetChildItem(m_root), m_bob);
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_bob), m_ann);
    EXPECT_EQ(m_tree.GetPrevSiblingItem(m_ann), m_bob);
    EXPECT_EQ(m_tree.GetParentItem(m_ann), m_root);
    EXPECT_EQ(m_tree.GetParentItem(m_root), nullptr);
    EXPECT_TRUE(m_tree.ItemHasChildren(m_root));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_other));
    EXPECT_EQ(m_tree.GetNextItem(m_root, TVGN_NEXT), m_other);
}

TEST_F(Tree, TextsDataAndImages)
{
    EXPECT_STREQ(m_tree.GetItemText(m_bob), TEXT("Bob"));
    EXPECT_TRUE(m_tree.SetItemText(m_bob, TEXT("Bert")));
    EXPECT_STREQ(m_tree.GetItemText(m_bob), TEXT("Bert"));
    EXPECT_TRUE(m_tree.GetItemText(nullptr).IsEmpty());
    EXPECT_EQ(m_tree.GetItemData(m_ann), 7u);
    EXPECT_TRUE(m_tree.SetItemData(m_ann, 0x123456789A));
    EXPECT_EQ(m_tree.GetItemData(m_ann), 0x123456789Aull);
    EXPECT_EQ(m_tree.GetItemData(nullptr), 0u);
    CImageList images;
    images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255));
    EXPECT_EQ(m_tree.SetImageList(&images, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(m_tree.GetImageList(TVSIL_NORMAL), &images);
    EXPECT_TRUE(m_tree.SetItemImage(m_bob, 1, 2));
    int image = -1;
    int selected = -1;
    EXPECT_TRUE(m_tree.GetItemImage(m_bob, image, selected));
    EXPECT_EQ(image, 1);
    EXPECT_EQ(selected, 2);
    EXPECT_FALSE(m_tree.GetItemImage(nullptr, image, selected));
    EXPECT_EQ(m_tree.SetImageList(nullptr, TVSIL_NORMAL), &images);
}

TEST_F(Tree, LongTextIsGivenWhole)
{
    m_tree.SetItemText(m_bob, CString(TEXT('x'), 255));
    EXPECT_EQ(m_tree.GetItemText(m_bob).GetLength(), 255);
}

TEST_F(Tree, StatesExpansionAndSelection)
{
    EXPECT_TRUE(m_tree.SetItemState(m_bob, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_bob, TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(nullptr, TVIS_BOLD), 0u);
    EXPECT_TRUE(m_tree.Expand(m_root, TVE_EXPAND));
    EXPECT_TRUE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_root), m_bob);
    EXPECT_EQ(m_tree.GetPrevVisibleItem(m_bob), m_root);
    EXPECT_EQ(m_tree.GetFirstVisibleItem(), m_root);
    EXPECT_TRUE(m_tree.SelectItem(m_ann));
    EXPECT_EQ(m_tree.GetSelectedItem(), m_ann);
    EXPECT_TRUE(m_tree.SelectItem(nullptr));
    EXPECT_EQ(m_tree.GetSelectedItem(), nullptr);
    EXPECT_TRUE(m_tree.SelectDropTarget(m_bob));
    EXPECT_EQ(m_tree.GetDropHilightItem(), m_bob);
    m_tree.SelectDropTarget(nullptr);
    m_tree.Expand(m_root, TVE_COLLAPSE);
    EXPECT_FALSE(m_tree.GetItemState(m_root, TVIS_EXPANDED));
}

TEST_F(Tree, CheckBoxesAreStateImages)
{
    m_tree.ModifyStyle(0, TVS_CHECKBOXES);
    EXPECT_TRUE(m_tree.SetCheck(m_bob));
    EXPECT_TRUE(m_tree.GetCheck(m_bob));
    m_tree.SetCheck(m_bob, FALSE);
    EXPECT_FALSE(m_tree.GetCheck(m_bob));
}

TEST_F(Tree, ChildrenAreSortedAndDeleted)
{
    EXPECT_TRUE(m_tree.SortChildren(m_root));
    EXPECT_EQ(m_tree.GetChildItem(m_root), m_ann);
    TVSORTCB sort = {m_root, &ByLength, 0};
    EXPECT_TRUE(m_tree.SortChildrenCB(&sort));
    EXPECT_EQ(m_tree.GetChildItem(m_root), m_bob);
    EXPECT_TRUE(m_tree.DeleteItem(m_root));
    EXPECT_EQ(m_tree.GetCount(), 1u);
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(m_tree.GetCount(), 0u);
}

TEST_F(Tree, GeometryAndHits)
{
    CRect line;
    CRect text;
    ASSERT_TRUE(m_tree.GetItemRect(m_other, &line, FALSE));
    ASSERT_TRUE(m_tree.GetItemRect(m_other, &text, TRUE));
    EXPECT_LT(line.left, text.left);
    EXPECT_NEAR(line.Height(), m_tree.GetItemHeight(), 1);
    UINT flags = 0;
    EXPECT_EQ(m_tree.HitTest(text.CenterPoint(), &flags), m_other);
    EXPECT_TRUE(flags & TVHT_ONITEMLABEL);
    EXPECT_EQ(m_tree.HitTest(CPoint(5, 190)), nullptr);
    EXPECT_FALSE(m_tree.GetItemRect(nullptr, &line, TRUE));
    EXPECT_FALSE(m_tree.GetItemRect(m_other, nullptr, TRUE));
    m_tree.SetIndent(30);
    EXPECT_EQ(m_tree.GetIndent(), 30u);
    m_tree.SetItemHeight(24);
    EXPECT_EQ(m_tree.GetItemHeight(), 24);
    EXPECT_EQ(m_tree.GetVisibleCount(), static_cast<UINT>(200 / 24));
    EXPECT_TRUE(m_tree.EnsureVisible(m_other) == FALSE);
    EXPECT_TRUE(m_tree.SelectSetFirstVisible(m_root));
}

TEST_F(Tree, ColoursReturnTheFormer)
{
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tree.SetBkColor(RGB(4, 5, 6)), RGB(1, 2, 3));
    EXPECT_EQ(m_tree.GetBkColor(), RGB(4, 5, 6));
    m_tree.SetTextColor(RGB(7, 8, 9));
    EXPECT_EQ(m_tree.GetTextColor(), RGB(7, 8, 9));
    m_tree.SetLineColor(RGB(1, 1, 1));
    EXPECT_EQ(m_tree.GetLineColor(), RGB(1, 1, 1));
}

TEST_F(Tree, LabelsAreEditedInAnEditField)
{
    m_tree.SetFocus();
    CEdit* edit = m_tree.EditLabel(m_other);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(m_tree.GetEditControl()->m_hWnd, edit->m_hWnd);
    EXPECT_TRUE(m_tree.EndEditLabelNow(TRUE));
    EXPECT_STREQ(m_tree.GetItemText(m_other), TEXT("Other"));
}
