#include "Buttons.h"

#include <QorUI/buttons/CheckRadio.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Drawn.h>
#include <tests/support/ui/Look.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace
{

constexpr COLORREF kBody = RGB(236, 245, 250);
const CRect kGlyph(2, 2, 15, 15);

/** A frame of a glyph strip as it looks on the body; a colour key shows the body. */
ts::Picture Frame(UINT strip, int frame, COLORREF key = CLR_NONE)
{
    const ts::Picture all = ts::ResourcePicture(ts::Library(), strip);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 13; ++y) {
        for (int x = 0; x < 13; ++x) {
            const COLORREF pixel = all.At(frame * 13 + x, y);
            pixels.push_back(pixel == key ? kBody : pixel);
        }
    }
    return ts::Picture(13, 13, std::move(pixels));
}

ts::Picture CheckFrame(int frame)
{
    return Frame(201, frame);
}

ts::Picture RadioFrame(int frame)
{
    return Frame(200, frame, RGB(255, 255, 255));
}

template <class Control>
class Checkable : public testing::Test
{
  protected:
    ts::Picture Glyph() { return Look(m_control).Crop(kGlyph); }

    bool IsChecked(const CWnd& control) { return control.SendMessage(BM_GETCHECK) == BST_CHECKED; }
    bool IsChecked() { return IsChecked(m_control); }

    size_t Clicks() { return m_host.Log().Count(ts::Command(ts::kControlId, BN_CLICKED)); }

    void ExpectPressToTakeTheFocusOnly()
    {
        ts::MoveMouse(m_control);
        ts::MouseDown();
        EXPECT_EQ(m_control.m_hWnd, ::GetFocus());
        EXPECT_EQ(nullptr, ::GetCapture());
        EXPECT_EQ(0, m_control.SendMessage(BM_GETSTATE) & BST_PUSHED);
        EXPECT_FALSE(IsChecked());
        ts::MouseUp();
        EXPECT_TRUE(IsChecked());
    }

    void ExpectParentMayDestroyIt()
    {
        m_host.Log().Answer(WM_COMMAND, [&](const ts::Message&) -> std::optional<LRESULT> {
            m_control.DestroyWindow();
            return {};
        });
        m_control.SendMessage(WM_LBUTTONUP);
        EXPECT_EQ(nullptr, m_control.m_hWnd);
    }

    void SetUp() override
    {
        Take(m_control);
        ts::ParkMouse();
    }

    void Take(Control& control)
    {
        ASSERT_TRUE(
            control.SubclassWindow(AddButton(m_host, L"Text", CRect(20, 10, 140, 40), ts::kControlId, Style())));
    }

    static DWORD Style();

    ts::AfxHost m_host{300, 160};
    Control m_control;
};

template <>
DWORD Checkable<CCheckBox>::Style()
{
    return BS_AUTOCHECKBOX;
}

template <>
DWORD Checkable<CRadioBox>::Style()
{
    return BS_AUTORADIOBUTTON;
}

using CheckBox = Checkable<CCheckBox>;
using RadioBox = Checkable<CRadioBox>;

/** What the label looks like beside the glyph. */
ts::Picture ExpectedLook(const ts::Picture& glyph, COLORREF colour, bool focus = false, const wchar_t* label = L"Text")
{
    const ts::Picture text = ts::DrawTo(
        120, 30,
        [&](HDC dc) {
            const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
            ::SetTextColor(dc, colour);
            ::SetBkMode(dc, TRANSPARENT);
            RECT rect = {19, 2, 118, 28};
            ::DrawTextW(dc, label, -1, &rect, DT_WORDBREAK | DT_EDITCONTROL);
            if (focus) {
                ::DrawTextW(dc, label, -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL);
                ::InflateRect(&rect, 1, 1);
                ::DrawFocusRect(dc, &rect);
            }
            ::SelectObject(dc, old);
        },
        kBody);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 120; ++x) {
            pixels.push_back(kGlyph.PtInRect(CPoint(x, y)) ? glyph.At(x - 2, y - 2) : text.At(x, y));
        }
    }
    return ts::Picture(120, 30, std::move(pixels));
}

