#include <hosts/console/ConsoleFrame.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/PageRegistry.h>
#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <regex>

namespace
{

/** Language data made for one test, in place of the console's own. */
class ConsoleText : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_TRUE(QorSetLanguage(L"en")); }

    void Write(const std::string& bytes) const
    {
        ts::WriteBytes(m_folder.MakeFolder(L"lang\\en") + L"\\QorConsole.exe.xml", bytes);
    }

    void WriteStrings(const std::string& strings) const
    {
        Write("<QorLang><Strings>" + strings + "</Strings></QorLang>");
    }

  private:
    ts::TempFolder m_folder;
    std::wstring m_made = m_folder.MakeFolder(L"lang\\en");
    ts::EnvironmentVariable m_data{L"QOR_LANG_DIR", m_folder.File(L"lang").c_str()};
    ts::EnvironmentVariable m_store{L"QOR_STORE", m_folder.File(L"store.db").c_str()};
};

TEST_F(ConsoleText, AFormatThatFitsIsTaken)
{
    WriteStrings("<STR_A>click %03d of %s</STR_A><STR_B>100 %%</STR_B>");
    EXPECT_STREQ(L"click %03d of %s", ConFormat(L"STR_A", L"%d %s"));
    EXPECT_STREQ(L"100 %%", ConFormat(L"STR_B", L""));
}

TEST_F(ConsoleText, InPlaceOfAFormatThatDoesNotFitTheModelStands)
{
    WriteStrings("<STR_MORE>%d %s %s</STR_MORE><STR_LESS>%d</STR_LESS><STR_ORDER>%s %d</STR_ORDER>"
                 "<STR_SIZE>%I64d %s</STR_SIZE><STR_STAR>%*d %s</STR_STAR><STR_N>%d %n</STR_N>");
    for (const wchar_t* key :
         {L"STR_MORE", L"STR_LESS", L"STR_ORDER", L"STR_SIZE", L"STR_STAR", L"STR_N", L"STR_MISSING"}) {
        EXPECT_STREQ(L"%d: %s", ConFormat(key, L"%d: %s")) << ts::ToUtf8(key);
    }
}

TEST_F(ConsoleText, NoPageTakesAFormatForMoreThanItGives)
{
    const std::string own = ts::ReadBytes(ts::ProgramFolder() + L"\\lang\\en\\QorConsole.exe.xml");
    const std::string wrong = std::regex_replace(own, std::regex("%[0-9]*[a-zA-Z]"), "%s%s%s%s%s%s%s%s");
    ASSERT_NE(own, wrong);
    Write(wrong);
    CConsoleFrame frame;
    ASSERT_TRUE(frame.Create());
    frame.ShowWindow(SW_SHOW);
    size_t pages = 0;
    while (frame.ShowPage(pages)) {
        for (const PageState& state : frame.CurrentPage()->States()) {
            state.show();
            ts::Settle();
        }
        ++pages;
    }
    EXPECT_EQ(AllPages().size(), pages);
    frame.DestroyWindow();
}

} // namespace
