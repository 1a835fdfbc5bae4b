#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

/** A screen device context with a font of the dialogs' face. */
class FontDc
{
  public:
    FontDc(int height, int weight)
        : m_dc(::CreateCompatibleDC(nullptr)),
          m_font(
              ::CreateFontW(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, L"MS Shell Dlg"))
    {
        ::SelectObject(m_dc, m_font);
    }
    ~FontDc()
    {
        ::DeleteDC(m_dc);
        ::DeleteObject(m_font);
    }
    FontDc(const FontDc&) = delete;
    FontDc& operator=(const FontDc&) = delete;

    int MeasuredWidth(wchar_t character) const
    {
        INT width = 0;
        ::GetCharWidth32W(m_dc, character, character, &width);
        return width;
    }

    int DrawnWidth(wchar_t character) const
    {
        const MAT2 identity = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
        GLYPHMETRICS metrics = {};
        ::GetGlyphOutlineW(m_dc, character, GGO_BITMAP, &metrics, 0, nullptr, &identity);
        return metrics.gmCellIncX;
    }

  private:
    HDC m_dc;
    HFONT m_font;
};

/** Characters whose width is another one when it is drawn than when it is measured. */
std::wstring UnequalCharacters(int height, int weight)
{
    const FontDc font(height, weight);
    std::wstring unequal;
    for (wchar_t character = L'!'; character <= L'~'; ++character) {
        if (font.MeasuredWidth(character) != font.DrawnWidth(character)) {
            unequal += character;
        }
    }
    return unequal;
}

} // namespace

TEST(Font, TextOfDialogsIsMeasuredAsItIsDrawn)
{
    ASSERT_TRUE(ts::HasStandardDialogFont());
    for (const int height : {-11, -12, -13}) {
        EXPECT_EQ(UnequalCharacters(height, FW_NORMAL), L"") << height;
        EXPECT_EQ(UnequalCharacters(height, FW_BOLD), L"") << height << " bold";
    }
}
