#include "TestDialogs.h"

#include <tests/support/Imports.h>

#include <algorithm>

namespace
{

// IDC_FIRST, IDC_SECOND and IDC_THIRD exist, and nothing between the last two.
constexpr UINT kFirst = IDC_FIRST;
constexpr UINT kLast = IDC_THIRD;

class Layout : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Create(IDD_PLAIN)); }

    CRect RectOf(UINT id)
    {
        CRect rect;
        EXPECT_TRUE(QorGetCtrlRect(&m_dialog, id, rect));
        return rect;
    }
    bool Enabled(UINT id) { return ::IsWindowEnabled(::GetDlgItem(m_dialog, static_cast<int>(id))) != FALSE; }
    bool Shown(UINT id)
    {
        return (::GetWindowLongW(::GetDlgItem(m_dialog, static_cast<int>(id)), GWL_STYLE) & WS_VISIBLE) != 0;
    }

    CTestBaseDlg m_dialog;
};

TEST_F(Layout, RectangleIsInTheParentsClientCoordinates)
{
    CRect expected(10, 20, 110, 30);
    m_dialog.MapDialogRect(expected);
    EXPECT_EQ(expected, RectOf(kFirst));
}

TEST_F(Layout, RectangleOfAMissingControlIsUntouched)
{
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(QorGetCtrlRect(&m_dialog, kNoSuchId, rect));
    EXPECT_FALSE(QorGetCtrlRect(nullptr, kFirst, rect));
    EXPECT_EQ(CRect(1, 2, 3, 4), rect);
}

TEST_F(Layout, EnablesTheWholeRangeWithItsEnds)
{
    QorEnableCtrls(&m_dialog, kFirst, kLast, FALSE);
    EXPECT_FALSE(Enabled(IDC_FIRST));
    EXPECT_FALSE(Enabled(IDC_SECOND));
    EXPECT_FALSE(Enabled(IDC_THIRD));
    EXPECT_TRUE(Enabled(IDC_EDIT));
    QorEnableCtrls(&m_dialog, kFirst, IDC_SECOND, TRUE);
    EXPECT_TRUE(Enabled(IDC_SECOND));
    EXPECT_FALSE(Enabled(IDC_THIRD));
}

TEST_F(Layout, AReversedRangeIsEmpty)
{
    QorEnableCtrls(&m_dialog, kLast, kFirst, FALSE);
    QorShowCtrls(&m_dialog, kLast, kFirst, FALSE);
    EXPECT_TRUE(Enabled(IDC_FIRST));
    EXPECT_TRUE(Shown(IDC_FIRST));
}

TEST_F(Layout, TheWidestRangeEnds)
{
    QorEnableCtrls(&m_dialog, 0, 0xFFFFFFFF, FALSE);
    EXPECT_FALSE(Enabled(IDC_EDIT));
}

TEST_F(Layout, EnablesListedControlsOnly)
{
    QorEnableCtrlsV(&m_dialog, FALSE, 2, IDC_FIRST, IDC_THIRD);
    EXPECT_FALSE(Enabled(IDC_FIRST));
    EXPECT_TRUE(Enabled(IDC_SECOND));
    EXPECT_FALSE(Enabled(IDC_THIRD));
}

TEST_F(Layout, AListOfNoneOrFewerChangesNothing)
{
    QorEnableCtrlsV(&m_dialog, FALSE, 0, IDC_FIRST);
    QorEnableCtrlsV(&m_dialog, FALSE, -1, IDC_FIRST);
    EXPECT_TRUE(Enabled(IDC_FIRST));
}

TEST_F(Layout, ListSkipsMissingControls)
{
    QorEnableCtrlsV(&m_dialog, FALSE, 3, IDC_FIRST, kNoSuchId, IDC_THIRD);
    EXPECT_FALSE(Enabled(IDC_THIRD));
}

std::vector<int> g_enabled; // ids, in the order of the calls