TEST_F(CheckBox, ShowsBodyGlyphAndText)
{
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(CheckFrame(0), ::GetSysColor(COLOR_BTNTEXT)), Look(m_control)));
}

TEST_F(RadioBox, ShowsBodyGlyphAndText)
{
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(RadioFrame(0), ::GetSysColor(COLOR_BTNTEXT)), Look(m_control)));
}

template <class Control>
void ExpectGlyphOnly(Control& control, const ts::Picture& glyph)
{
    control.SetWindowText(L"");
    control.SetFocus();
    control.Invalidate();
    const ts::Picture look = Look(control);
    EXPECT_TRUE(ts::AreaIs(look, CRect(15, 0, 120, 30), kBody)) << "no focus rectangle either";
    EXPECT_TRUE(ts::SamePicture(glyph, look.Crop(kGlyph)));
}

TEST_F(CheckBox, WithoutTextShowsTheGlyphOnly)
{
    ExpectGlyphOnly(m_control, CheckFrame(0));
}

TEST_F(RadioBox, WithoutTextShowsTheGlyphOnly)
{
    ExpectGlyphOnly(m_control, RadioFrame(0));
}

/** Expects lines to be broken between words and inside long ones, and those that do not fit to be left out. */
template <class Control>
void ExpectLinesToBeBroken(Control& control, const ts::Picture& glyph)
{
    const COLORREF colour = ::GetSysColor(COLOR_BTNTEXT);
    const wchar_t* const labels[] = {L"some words of a &long label for two lines",
                                     L"Aword_that_is_wider_than_the_control and some others that do not fit"};
    control.SetFocus();
    for (const wchar_t* label : labels) {
        control.SetWindowText(label);
        control.Invalidate();
        EXPECT_TRUE(ts::SamePicture(ExpectedLook(glyph, colour, true, label), Look(control)));
    }
}

TEST_F(CheckBox, LongTextIsBroken)
{
    ExpectLinesToBeBroken(m_control, CheckFrame(0));
}

TEST_F(RadioBox, LongTextIsBroken)
{
    ExpectLinesToBeBroken(m_control, RadioFrame(0));
}

TEST_F(CheckBox, UsesTheFontOfTheControl)
{
    CFont font;
    font.CreatePointFont(140, L"Tahoma");
    m_control.SetFont(&font);
    m_control.Invalidate();
    EXPECT_GT(Look(m_control).Count(::GetSysColor(COLOR_BTNTEXT)), 20);
    EXPECT_FALSE(ts::SamePicture(ExpectedLook(CheckFrame(0), ::GetSysColor(COLOR_BTNTEXT)), Look(m_control)));
}

TEST_F(CheckBox, CheckedStateChoosesTheFrame)
{
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(ts::SamePicture(CheckFrame(3), Glyph()));
    m_control.SendMessage(BM_SETCHECK, BST_UNCHECKED);
    EXPECT_TRUE(ts::SamePicture(CheckFrame(0), Glyph()));
}

TEST_F(RadioBox, CheckedStateChoosesTheFrame)
{
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(RadioFrame(3), Glyph()));
    m_control.SendMessage(BM_SETCHECK, BST_UNCHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(RadioFrame(0), Glyph()));
}

TEST_F(CheckBox, IsHotWhileTheMouseIsOverIt)
{
    ts::MoveMouse(m_control);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(CheckFrame(1), Glyph()));
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(CheckFrame(4), Glyph()));
    ts::ParkMouse();
    EXPECT_TRUE(ts::PumpUntil([this] {
        m_control.Invalidate();
        return Glyph() == CheckFrame(3);
    }));
}

TEST_F(RadioBox, IsHotWhileTheMouseIsOverIt)
{
    ts::MoveMouse(m_control);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(RadioFrame(1), Glyph()));
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(RadioFrame(4), Glyph()));
    m_control.SendMessage(BM_SETCHECK, BST_UNCHECKED);
    ts::ParkMouse();
    EXPECT_TRUE(ts::PumpUntil([this] {
        m_control.Invalidate();
        return Glyph() == RadioFrame(0);
    }));
}

