#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);

/** A list box with the items Ann, Bob, Cid. */
class ListBox : public testing::Test
{
  protected:
    void Make(DWORD style)
    {
        ASSERT_TRUE(m_list.Create(kChild | style, kPlace, &m_host, kId));
        for (LPCTSTR text : {TEXT("Ann"), TEXT("Bob"), TEXT("Cid")}) {
            m_list.AddString(text);
        }
    }

    ts::AfxHost m_host;
    CListBox m_list;
};

class KeyList : public CListBox
{
  public:
    int VKeyToItem(UINT nKey, UINT nIndex) override
    {
        key = nKey;
        index = nIndex;
        return -2;
    }
    UINT key = 0;
    UINT index = 99;
};

class CharList : public Painted<CListBox>
{
  public:
    int CharToItem(UINT nKey, UINT) override
    {
        key = nKey;
        return 1;
    }
    UINT key = 0;
};
} // namespace

TEST_F(ListBox, ItemsAreAddedFoundAndDeleted)
{
    Make(LBS_NOTIFY);
    EXPECT_EQ(m_list.GetCount(), 3);
    EXPECT_EQ(m_list.InsertString(1, TEXT("New")), 1);
    EXPECT_EQ(m_list.FindString(-1, TEXT("b")), 2);
    EXPECT_EQ(m_list.FindStringExact(-1, TEXT("bo")), LB_ERR);
    EXPECT_EQ(m_list.SelectString(-1, TEXT("ci")), 3);
    EXPECT_EQ(m_list.GetCurSel(), 3);
    EXPECT_EQ(m_list.DeleteString(0), 3);
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBox, TextsAreGivenAsStrings)
{
    Make(LBS_NOTIFY);
    CString text;
    m_list.GetText(1, text);
    EXPECT_STREQ(text, TEXT("Bob"));
    EXPECT_EQ(m_list.GetTextLen(2), 3);
    TCHAR buffer[8] = {};
    EXPECT_EQ(m_list.GetText(0, buffer), 3);
    EXPECT_STREQ(buffer, TEXT("Ann"));
    m_list.GetText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(m_list.GetTextLen(7), LB_ERR);
}

TEST_F(ListBox, ItemDataAndGeometry)
{
    Make(LBS_NOTIFY);
    int value = 0;
    EXPECT_NE(m_list.SetItemDataPtr(1, &value), LB_ERR);
    EXPECT_EQ(m_list.GetItemDataPtr(1), &value);
    EXPECT_NE(m_list.SetItemData(2, 0x123456789A), LB_ERR);
    EXPECT_EQ(m_list.GetItemData(2), 0x123456789Aull);
    CRect first;
    CRect second;
    m_list.GetItemRect(0, &first);
    m_list.GetItemRect(1, &second);
    EXPECT_EQ(second.top, first.bottom);
    EXPECT_EQ(first.Height(), m_list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(second.CenterPoint(), outside), 1u);
    EXPECT_FALSE(outside);
    EXPECT_EQ(m_list.SetTopIndex(0), 0);
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    m_list.SetHorizontalExtent(500);
    EXPECT_EQ(m_list.GetHorizontalExtent(), 500);
}

TEST_F(ListBox, SeveralItemsAreSelected)
{
    Make(LBS_NOTIFY | LBS_EXTENDEDSEL);
    EXPECT_NE(m_list.SelItemRange(TRUE, 0, 2), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 3);
    m_list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(m_list.GetSelCount(), 1);
    m_list.SetSel(2);
    int items[3] = {};
    EXPECT_EQ(m_list.GetSelItems(3, items), 2);
    EXPECT_EQ(items[1], 2);
    EXPECT_TRUE(m_list.GetSel(2));
    m_list.SetCaretIndex(1);
    EXPECT_EQ(m_list.GetCaretIndex(), 1);
    m_list.SetAnchorIndex(2);
    EXPECT_EQ(m_list.GetAnchorIndex(), 2);
}

TEST_F(ListBox, TabStopsAreTakenInEveryForm)
{
    Make(LBS_USETABSTOPS);
    int stops[2] = {20, 40};
    EXPECT_TRUE(m_list.SetTabStops(2, stops));
    EXPECT_TRUE(m_list.SetTabStops(16));
    m_list.SetTabStops();
    EXPECT_EQ(m_list.GetCount(), 3);
}

TEST(OwnerDraw, ListBoxMeasuresComparesDrawsAndDeletes)
{
    ts::AfxHost host;
    Measured<CListBox> list;
    ASSERT_TRUE(list.Create(kChild | LBS_OWNERDRAWFIXED | LBS_SORT, kPlace, &host, kId));
    EXPECT_EQ(list.measures, 1);
    EXPECT_EQ(list.GetItemHeight(0), 31);
    list.AddString(reinterpret_cast<LPCTSTR>(1));
    EXPECT_EQ(list.AddString(reinterpret_cast<LPCTSTR>(2)), 0);
    EXPECT_GT(list.compares, 0);
    EXPECT_TRUE(IsPainted(list));
    EXPECT_EQ(list.type, static_cast<UINT>(ODT_LISTBOX));
    list.DeleteString(0);
    EXPECT_EQ(list.deleted, std::vector<ULONG_PTR>{2});
}

TEST(OwnerDraw, ListBoxIsAskedAboutKeys)
{
    ts::AfxHost host;
    KeyList list;
    ASSERT_TRUE(list.Create(kChild | LBS_WANTKEYBOARDINPUT, kPlace, &host, kId));
    list.AddString(TEXT("a"));
    list.AddString(TEXT("b"));
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(list.key, static_cast<UINT>(VK_DOWN));
    EXPECT_EQ(list.index, 0u);
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST(OwnerDraw, ListBoxIsAskedAboutCharacters)
{
    ts::AfxHost host;
    CharList list;
    ASSERT_TRUE(list.Create(kChild | LBS_OWNERDRAWFIXED | LBS_WANTKEYBOARDINPUT, kPlace, &host, kId));
    list.AddString(nullptr);
    list.AddString(nullptr);
    list.SendMessage(WM_CHAR, L'q', 1);
    EXPECT_EQ(list.key, static_cast<UINT>(L'q'));
    EXPECT_EQ(list.GetCurSel(), 1);
}