BOOL WINAPI RecordEnable(HWND wnd, BOOL enable)
{
    g_enabled.push_back(::GetDlgCtrlID(wnd));
    return ::EnableWindow(wnd, enable);
}

TEST_F(Layout, ListIsDoneInItsOrder)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "EnableWindow", &RecordEnable);
    g_enabled.clear();
    QorEnableCtrlsV(&m_dialog, FALSE, 3, IDC_THIRD, IDC_FIRST, IDC_SECOND);
    EXPECT_EQ((std::vector<int>{IDC_THIRD, IDC_FIRST, IDC_SECOND}), g_enabled);
}

TEST_F(Layout, ListEnablesToo)
{
    QorEnableCtrls(&m_dialog, kFirst, kLast, FALSE);
    QorEnableCtrlsV(&m_dialog, TRUE, 1, IDC_SECOND);
    EXPECT_FALSE(Enabled(IDC_FIRST));
    EXPECT_TRUE(Enabled(IDC_SECOND));
}

std::vector<int> g_shown; // the show commands

BOOL WINAPI RecordShow(HWND wnd, int command)
{
    g_shown.push_back(command);
    return ::ShowWindow(wnd, command);
}

TEST_F(Layout, ShowsAsNormalWindows)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "ShowWindow", &RecordShow);
    g_shown.clear();
    QorShowCtrls(&m_dialog, IDC_FIRST, IDC_FIRST, FALSE);
    QorShowCtrls(&m_dialog, IDC_FIRST, IDC_FIRST, 17);
    QorMoveCtrls(&m_dialog, IDC_FIRST, IDC_FIRST, 1, 1);
    EXPECT_EQ((std::vector<int>{SW_HIDE, SW_SHOWNORMAL, SW_SHOWNORMAL}), g_shown);
}

std::vector<BOOL> g_repaints;

BOOL WINAPI RecordMove(HWND wnd, int x, int y, int cx, int cy, BOOL repaint)
{
    g_repaints.push_back(repaint);
    return ::MoveWindow(wnd, x, y, cx, cy, repaint);
}

TEST_F(Layout, MovedControlsAreRepainted)
{
    const ts::ReplacedImport hook(L"QorUI.dll", "MoveWindow", &RecordMove);
    g_repaints.clear();
    QorMoveCtrls(&m_dialog, IDC_FIRST, IDC_SECOND, 5, 0);
    EXPECT_EQ((std::vector<BOOL>{TRUE, TRUE}), g_repaints);
}

std::vector<std::string> g_steps;

BOOL WINAPI NoteMove(HWND wnd, int x, int y, int cx, int cy, BOOL repaint)
{
    g_steps.push_back("move");
    return ::MoveWindow(wnd, x, y, cx, cy, repaint);
}

BOOL WINAPI NoteShow(HWND wnd, int command)
{
    g_steps.push_back("show");
    return ::ShowWindow(wnd, command);
}

TEST_F(Layout, EachControlIsMovedBeforeItIsShown)
{
    const ts::ReplacedImport moves(L"QorUI.dll", "MoveWindow", &NoteMove);
    const ts::ReplacedImport shows(L"QorUI.dll", "ShowWindow", &NoteShow);
    g_steps.clear();
    QorMoveCtrls(&m_dialog, IDC_FIRST, IDC_SECOND, 5, 0);
    EXPECT_EQ((std::vector<std::string>{"move", "show", "move", "show"}), g_steps);
}

TEST_F(Layout, HidesAndShowsARange)
{
    QorShowCtrls(&m_dialog, kFirst, kLast, FALSE);
    EXPECT_FALSE(Shown(IDC_FIRST));
    EXPECT_FALSE(Shown(IDC_SECOND));
    EXPECT_FALSE(Shown(IDC_THIRD));
    EXPECT_TRUE(Shown(IDC_EDIT));
    QorShowCtrls(&m_dialog, kFirst, IDC_SECOND, TRUE);
    EXPECT_TRUE(Shown(IDC_SECOND));
    EXPECT_FALSE(Shown(IDC_THIRD));
}