TEST_F(CheckBox, DisabledControlDrawsFrame2Or5AndGreyText)
{
    m_control.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(CheckFrame(2), ::GetSysColor(COLOR_GRAYTEXT)), Look(m_control)));
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(CheckFrame(5), ::GetSysColor(COLOR_GRAYTEXT)), Look(m_control)));
}

TEST_F(RadioBox, DisabledControlDrawsFrame2Or5AndGreyText)
{
    m_control.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(RadioFrame(2), ::GetSysColor(COLOR_GRAYTEXT)), Look(m_control)));
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(RadioFrame(5), ::GetSysColor(COLOR_GRAYTEXT)), Look(m_control)));
}

TEST_F(CheckBox, DisabledWinsOverHot)
{
    ts::MoveMouse(m_control);
    m_control.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(CheckFrame(2), Glyph()));
}

TEST_F(RadioBox, DisabledWinsOverHot)
{
    ts::MoveMouse(m_control);
    m_control.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(RadioFrame(2), Glyph()));
}

template <class Control>
void ExpectEnablingToRepaintEverything(Control& control)
{
    for (const BOOL enable : {FALSE, TRUE}) {
        ts::Validate(control);
        control.EnableWindow(enable);
        EXPECT_EQ(CRect(0, 0, 120, 30), ts::Dirty(control));
        EXPECT_FALSE(ts::IsErasedByUpdate(control));
        EXPECT_EQ(enable, ::IsWindowEnabled(control));
    }
}

TEST_F(CheckBox, EnablingRepaintsTheWholeControl)
{
    ExpectEnablingToRepaintEverything(m_control);
}

TEST_F(RadioBox, EnablingRepaintsTheWholeControl)
{
    ExpectEnablingToRepaintEverything(m_control);
}

TEST_F(CheckBox, EnableMessageAloneEnables)
{
    m_control.SendMessage(WM_ENABLE, FALSE);
    EXPECT_FALSE(::IsWindowEnabled(m_control));
    m_control.SendMessage(WM_ENABLE, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(m_control));
}

template <class Control>
void ExpectStateChangesToRepaintTheMark(Control& control)
{
    const auto dirtyAfter = [&control](UINT message, WPARAM wParam, LPARAM lParam) {
        ts::Validate(control);
        control.SendMessage(message, wParam, lParam);
        const CRect dirty = ts::Dirty(control);
        EXPECT_FALSE(ts::IsErasedByUpdate(control)) << ts::MessageName(message);
        return dirty;
    };
    const CRect mark(2, 2, 13, 13);
    EXPECT_EQ(mark, dirtyAfter(BM_SETCHECK, BST_CHECKED, 0));
    EXPECT_EQ(mark, dirtyAfter(BM_SETCHECK, BST_UNCHECKED, 0));
    EXPECT_EQ(mark, dirtyAfter(WM_MOUSELEAVE, 0, 0));
    EXPECT_EQ(mark, dirtyAfter(WM_LBUTTONUP, 0, MAKELPARAM(3, 3)));
    ts::MoveMouse(control);
    control.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(mark, dirtyAfter(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3)));
    EXPECT_EQ(CRect(0, 0, 0, 0), dirtyAfter(WM_MOUSEMOVE, 0, MAKELPARAM(4, 3))) << "hot already";
}

TEST_F(CheckBox, StateChangesRepaintTheMark)
{
    ExpectStateChangesToRepaintTheMark(m_control);
}

TEST_F(RadioBox, StateChangesRepaintTheMark)
{
    ExpectStateChangesToRepaintTheMark(m_control);
    ts::Validate(m_control);
    m_control.SendMessage(WM_LBUTTONUP); // checked since above
    EXPECT_EQ(CRect(0, 0, 0, 0), ts::Dirty(m_control)) << "nothing changes";
}

template <class Control>
void ExpectSwallowed(Control& control, std::initializer_list<UINT> messages)
{
    for (const UINT message : messages) {
        EXPECT_EQ(1, control.SendMessage(message, VK_SPACE)) << ts::MessageName(message);
    }
}

