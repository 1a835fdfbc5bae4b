#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT ID = 77;
constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;
const CRect PLACE(10, 10, 160, 130);

/** A list box with the items Ann, Bob, Cid. */
class ListBox : public testing::Test
{
  protected:
    void Make(DWORD style)
    {
        ASSERT_TRUE(m_list.Create(CHILD | style, PLACE, &m_host, ID));
        for (LPCTSTR text : {TEXT("Ann"), TEXT("Bob"), TEXT("Cid")}) {
            m_list.AddString(text);
        }
    }

    ts::AfxHost m_host;
    CListBox m_list;
};

/** A drop-down combo box with the items Ann, Bob, Cid. */
class ComboBox : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_combo.Create(CHILD | CBS_DROPDOWN, PLACE, &m_host, ID));
        for (LPCTSTR text : {TEXT("Ann"), TEXT("Bob"), TEXT("Cid")}) {
            m_combo.AddString(text);
        }
    }

    ts::AfxHost m_host;
    CComboBox m_combo;
};

/** An edit field of several lines. */
class Edit : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_edit.Create(CHILD | ES_MULTILINE | ES_AUTOVSCROLL, PLACE, &m_host, ID));
        m_edit.SetWindowText(TEXT("one\r\ntwo\r\nthree"));
    }

    ts::AfxHost m_host;
    CEdit m_edit;
};
} // namespace

TEST(Static, ShowsPicturesAndReturnsTheFormer)
{
    ts::AfxHost host;
    CStatic label;
    ASSERT_TRUE(label.Create(nullptr, CHILD | SS_ICON, PLACE, &host));
    EXPECT_EQ(label.GetDlgCtrlID(), 0xffff);
    HICON error = ::LoadIcon(nullptr, IDI_ERROR);
    EXPECT_EQ(label.SetIcon(error), nullptr);
    EXPECT_EQ(label.GetIcon(), error);
    EXPECT_EQ(label.SetIcon(nullptr), error);

    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, CHILD | SS_BITMAP, PLACE, &host, ID));
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(picture.SetBitmap(bitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), static_cast<HBITMAP>(bitmap));
}

TEST(Button, ChecksAndStates)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Check"), CHILD | BS_AUTO3STATE, PLACE, &host, ID));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
}

TEST(Button, KeepsPicturesAndMeasuresItself)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Push"), CHILD | BS_ICON, PLACE, &host, ID));
    HICON icon = ::LoadIcon(nullptr, IDI_ERROR);
    EXPECT_EQ(button.SetIcon(icon), nullptr);
    EXPECT_EQ(button.GetIcon(), icon);
    SIZE size = {};
    EXPECT_TRUE(button.GetIdealSize(&size));
    EXPECT_GT(size.cx, 0);
    RECT margin = {1, 2, 3, 4};
    EXPECT_TRUE(button.SetTextMargin(&margin));
    RECT read = {};
    EXPECT_TRUE(button.GetTextMargin(&read));
    EXPECT_EQ(read.right, 3);
}

TEST(Button, CommandLinkKeepsItsNote)
{
    ts::AfxHost host;
    CButton button;
    ASSERT_TRUE(button.Create(TEXT("Link"), CHILD | BS_COMMANDLINK, PLACE, &host, ID));
    EXPECT_TRUE(button.SetNote(TEXT("More words")));
    EXPECT_EQ(button.GetNoteLength(), 10u);
    EXPECT_STREQ(button.GetNote(), TEXT("More words"));
}

