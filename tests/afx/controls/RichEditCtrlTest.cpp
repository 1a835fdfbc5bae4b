#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <string>

namespace
{
constexpr UINT kId = 77;

/** A rich edit of several lines with the text "one two\rthree". */
class RichEdit : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            m_edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_NOHIDESEL, CRect(10, 10, 310, 210), &m_host, kId));
        m_edit.SetWindowText(TEXT("one two\r\nthree"));
    }

    static DWORD CALLBACK Append(DWORD_PTR cookie, LPBYTE buffer, LONG count, LONG* done)
    {
        reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<char*>(buffer), count);
        *done = count;
        return 0;
    }

    static DWORD CALLBACK Take(DWORD_PTR cookie, LPBYTE buffer, LONG count, LONG* done)
    {
        auto& text = *reinterpret_cast<std::string*>(cookie);
        *done = (std::min)(count, static_cast<LONG>(text.size()));
        memcpy(buffer, text.data(), *done);
        text.erase(0, *done);
        return 0;
    }

    CString Text() const
    {
        CString text;
        m_edit.GetWindowText(text);
        return text;
    }

    ts::AfxHost m_host;
    CRichEditCtrl m_edit;
};
} // namespace

TEST_F(RichEdit, SelectionIsKeptInBothForms)
{
    m_edit.SetSel(4, 7);
    long start = 0;
    long end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 7);
    EXPECT_STREQ(m_edit.GetSelText(), TEXT("two"));
    CHARRANGE range = {0, 3};
    m_edit.SetSel(range);
    CHARRANGE read = {};
    m_edit.GetSel(read);
    EXPECT_EQ(read.cpMax, 3);
    TCHAR buffer[8] = {};
    EXPECT_EQ(m_edit.GetSelText(buffer), 3);
    EXPECT_STREQ(buffer, TEXT("one"));
    EXPECT_TRUE(m_edit.GetSelectionType() & SEL_TEXT);
}

TEST_F(RichEdit, TextIsReplacedAndUndone)
{
    m_edit.SetSel(0, 3);
    m_edit.ReplaceSel(TEXT("ONE"), TRUE);
    EXPECT_STREQ(Text().Left(7), TEXT("ONE two"));
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    EXPECT_STREQ(Text().Left(7), TEXT("one two"));
    EXPECT_TRUE(m_edit.CanRedo());
    EXPECT_TRUE(m_edit.Redo());
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
}

TEST_F(RichEdit, SelectionFormatIsSetAndRead)
{
    m_edit.SetSel(0, 3);
    CHARFORMAT2 format = {};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_ITALIC | CFM_COLOR;
    format.dwEffects = CFE_ITALIC;
    format.crTextColor = RGB(200, 0, 0);
    EXPECT_TRUE(m_edit.SetSelectionCharFormat(format));
    CHARFORMAT read = {};
    m_edit.GetSelectionCharFormat(read);
    EXPECT_EQ(read.cbSize, sizeof(CHARFORMAT));
    EXPECT_TRUE(read.dwEffects & CFE_ITALIC);
    EXPECT_EQ(read.crTextColor, RGB(200, 0, 0));
    m_edit.SetSel(4, 7);
    CHARFORMAT2 other = {};
    m_edit.GetSelectionCharFormat(other);
    EXPECT_FALSE(other.dwEffects & CFE_ITALIC);
}

TEST_F(RichEdit, DefaultFormatIsSetAndRead)
{
    CHARFORMAT format = {};
    format.dwMask = CFM_SIZE;
    format.yHeight = 400;
    EXPECT_TRUE(m_edit.SetDefaultCharFormat(format));
    EXPECT_EQ(format.cbSize, sizeof(format));
    CHARFORMAT2 read = {};
    m_edit.GetDefaultCharFormat(read);
    EXPECT_EQ(read.yHeight, 400);
}

TEST_F(RichEdit, ParagraphFormatIsSetAndRead)
{
    m_edit.SetSel(0, 0);
    PARAFORMAT format = {};
    format.dwMask = PFM_ALIGNMENT;
    format.wAlignment = PFA_RIGHT;
    EXPECT_TRUE(m_edit.SetParaFormat(format));
    PARAFORMAT2 read = {};
    m_edit.GetParaFormat(read);
    EXPECT_EQ(read.wAlignment, PFA_RIGHT);
    PARAFORMAT2 spacing = {};
    spacing.dwMask = PFM_SPACEBEFORE;
    spacing.dySpaceBefore = 120;
    EXPECT_TRUE(m_edit.SetParaFormat(spacing));
    m_edit.GetParaFormat(read);
    EXPECT_EQ(read.dySpaceBefore, 120);
}