TEST_F(Layout, MovesOnlyWhatExistsAndKeepsSizes)
{
    const CRect first = RectOf(IDC_FIRST);
    const CRect third = RectOf(IDC_THIRD);
    const CRect other = RectOf(IDC_EDIT);
    QorMoveCtrls(&m_dialog, kFirst, kLast, 7, -3);
    EXPECT_EQ(first + CPoint(7, -3), RectOf(IDC_FIRST));
    EXPECT_EQ(third + CPoint(7, -3), RectOf(IDC_THIRD));
    EXPECT_EQ(other, RectOf(IDC_EDIT));
}

TEST_F(Layout, MovingShowsWhatWasHidden)
{
    QorShowCtrls(&m_dialog, kFirst, kLast, FALSE);
    QorMoveCtrls(&m_dialog, kFirst, kLast, 0, 0);
    EXPECT_TRUE(Shown(IDC_FIRST));
    EXPECT_TRUE(Shown(IDC_THIRD));
}

TEST_F(Layout, MovesABlockToAnAnchor)
{
    const CRect anchor = RectOf(IDC_PUSH);
    const CRect first = RectOf(IDC_FIRST);
    const CRect second = RectOf(IDC_SECOND);
    QorMoveCtrlsEx(&m_dialog, IDC_PUSH, IDC_FIRST, IDC_SECOND, 5, 6);
    EXPECT_EQ(anchor.TopLeft() + CPoint(5, 6), RectOf(IDC_FIRST).TopLeft());
    EXPECT_EQ(second.TopLeft() - first.TopLeft(), RectOf(IDC_SECOND).TopLeft() - RectOf(IDC_FIRST).TopLeft());
}

TEST_F(Layout, WithoutAnchorOrFirstControlNothingMoves)
{
    const CRect second = RectOf(IDC_SECOND);
    QorMoveCtrlsEx(&m_dialog, kNoSuchId, IDC_FIRST, IDC_SECOND, 5, 6);
    QorMoveCtrlsEx(&m_dialog, IDC_PUSH, IDC_FIRST - 1, IDC_SECOND, 5, 6);
    EXPECT_EQ(second, RectOf(IDC_SECOND));
}

TEST_F(Layout, ANullParentIsLeftOut)
{
    QorEnableCtrls(nullptr, kFirst, kLast, FALSE);
    QorEnableCtrlsV(nullptr, FALSE, 1, IDC_FIRST);
    QorShowCtrls(nullptr, kFirst, kLast, FALSE);
    QorMoveCtrls(nullptr, kFirst, kLast, 1, 1);
    QorMoveCtrlsEx(nullptr, IDC_PUSH, kFirst, kLast, 1, 1);
    QorSetTopicCtrl(nullptr, kFirst, L"x", -16);
    EXPECT_TRUE(Enabled(IDC_FIRST));
}

TEST_F(Layout, ADestroyedParentIsLeftOut)
{
    CTestBaseDlg gone;
    ASSERT_TRUE(gone.Create(IDD_PLAIN));
    gone.DestroyWindow();
    QorEnableCtrls(&gone, kFirst, kLast, FALSE);
    QorMoveCtrlsEx(&gone, IDC_PUSH, kFirst, kLast, 1, 1);
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(QorGetCtrlRect(&gone, kFirst, rect));
}

TEST_F(Layout, TextIsTrimmedAtBothEnds)
{
    m_dialog.SetDlgItemText(IDC_EDIT, L" \t two words \t");
    CString text(L"old");
    EXPECT_TRUE(QorGetText(*m_dialog.GetDlgItem(IDC_EDIT), text));
    EXPECT_STREQ(L"two words", text);
}

