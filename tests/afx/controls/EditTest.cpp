#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

#include <string>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);

/** An edit field of several lines. */
class Edit : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_edit.Create(kChild | ES_MULTILINE | ES_AUTOVSCROLL, kPlace, &m_host, kId));
        m_edit.SetWindowText(TEXT("one\r\ntwo\r\nthree"));
    }

    ts::AfxHost m_host;
    CEdit m_edit;
};
} // namespace

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
    ASSERT_TRUE(edit.Create(kChild, CRect(0, 0, 100, 20), &host, kId));
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
    ASSERT_TRUE(edit.Create(kChild, CRect(0, 0, 100, 20), &host, kId));
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
