#include "Inputs.h"

#include <QorUI/inputs/IntEdit.h>
#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <climits>

namespace
{

/** A number edit with the range from 0 to 100 and the value 50. */
class IntEdit : public testing::Test
{
  protected:
    void SetUp() override { Take(); }

    void Take(DWORD style = 0)
    {
        if (m_edit.m_hWnd) {
            m_edit.DestroyWindow();
        }
        ASSERT_TRUE(m_edit.SubclassWindow(AddSystem(m_host, L"EDIT", style)));
        m_edit.SetRange(0, 100, 50);
        m_edit.SetFocus();
        m_edit.SetSel(0, -1);
        m_host.Log().Clear();
    }

    HWND Spin() const { return ::GetDlgItem(m_edit, 1); }

    void ClickSpin(bool up)
    {
        CRect rect;
        ::GetClientRect(Spin(), &rect);
        ts::Click(Spin(), rect.Width() / 2, up ? rect.Height() / 4 : rect.Height() * 3 / 4);
    }

    size_t Changes()
    {
        return m_host.Log().Count(
            ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, EN_CHANGE), reinterpret_cast<LPARAM>(m_edit.m_hWnd)));
    }

    ts::AfxHost m_host{200, 100};
    CIntEdit m_edit;
};

TEST_F(IntEdit, StartsWithTheRangeZeroToZero)
{
    CIntEdit edit;
    int minimum = 7;
    EXPECT_EQ(0, edit.GetRange(&minimum));
    EXPECT_EQ(0, minimum);
}

TEST_F(IntEdit, RangeIsGivenBack)
{
    int minimum = 7;
    m_edit.SetRange(-3, 42, 0);
    EXPECT_EQ(42, m_edit.GetRange(&minimum));
    EXPECT_EQ(-3, minimum);
    EXPECT_EQ(42, m_edit.GetRange(nullptr));
}

TEST_F(IntEdit, RangeLimitsTheTextToTheLengthOfTheMaximum)
{
    EXPECT_EQ(3u, m_edit.GetLimitText());
    m_edit.SetRange(1, 5, 1);
    EXPECT_EQ(1u, m_edit.GetLimitText());
    m_edit.SetRange(-1000, 99, 1);
    EXPECT_EQ(2u, m_edit.GetLimitText()) << "the minimum is not counted";
    m_edit.SetRange(-1000, -10, -10);
    EXPECT_EQ(3u, m_edit.GetLimitText());
}

TEST_F(IntEdit, RangeTheWrongWayRoundIsIgnored)
{
    m_edit.SetRange(5, 4, 4);
    int minimum = 7;
    EXPECT_EQ(100, m_edit.GetRange(&minimum));
    EXPECT_EQ(0, minimum);
    EXPECT_EQ(3u, m_edit.GetLimitText());
    EXPECT_STREQ(L"50", ts::TextOf(m_edit));
}

TEST_F(IntEdit, SingleNumberIsARange)
{
    m_edit.SetRange(8, 8, 3);
    EXPECT_STREQ(L"8", ts::TextOf(m_edit));
}

TEST_F(IntEdit, ValueIsClampedIntoTheRange)
{
    m_edit.SetValue(101);
    EXPECT_STREQ(L"100", ts::TextOf(m_edit));
    m_edit.SetValue(INT_MIN);
    EXPECT_STREQ(L"0", ts::TextOf(m_edit));
    m_edit.SetRange(-20, -10, -15);
    EXPECT_STREQ(L"-15", ts::TextOf(m_edit));
    EXPECT_EQ(-15, m_edit.GetValue());
}

TEST_F(IntEdit, ValueIsReadAsItStands)
{
    m_edit.SetWindowText(L"999");
    EXPECT_EQ(999, m_edit.GetValue());
    m_edit.SetWindowText(L"x");
    EXPECT_EQ(0, m_edit.GetValue());
    m_edit.SetWindowText(L"");
    EXPECT_EQ(0, m_edit.GetValue());
    m_edit.SetWindowText(L"12x");
    EXPECT_EQ(12, m_edit.GetValue());
}