TEST_F(CheckBox, AnswersOneToWhatItSwallows)
{
    ExpectSwallowed(m_control, {WM_ERASEBKGND, WM_KEYDOWN, WM_CHAR, WM_UPDATEUISTATE, WM_LBUTTONDBLCLK, WM_SETFOCUS,
                                WM_KILLFOCUS, WM_MOUSELEAVE});
    EXPECT_FALSE(IsChecked());
}

TEST_F(RadioBox, AnswersOneToWhatItSwallows)
{
    ExpectSwallowed(m_control, {WM_ERASEBKGND, WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_UPDATEUISTATE, WM_LBUTTONDBLCLK,
                                WM_SETFOCUS, WM_KILLFOCUS, WM_MOUSELEAVE});
    EXPECT_FALSE(IsChecked());
    EXPECT_EQ(0u, Clicks());
}

TEST_F(CheckBox, SetCheckKnowsTwoStates)
{
    EXPECT_EQ(0, m_control.SendMessage(BM_GETCHECK));
    EXPECT_EQ(0, m_control.SendMessage(BM_SETCHECK, BST_CHECKED));
    EXPECT_EQ(1, m_control.SendMessage(BM_GETCHECK));
    EXPECT_EQ(0, m_control.SendMessage(BM_SETCHECK, BST_INDETERMINATE));
    EXPECT_EQ(0, m_control.SendMessage(BM_GETCHECK));
    EXPECT_TRUE(ts::SamePicture(CheckFrame(0), Glyph()));
    EXPECT_EQ(0u, Clicks());
}

TEST_F(CheckBox, ClickTogglesAndNotifies)
{
    ts::Click(m_control);
    EXPECT_TRUE(IsChecked());
    EXPECT_EQ(1u, Clicks());
    EXPECT_TRUE(m_host.Log().Has(
        ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, BN_CLICKED), reinterpret_cast<LPARAM>(m_control.m_hWnd))));
}

TEST_F(CheckBox, NewStateIsThereWhenTheParentIsNotified)
{
    bool checked = false;
    CRect dirty;
    ts::Validate(m_control);
    m_host.Log().Answer(WM_COMMAND, [&](const ts::Message&) -> std::optional<LRESULT> {
        checked = IsChecked();
        dirty = ts::Dirty(m_control);
        return {};
    });
    m_control.SendMessage(WM_LBUTTONUP);
    EXPECT_TRUE(checked);
    EXPECT_EQ(CRect(2, 2, 13, 13), dirty);
}

TEST_F(CheckBox, SecondClickUnchecks)
{
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    ts::Click(m_control);
    EXPECT_FALSE(IsChecked());
    EXPECT_EQ(1u, Clicks());
}

TEST_F(CheckBox, PressTakesTheFocusAndNoCapture)
{
    ExpectPressToTakeTheFocusOnly();
}

TEST_F(RadioBox, PressTakesTheFocusAndNoCapture)
{
    ExpectPressToTakeTheFocusOnly();
}

TEST_F(CheckBox, WhereTheButtonGoesUpDoesNotMatter)
{
    m_control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    m_control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-100, 400));
    EXPECT_TRUE(IsChecked());
}

TEST_F(CheckBox, DoubleClickTogglesOnce)
{
    ts::DoubleClick(m_control, 8, 8);
    EXPECT_TRUE(IsChecked());
    EXPECT_EQ(1u, Clicks());
    ts::Click(m_control);
    EXPECT_FALSE(IsChecked()) << "the next click counts again";
}

TEST_F(CheckBox, SpaceTogglesWhenItIsReleased)
{
    m_control.SetFocus();
    ts::KeyDown(VK_SPACE);
    EXPECT_FALSE(IsChecked());
    ts::KeyUp(VK_SPACE);
    EXPECT_TRUE(IsChecked());
    EXPECT_EQ(1u, Clicks());
}

TEST_F(CheckBox, OtherKeysDoNothing)
{
    m_control.SetFocus();
    ts::Key(VK_RETURN);
    ts::Key('X');
    EXPECT_FALSE(IsChecked());
    EXPECT_EQ(0u, Clicks());
}