TEST_F(ListBox, ItemsAreAddedFoundAndDeleted)
{
    Make(LBS_NOTIFY);
    EXPECT_EQ(m_list.GetCount(), 3);
    EXPECT_EQ(m_list.InsertString(1, TEXT("New")), 1);
    EXPECT_EQ(m_list.FindString(-1, TEXT("b")), 2);
    EXPECT_EQ(m_list.FindStringExact(-1, TEXT("bo")), LB_ERR);
    EXPECT_EQ(m_list.SelectString(-1, TEXT("ci")), 3);
    EXPECT_EQ(m_list.GetCurSel(), 3);
    EXPECT_EQ(m_list.DeleteString(0), 3);
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBox, TextsAreGivenAsStrings)
{
    Make(LBS_NOTIFY);
    CString text;
    m_list.GetText(1, text);
    EXPECT_STREQ(text, TEXT("Bob"));
    EXPECT_EQ(m_list.GetTextLen(2), 3);
    TCHAR buffer[8] = {};
    EXPECT_EQ(m_list.GetText(0, buffer), 3);
    EXPECT_STREQ(buffer, TEXT("Ann"));
    m_list.GetText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(m_list.GetTextLen(7), LB_ERR);
}

TEST_F(ListBox, ItemDataAndGeometry)
{
    Make(LBS_NOTIFY);
    int value = 0;
    EXPECT_NE(m_list.SetItemDataPtr(1, &value), LB_ERR);
    EXPECT_EQ(m_list.GetItemDataPtr(1), &value);
    EXPECT_NE(m_list.SetItemData(2, 0x123456789A), LB_ERR);
    EXPECT_EQ(m_list.GetItemData(2), 0x123456789Aull);
    CRect first;
    CRect second;
    m_list.GetItemRect(0, &first);
    m_list.GetItemRect(1, &second);
    EXPECT_EQ(second.top, first.bottom);
    EXPECT_EQ(first.Height(), m_list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(second.CenterPoint(), outside), 1u);
    EXPECT_FALSE(outside);
    EXPECT_EQ(m_list.SetTopIndex(0), 0);
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    m_list.SetHorizontalExtent(500);
    EXPECT_EQ(m_list.GetHorizontalExtent(), 500);
}

TEST_F(ListBox, SeveralItemsAreSelected)
{
    Make(LBS_NOTIFY | LBS_EXTENDEDSEL);
    EXPECT_NE(m_list.SelItemRange(TRUE, 0, 2), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 3);
    m_list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(m_list.GetSelCount(), 1);
    m_list.SetSel(2);
    int items[3] = {};
    EXPECT_EQ(m_list.GetSelItems(3, items), 2);
    EXPECT_EQ(items[1], 2);
    EXPECT_TRUE(m_list.GetSel(2));
    m_list.SetCaretIndex(1);
    EXPECT_EQ(m_list.GetCaretIndex(), 1);
    m_list.SetAnchorIndex(2);
    EXPECT_EQ(m_list.GetAnchorIndex(), 2);
}

TEST_F(ListBox, TabStopsAreTakenInEveryForm)
{
    Make(LBS_USETABSTOPS);
    int stops[2] = {20, 40};
    EXPECT_TRUE(m_list.SetTabStops(2, stops));
    EXPECT_TRUE(m_list.SetTabStops(16));
    m_list.SetTabStops();
    EXPECT_EQ(m_list.GetCount(), 3);
}

TEST_F(ComboBox, ItemsAreAddedFoundAndDeleted)
{
    EXPECT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(m_combo.InsertString(0, TEXT("First")), 0);
    EXPECT_EQ(m_combo.FindString(-1, TEXT("bo")), 2);
    EXPECT_EQ(m_combo.FindStringExact(-1, TEXT("bo")), CB_ERR);
    EXPECT_EQ(m_combo.SelectString(-1, TEXT("Cid")), 3);
    EXPECT_EQ(m_combo.GetCurSel(), 3);
    EXPECT_EQ(m_combo.DeleteString(0), 3);
    CString text;
    m_combo.GetLBText(0, text);
    EXPECT_STREQ(text, TEXT("Ann"));
    EXPECT_EQ(m_combo.GetLBTextLen(0), 3);
    m_combo.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
    EXPECT_EQ(m_combo.SetCurSel(1), CB_ERR);
}

TEST_F(ComboBox, EditPartHasASelection)
{
    m_combo.SetCurSel(1);
    EXPECT_TRUE(m_combo.SetEditSel(1, 3));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    m_combo.Clear();
    CString text;
    m_combo.GetWindowText(text);
    EXPECT_STREQ(text, TEXT("B"));
    m_combo.LimitText(5);
    EXPECT_EQ(m_combo.GetWindow(GW_CHILD)->SendMessage(EM_GETLIMITTEXT), 5);
}