TEST_F(RichEdit, StreamsOutAndIn)
{
    std::string text;
    EDITSTREAM out = {reinterpret_cast<DWORD_PTR>(&text), 0, &Append};
    EXPECT_GT(m_edit.StreamOut(SF_RTF, out), 0);
    EXPECT_EQ(text.substr(0, 5), "{\\rtf");
    m_edit.SetWindowText(TEXT(""));
    EDITSTREAM in = {reinterpret_cast<DWORD_PTR>(&text), 0, &Take};
    EXPECT_GT(m_edit.StreamIn(SF_RTF, in), 0);
    EXPECT_STREQ(Text().Left(7), TEXT("one two"));
}

TEST_F(RichEdit, TextIsFoundAndCutOut)
{
    FINDTEXTEX find = {};
    find.chrg = {0, -1};
    find.lpstrText = const_cast<LPTSTR>(TEXT("two"));
    EXPECT_EQ(m_edit.FindText(FR_DOWN, &find), 4);
    EXPECT_EQ(find.chrgText.cpMax, 7);
    CString part;
    EXPECT_EQ(m_edit.GetTextRange(4, 7, part), 3);
    EXPECT_STREQ(part, TEXT("two"));
    EXPECT_EQ(m_edit.GetTextRange(4, -1, part), 9);
    EXPECT_STREQ(part, TEXT("two\rthree"));
    find.lpstrText = const_cast<LPTSTR>(TEXT("none"));
    EXPECT_EQ(m_edit.FindText(FR_DOWN, &find), -1);
}

TEST_F(RichEdit, LinesAndPositions)
{
    EXPECT_EQ(m_edit.GetLineCount(), 2);
    EXPECT_EQ(m_edit.LineIndex(1), 8);
    EXPECT_EQ(m_edit.LineLength(8), 5);
    EXPECT_EQ(m_edit.LineFromChar(9), 1);
    TCHAR line[16] = {};
    EXPECT_GE(m_edit.GetLine(1, line, 15), 5);
    EXPECT_EQ(std::wstring(line, 5), L"three");
    line[0] = 3; // the buffer's size
    EXPECT_EQ(m_edit.GetLine(1, line), 3);
    EXPECT_EQ(std::wstring(line, 3), L"thr");
    EXPECT_EQ(m_edit.GetLine(1, line, 0), 0);
    EXPECT_EQ(m_edit.GetLine(1, nullptr, 9), 0);
    EXPECT_GT(m_edit.PosFromChar(9).x, m_edit.PosFromChar(8).x);
    EXPECT_EQ(m_edit.CharFromPos(m_edit.GetCharPos(9)), 9);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 0);
    EXPECT_EQ(m_edit.GetTextLengthEx(GTL_NUMCHARS), 13);
}

TEST_F(RichEdit, LineFitsIntoABufferOfAnySize)
{
    constexpr int large = 65536; // more than a word holds
    std::wstring buffer(large, L'-');
    EXPECT_GE(m_edit.GetLine(1, buffer.data(), large), 5);
    EXPECT_EQ(buffer.substr(0, 5), L"three");
}

TEST_F(RichEdit, WordsAreFormattedAndTheSelectionIsHidden)
{
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_SETCHARFORMAT, EM_HIDESELECTION});
    CHARFORMAT format = {};
    CHARFORMAT2 format2 = {};
    m_edit.SetWordCharFormat(format);
    m_edit.SetWordCharFormat(format2);
    m_edit.HideSelection(TRUE, FALSE);
    m_edit.HideSelection(FALSE, TRUE);
    EXPECT_TRUE(log.Is({ts::Msg(EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, reinterpret_cast<LPARAM>(&format)),
                        ts::Msg(EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, reinterpret_cast<LPARAM>(&format2)),
                        ts::Msg(EM_HIDESELECTION, TRUE, FALSE), ts::Msg(EM_HIDESELECTION, FALSE, TRUE)}));
    EXPECT_EQ(sizeof(CHARFORMAT), format.cbSize);
    EXPECT_EQ(sizeof(CHARFORMAT2), format2.cbSize);
}