TEST_F(RadioBox, SpaceDoesNothing)
{
    m_control.SetFocus();
    ts::Key(VK_SPACE);
    EXPECT_FALSE(IsChecked());
    EXPECT_EQ(0u, Clicks());
}

TEST_F(CheckBox, FocusDrawsItsRectangleAndLosingItRemovesIt)
{
    const ts::Picture unfocused = Look(m_control);
    m_control.SetFocus();
    const ts::Picture focused = Look(m_control);
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(CheckFrame(0), ::GetSysColor(COLOR_BTNTEXT), true), focused));
    m_host.SetFocus();
    EXPECT_TRUE(ts::SamePicture(unfocused, Look(m_control)));
}

TEST_F(CheckBox, FocusedControlPaintsItsRectangle)
{
    m_control.SetFocus();
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(CheckFrame(0), ::GetSysColor(COLOR_BTNTEXT), true), Look(m_control)));
}

TEST_F(RadioBox, FocusedControlPaintsItsRectangle)
{
    m_control.SetFocus();
    m_control.Invalidate();
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(RadioFrame(0), ::GetSysColor(COLOR_BTNTEXT), true), Look(m_control)));
}

TEST_F(RadioBox, FocusDrawsItsRectangleAndLosingItRemovesIt)
{
    const ts::Picture unfocused = Look(m_control);
    m_control.SetFocus();
    EXPECT_TRUE(ts::SamePicture(ExpectedLook(RadioFrame(0), ::GetSysColor(COLOR_BTNTEXT), true), Look(m_control)));
    m_host.SetFocus();
    EXPECT_TRUE(ts::SamePicture(unfocused, Look(m_control)));
}

TEST_F(CheckBox, SystemsOwnButtonStateIsNotUsed)
{
    m_control.SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(UINT{BST_CHECKED}, ::IsDlgButtonChecked(m_host, ts::kControlId));
    ::CheckDlgButton(m_host, ts::kControlId, BST_UNCHECKED);
    EXPECT_FALSE(IsChecked());
}

constexpr UINT kRadioIds[] = {21, 22, 23};
constexpr UINT kNextId = 24;

/** Three radio boxes in a group, between a text and a plain push button that begins the next group. */
class RadioGroup : public testing::Test
{
  protected:
    void SetUp() override
    {
        for (int i = 0; i < 3; ++i) {
            const DWORD style = BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP : 0);
            const HWND button =
                AddButton(m_host, L"Text", CRect(20, 10 + 30 * i, 140, 35 + 30 * i), kRadioIds[i], style);
            ASSERT_TRUE(m_radio[i].SubclassWindow(button));
        }
        m_next = AddButton(m_host, L"Next", CRect(150, 10, 200, 35), kNextId, BS_AUTORADIOBUTTON | WS_GROUP);
        ::SendMessageW(m_next, BM_SETCHECK, BST_CHECKED, 0);
        ts::ParkMouse();
    }

    bool IsChecked(int index) { return m_radio[index].SendMessage(BM_GETCHECK) == BST_CHECKED; }
    bool IsTabStop(int index) { return (m_radio[index].GetStyle() & WS_TABSTOP) != 0; }

    void ExpectOnly(int index)
    {
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(i == index, IsChecked(i)) << i;
            EXPECT_EQ(i == index, IsTabStop(i)) << i;
        }
    }

    ts::AfxHost m_host{300, 160};
    CRadioBox m_radio[3];
    HWND m_next = nullptr;
};

TEST_F(RadioGroup, CheckingOneUnchecksTheOthersAndMakesItTheOnlyTabStop)
{
    for (const int index : {1, 2, 0}) {
        EXPECT_EQ(0, m_radio[index].SendMessage(BM_SETCHECK, BST_CHECKED));
        ExpectOnly(index);
    }
}

TEST_F(RadioGroup, NextGroupIsLeftAlone)
{
    m_radio[1].SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(BST_CHECKED, ::SendMessageW(m_next, BM_GETCHECK, 0, 0));
    EXPECT_TRUE(::GetWindowLongPtrW(m_next, GWL_STYLE) & WS_TABSTOP);
}