TEST_F(ComboBox, DropsDownAndTellsItsSize)
{
    m_combo.ShowDropDown();
    EXPECT_TRUE(m_combo.GetDroppedState());
    CRect dropped;
    m_combo.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.Height(), 40);
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetDroppedState());
    EXPECT_NE(m_combo.SetDroppedWidth(300), CB_ERR);
    EXPECT_EQ(m_combo.GetDroppedWidth(), 300);
    EXPECT_NE(m_combo.SetItemHeight(-1, 32), CB_ERR);
    EXPECT_NEAR(m_combo.GetItemHeight(-1), 32, 2);
    EXPECT_EQ(m_combo.SetExtendedUI(), CB_OKAY);
    EXPECT_TRUE(m_combo.GetExtendedUI());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    EXPECT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_NE(info.hwndItem, nullptr);
}

TEST_F(ComboBox, ItemDataIsPointerSized)
{
    int value = 0;
    m_combo.SetItemDataPtr(0, &value);
    EXPECT_EQ(m_combo.GetItemDataPtr(0), &value);
    m_combo.SetItemData(1, 0x123456789A);
    EXPECT_EQ(m_combo.GetItemData(1), 0x123456789Aull);
}

TEST_F(Edit, LinesAndPositions)
{
    EXPECT_EQ(m_edit.GetLineCount(), 3);
    EXPECT_EQ(m_edit.LineIndex(1), 5);
    EXPECT_EQ(m_edit.LineFromChar(6), 1);
    EXPECT_EQ(m_edit.LineLength(10), 5);
    TCHAR line[16] = {};
    EXPECT_EQ(m_edit.GetLine(2, line, 15), 5);
    EXPECT_STREQ(line, TEXT("three"));
    EXPECT_EQ(m_edit.GetLine(2, line, 0), 0);
    EXPECT_EQ(m_edit.GetLine(2, nullptr, 9), 0);
    const CPoint at = m_edit.PosFromChar(5);
    EXPECT_EQ(LOWORD(m_edit.CharFromPos(at)), 5);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 0);
}

TEST_F(Edit, SelectionAndReplacement)
{
    m_edit.SetSel(0, 3);
    int start = -1;
    int end = -1;
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 3);
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(0, 3)));
    m_edit.ReplaceSel(TEXT("ONE"), TRUE);
    CString text;
    m_edit.GetWindowText(text);
    EXPECT_STREQ(text.Left(3), TEXT("ONE"));
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    m_edit.SetSel(MAKELONG(0, -1));
    m_edit.GetSel(start, end);
    EXPECT_EQ(end, 15);
}

TEST_F(Edit, CutCopyAndPaste)
{
    m_edit.SetSel(0, 3);
    m_edit.Cut();
    m_edit.SetSel(0, 0);
    m_edit.Paste();
    m_edit.Paste();
    CString text;
    m_edit.GetWindowText(text);
    EXPECT_STREQ(text.Left(6), TEXT("oneone"));
}

TEST_F(Edit, LimitsMarginsAndFlags)
{
    CRect rect;
    m_edit.SetRect(CRect(5, 5, 100, 90));
    m_edit.GetRect(&rect);
    EXPECT_EQ(rect.left, 5);
    m_edit.SetLimitText(10);
    EXPECT_EQ(m_edit.GetLimitText(), 10u);
    m_edit.SetMargins(4, 6);
    EXPECT_EQ(m_edit.GetMargins(), static_cast<DWORD>(MAKELONG(4, 6)));
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.SetModify();
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_TRUE(m_edit.GetStyle() & ES_READONLY);
    int stop = 16;
    EXPECT_TRUE(m_edit.SetTabStops(1, &stop));
    EXPECT_TRUE(m_edit.SetTabStops(16));
}