TEST_F(RichEdit, MessagesCarryTheirParameters)
{
    ts::MessageRecorder log(m_edit);
    REPASTESPECIAL special = {};
    for (const UINT id :
         {EM_CANPASTE, EM_SETUNDOLIMIT, EM_SETRECT, EM_REQUESTRESIZE, EM_SETTARGETDEVICE, WM_COPY, WM_CUT, WM_PASTE,
          EM_PASTESPECIAL, EM_FINDWORDBREAK, EM_SETOPTIONS, EM_AUTOURLDETECT, EM_GETTEXTMODE, EM_SETTEXTMODE}) {
        log.RecordAlso({id});
        log.Answer(id, [&special](const ts::Message& message) -> std::optional<LRESULT> {
            if (message.id == EM_PASTESPECIAL) {
                special = *reinterpret_cast<const REPASTESPECIAL*>(message.lParam);
            }
            return 5;
        });
    }
    const CRect rect(1, 2, 3, 4);
    CClientDC dc(&m_edit);
    const auto metafile = reinterpret_cast<HMETAFILE>(INT_PTR{9});
    EXPECT_EQ(m_edit.CanPaste(CF_TEXT), 5);
    EXPECT_EQ(m_edit.SetUndoLimit(7), 5u);
    m_edit.SetRect(&rect);
    m_edit.RequestResize();
    EXPECT_EQ(m_edit.SetTargetDevice(dc.m_hDC, 1440), 5);
    EXPECT_EQ(m_edit.SetTargetDevice(dc, 720), 5);
    m_edit.Copy();
    m_edit.Cut();
    m_edit.Paste();
    m_edit.PasteSpecial(CF_METAFILEPICT, DVASPECT_ICON, metafile);
    EXPECT_EQ(m_edit.FindWordBreak(WB_RIGHT, 3), 5u);
    m_edit.SetOptions(ECOOP_OR, ECO_READONLY);
    EXPECT_EQ(m_edit.SetAutoURLDetect(), 5);
    EXPECT_EQ(m_edit.SetAutoURLDetect(FALSE), 5);
    EXPECT_EQ(m_edit.GetTextMode(), 5u);
    EXPECT_EQ(m_edit.SetTextMode(TM_PLAINTEXT), 5);
    const auto device = reinterpret_cast<WPARAM>(dc.m_hDC);
    EXPECT_TRUE(log.IsAmong({ts::Msg(EM_CANPASTE, CF_TEXT, 0), ts::Msg(EM_SETUNDOLIMIT, 7, 0),
                             ts::Msg(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&rect)), ts::Msg(EM_REQUESTRESIZE, 0, 0),
                             ts::Msg(EM_SETTARGETDEVICE, device, 1440), ts::Msg(EM_SETTARGETDEVICE, device, 720),
                             ts::Msg(WM_COPY, 0, 0), ts::Msg(WM_CUT, 0, 0), ts::Msg(WM_PASTE, 0, 0),
                             ts::Msg(EM_PASTESPECIAL, CF_METAFILEPICT), ts::Msg(EM_FINDWORDBREAK, WB_RIGHT, 3),
                             ts::Msg(EM_SETOPTIONS, ECOOP_OR, ECO_READONLY), ts::Msg(EM_AUTOURLDETECT, TRUE, 0),
                             ts::Msg(EM_AUTOURLDETECT, FALSE, 0), ts::Msg(EM_GETTEXTMODE, 0, 0),
                             ts::Msg(EM_SETTEXTMODE, TM_PLAINTEXT, 0)}));
    EXPECT_EQ(special.dwAspect, DWORD{DVASPECT_ICON});
    EXPECT_EQ(special.dwParam, 9u);
}

TEST_F(RichEdit, ScrollsByLines)
{
    CString many;
    for (int i = 0; i < 60; ++i) {
        many += TEXT("line\r\n");
    }
    m_edit.SetWindowText(many);
    m_edit.LineScroll(10);
    EXPECT_EQ(m_edit.GetFirstVisibleLine(), 10);
}

TEST_F(RichEdit, MaskLimitColourAndFlags)
{
    EXPECT_EQ(m_edit.SetEventMask(ENM_LINK | ENM_CHANGE), 0u);
    EXPECT_EQ(m_edit.GetEventMask(), ENM_LINK | ENM_CHANGE);
    m_edit.LimitText(200);
    EXPECT_EQ(m_edit.GetLimitText(), 200);
    m_edit.SetBackgroundColor(FALSE, RGB(10, 200, 30));
    EXPECT_EQ(ts::CaptureWindow(m_edit).At(250, 150), RGB(10, 200, 30));
    EXPECT_EQ(m_edit.SetBackgroundColor(TRUE, 0), RGB(10, 200, 30));
    m_edit.SetModify(FALSE);
    EXPECT_FALSE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_TRUE(m_edit.GetStyle() & ES_READONLY);
    CRect rect;
    m_edit.GetRect(&rect);
    EXPECT_GT(rect.Width(), 100);
}

TEST(RichEditLibrary, LoadsBeforeTheFirstControl)
{
    EXPECT_TRUE(AfxInitRichEdit2());
    WNDCLASS info = {};
    EXPECT_TRUE(::GetClassInfo(nullptr, RICHEDIT_CLASS, &info));
}

TEST(RichEditLibrary, ControlWithoutAWindowDoesNothing)
{
    CRichEditCtrl edit;
    EXPECT_EQ(edit.GetLineCount(), 0);
    EXPECT_TRUE(edit.GetSelText().IsEmpty());
    CString part(TEXT("before"));
    EXPECT_EQ(edit.GetTextRange(0, 5, part), 0);
    long start = 0;
    long end = 0;
    edit.GetSel(start, end);
    EXPECT_FALSE(edit.SetReadOnly());
}