TEST_F(IntEdit, TakesDigitsOnly)
{
    EXPECT_TRUE(m_edit.GetStyle() & ES_NUMBER);
    ts::Type(L"1a-2");
    EXPECT_STREQ(L"12", ts::TextOf(m_edit));
}

TEST_F(IntEdit, CreatedOneTakesDigitsOnlyToo)
{
    CIntEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 60, 70), &m_host, ts::kOtherId));
    edit.SetRange(0, 100, 0);
    EXPECT_TRUE(edit.GetStyle() & ES_NUMBER);
    edit.SetFocus();
    edit.SetSel(0, -1);
    ts::Type(L"a4");
    EXPECT_STREQ(L"4", ts::TextOf(edit));
}

TEST_F(IntEdit, TypedNumberIsClampedAtEveryKey)
{
    ts::Type(L"10");
    EXPECT_STREQ(L"10", ts::TextOf(m_edit));
    ts::Type(L"9");
    EXPECT_STREQ(L"100", ts::TextOf(m_edit));
}

TEST_F(IntEdit, FirstDigitBelowTheMinimumBecomesTheMinimum)
{
    m_edit.SetRange(5, 20, 10);
    m_edit.SetSel(0, -1);
    ts::Type(L"1");
    EXPECT_STREQ(L"5", ts::TextOf(m_edit));
}

TEST_F(IntEdit, EmptiedTextBecomesAMinimumAboveZero)
{
    m_edit.SetRange(5, 20, 7);
    m_edit.SetSel(0, -1);
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"5", ts::TextOf(m_edit));
}

TEST_F(IntEdit, NextDigitStandsBehindAClampedNumber)
{
    m_edit.SetRange(5, 120, 5);
    m_edit.SetSel(0, -1);
    ts::Key('1'); // below the minimum: 5
    ts::Key('7');
    EXPECT_STREQ(L"57", ts::TextOf(m_edit));
    m_edit.SetWindowText(L"3");
    m_edit.SetSel(0, 0);
    ts::Key(VK_DELETE);
    ts::Key('2');
    EXPECT_STREQ(L"52", ts::TextOf(m_edit));
}

TEST_F(IntEdit, NumberInsideTheRangeIsNotRewritten)
{
    ts::Type(L"007");
    EXPECT_STREQ(L"007", ts::TextOf(m_edit));
}

TEST_F(IntEdit, DeletingBelowTheMinimumGivesTheMinimum)
{
    m_edit.SetRange(5, 20, 12);
    m_edit.SetSel(0, 0);
    ts::KeyDown(VK_DELETE);
    EXPECT_STREQ(L"2", ts::TextOf(m_edit)) << "checked when the key goes up";
    ts::KeyUp(VK_DELETE);
    EXPECT_STREQ(L"5", ts::TextOf(m_edit));
}

TEST_F(IntEdit, DeletingInsideTheRangeChangesNothingElse)
{
    m_edit.SetSel(0, 1);
    ts::Key(VK_DELETE);
    EXPECT_STREQ(L"0", ts::TextOf(m_edit));
}

TEST_F(IntEdit, DeletingAboveTheMaximumChangesNothing)
{
    m_edit.SetWindowText(L"999");
    m_edit.SetSel(3, 3);
    ts::Key(VK_DELETE);
    EXPECT_STREQ(L"999", ts::TextOf(m_edit));
}

TEST_F(IntEdit, OnlyDeleteIsCheckedWhenAKeyGoesUp)
{
    m_edit.SetRange(5, 20, 12);
    m_edit.SetWindowText(L"1");
    ts::Key(VK_HOME);
    EXPECT_STREQ(L"1", ts::TextOf(m_edit));
}

TEST_F(IntEdit, EnterClicksAsAButtonWhenItWantsReturn)
{
    Take(ES_WANTRETURN);
    ts::Key(VK_RETURN);
    EXPECT_EQ(1u, m_host.Log().Count(ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, 0), 0)));
}

TEST_F(IntEdit, EnterDoesNothingWithoutWantReturn)
{
    ts::Key(VK_RETURN);
    EXPECT_FALSE(m_host.Log().Has(ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, 0), 0)));
}

TEST_F(IntEdit, EnterDoesNothingWithASpin)
{
    Take(ES_WANTRETURN);
    ASSERT_TRUE(m_edit.AddSpin());
    ts::Key(VK_RETURN);
    EXPECT_FALSE(m_host.Log().Has(ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, 0), 0)));
}

