#include "Inputs.h"

#include <QorUI/inputs/FlatRichEdit.h>
#include <tests/support/Imports.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr UINT kFormatMessage = EM_SETCHARFORMAT;

class COpenRichEdit : public CFlatRichEdit
{
  public:
    using CFlatRichEdit::AutoURLDetect;
    using CFlatRichEdit::m_cf;
};

int WINAPI NoObject(HANDLE, int, LPVOID)
{
    return 0;
}

HGDIOBJ WINAPI NoStockObject(int)
{
    return nullptr;
}

class RichEdit : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_edit.CWnd::CreateEx(WS_EX_CLIENTEDGE, RICHEDIT_CLASSW, L"", WS_CHILD | WS_VISIBLE | ES_MULTILINE,
                                          10, 10, 300, 120, m_host.m_hWnd, reinterpret_cast<HMENU>(ts::kControlId)));
    }

    static void SetUpTestSuite() { s_library = ::LoadLibraryW(L"riched20.dll"); }
    static void TearDownTestSuite() { ::FreeLibrary(s_library); }

    /** The text as the control keeps it: a line end is one carriage return. */
    std::wstring Text()
    {
        GETTEXTEX get = {4000, GT_DEFAULT, 1200, nullptr, nullptr};
        wchar_t text[2000] = L"";
        m_edit.SendMessage(EM_GETTEXTEX, reinterpret_cast<WPARAM>(&get), reinterpret_cast<LPARAM>(text));
        return text;
    }

    CHARFORMATW FormatAt(LONG start, LONG end)
    {
        m_edit.SetSel(start, end);
        CHARFORMATW format = {};
        format.cbSize = sizeof(format);
        m_edit.SendMessage(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
        return format;
    }

    PARAFORMAT Paragraph()
    {
        PARAFORMAT format = {};
        format.cbSize = sizeof(format);
        m_edit.SendMessage(EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
        return format;
    }

    static inline HMODULE s_library = nullptr;
    ts::AfxHost m_host{340, 160};
    COpenRichEdit m_edit;
};

TEST_F(RichEdit, FormatStartsWithTheFaceOfDialogs)
{
    LOGFONTW font = {};
    ASSERT_NE(0, ::GetObjectW(ts::GuiFont(), sizeof(font), &font));
    EXPECT_EQ(92u, m_edit.m_cf.cbSize);
    EXPECT_EQ(0xC000000Fu | CFM_FACE, m_edit.m_cf.dwMask);
    EXPECT_STREQ(font.lfFaceName, m_edit.m_cf.szFaceName);
    EXPECT_EQ(0u, m_edit.m_cf.dwEffects);
    EXPECT_EQ(0, m_edit.m_cf.yHeight);
    EXPECT_EQ(0u, m_edit.m_cf.crTextColor);
    EXPECT_EQ(0, m_edit.m_cf.yOffset);
}

TEST(RichEditFormat, HasNoFaceWhenTheFontOfDialogsCannotBeRead)
{
    {
        const ts::ReplacedImport none(L"QorUI.dll", "GetObjectW", &NoObject);
        const COpenRichEdit edit;
        EXPECT_EQ(0xC000000Fu, edit.m_cf.dwMask);
        EXPECT_STREQ(L"", edit.m_cf.szFaceName);
    }
    const ts::ReplacedImport none(L"QorUI.dll", "GetStockObject", &NoStockObject);
    EXPECT_EQ(0xC000000Fu, COpenRichEdit().m_cf.dwMask);
}

TEST_F(RichEdit, SetFormatStoresPixelsAsTwips)
{
    EXPECT_TRUE(m_edit.SetFormat(12, kRed, CFE_BOLD));
    EXPECT_EQ(180, m_edit.m_cf.yHeight);
    EXPECT_EQ(kRed, m_edit.m_cf.crTextColor);
    EXPECT_EQ(static_cast<DWORD>(CFE_BOLD), m_edit.m_cf.dwEffects);
}

TEST_F(RichEdit, SetFormatTakesEffectAtTheNextInsertionOnly)
{
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_SETCHARFORMAT});
    m_edit.SetFormat(12, kRed, CFE_BOLD);
    EXPECT_TRUE(log.Messages().empty());
}

