#include "Inputs.h"

#include <QorUI/inputs/TextBound.h>

namespace
{

constexpr wchar_t kText[] = L"Wide and thin";

/** A list box and what tells which texts are surely not wider than it scrolls. */
class TextBoundOfList : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(m_list.SubclassWindow(AddSystem(m_host, L"LISTBOX", WS_HSCROLL))); }

    int Needed(HGDIOBJ font) const { return ts::TextWidth(font, kText) + 3 * ::GetSystemMetrics(SM_CXBORDER); }

    ts::AfxHost m_host{200, 140};
    CListBox m_list;
    TextBound m_bound;
};

TEST_F(TextBoundOfList, TextFitsIntoItsWidthAndNoLess)
{
    const int needed = Needed(ts::GuiFont());
    EXPECT_TRUE(m_bound.Fits(m_list, kText, needed));
    EXPECT_FALSE(m_bound.Fits(m_list, kText, needed - 1));
}

TEST_F(TextBoundOfList, OtherCharactersAndNoTextAreUnsure)
{
    EXPECT_FALSE(m_bound.Fits(m_list, L"\u00e9", INT_MAX));
    EXPECT_FALSE(m_bound.Fits(m_list, nullptr, INT_MAX));
}

TEST_F(TextBoundOfList, NewFontIsLearntOnceTheOldOneIsForgotten)
{
    const int small = Needed(ts::GuiFont());
    ASSERT_TRUE(m_bound.Fits(m_list, kText, small));
    CFont large;
    ASSERT_TRUE(large.CreatePointFont(240, L"MS Shell Dlg"));
    m_list.SetFont(&large);
    m_bound.Forget();
    EXPECT_FALSE(m_bound.Fits(m_list, kText, small));
    EXPECT_TRUE(m_bound.Fits(m_list, kText, Needed(large)));
}

} // namespace