/** Notes what has been done already when the system's handler gets a released key. */
class CKeyNotingEdit : public CIntEdit
{
  public:
    explicit CKeyNotingEdit(ts::AfxHost& host) : m_host(host) {}

    int keys = 0;
    CString text;
    bool clicked = false;

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KEYUP) {
            ++keys;
            text = ts::TextOf(*this);
            clicked = m_host.Log().Has(ts::Msg(WM_COMMAND, MAKEWPARAM(ts::kControlId, 0), 0));
        }
        return CIntEdit::DefWindowProc(message, wParam, lParam);
    }

  private:
    ts::AfxHost& m_host;
};

TEST_F(IntEdit, DefaultHandlerGetsAReleasedKeyLast)
{
    CKeyNotingEdit edit(m_host);
    ASSERT_TRUE(edit.SubclassWindow(AddSystem(m_host, L"EDIT", ES_WANTRETURN)));
    edit.SetRange(5, 20, 12);
    edit.SetWindowText(L"2");
    edit.SendMessage(WM_KEYUP, VK_DELETE);
    EXPECT_EQ(1, edit.keys);
    EXPECT_STREQ(L"5", edit.text);
    EXPECT_FALSE(edit.clicked);
    edit.SendMessage(WM_KEYUP, VK_RETURN);
    EXPECT_EQ(2, edit.keys);
    EXPECT_TRUE(edit.clicked);
    edit.SendMessage(WM_KEYUP, VK_HOME);
    EXPECT_EQ(3, edit.keys);
}

LRESULT DlgCode(CIntEdit& edit, UINT message, WPARAM key)
{
    MSG asked = {edit.m_hWnd, message, key, 0, 0, {0, 0}};
    return edit.SendMessage(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&asked));
}

TEST_F(IntEdit, TakesEnterFromTheDialogWhenItWantsReturn)
{
    const LRESULT usual = m_edit.SendMessage(WM_GETDLGCODE);
    EXPECT_NE(DLGC_WANTALLKEYS, usual);
    EXPECT_EQ(usual, DlgCode(m_edit, WM_KEYDOWN, VK_RETURN));
    Take(ES_WANTRETURN);
    EXPECT_EQ(DLGC_WANTALLKEYS, DlgCode(m_edit, WM_KEYDOWN, VK_RETURN));
    EXPECT_EQ(usual, DlgCode(m_edit, WM_KEYUP, VK_RETURN));
    EXPECT_EQ(usual, DlgCode(m_edit, WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(usual, m_edit.SendMessage(WM_GETDLGCODE, VK_RETURN, 0));
    ASSERT_TRUE(m_edit.AddSpin());
    EXPECT_NE(DLGC_WANTALLKEYS, DlgCode(m_edit, WM_KEYDOWN, VK_RETURN));
}

TEST_F(IntEdit, SpinStandsInTheRightEnd)
{
    ASSERT_TRUE(m_edit.AddSpin());
    EXPECT_TRUE(m_edit.GetStyle() & ES_MULTILINE);
    ASSERT_NE(nullptr, Spin());
    CRect client;
    m_edit.GetClientRect(&client);
    CRect spin;
    ::GetWindowRect(Spin(), &spin);
    m_edit.ScreenToClient(&spin);
    EXPECT_EQ(CRect(client.right - 16, 0, client.right, client.bottom), spin);
    const LONG_PTR style = ::GetWindowLongPtrW(Spin(), GWL_STYLE);
    EXPECT_EQ(0x50000081, style & ~LONG_PTR{WS_CLIPSIBLINGS | WS_CLIPCHILDREN});
}

TEST_F(IntEdit, FormattingRectangleKeepsClearOfTheSpin)
{
    Take(ES_MULTILINE);
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_SETRECT});
    CRect set;
    log.Answer(EM_SETRECT, [&set](const ts::Message& message) -> std::optional<LRESULT> {
        set = *reinterpret_cast<const RECT*>(message.lParam);
        return std::nullopt;
    });
    ASSERT_TRUE(m_edit.AddSpin());
    CRect client;
    m_edit.GetClientRect(&client);
    EXPECT_EQ(CRect(0, 1, client.right - 18, client.bottom), set);
}

