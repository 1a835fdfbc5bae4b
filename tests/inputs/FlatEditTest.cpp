#include "Inputs.h"

#include <QorUI/inputs/FlatEdit.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

class FlatEdit : public testing::Test
{
  protected:
    ts::AfxHost m_host{200, 100};
    CFlatEdit m_edit;
};

TEST_F(FlatEdit, PaintsItsBorderFlat)
{
    ASSERT_TRUE(m_edit.SubclassWindow(AddSystem(m_host, L"EDIT", 0)));
    EXPECT_TRUE(HasFlatBorder(m_edit));
}

TEST_F(FlatEdit, ScrollBarInTheFrameIsStillPainted)
{
    ASSERT_TRUE(m_edit.SubclassWindow(
        AddSystem(m_host, L"EDIT", ES_MULTILINE | WS_VSCROLL, WS_EX_CLIENTEDGE, {10, 10, 90, 90})));
    EXPECT_TRUE(HasFlatBorder(m_edit));
    EXPECT_TRUE(PaintsItsScrollBar(m_edit));
}

TEST_F(FlatEdit, WithoutClientEdgeNothingIsPaintedAround)
{
    ASSERT_TRUE(m_edit.SubclassWindow(AddSystem(m_host, L"EDIT", 0, 0)));
    EXPECT_EQ(0, ts::FrameOf(m_edit).Count(kGrey));
}

TEST_F(FlatEdit, StillEdits)
{
    ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE, kPlace, &m_host, ts::kControlId));
    m_edit.SetFocus();
    ts::Type(L"abc");
    EXPECT_STREQ(L"abc", ts::TextOf(m_edit));
}

TEST_F(FlatEdit, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatEdit edit;
        edit.SubclassWindow(AddSystem(m_host, L"EDIT", 0));
        ts::FrameOf(edit);
        edit.DestroyWindow();
    }));
}

} // namespace
