#include "MemoryDc.h"

namespace
{
/** A picture with a font that all systems have. */
class TextDc : public MemoryDc
{
  public:
    TextDc() : MemoryDc(200, 60) { CDC::SelectObject(CFont::FromHandle(StockFont())); }
    static HFONT StockFont() { return static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)); }
};
} // namespace

TEST(Text, CharacterWidthsEqualTheSystems)
{
    TextDc dc;
    int own[3] = {};
    int system[3] = {};
    ASSERT_TRUE(dc.GetCharWidth(L'a', L'c', own));
    ::GetCharWidth32(dc, L'a', L'c', system);
    EXPECT_EQ(own[0], system[0]);
    EXPECT_EQ(own[2], system[2]);
    int output[1] = {};
    EXPECT_TRUE(dc.GetOutputCharWidth(L'a', L'a', output));
    EXPECT_EQ(output[0], system[0]);
}

TEST(Text, FaceNameIsGivenAsAString)
{
    TextDc dc;
    CFont font;
    font.CreatePointFont(90, TEXT("Tahoma"));
    CFont* former = dc.CDC::SelectObject(&font);
    CString name;
    EXPECT_GT(dc.GetTextFace(name), 0);
    TCHAR expected[LF_FACESIZE] = {};
    ::GetTextFace(dc, LF_FACESIZE, expected);
    EXPECT_STREQ(name, expected);
    EXPECT_GT(dc.GetOutlineTextMetrics(0, nullptr), 0u);
    ABC widths = {};
    EXPECT_TRUE(dc.GetCharABCWidths(L'a', L'a', &widths));
    EXPECT_GT(widths.abcB, 0u);
    dc.CDC::SelectObject(former);
    CDC none;
    EXPECT_EQ(none.GetTextFace(name), 0);
    EXPECT_TRUE(name.IsEmpty());
}

TEST(Text, OutputMetricsAreThoseOfTheOutputContext)
{
    TextDc dc;
    TEXTMETRIC own = {};
    TEXTMETRIC system = {};
    ASSERT_TRUE(dc.GetOutputTextMetrics(&own));
    ::GetTextMetrics(dc, &system);
    EXPECT_EQ(own.tmHeight, system.tmHeight);
    EXPECT_EQ(own.tmAveCharWidth, system.tmAveCharWidth);
}