TEST_F(RichEdit, InsertedTextHasTheFormat)
{
    m_edit.SetFormat(20, kRed, CFE_BOLD | CFE_ITALIC);
    m_edit.InsertText(-1, L"abc");
    const CHARFORMATW format = FormatAt(0, 3);
    EXPECT_EQ(kRed, format.crTextColor);
    EXPECT_EQ(300, format.yHeight);
    EXPECT_EQ(static_cast<DWORD>(CFE_BOLD | CFE_ITALIC),
              format.dwEffects & (CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE | CFE_STRIKEOUT));
    EXPECT_STREQ(m_edit.m_cf.szFaceName, format.szFaceName);
}

TEST_F(RichEdit, LinesMayDifferInFormat)
{
    m_edit.SetFormat(12, kRed, CFE_BOLD);
    m_edit.InsertText(-2, L"one");
    m_edit.SetFormat(16, RGB(0, 0, 200), 0);
    m_edit.InsertText(-2, L"two");
    EXPECT_EQ(kRed, FormatAt(0, 3).crTextColor);
    EXPECT_EQ(RGB(0, 0, 200), FormatAt(4, 7).crTextColor);
    EXPECT_EQ(240, FormatAt(4, 7).yHeight);
}

TEST_F(RichEdit, MinusTwoAppendsALineFeed)
{
    m_edit.InsertText(-1, L"a");
    m_edit.InsertText(-2, L"x");
    m_edit.InsertText(-1, L"y");
    EXPECT_EQ(L"ax\ry", Text());
}

TEST_F(RichEdit, AppendingGoesToTheEndWhereverTheSelectionIs)
{
    m_edit.InsertText(-1, L"abc");
    m_edit.SetSel(0, 1);
    m_edit.InsertText(-2, L"x");
    m_edit.SetSel(1, 1);
    m_edit.InsertText(-1, L"y");
    EXPECT_EQ(L"abcx\ry", Text());
}

TEST_F(RichEdit, LineFeedIsOneCharacterTen)
{
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_REPLACESEL});
    std::wstring text;
    log.Answer(EM_REPLACESEL, [&text](const ts::Message& message) -> std::optional<LRESULT> {
        text = reinterpret_cast<const wchar_t*>(message.lParam);
        return 0;
    });
    m_edit.InsertText(-2, L"x");
    EXPECT_EQ(L"x\n", text);
}

TEST_F(RichEdit, TextIsInsertedAtAPosition)
{
    m_edit.InsertText(-1, L"ad");
    m_edit.InsertText(1, L"%s%d", L"b", 3);
    EXPECT_EQ(L"ab3d", Text());
}

TEST_F(RichEdit, InsertionFormatsThenSelectsThenReplaces)
{
    m_edit.InsertText(-1, L"abc");
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_SETCHARFORMAT, EM_EXSETSEL, EM_REPLACESEL});
    CHARRANGE range = {};
    log.Answer(EM_EXSETSEL, [&range](const ts::Message& message) -> std::optional<LRESULT> {
        range = *reinterpret_cast<const CHARRANGE*>(message.lParam);
        return std::nullopt;
    });
    m_edit.InsertText(2, L"x");
    EXPECT_TRUE(log.Is({ts::Msg(EM_SETCHARFORMAT, SCF_SELECTION), ts::Msg(EM_EXSETSEL), ts::Msg(EM_REPLACESEL, 0)}));
    EXPECT_EQ(2, range.cpMin);
    EXPECT_EQ(2, range.cpMax);
}

