#include "Inputs.h"

#include <QorUI/inputs/DragLB.h>

namespace
{

/** A drag list with the items a, b, c, d. */
class DragLB : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.SubclassWindow(
            AddSystem(m_host, L"LISTBOX", LBS_NOTIFY | WS_HSCROLL, WS_EX_CLIENTEDGE, {30, 10, 130, 130})));
        for (const wchar_t* text : {L"a", L"b", L"c", L"d"}) {
            m_list.AddString(text);
        }
    }

    std::wstring Items() const
    {
        std::wstring items;
        for (int i = 0; i < m_list.GetCount(); ++i) {
            CString text;
            m_list.GetText(i, text);
            items += text;
        }
        return items;
    }

    POINT Middle(int index) const
    {
        CRect rect;
        m_list.GetItemRect(index, &rect);
        return {20, rect.CenterPoint().y};
    }

    void DragItem(int from, int to) { ts::Drag(m_list, Middle(from), Middle(to)); }

    ts::AfxHost m_host{200, 140};
    CDragLB m_list;
};

TEST_F(DragLB, DraggingDoesNothingAtTheStart)
{
    DragItem(3, 0);
    EXPECT_EQ(L"abcd", Items());
}

TEST_F(DragLB, EnabledDraggingMovesAnItemUp)
{
    m_list.EnableDrag(TRUE);
    DragItem(3, 0);
    EXPECT_EQ(L"dabc", Items());
    EXPECT_EQ(0, m_list.GetCurSel());
}

TEST_F(DragLB, EnabledDraggingMovesAnItemDown)
{
    m_list.EnableDrag(TRUE);
    DragItem(0, 2);
    EXPECT_EQ(L"bacd", Items());
}

TEST_F(DragLB, DraggingCanBeDisabledAgain)
{
    m_list.EnableDrag(TRUE);
    m_list.EnableDrag(FALSE);
    DragItem(3, 0);
    EXPECT_EQ(L"abcd", Items());
}

TEST_F(DragLB, MovedItemsKeepTheScrollRange)
{
    m_list.EnableDrag(TRUE);
    m_list.InsertString(3, L"a much longer text than the others are");
    const int extent = m_list.GetHorizontalExtent();
    DragItem(3, 0);
    EXPECT_EQ(extent, m_list.GetHorizontalExtent());
    EXPECT_EQ(5, m_list.GetCount());
}

TEST_F(DragLB, LosesSortingAndMultipleSelectionWhenSubclassed)
{
    CDragLB list;
    ASSERT_TRUE(list.SubclassWindow(AddSystem(m_host, L"LISTBOX", LBS_SORT | LBS_MULTIPLESEL | LBS_NOTIFY)));
    EXPECT_EQ(0u, list.GetStyle() & (LBS_SORT | LBS_MULTIPLESEL));
    EXPECT_TRUE(list.GetStyle() & LBS_NOTIFY);
}

TEST_F(DragLB, LosesSortingWhenCreated)
{
    CDragLB list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_SORT, CRect(30, 10, 130, 130), &m_host, ts::kOtherId));
    EXPECT_EQ(0u, list.GetStyle() & LBS_SORT);
    list.AddString(L"b");
    EXPECT_EQ(1, list.AddString(L"a"));
}

TEST_F(DragLB, HasNoFlatBorder)
{
    EXPECT_FALSE(HasFlatBorder(m_list));
}

} // namespace
