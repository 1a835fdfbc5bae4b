#include <QorUI/app/look/SysLook.h>
#include <tests/support/Imports.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

namespace
{

TEST(SysLook, FontIsTheMessageFont)
{
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = 504;
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, 504, &metrics, 0));
    LOGFONTW font = {};
    ASSERT_NE(0, QorSysLook.m_font.GetLogFont(&font));
    EXPECT_STREQ(metrics.lfMessageFont.lfFaceName, font.lfFaceName);
    EXPECT_EQ(metrics.lfMessageFont.lfHeight, font.lfHeight);
    EXPECT_EQ(metrics.lfMessageFont.lfWeight, font.lfWeight);
}

constexpr int kIndexes[] = {COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW,   COLOR_BTNFACE, COLOR_BTNTEXT,
                            COLOR_GRAYTEXT,     COLOR_WINDOWFRAME, COLOR_BTNFACE, COLOR_BTNHIGHLIGHT,
                            COLOR_BTNSHADOW,    COLOR_HIGHLIGHT,   COLOR_WINDOW,  COLOR_WINDOWTEXT};

/** The colours of a look in the order in which they stand behind the font. */
std::vector<COLORREF> ColoursOf(const CQorSysLook& look)
{
    std::vector<COLORREF> colours(12);
    std::memcpy(colours.data(), reinterpret_cast<const char*>(&look) + sizeof(CFont), 12 * sizeof(COLORREF));
    return colours;
}

/** A colour for each of the indexes. */
std::vector<COLORREF> ColoursBy(DWORD(WINAPI* colourOf)(int))
{
    std::vector<COLORREF> colours;
    for (const int index : kIndexes) {
        colours.push_back(colourOf(index));
    }
    return colours;
}

TEST(SysLook, TwelveColoursFollowTheFontInTheirOrder)
{
    const void* start = &QorSysLook;
    EXPECT_EQ(start, &QorSysLook.m_font);
    EXPECT_EQ(ColoursBy(&::GetSysColor), ColoursOf(QorSysLook));
    EXPECT_EQ(sizeof(CFont) + 12 * sizeof(COLORREF), sizeof(QorSysLook));
}

DWORD WINAPI ColourOfIndex(int index)
{
    return RGB(index, 0, 0);
}

TEST(SysLook, EachColourIsThatOfItsIndex)
{
    const ts::ReplacedImport colours(nullptr, "GetSysColor", &ColourOfIndex);
    const CQorSysLook look;
    EXPECT_EQ(ColoursBy(&ColourOfIndex), ColoursOf(look));
}

/** Action, size and size of the structure in the questions to the system. */
std::vector<std::vector<UINT>> g_questions;

BOOL WINAPI Answer(UINT action, UINT size, void* answer, UINT)
{
    auto& metrics = *static_cast<NONCLIENTMETRICSW*>(answer);
    g_questions.push_back({action, size, metrics.cbSize});
    metrics.lfMessageFont.lfHeight = -37;
    return TRUE;
}

BOOL WINAPI AnswerAndFail(UINT action, UINT size, void* answer, UINT flags)
{
    Answer(action, size, answer, flags);
    return FALSE;
}

TEST(SysLook, FontIsAskedForWithTheSizeOfTheMetrics)
{
    const ts::ReplacedImport answer(nullptr, "SystemParametersInfoW", &Answer);
    g_questions.clear();
    CQorSysLook look;
    EXPECT_EQ((std::vector<std::vector<UINT>>{{SPI_GETNONCLIENTMETRICS, 504, 504}}), g_questions);
    LOGFONTW font = {};
    look.m_font.GetLogFont(&font);
    EXPECT_EQ(-37, font.lfHeight);
}

TEST(SysLook, WithoutMetricsThereIsNoFont)
{
    const ts::ReplacedImport answer(nullptr, "SystemParametersInfoW", &AnswerAndFail);
    std::unique_ptr<CQorSysLook> look;
    EXPECT_NO_THROW(look = std::make_unique<CQorSysLook>());
    ASSERT_NE(nullptr, look);
    EXPECT_EQ(nullptr, look->m_font.GetSafeHandle());
    EXPECT_EQ(ColoursBy(&::GetSysColor), ColoursOf(*look));
}

TEST(SysLook, IsNotReadAgainWhenTheSystemColoursChange)
{
    const int index = COLOR_BTNTEXT;
    const COLORREF old = ::GetSysColor(index);
    const COLORREF changed = old ^ RGB(1, 1, 1);
    ASSERT_TRUE(::SetSysColors(1, &index, &changed));
    EXPECT_EQ(old, QorSysLook.m_clrBtnText);
    ::SetSysColors(1, &index, &old);
}

TEST(SysLook, DisabledTextIsGrey)
{
    EXPECT_EQ(::GetSysColor(COLOR_GRAYTEXT), QorSysLook.TextColor(true));
    EXPECT_EQ(::GetSysColor(COLOR_BTNTEXT), QorSysLook.TextColor(false));
}

} // namespace
