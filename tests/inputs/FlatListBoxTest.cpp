#include "WidestText.h"

#include <QorUI/inputs/FlatChkList.h>
#include <QorUI/inputs/FlatListBox.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Control.h>

#include <algorithm>

namespace
{

class FlatListBox : public WidestText<CFlatListBox>
{
};

TEST_F(FlatListBox, SetStringReplacesAnItem)
{
    m_list.AddString(kLong);
    m_list.AddString(L"b");
    EXPECT_EQ(0, m_list.SetString(0, kShort));
    EXPECT_EQ(2, m_list.GetCount());
    EXPECT_STREQ(kShort, ItemText(0));
    EXPECT_STREQ(L"b", ItemText(1));
    EXPECT_EQ((std::max)(Width(kShort), Width(L"b")), m_list.GetHorizontalExtent());
    EXPECT_EQ(1, m_list.SetString(1, kLong));
    EXPECT_EQ(Width(kLong), m_list.GetHorizontalExtent());
}

TEST_F(FlatListBox, SetStringOfAMissingItemIsRefused)
{
    EXPECT_EQ(-1, CFlatListBox().SetString(0, kShort));
    m_list.AddString(kShort);
    EXPECT_EQ(-1, m_list.SetString(1, kLong));
    EXPECT_EQ(1, m_list.GetCount());
    EXPECT_EQ(Width(kShort), m_list.GetHorizontalExtent());
}

TEST_F(FlatListBox, NewFontIsMeasuredAnew)
{
    m_list.AddString(kLong);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, L"Tahoma"));
    m_list.SetFont(&font);
    m_list.AddString(kLong);
    EXPECT_EQ(ts::TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), m_list.GetHorizontalExtent());
    m_list.DestroyWindow();
}

TEST_F(FlatListBox, FontOfAFormerWindowIsForgotten)
{
    m_list.AddString(kLong);
    m_list.DestroyWindow();
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, L"Tahoma"));
    const HWND list = AddSystem(m_host, L"LISTBOX", WS_HSCROLL, WS_EX_CLIENTEDGE, {10, 10, 110, 110});
    ::SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(font.m_hObject), FALSE);
    ASSERT_TRUE(m_list.SubclassWindow(list));
    m_list.AddString(kLong);
    EXPECT_EQ(ts::TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), m_list.GetHorizontalExtent());
    m_list.DestroyWindow();
}

TEST_F(FlatListBox, WidestOfManyTextsIsExact)
{
    const wchar_t* texts[] = {
        L"iiiiiiii", L"MM",   L"MMi",         L"",       L"\u00c4\u00d6\u00dc\u4e2d\u6587",
        L"WWWWW",    L"MMi.", L"\t tab \x7f", L"WWWWW.", L"\u4e2d\u6587\u4e2d\u6587\u4e2d\u6587\u4e2d\u6587"};
    int widest = 0;
    for (const wchar_t* text : texts) {
        m_list.AddString(text);
        widest = (std::max)(widest, Width(text));
        EXPECT_EQ(widest, m_list.GetHorizontalExtent()) << ts::ToUtf8(text);
    }
}

TEST_F(FlatListBox, PaintsItsBorderFlat)
{
    EXPECT_TRUE(HasFlatBorder(m_list));
}

template <class List>
void ExpectScrollBar(CWnd& parent, DWORD style)
{
    List list;
    const CRect rect(120, 10, 190, 110);
    ASSERT_TRUE(list.SubclassWindow(
        AddSystem(parent, L"LISTBOX", WS_VSCROLL | LBS_DISABLENOSCROLL | style, WS_EX_CLIENTEDGE, rect)));
    EXPECT_TRUE(PaintsItsScrollBar(list));
    EXPECT_TRUE(HasFlatBorder(list));
}

TEST_F(FlatListBox, ScrollBarInTheFrameIsStillPainted)
{
    ExpectScrollBar<CFlatListBox>(m_host, 0);
    ExpectScrollBar<CFlatChkList>(m_host, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
}

} // namespace