TEST_F(RichEdit, FormatGoesToTheSelectionThatThereIs)
{
    m_edit.InsertText(-1, L"abc");
    m_edit.SetSel(0, 2);
    m_edit.SetFormat(12, kRed, 0);
    m_edit.InsertText(-1, L"d");
    EXPECT_EQ(kRed, FormatAt(0, 2).crTextColor);
    EXPECT_EQ(L"abcd", Text());
}

TEST_F(RichEdit, InsertionCannotBeUndone)
{
    m_edit.InsertText(-1, L"abc");
    m_edit.SendMessage(EM_UNDO);
    EXPECT_EQ(L"abc", Text());
}

TEST_F(RichEdit, NoFormatInsertsNothing)
{
    m_edit.InsertText(-2, nullptr);
    EXPECT_EQ(L"", Text());
}

TEST_F(RichEdit, HugeTextIsInserted)
{
    m_edit.LimitText(1000000);
    const CString huge(L'x', 50000);
    m_edit.InsertText(-1, L"%s", huge.GetString());
    EXPECT_EQ(50000, m_edit.GetTextLength());
}

TEST_F(RichEdit, DeleteTextRemovesARangeWithoutUndo)
{
    m_edit.InsertText(-1, L"abcdef");
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_EXSETSEL, EM_REPLACESEL});
    m_edit.DeleteText(1, 4);
    EXPECT_EQ(L"aef", Text());
    EXPECT_TRUE(log.Is({ts::Msg(EM_EXSETSEL), ts::Msg(EM_REPLACESEL, 0)}));
}

TEST_F(RichEdit, ClearTextEmptiesTheControl)
{
    m_edit.InsertText(-2, L"abc");
    m_edit.ClearText();
    EXPECT_EQ(L"", Text());
    EXPECT_EQ(0, m_edit.GetTextLength());
}

TEST_F(RichEdit, SetAlignAlignsTheParagraph)
{
    EXPECT_TRUE(m_edit.SetAlign(PFA_CENTER));
    EXPECT_EQ(PFA_CENTER, Paragraph().wAlignment);
    EXPECT_TRUE(m_edit.SetAlign(PFA_RIGHT));
    EXPECT_EQ(PFA_RIGHT, Paragraph().wAlignment);
}

/** The paragraph format that a call sends. */
PARAFORMAT SentBy(CWnd& edit, const std::function<void()>& call)
{
    ts::MessageRecorder log(edit);
    PARAFORMAT sent = {};
    log.Answer(EM_SETPARAFORMAT, [&sent](const ts::Message& message) -> std::optional<LRESULT> {
        sent = *reinterpret_cast<const PARAFORMAT*>(message.lParam);
        return TRUE;
    });
    call();
    return sent;
}

TEST_F(RichEdit, SetAlignSendsTheAlignmentOnly)
{
    const PARAFORMAT sent = SentBy(m_edit, [this] { m_edit.SetAlign(PFA_CENTER); });
    EXPECT_EQ(156u, sent.cbSize);
    EXPECT_EQ(8u, sent.dwMask);
}

TEST_F(RichEdit, SetIndentSendsBothIndentsAndNoOffset)
{
    const PARAFORMAT sent = SentBy(m_edit, [this] { EXPECT_TRUE(m_edit.SetIndent(300, 150)); });
    EXPECT_EQ(156u, sent.cbSize);
    EXPECT_EQ(7u, sent.dwMask);
    EXPECT_EQ(300, sent.dxStartIndent);
    EXPECT_EQ(150, sent.dxRightIndent);
    EXPECT_EQ(0, sent.dxOffset);
}

TEST_F(RichEdit, SetIndentIndentsTheParagraph)
{
    EXPECT_TRUE(m_edit.SetIndent(300, 150));
    EXPECT_EQ(300, Paragraph().dxStartIndent);
    EXPECT_EQ(150, Paragraph().dxRightIndent);
}

