#include "MemoryDc.h"

#include <string>

namespace
{
/** A picture with a font that all systems have. */
class TextDc : public MemoryDc
{
  public:
    TextDc() : MemoryDc(200, 60) { CDC::SelectObject(CFont::FromHandle(StockFont())); }
    static HFONT StockFont() { return static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)); }
};

CSize GdiExtent(HDC dc, const std::wstring& text)
{
    SIZE size = {};
    ::GetTextExtentPoint32(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size;
}
} // namespace

TEST(Text, ExtentEqualsTheSystems)
{
    TextDc dc;
    const CSize expected = GdiExtent(dc, L"Hello");
    EXPECT_GT(expected.cx, 0);
    EXPECT_EQ(dc.GetTextExtent(CString(TEXT("Hello"))), expected);
    EXPECT_EQ(dc.GetTextExtent(TEXT("Hello world"), 5), expected);
    EXPECT_EQ(dc.GetOutputTextExtent(CString(TEXT("Hello"))), expected);
    EXPECT_EQ(dc.GetTextExtent(nullptr, 5), CSize(0, 0));
}

TEST(Text, TabbedExtentReachesTheTabStop)
{
    TextDc dc;
    int stop = 50;
    const CSize size = dc.GetTabbedTextExtent(CString(TEXT("a\tb")), 1, &stop);
    EXPECT_EQ(size.cx, 50 + GdiExtent(dc, L"b").cx);
    EXPECT_EQ(dc.GetOutputTabbedTextExtent(CString(TEXT("a\tb")), 1, &stop), size);
    EXPECT_EQ(dc.TabbedTextOut(0, 0, CString(TEXT("a\tb")), 1, &stop, 0), size);
    EXPECT_GT(dc.Count(kBlack), 0);
}

TEST(Text, TextOutDrawsInTheTextColour)
{
    TextDc dc;
    dc.SetTextColor(kRed);
    EXPECT_TRUE(dc.TextOut(2, 2, CString(TEXT("Hi"))));
    const int pixels = dc.Count(kRed);
    EXPECT_GT(pixels, 4);
    TextDc other;
    other.SetTextColor(kRed);
    EXPECT_TRUE(other.TextOut(2, 2, TEXT("Higher"), 2));
    EXPECT_EQ(other.Count(kRed), pixels);
}

TEST(Text, ExtTextOutFillsItsRectangle)
{
    TextDc dc;
    dc.SetBkColor(kRed);
    EXPECT_TRUE(dc.ExtTextOut(0, 0, ETO_OPAQUE | ETO_CLIPPED, CRect(0, 0, 10, 10), CString(), nullptr));
    EXPECT_EQ(dc.Count(kRed), 100);
}

TEST(Text, DrawTextReturnsTheHeight)
{
    TextDc dc;
    CRect rect(0, 0, 200, 60);
    const CString text(TEXT("one\ntwo"));
    TEXTMETRIC metrics = {};
    ASSERT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(dc.DrawText(text, rect, DT_LEFT), 2 * metrics.tmHeight);
    EXPECT_EQ(dc.DrawText(TEXT("one"), -1, rect, DT_SINGLELINE), metrics.tmHeight);
    CRect measured;
    dc.DrawText(text, measured, DT_CALCRECT);
    EXPECT_EQ(measured.Height(), 2 * metrics.tmHeight);
    EXPECT_EQ(dc.DrawTextEx(CString(text), rect, DT_LEFT, nullptr), 2 * metrics.tmHeight);
}

TEST(Text, ModifyingDrawLeavesTheStringAlone)
{
    TextDc dc;
    const CString text(TEXT("a very long text that does not fit"));
    CRect rect(0, 0, 40, 20);
    EXPECT_GT(dc.DrawText(text, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING), 0);
    EXPECT_GT(dc.DrawTextEx(text, rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, nullptr), 0);
    EXPECT_STREQ(text, TEXT("a very long text that does not fit"));
}

TEST(Text, GrayStringCallsTheGivenFunction)
{
    TextDc dc;
    CBrush brush(kRed);
    int calls = 0;
    const auto draw = [](HDC, LPARAM data, int) -> BOOL {
        ++*reinterpret_cast<int*>(data);
        return TRUE;
    };
    EXPECT_TRUE(
        dc.GrayString(&brush, static_cast<GRAYSTRINGPROC>(draw), reinterpret_cast<LPARAM>(&calls), 3, 0, 0, 20, 10));
    EXPECT_EQ(calls, 1);
}