TEST_F(RadioGroup, UncheckingLeavesTheOthersAlone)
{
    m_radio[1].SendMessage(BM_SETCHECK, BST_CHECKED);
    m_radio[0].SendMessage(BM_SETCHECK, BST_UNCHECKED);
    ExpectOnly(1);
    m_radio[1].SendMessage(BM_SETCHECK, BST_UNCHECKED);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(IsChecked(i));
    }
    EXPECT_TRUE(IsTabStop(1));
}

TEST_F(RadioGroup, SetCheckSendsNoNotification)
{
    m_radio[1].SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_FALSE(m_host.Log().Has(ts::Command(kRadioIds[1], BN_CLICKED)));
}

TEST_F(RadioGroup, IndeterminateCountsAsUnchecked)
{
    m_radio[1].SendMessage(BM_SETCHECK, BST_INDETERMINATE);
    EXPECT_FALSE(IsChecked(1));
}

TEST_F(RadioGroup, ClickChecksAndNotifies)
{
    m_radio[0].SendMessage(BM_SETCHECK, BST_CHECKED);
    ts::Click(m_radio[2]);
    ExpectOnly(2);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Command(kRadioIds[2], BN_CLICKED)));
    EXPECT_EQ(m_radio[2].m_hWnd, ::GetFocus());
}

TEST_F(RadioGroup, WholeGroupIsChangedWhenTheParentIsNotified)
{
    m_radio[0].SendMessage(BM_SETCHECK, BST_CHECKED);
    int notifications = 0;
    m_host.Log().Answer(WM_COMMAND, [&](const ts::Message&) -> std::optional<LRESULT> {
        ++notifications;
        ExpectOnly(2);
        return {};
    });
    m_radio[2].SendMessage(WM_LBUTTONUP);
    EXPECT_EQ(1, notifications);
}

TEST_F(RadioGroup, ClickOnACheckedOneNotifiesAgainWithoutChange)
{
    ts::Click(m_radio[2]);
    ts::Click(m_radio[2], 60, 12);
    ExpectOnly(2);
    EXPECT_EQ(2u, m_host.Log().Count(ts::Command(kRadioIds[2], BN_CLICKED)));
}

TEST_F(RadioGroup, OwnerDrawnButtonsOfTheGroupAreUncheckedToo)
{
    m_radio[2].ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
    m_radio[2].SendMessage(BM_SETCHECK, BST_CHECKED);
    m_radio[0].SendMessage(BM_SETCHECK, BST_CHECKED);
    ExpectOnly(0);
}

TEST_F(RadioGroup, ControlsWithOneOfTheStyleBitsAreUncheckedToo)
{
    for (const DWORD type : {BS_AUTOCHECKBOX, BS_USERBUTTON}) { // 3 and 8
        m_radio[2].ModifyStyle(BS_TYPEMASK, type);
        m_radio[2].SendMessage(BM_SETCHECK, BST_CHECKED);
        m_radio[0].SendMessage(BM_SETCHECK, BST_CHECKED);
        ExpectOnly(0);
    }
}

TEST_F(RadioGroup, ControlsWithoutEitherStyleBitAreSkipped)
{
    m_radio[2].ModifyStyle(BS_TYPEMASK, BS_RADIOBUTTON); // 4: neither bit 0 nor bit 3
    m_radio[2].SendMessage(BM_SETCHECK, BST_CHECKED);
    m_radio[0].SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(IsChecked(2));
    EXPECT_TRUE(IsTabStop(2));
    EXPECT_FALSE(IsChecked(1));
}

TEST_F(RadioGroup, DisabledOrHiddenOneCanBeCheckedWithoutAnEndlessWalk)
{
    m_radio[1].EnableWindow(FALSE);
    m_radio[1].SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(IsChecked(1));
    m_radio[2].ShowWindow(SW_HIDE);
    m_radio[2].SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(IsChecked(2));
    EXPECT_FALSE(IsChecked(0));
}

