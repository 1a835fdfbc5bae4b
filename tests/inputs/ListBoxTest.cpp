#include "Inputs.h"

#include <QorUI/inputs/DragLB.h>
#include <QorUI/inputs/FlatChkList.h>
#include <QorUI/inputs/FlatListBox.h>
#include <tests/support/Imports.h>

namespace
{

constexpr wchar_t kShort[] = L"a";
constexpr wchar_t kLong[] = L"a text that is much longer than the others";

/** What the two list boxes have in common. */
template <class List>
class WidestText : public testing::Test
{
  protected:
    void SetUp() override
    {
        const HWND list = AddSystem(m_host, L"LISTBOX", WS_HSCROLL | LBS_NOTIFY, WS_EX_CLIENTEDGE, {10, 10, 110, 110});
        ASSERT_TRUE(m_list.SubclassWindow(list));
    }

    static int Width(const wchar_t* text) { return TextWidth(GuiFont(), text) + 3 * ::GetSystemMetrics(SM_CXBORDER); }

    CString ItemText(int index) const
    {
        CString text;
        m_list.GetText(index, text);
        return text;
    }

    ts::AfxHost m_host{200, 140};
    List m_list;
};

using WidestLists = testing::Types<CFlatListBox, CDragLB>;
TYPED_TEST_SUITE(WidestText, WidestLists);

TYPED_TEST(WidestText, SetsTheScrollRangeWithItsMargin)
{
    EXPECT_EQ(0, this->m_list.AddString(kShort));
    EXPECT_EQ(this->Width(kShort), this->m_list.GetHorizontalExtent());
    EXPECT_EQ(1, this->m_list.AddString(kLong));
    EXPECT_EQ(this->Width(kLong), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, InsertedTextCountsToo)
{
    this->m_list.AddString(kShort);
    EXPECT_EQ(0, this->m_list.InsertString(0, kLong));
    EXPECT_STREQ(kLong, this->ItemText(0));
    EXPECT_EQ(this->Width(kLong), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, ShorterTextsLeaveTheScrollRange)
{
    this->m_list.AddString(kLong);
    ts::MessageRecorder log(this->m_list);
    log.RecordOnly({LB_SETHORIZONTALEXTENT});
    this->m_list.AddString(kShort);
    this->m_list.AddString(kLong);
    EXPECT_TRUE(log.Messages().empty());
}

TYPED_TEST(WidestText, DeletingTheWidestShrinksTheScrollRange)
{
    this->m_list.AddString(kShort);
    this->m_list.AddString(kLong);
    EXPECT_EQ(1, this->m_list.DeleteString(1));
    EXPECT_EQ(this->Width(kShort), this->m_list.GetHorizontalExtent());
    EXPECT_EQ(0, this->m_list.DeleteString(0));
    EXPECT_EQ(0, this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, WidthIsThatOfTheRemainingTextsAfterADeletion)
{
    this->m_list.AddString(kLong);
    this->m_list.AddString(kShort);
    this->m_list.DeleteString(0);
    this->m_list.AddString(L"ab");
    EXPECT_EQ(this->Width(L"ab"), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, ResetForgetsTheWidthButLeavesTheScrollRange)
{
    this->m_list.AddString(kLong);
    this->m_list.ResetContent();
    EXPECT_EQ(0, this->m_list.GetCount());
    EXPECT_EQ(this->Width(kLong), this->m_list.GetHorizontalExtent());
    this->m_list.AddString(kShort);
    EXPECT_EQ(this->Width(kShort), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, MeasuresInTheListsOwnFont)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, L"Tahoma"));
    this->m_list.SetFont(&font);
    this->m_list.AddString(kLong);
    EXPECT_EQ(TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), this->m_list.GetHorizontalExtent());
    EXPECT_GT(this->m_list.GetHorizontalExtent(), this->Width(kLong));
    this->m_list.DestroyWindow();
}

TYPED_TEST(WidestText, RefusedOperationsChangeNothing)
{
    this->m_list.AddString(kShort);
    EXPECT_EQ(LB_ERR, this->m_list.InsertString(5, kLong));
    EXPECT_EQ(LB_ERR, this->m_list.DeleteString(5));
    EXPECT_EQ(LB_ERR, this->m_list.DeleteString(-1));
    EXPECT_EQ(this->Width(kShort), this->m_list.GetHorizontalExtent());
    EXPECT_EQ(1, this->m_list.GetCount());
}

TYPED_TEST(WidestText, EmptyAndMissingTextsAreNoHarm)
{
    EXPECT_EQ(0, this->m_list.AddString(L""));
    EXPECT_EQ(3 * ::GetSystemMetrics(SM_CXBORDER), this->m_list.GetHorizontalExtent());
    EXPECT_EQ(1, this->m_list.AddString(nullptr));
    EXPECT_STREQ(L"", this->ItemText(1));
}

TYPED_TEST(WidestText, HugeTextIsMeasured)
{
    const CString huge(L'm', 3000);
    this->m_list.AddString(huge);
    EXPECT_EQ(this->Width(huge), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, WithoutAWindowNothingHappens)
{
    TypeParam list;
    EXPECT_EQ(LB_ERR, list.AddString(kShort));
    EXPECT_EQ(LB_ERR, list.InsertString(0, kLong));
    EXPECT_EQ(LB_ERR, list.DeleteString(0));
    EXPECT_NO_THROW(list.ResetContent());
    EXPECT_EQ(nullptr, list.m_hWnd);
    EXPECT_FALSE(list.Create(WS_CHILD, CRect(0, 0, 10, 10), nullptr, 18));
}

TYPED_TEST(WidestText, NewWindowOfTheSameObjectStartsAnew)
{
    this->m_list.AddString(kLong);
    this->m_list.DestroyWindow();
    this->SetUp();
    this->m_list.AddString(kShort);
    EXPECT_EQ(this->Width(kShort), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, FilledListKeepsTheScrollRangeThatItHas)
{
    this->m_list.AddString(kLong);
    const HWND filled = this->m_list.UnsubclassWindow();
    TypeParam other;
    ASSERT_TRUE(other.SubclassWindow(filled));
    other.AddString(kShort);
    EXPECT_EQ(this->Width(kLong), other.GetHorizontalExtent());
}

int WINAPI WideBorder(int index)
{
    return index == SM_CXBORDER ? 5 : ::GetSystemMetrics(index);
}

TYPED_TEST(WidestText, MarginIsThatOfThreeBorders)
{
    const ts::ReplacedImport metrics(L"QorUI.dll", "GetSystemMetrics", &WideBorder);
    this->m_list.AddString(kShort);
    EXPECT_EQ(TextWidth(GuiFont(), kShort) + 15, this->m_list.GetHorizontalExtent());
}

HDC WINAPI NoDc(HWND)
{
    return nullptr;
}

TYPED_TEST(WidestText, WithoutADeviceContextTheScrollRangeStays)
{
    this->m_list.AddString(kShort);
    const int extent = this->m_list.GetHorizontalExtent();
    {
        const ts::ReplacedImport ours(L"QorUI.dll", "GetDC", &NoDc);
        const ts::ReplacedImport frameworks(L"afx.dll", "GetDC", &NoDc);
        EXPECT_EQ(1, this->m_list.AddString(kLong));
        EXPECT_EQ(2, this->m_list.InsertString(2, kLong));
        EXPECT_EQ(2, this->m_list.DeleteString(2));
        EXPECT_EQ(extent, this->m_list.GetHorizontalExtent());
    }
    this->m_list.AddString(kLong);
    EXPECT_EQ(this->Width(kLong), this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        TypeParam list;
        list.SubclassWindow(AddSystem(this->m_host, L"LISTBOX", WS_HSCROLL));
        list.AddString(kLong);
        list.AddString(kShort);
        list.DeleteString(0);
        FrameOf(list);
        list.DestroyWindow();
    }));
}

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
    EXPECT_EQ(TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), m_list.GetHorizontalExtent());
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
    EXPECT_EQ(TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), m_list.GetHorizontalExtent());
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
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(kControlId, CLBN_CHKCHANGE)));
}

TEST_F(FlatChkList, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatChkList list;
        list.SubclassWindow(AddSystem(m_host, L"LISTBOX", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS));
        list.AddString(L"One");
        list.SetCheck(0, BST_CHECKED);
        FrameOf(list);
        list.DestroyWindow();
    }));
}

} // namespace
