#include <QorApi/QorApi.h>
#include <QorUI/app/module/LibText.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

/** English language data of the library's own, made for one test. */
class LibText : public testing::Test
{
  protected:
    LibText() : m_data(L"QOR_LANG_DIR", m_folder.Path().c_str())
    {
        m_folder.MakeFolder(L"en");
        QorSetLanguage(nullptr);
    }

    void Write(const char* strings) const
    {
        const std::string text = std::string("<QorLang><Strings>") + strings + "</Strings></QorLang>";
        ts::WriteBytes(m_folder.File(L"en\\QorUI.dll.xml"), text);
    }

  private:
    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_data;
};

TEST_F(LibText, ComesFromTheLibrarysStrings)
{
    Write("<STR_OK>Fine</STR_OK>");
    EXPECT_STREQ(L"Fine", QorLibText(L"STR_OK"));
    EXPECT_STREQ(L"STR_NONE", QorLibText(L"STR_NONE"));
}

TEST_F(LibText, ValueTakesThePlaceOfThePlaceholder)
{
    Write("<STR_A>not: %s</STR_A>");
    EXPECT_STREQ(L"not: :/", QorLibFormat(L"STR_A", L":/"));
    EXPECT_STREQ(L"not: %s%n", QorLibFormat(L"STR_A", L"%s%n")) << "the value is no format";
}

TEST_F(LibText, DoubledPercentSignIsOne)
{
    Write("<STR_A>%% %s %%s</STR_A>");
    EXPECT_STREQ(L"% x %s", QorLibFormat(L"STR_A", L"x"));
}

TEST_F(LibText, MissingFormatGivesItsKey)
{
    Write("");
    EXPECT_STREQ(L"STR_A", QorLibFormat(L"STR_A", L"x"));
}

TEST_F(LibText, OtherPlaceholdersReadNothing)
{
    Write("<STR_A>%d %s %s %.*s %5s %</STR_A>");
    EXPECT_STREQ(L"%d x x %.*s %5s %", QorLibFormat(L"STR_A", L"x"));
}

} // namespace