TEST(EditLine, PasswordAndCueBanner)
{
    ts::AfxHost host;
    CEdit edit;
    ASSERT_TRUE(edit.Create(CHILD, CRect(0, 0, 100, 20), &host, ID));
    edit.SetPasswordChar(TEXT('*'));
    EXPECT_EQ(edit.GetPasswordChar(), TEXT('*'));
    EXPECT_TRUE(edit.SetCueBanner(TEXT("type here")));
    TCHAR text[32] = {};
    EXPECT_TRUE(edit.GetCueBanner(text, 32));
    EXPECT_STREQ(text, TEXT("type here"));
}

TEST(EditLine, BalloonTipIsAskedForByItsMessage)
{
    ts::AfxHost host;
    CEdit edit;
    ASSERT_TRUE(edit.Create(CHILD, CRect(0, 0, 100, 20), &host, ID));
    ts::MessageRecorder recorder(edit);
    std::wstring title;
    std::wstring body;
    recorder.RecordOnly({EM_SHOWBALLOONTIP, EM_HIDEBALLOONTIP});
    recorder.Answer(EM_SHOWBALLOONTIP, [&](const ts::Message& message) -> std::optional<LRESULT> {
        const auto* tip = reinterpret_cast<const EDITBALLOONTIP*>(message.lParam);
        EXPECT_EQ(tip->cbStruct, sizeof(EDITBALLOONTIP));
        EXPECT_EQ(tip->ttiIcon, TTI_ERROR);
        title = tip->pszTitle;
        body = tip->pszText;
        return TRUE;
    });
    EXPECT_TRUE(edit.ShowBalloonTip(TEXT("Title"), TEXT("Text"), TTI_ERROR));
    EXPECT_EQ(title, L"Title");
    EXPECT_EQ(body, L"Text");
    edit.HideBalloonTip();
    EXPECT_EQ(recorder.Messages().size(), 2u);
}

TEST(ScrollBar, KeepsRangePageAndPosition)
{
    ts::AfxHost host;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(CHILD | SBS_HORZ, CRect(0, 0, 100, 20), &host, ID));
    bar.SetScrollRange(0, 100);
    EXPECT_EQ(bar.SetScrollPos(40), 0);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    int least = -1;
    int greatest = -1;
    bar.GetScrollRange(&least, &greatest);
    EXPECT_EQ(greatest, 100);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO read = {};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPage, 11u);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    EXPECT_FALSE(bar.GetScrollInfo(nullptr));
    EXPECT_FALSE(CScrollBar().SetScrollInfo(&info));
    EXPECT_EQ(CScrollBar().GetScrollLimit(), 0);
}

TEST(StandardControls, WithoutAWindowDoNothing)
{
    CString text(TEXT("before"));
    BOOL outside = FALSE;
    CListBox list;
    EXPECT_EQ(list.AddString(TEXT("x")), 0);
    list.GetText(0, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(list.ItemFromPoint(CPoint(0, 0), outside), 0u);
    CComboBox combo;
    EXPECT_EQ(combo.GetCount(), 0);
    combo.GetLBText(0, text);
    EXPECT_TRUE(text.IsEmpty());
    CEdit edit;
    int start = 0;
    int end = 0;
    edit.SetSel(0, 1);
    edit.GetSel(start, end);
    EXPECT_EQ(end, 0);
    CButton button;
    EXPECT_EQ(button.GetCheck(), 0);
    EXPECT_TRUE(button.GetNote().IsEmpty());
    CStatic label;
    EXPECT_EQ(label.GetIcon(), nullptr);
    EXPECT_FALSE(label.Create(TEXT("x"), CHILD, PLACE, nullptr));
}

TEST(StandardControls, LeaveNothingBehind)
{
    ts::AfxHost host;
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            CButton button;
            CListBox list;
            CEdit edit;
            button.Create(TEXT("x"), CHILD, PLACE, &host, 1);
            list.Create(CHILD, PLACE, &host, 2);
            list.AddString(TEXT("x"));
            edit.Create(CHILD, PLACE, &host, 3);
            host.UpdateWindow();
            button.DestroyWindow();
            list.DestroyWindow();
            edit.DestroyWindow();
        },
        50));
}
