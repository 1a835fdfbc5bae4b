#include "Inputs.h"

#include <QorUI/inputs/ComboLook.h>
#include <QorUI/inputs/FlatCombo.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Look.h>

namespace
{

/** A drop-down list with four items; the data of two of them are equal. */
class FlatCombo : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_combo.SubclassWindow(AddSystem(m_host, L"COMBOBOX", CBS_DROPDOWNLIST, 0, {10, 10, 130, 200})));
        const DWORD_PTR data[] = {40, 30, 30, static_cast<DWORD_PTR>(-1)};
        for (const DWORD_PTR one : data) {
            m_combo.SetItemData(m_combo.AddString(L"Item"), one);
        }
        ts::ParkMouse();
    }

    static QorComboParts PartsOf(const CWnd& combo)
    {
        CRect client;
        combo.GetClientRect(&client);
        return QorComboLayout(client, ::GetSystemMetrics(SM_CXHTHUMB));
    }

    QorComboParts Parts() const { return PartsOf(m_combo); }

    ts::AfxHost m_host{200, 240};
    CFlatCombo m_combo;
};

/** Answers WM_PAINT in place of a window. */
std::optional<LRESULT> PaintBlack(const ts::Message& message)
{
    PAINTSTRUCT paint = {};
    const HDC dc = ::BeginPaint(message.window, &paint);
    ::FillRect(dc, &paint.rcPaint, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::EndPaint(message.window, &paint);
    return 0;
}

CRect Inner(CRect rect)
{
    rect.DeflateRect(1, 1);
    return rect;
}

TEST_F(FlatCombo, SelectionFieldIsFifteenHigh)
{
    const auto setHeight = [](HWND combo, int height) {
        ::SendMessageW(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
        return ::SendMessageW(combo, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
    };
    const HWND stock = AddSystem(m_host, L"COMBOBOX", CBS_DROPDOWNLIST, 0, {10, 60, 130, 200});
    const LRESULT fifteen = setHeight(stock, 15);
    ASSERT_NE(fifteen, setHeight(stock, 30));
    CFlatCombo combo;
    ASSERT_TRUE(combo.SubclassWindow(stock));
    EXPECT_EQ(fifteen, combo.GetItemHeight(-1));
}

TEST_F(FlatCombo, SelectionFieldOfACreatedOneIsThatOfItsFont)
{
    const HWND stock = ::CreateWindowW(L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWNLIST, 10, 60, 120, 140, m_host, nullptr,
                                       nullptr, nullptr);
    CFlatCombo combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(10, 60, 130, 200), &m_host, ts::kOtherId));
    EXPECT_EQ(::SendMessageW(stock, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0), combo.GetItemHeight(-1));
    EXPECT_NE(m_combo.GetItemHeight(-1), combo.GetItemHeight(-1));
}

TEST_F(FlatCombo, FindItemGivesTheFirstOfEqualData)
{
    EXPECT_EQ(0, m_combo.FindItem(40));
    EXPECT_EQ(1, m_combo.FindItem(30));
    EXPECT_EQ(3, m_combo.FindItem(static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(-1, m_combo.FindItem(7));
}

TEST_F(FlatCombo, NothingIsFoundInAnEmptyBox)
{
    m_combo.ResetContent();
    EXPECT_EQ(-1, m_combo.FindItem(static_cast<DWORD_PTR>(CB_ERR)));
    EXPECT_EQ(-1, m_combo.FindItem(0));
    EXPECT_EQ(-1, CFlatCombo().FindItem(0));
}

TEST_F(FlatCombo, RemoveItemRemovesTheFirstOne)
{
    EXPECT_EQ(3, m_combo.RemoveItem(30));
    EXPECT_EQ(1, m_combo.FindItem(30));
    EXPECT_EQ(2, m_combo.RemoveItem(30));
    EXPECT_EQ(-1, m_combo.RemoveItem(30));
    EXPECT_EQ(2, m_combo.GetCount());
}

TEST_F(FlatCombo, SelectItemSelectsTheFirstOne)
{
    EXPECT_EQ(1, m_combo.SelectItem(30));
    EXPECT_EQ(1, m_combo.GetCurSel());
    EXPECT_EQ(-1, m_combo.SelectItem(7));
    EXPECT_EQ(1, m_combo.GetCurSel()) << "an unknown one leaves the selection";
}

TEST_F(FlatCombo, DataOfTheSelectionOrTheGivenValue)
{
    EXPECT_EQ(0u, m_combo.GetCurSelData(0));
    EXPECT_EQ(55u, m_combo.GetCurSelData(55));
    m_combo.SelectItem(40);
    EXPECT_EQ(40u, m_combo.GetCurSelData(55));
    EXPECT_EQ(9u, CFlatCombo().GetCurSelData(9));
}

TEST_F(FlatCombo, BothPartsHaveAGreyAndAWhiteFrame)
{
    const OddLook odd; // which the frames do not take part in
    const ts::Picture look = ts::LookOf(m_combo);
    const QorComboParts parts = Parts();
    EXPECT_TRUE(ts::FrameIs(look, parts.button, kGrey));
    EXPECT_TRUE(ts::FrameIs(look, Inner(parts.button), kWhite));
    // The right grey line of the text part is the left one of the button part as well.
    EXPECT_TRUE(ts::FrameIs(look, parts.text, kGrey));
    EXPECT_TRUE(ts::FrameIs(look, Inner(parts.text), kWhite));
}

TEST_F(FlatCombo, FramesAreWholeWhateverTheStandardBoxPaints)
{
    const HWND stock = AddSystem(m_host, L"COMBOBOX", CBS_DROPDOWNLIST, 0, {10, 60, 130, 200});
    ts::MessageRecorder standard(stock);
    standard.Answer(WM_PAINT, &PaintBlack);
    CFlatCombo combo;
    ASSERT_TRUE(combo.SubclassWindow(stock));
    const QorComboParts parts = PartsOf(combo);
    for (const BOOL enabled : {TRUE, FALSE}) {
        combo.EnableWindow(enabled);
        const ts::Picture look = ts::LookOf(combo);
        for (const RECT& part : {parts.text, parts.button}) {
            EXPECT_TRUE(ts::FrameIs(look, part, kGrey)) << enabled;
            EXPECT_TRUE(ts::FrameIs(look, Inner(part), kWhite)) << enabled;
        }
    }
}

TEST_F(FlatCombo, ButtonIsFilledAroundABlackArrow)
{
    const OddLook odd;
    const ts::Picture look = ts::LookOf(m_combo);
    const QorComboParts parts = Parts();
    const ts::Picture face = look.Crop(parts.face);
    const CRect arrow(face.BoundsOf(RGB(0, 0, 0)));
    EXPECT_EQ(CRect(parts.corner[0].x, parts.corner[0].y, parts.corner[1].x + 1, parts.corner[2].y + 1),
              arrow + CPoint(parts.face.left, parts.face.top));
    EXPECT_EQ(7 + 5 + 3 + 1, face.Count(RGB(0, 0, 0)));
    EXPECT_EQ(face.Width() * face.Height() - 16, face.Count(OddLook::kFace));
}

TEST_F(FlatCombo, DisabledBoxHasAGreyArrowInTheSameFrame)
{
    const OddLook odd;
    const ts::Picture enabled = ts::LookOf(m_combo);
    m_combo.EnableWindow(FALSE);
    const ts::Picture disabled = ts::LookOf(m_combo);
    const QorComboParts parts = Parts();
    EXPECT_EQ(0, disabled.Crop(parts.face).Count(RGB(0, 0, 0)));
    EXPECT_EQ(16, disabled.Crop(parts.face).Count(OddLook::kGrayText));
    EXPECT_TRUE(ts::FrameIs(disabled, parts.button, kGrey));
    EXPECT_TRUE(ts::FrameIs(disabled, Inner(parts.button), kWhite));
    EXPECT_TRUE(ts::SamePicture(enabled.Crop({0, 0, parts.text.right, 2}), disabled.Crop({0, 0, parts.text.right, 2})));
}

int WINAPI WideThumb(int index)
{
    return index == SM_CXHTHUMB ? 29 : ::GetSystemMetrics(index);
}

TEST_F(FlatCombo, ButtonHasTheWidthOfAScrollBarsThumb)
{
    const ts::ReplacedImport metrics(L"QorUI.dll", "GetSystemMetrics", &WideThumb);
    const ts::Picture look = ts::LookOf(m_combo);
    const QorComboParts parts = QorComboLayout({0, 0, look.Width(), look.Height()}, 29);
    EXPECT_TRUE(ts::FrameIs(look, parts.button, kGrey));
    EXPECT_TRUE(ts::FrameIs(look, parts.text, kGrey));
}

TEST_F(FlatCombo, DropsDownAndSelectsByKeyboard)
{
    m_combo.SetFocus();
    ts::Key(VK_DOWN);
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, m_combo.GetCurSel());
    ts::Key(VK_F4);
    EXPECT_TRUE(m_combo.GetDroppedState());
    ts::Key(VK_ESCAPE);
    EXPECT_FALSE(m_combo.GetDroppedState());
}

TEST_F(FlatCombo, WithoutAWindowNothingIsFoundOrChanged)
{
    CFlatCombo combo;
    EXPECT_EQ(-1, combo.RemoveItem(0));
    EXPECT_EQ(-1, combo.SelectItem(0));
    EXPECT_FALSE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 10, 10), nullptr, ts::kOtherId));
}

TEST_F(FlatCombo, TinyBoxIsPaintedWithoutHarm)
{
    CFlatCombo combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 50, 13, 60), &m_host, ts::kOtherId));
    EXPECT_EQ(3, ts::LookOf(combo).Width());
}

TEST_F(FlatCombo, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatCombo combo;
        combo.SubclassWindow(AddSystem(m_host, L"COMBOBOX", CBS_DROPDOWNLIST, 0, {10, 60, 130, 200}));
        ts::LookOf(combo);
        combo.EnableWindow(FALSE);
        ts::LookOf(combo);
        combo.DestroyWindow();
    }));
}

} // namespace