TEST_F(IntEdit, IsMultiLineBeforeItGetsItsFormattingRectangle)
{
    ts::MessageRecorder log(m_edit);
    LONG_PTR style = 0;
    log.Answer(EM_SETRECT, [&style](const ts::Message& message) -> std::optional<LRESULT> {
        style = ::GetWindowLongPtrW(message.window, GWL_STYLE);
        return std::nullopt;
    });
    ASSERT_TRUE(m_edit.AddSpin());
    EXPECT_TRUE(style & ES_MULTILINE);
}

TEST_F(IntEdit, SecondSpinIsRefused)
{
    ASSERT_TRUE(m_edit.AddSpin());
    EXPECT_FALSE(m_edit.AddSpin());
    EXPECT_FALSE(CIntEdit().AddSpin());
}

TEST_F(IntEdit, SpinChangesTheValueByOne)
{
    ASSERT_TRUE(m_edit.AddSpin());
    ClickSpin(true);
    EXPECT_STREQ(L"51", ts::TextOf(m_edit));
    ClickSpin(false);
    ClickSpin(false);
    EXPECT_STREQ(L"49", ts::TextOf(m_edit));
}

TEST_F(IntEdit, SpinWrapsAroundAtTheEnds)
{
    ASSERT_TRUE(m_edit.AddSpin());
    m_edit.SetValue(100);
    ClickSpin(true);
    EXPECT_STREQ(L"0", ts::TextOf(m_edit));
    ClickSpin(false);
    EXPECT_STREQ(L"100", ts::TextOf(m_edit));
}

TEST_F(IntEdit, SpinReachesBothEndsBeforeItWraps)
{
    ASSERT_TRUE(m_edit.AddSpin());
    m_edit.SetValue(99);
    ClickSpin(true);
    EXPECT_STREQ(L"100", ts::TextOf(m_edit));
    m_edit.SetValue(1);
    ClickSpin(false);
    EXPECT_STREQ(L"0", ts::TextOf(m_edit));
}

TEST_F(IntEdit, SpinWrapsFromATextOutsideTheRange)
{
    ASSERT_TRUE(m_edit.AddSpin());
    m_edit.SetWindowText(L"500");
    ClickSpin(false);
    EXPECT_STREQ(L"0", ts::TextOf(m_edit));
}

LRESULT Step(CIntEdit& edit, int delta, LRESULT* answer = nullptr)
{
    NMUPDOWN step = {{::GetDlgItem(edit, 1), 1, static_cast<UINT>(UDN_DELTAPOS)}, 0, delta};
    const LRESULT result = edit.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&step));
    if (answer) {
        *answer = result;
    }
    return result;
}

TEST_F(IntEdit, SpinMayMoveByMoreThanOne)
{
    ASSERT_TRUE(m_edit.AddSpin());
    EXPECT_EQ(0, Step(m_edit, -5));
    EXPECT_EQ(55, m_edit.GetValue());
    EXPECT_EQ(0, Step(m_edit, 10));
    EXPECT_EQ(45, m_edit.GetValue());
}

TEST_F(IntEdit, StepsAtTheLimitsOfTheTypeWrapToo)
{
    m_edit.SetRange(INT_MIN, INT_MAX, INT_MAX);
    ASSERT_TRUE(m_edit.AddSpin());
    Step(m_edit, -1);
    EXPECT_EQ(INT_MIN, m_edit.GetValue());
    Step(m_edit, 1);
    EXPECT_EQ(INT_MAX, m_edit.GetValue());
    Step(m_edit, INT_MIN);
    EXPECT_EQ(INT_MIN, m_edit.GetValue());
}

TEST_F(IntEdit, ParentOfAMultiLineOneIsToldOfSetValues)
{
    Take(ES_MULTILINE);
    m_edit.SetValue(20);
    EXPECT_EQ(1u, Changes());
    m_edit.SetRange(0, 9, 3);
    EXPECT_EQ(2u, Changes());
}

