#include "WidestText.h"

#include <QorUI/inputs/DragLB.h>
#include <QorUI/inputs/FlatListBox.h>
#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <algorithm>

namespace
{

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
    EXPECT_EQ(ts::TextWidth(font, kLong) + 3 * ::GetSystemMetrics(SM_CXBORDER), this->m_list.GetHorizontalExtent());
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
    EXPECT_FALSE(list.Create(WS_CHILD, CRect(0, 0, 10, 10), nullptr, ts::kOtherId));
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
    EXPECT_EQ(ts::TextWidth(ts::GuiFont(), kShort) + 15, this->m_list.GetHorizontalExtent());
}

TYPED_TEST(WidestText, WithoutADeviceContextTheScrollRangeStays)
{
    this->m_list.AddString(kShort);
    const int extent = this->m_list.GetHorizontalExtent();
    {
        const ts::ReplacedImport ours(L"QorUI.dll", "GetDC", &ts::NoDc);
        const ts::ReplacedImport frameworks(L"afx.dll", "GetDC", &ts::NoDc);
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
        ts::FrameOf(list);
        list.DestroyWindow();
    }));
}

} // namespace