template <class Control>
void ExpectNoHarmWithoutWindow(Control& control, const ts::Picture& glyph)
{
    const ts::Picture picture = ts::DrawTo(
        120, 30,
        [&](HDC dc) {
            control.DrawCheck(*CDC::FromHandle(dc), 0);
            control.DrawText(*CDC::FromHandle(dc), 3, 0);
        },
        kBody);
    EXPECT_TRUE(ts::SamePicture(glyph, picture.Crop(kGlyph)));
    EXPECT_TRUE(ts::AreaIs(picture, CRect(15, 0, 120, 30), kBody));
    control.DrawFocus();
}

TEST_F(CheckBox, WithoutWindowItHasAGlyphAndNoText)
{
    CCheckBox none;
    ExpectNoHarmWithoutWindow(none, CheckFrame(0));
    m_control.DestroyWindow();
    ExpectNoHarmWithoutWindow(m_control, CheckFrame(0));
}

TEST_F(RadioBox, WithoutWindowItHasAGlyphAndNoTextAndNoGroup)
{
    CRadioBox none;
    ExpectNoHarmWithoutWindow(none, RadioFrame(0));
    none.UncheckOtherRadio();
    m_control.DestroyWindow();
    ExpectNoHarmWithoutWindow(m_control, RadioFrame(0));
    m_control.UncheckOtherRadio();
}

TEST_F(CheckBox, ParentMayDestroyItOnAClick)
{
    ExpectParentMayDestroyIt();
}

TEST_F(RadioBox, ParentMayDestroyItOnAClick)
{
    ExpectParentMayDestroyIt();
}

TEST_F(CheckBox, ParentMayDeleteItOnAClick)
{
    m_control.DestroyWindow();
    alignas(CCheckBox) unsigned char memory[sizeof(CCheckBox)];
    auto* control = new (memory) CCheckBox;
    Take(*control);
    const HWND window = control->m_hWnd;
    m_host.Log().Answer(WM_COMMAND, [&](const ts::Message&) -> std::optional<LRESULT> {
        control->DestroyWindow();
        control->~CCheckBox();
        memset(memory, 0xDD, sizeof(memory));
        return {};
    });
    ::SendMessageW(window, WM_LBUTTONUP, 0, 0);
    EXPECT_TRUE(std::all_of(std::begin(memory), std::end(memory), [](unsigned char byte) { return byte == 0xDD; }))
        << "written to afterwards";
}

TEST_F(CheckBox, NewWindowIsColdAfterOneThatWentUnderTheMouse)
{
    ExpectNewWindowToBeCold(m_control, [this] { Take(m_control); });
}

TEST_F(RadioBox, NewWindowIsColdAfterOneThatWentUnderTheMouse)
{
    ExpectNewWindowToBeCold(m_control, [this] { Take(m_control); });
}

TEST_F(CheckBox, NewWindowKnowsNothingOfADoubleClickOnTheFormerOne)
{
    m_control.SendMessage(WM_LBUTTONDBLCLK);
    m_control.DestroyWindow();
    Take(m_control);
    m_control.SendMessage(WM_LBUTTONUP);
    EXPECT_TRUE(IsChecked());
}

TEST_F(CheckBox, StaysColdWithoutLeaveNotification)
{
    ExpectColdWithoutLeaveNotification(m_control, CRect(2, 2, 13, 13));
}

TEST_F(RadioBox, StaysColdWithoutLeaveNotification)
{
    ExpectColdWithoutLeaveNotification(m_control, CRect(2, 2, 13, 13));
}

TEST_F(CheckBox, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CCheckBox check;
        check.SubclassWindow(AddButton(m_host, L"Text", CRect(20, 60, 140, 80), ts::kOtherId, BS_AUTOCHECKBOX));
        CRadioBox radio;
        radio.SubclassWindow(AddButton(m_host, L"Text", CRect(20, 90, 140, 110), ts::kOtherId, BS_AUTORADIOBUTTON));
        check.SetFocus();
        check.SendMessage(BM_SETCHECK, BST_CHECKED);
        radio.SendMessage(BM_SETCHECK, BST_CHECKED);
        radio.EnableWindow(FALSE);
        check.RedrawWindow();
        radio.RedrawWindow();
        check.DestroyWindow();
        radio.DestroyWindow();
    }));
}

} // namespace