TEST_F(Layout, BlanksOnlyAreNoText)
{
    m_dialog.SetDlgItemText(IDC_EDIT, L"   ");
    CString text(L"old");
    EXPECT_FALSE(QorGetText(*m_dialog.GetDlgItem(IDC_EDIT), text));
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(Layout, WithoutAWindowTheTextIsEmptied)
{
    CWnd none;
    CString text(L"old");
    CStringA utf8("old");
    EXPECT_FALSE(QorGetText(none, text));
    EXPECT_FALSE(QorGetUtf8(none, utf8, TRUE));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(utf8.IsEmpty());
}

TEST_F(Layout, Utf8KeepsSpecialCharactersUnlessEscaped)
{
    m_dialog.SetDlgItemText(IDC_EDIT, L" a<b & \u00e4 ");
    CStringA text;
    EXPECT_TRUE(QorGetUtf8(*m_dialog.GetDlgItem(IDC_EDIT), text, FALSE));
    EXPECT_STREQ("a<b & \xc3\xa4", text);
    EXPECT_TRUE(QorGetUtf8(*m_dialog.GetDlgItem(IDC_EDIT), text, TRUE));
    EXPECT_STREQ("a&lt;b &amp; \xc3\xa4", text);
}

TEST_F(Layout, BlanksOnlyAreNoUtf8)
{
    for (const LPCWSTR blanks : {L"", L"   "}) {
        for (const BOOL xmlEscape : {FALSE, TRUE}) {
            m_dialog.SetDlgItemText(IDC_EDIT, blanks);
            CStringA text("old");
            EXPECT_FALSE(QorGetUtf8(*m_dialog.GetDlgItem(IDC_EDIT), text, xmlEscape));
            EXPECT_STREQ("", text);
        }
    }
}

LOGFONTW FontOf(CWnd& dialog, UINT id)
{
    LOGFONTW font = {};
    if (CFont* owned = dialog.GetDlgItem(static_cast<int>(id))->GetFont()) {
        owned->GetLogFont(&font);
    }
    return font;
}

TEST_F(Layout, TopicControlIsRedrawnInItsFont)
{
    ts::MessageRecorder recorder(::GetDlgItem(m_dialog, IDC_FIRST));
    recorder.RecordOnly({WM_SETFONT});
    QorSetTopicCtrl(&m_dialog, IDC_FIRST, nullptr, -16);
    const auto font = m_dialog.SendDlgItemMessage(IDC_FIRST, WM_GETFONT);
    EXPECT_TRUE(recorder.Is({ts::Msg(WM_SETFONT, static_cast<WPARAM>(font), TRUE)}));
}

TEST_F(Layout, TopicFontIsBoldArialOfTheFirstHeight)
{
    QorSetTopicCtrl(&m_dialog, IDC_FIRST, L"Topic", -16);
    QorSetTopicCtrl(&m_dialog, IDC_SECOND, nullptr, -20);
    QorSetTopicCtrl(&m_dialog, IDC_THIRD, L"", -20);
    const LOGFONTW font = FontOf(m_dialog, IDC_FIRST);
    EXPECT_EQ(-16, font.lfHeight);
    EXPECT_EQ(FW_BOLD, font.lfWeight);
    EXPECT_STREQ(L"Arial", font.lfFaceName);
    EXPECT_EQ(0, font.lfItalic);
    EXPECT_EQ(ANSI_CHARSET, font.lfCharSet);
    EXPECT_EQ(-16, FontOf(m_dialog, IDC_SECOND).lfHeight);
    CString text;
    m_dialog.GetDlgItemText(IDC_FIRST, text);
    EXPECT_STREQ(L"Topic", text);
    m_dialog.GetDlgItemText(IDC_SECOND, text);
    EXPECT_STREQ(L"second", text);
    m_dialog.GetDlgItemText(IDC_THIRD, text);
    EXPECT_STREQ(L"third", text);
}

} // namespace