TEST_F(RichEdit, UrlDetectionAddsAndRemovesTheLinkEvent)
{
    m_edit.SendMessage(EM_SETEVENTMASK, 0, ENM_CHANGE);
    ts::MessageRecorder log(m_edit);
    log.RecordOnly({EM_GETEVENTMASK, EM_SETEVENTMASK, EM_AUTOURLDETECT});
    LRESULT answer = 5;
    log.Answer(EM_AUTOURLDETECT, [&answer](const ts::Message&) -> std::optional<LRESULT> { return answer; });
    EXPECT_EQ(5, m_edit.AutoURLDetect(TRUE));
    EXPECT_TRUE(log.Is({ts::Msg(EM_GETEVENTMASK), ts::Msg(EM_SETEVENTMASK, 0, ENM_CHANGE | 0x04000000),
                        ts::Msg(EM_AUTOURLDETECT, TRUE)}));
    log.Clear();
    answer = 0;
    EXPECT_EQ(0, m_edit.AutoURLDetect(FALSE));
    EXPECT_TRUE(
        log.Is({ts::Msg(EM_GETEVENTMASK), ts::Msg(EM_SETEVENTMASK, 0, ENM_CHANGE), ts::Msg(EM_AUTOURLDETECT, FALSE)}));
}

TEST_F(RichEdit, DetectedUrlIsALink)
{
    EXPECT_EQ(0, m_edit.AutoURLDetect(TRUE));
    m_edit.SetFocus();
    ts::Type(L"see http://example.org ");
    CHARFORMAT2W format = {};
    format.cbSize = sizeof(format);
    m_edit.SetSel(6, 10);
    m_edit.SendMessage(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    EXPECT_TRUE(format.dwEffects & CFE_LINK);
}

TEST_F(RichEdit, WithoutAWindowNothingIsInserted)
{
    COpenRichEdit edit;
    EXPECT_NO_THROW(edit.InsertText(-2, L"x"));
    EXPECT_NO_THROW(edit.DeleteText(0, 1));
    EXPECT_NO_THROW(edit.ClearText());
    EXPECT_FALSE(edit.SetAlign(PFA_CENTER));
    EXPECT_FALSE(edit.SetIndent(1, 2));
    EXPECT_EQ(0, edit.AutoURLDetect(TRUE));
    EXPECT_FALSE(edit.Create(WS_CHILD, CRect(0, 0, 10, 10), nullptr, ts::kOtherId));
}

TEST_F(RichEdit, PositionsOutsideTheTextAreItsEnds)
{
    m_edit.InsertText(1000, L"ab");
    m_edit.InsertText(1000, L"c");
    m_edit.DeleteText(5, 2);
    EXPECT_EQ(L"ab", Text());
    m_edit.DeleteText(-5, -9);
    m_edit.DeleteText(0, 1000);
    EXPECT_EQ(L"", Text());
}

TEST_F(RichEdit, PaintsItsBorderFlat)
{
    EXPECT_TRUE(HasFlatBorder(m_edit));
}

TEST_F(RichEdit, ScrollBarInTheFrameIsStillPainted)
{
    COpenRichEdit edit;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_DISABLENOSCROLL;
    ASSERT_TRUE(edit.CreateEx(WS_EX_CLIENTEDGE, style, CRect(10, 10, 200, 120), &m_host, ts::kOtherId));
    EXPECT_TRUE(PaintsItsScrollBar(edit));
}

TEST_F(RichEdit, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        COpenRichEdit edit;
        edit.CWnd::CreateEx(WS_EX_CLIENTEDGE, RICHEDIT_CLASSW, L"", WS_CHILD | WS_VISIBLE | ES_MULTILINE, 10, 10, 300,
                            120, m_host.m_hWnd, reinterpret_cast<HMENU>(ts::kOtherId));
        edit.SetFormat(12, kRed, CFE_BOLD);
        edit.InsertText(-2, L"text");
        ts::FrameOf(edit);
        edit.DestroyWindow();
    }));
}

} // namespace
