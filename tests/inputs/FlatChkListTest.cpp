#include "Inputs.h"

#include <QorUI/inputs/FlatChkList.h>
#include <tests/support/ui/Look.h>

namespace
{

/** A check list in a parent that can be asked what it was told. */
class FlatChkList : public testing::Test
{
  protected:
    void SetUp() override
    {
        const DWORD style = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY;
        ASSERT_TRUE(m_list.SubclassWindow(AddSystem(m_host, L"LISTBOX", style, WS_EX_CLIENTEDGE, {10, 10, 110, 110})));
        m_list.AddString(L"One");
        m_list.AddString(L"Two");
    }

    ts::AfxHost m_host{200, 140};
    CFlatChkList m_list;
};

TEST_F(FlatChkList, PaintsItsBorderFlat)
{
    EXPECT_TRUE(HasFlatBorder(m_list));
}

TEST_F(FlatChkList, ChecksItsItems)
{
    ts::Click(m_list, 7, 7);
    EXPECT_EQ(BST_CHECKED, m_list.GetCheck(0));
    EXPECT_EQ(BST_UNCHECKED, m_list.GetCheck(1));
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(ts::kControlId, CLBN_CHKCHANGE)));
}

TEST_F(FlatChkList, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatChkList list;
        list.SubclassWindow(AddSystem(m_host, L"LISTBOX", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS));
        list.AddString(L"One");
        list.SetCheck(0, BST_CHECKED);
        ts::FrameOf(list);
        list.DestroyWindow();
    }));
}

} // namespace