TEST_F(IntEdit, WithASpinTheParentIsToldOfSetValues)
{
    ASSERT_TRUE(m_edit.AddSpin());
    m_host.Log().Clear();
    m_edit.SetValue(20);
    EXPECT_EQ(2u, Changes()) << "by the edit control, which was made with one line, and for the style it has since";
    m_edit.SetRange(0, 9, 3);
    EXPECT_EQ(4u, Changes());
}

TEST_F(IntEdit, WithoutASpinTheParentIsToldOnce)
{
    m_edit.SetValue(20);
    EXPECT_EQ(1u, Changes()) << "by the edit control itself";
}

TEST_F(IntEdit, ParentMayDestroyItWhenEnterIsPressed)
{
    Take(ES_WANTRETURN);
    m_host.Log().Answer(WM_COMMAND, [this](const ts::Message& message) -> std::optional<LRESULT> {
        if (message.wParam == ts::kControlId && message.lParam == 0) {
            m_edit.DestroyWindow();
        }
        return std::nullopt;
    });
    ts::Key(VK_RETURN);
    EXPECT_EQ(nullptr, m_edit.m_hWnd);
}

TEST_F(IntEdit, ParentMayDestroyItWhenTheValueChanges)
{
    Take(ES_MULTILINE);
    ASSERT_TRUE(m_edit.AddSpin());
    m_host.Log().Answer(WM_COMMAND, [this](const ts::Message& message) -> std::optional<LRESULT> {
        if (message.wParam == MAKEWPARAM(ts::kControlId, EN_CHANGE) && m_edit.m_hWnd) {
            m_edit.DestroyWindow();
        }
        return std::nullopt;
    });
    ClickSpin(true);
    EXPECT_EQ(nullptr, m_edit.m_hWnd);
}

TEST_F(IntEdit, HugeNumbersInTheTextAreClamped)
{
    m_edit.SetLimitText(10000);
    m_edit.SetWindowText(CString(L'9', 5000));
    m_edit.SetSel(5000, 5000);
    ts::Type(L"9");
    const int value = m_edit.GetValue();
    EXPECT_TRUE(value >= 0 && value <= 100) << value;
}

TEST_F(IntEdit, SpinThatCannotBeMadeIsTold)
{
    const ts::ReplacedImport none(L"afx.dll", "CreateWindowExW", &ts::NoWindow);
    EXPECT_FALSE(m_edit.AddSpin());
}

TEST_F(IntEdit, SpinWritesEveryStepOnceToTheParent)
{
    Take(ES_MULTILINE);
    ASSERT_TRUE(m_edit.AddSpin());
    ClickSpin(true);
    EXPECT_EQ(1u, Changes());
}

TEST_F(IntEdit, TextMayBeLeftEmptyAtAMinimumOfZero)
{
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"", ts::TextOf(m_edit));
}

TEST_F(IntEdit, WithoutAWindowOnlyTheRangeIsKept)
{
    CIntEdit edit;
    edit.SetRange(3, 7, 5);
    edit.SetValue(6);
    EXPECT_EQ(0, edit.GetValue());
    EXPECT_EQ(7, edit.GetRange(nullptr));
    EXPECT_FALSE(edit.Create(WS_CHILD, CRect(0, 0, 10, 10), nullptr, ts::kOtherId));
}

TEST_F(IntEdit, PaintsItsBorderFlat)
{
    EXPECT_TRUE(HasFlatBorder(m_edit));
}

TEST_F(IntEdit, SpinStaysVisibleWhileTyping)
{
    Take(ES_MULTILINE);
    ASSERT_TRUE(m_edit.AddSpin());
    const ts::Picture before = ts::LookOf(m_edit);
    CRect spin(before.Width() - 16, 0, before.Width(), before.Height());
    ts::Type(L"7");
    const ts::Picture after = ts::CaptureWindow(m_edit);
    EXPECT_TRUE(ts::SamePicture(before.Crop(spin), after.Crop(spin)));
}

TEST_F(IntEdit, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CIntEdit edit;
        edit.SubclassWindow(AddSystem(m_host, L"EDIT", ES_MULTILINE, WS_EX_CLIENTEDGE, {10, 50, 60, 70}));
        edit.SetRange(0, 9, 3);
        edit.AddSpin();
        ts::FrameOf(edit);
        edit.DestroyWindow();
    }));
}

} // namespace
