#include "LanguageFixture.h"

namespace
{

using ModuleLangTest = LanguageTest;

} // namespace

TEST_F(ModuleLangTest, MissingKeyGivesTheKey)
{
    Write(L"en", "<Strings/>");
    EXPECT_EQ(Text(L"STR_NONE"), L"STR_NONE");
}

TEST_F(ModuleLangTest, MissingTranslationFileIsNotTraced)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(L"de", "", L"Other");
    EXPECT_EQ(Text(L"STR_A"), L"en");
    EXPECT_FALSE(HasTraceLog());
}

TEST_F(ModuleLangTest, TranslationWithTheSamePlaceholdersIsTaken)
{
    Write(L"en", "<Strings><STR_A>%s has %d items (%5.1f%%)</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>%s hat %i Elemente (%.2f %%)</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s hat %i Elemente (%.2f %%)");
    EXPECT_FALSE(HasTraceLog());
}

TEST_F(ModuleLangTest, TranslationWithOtherPlaceholdersIsDropped)
{
    Write(L"en", "<Strings><STR_A>%s %d</STR_A><STR_B>plain</STR_B><STR_C>%s</STR_C><STR_D>%s</STR_D></Strings>");
    Write(L"de", "<Strings><STR_A>%d %s</STR_A><STR_B>%s</STR_B><STR_C>ohne</STR_C><STR_D>%s %s</STR_D></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s %d");
    EXPECT_EQ(Text(L"STR_B"), L"plain");
    EXPECT_EQ(Text(L"STR_C"), L"%s");
    EXPECT_EQ(Text(L"STR_D"), L"%s");
    EXPECT_NE(TraceLog().find("STR_A"), std::string::npos);
}

TEST_F(ModuleLangTest, DroppedTranslationFallsBackToTheNextFitOne)
{
    Write(L"en", "<Strings><STR_A>%s en</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>%s de</STR_A></Strings>");
    Write(L"de-AT", "<Strings><STR_A>%d at</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s de");
}

TEST_F(ModuleLangTest, TranslationWithoutEnglishTextMayHaveNoPlaceholders)
{
    Write(L"en", "<Strings/>");
    Write(L"de", "<Strings><STR_A>nur deutsch</STR_A><STR_B>%s</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"nur deutsch");
    EXPECT_EQ(Text(L"STR_B"), L"STR_B");
}

TEST_F(ModuleLangTest, WritingPlaceholderIsNeverServed)
{
    Write(L"en", "<Strings><STR_A>%n</STR_A><STR_B>en</STR_B></Strings>");
    Write(L"de", "<Strings><STR_A>%n</STR_A><STR_B>%n</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"STR_A");
    EXPECT_EQ(Text(L"STR_B"), L"en");
}

TEST_F(ModuleLangTest, DamagedTranslationFallsBackToEnglishAndIsTraced)
{
    const char* const damaged[] = {"", "no xml", "<QorLang><Strings><STR_A>x</STR_A></Strings>",
                                   "<QorLang><Strings><STR_A>\xC3\x28</STR_A></Strings></QorLang>",
                                   "<Other><Strings><STR_A>x</STR_A></Strings></Other>"};
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    for (int i = 0; i < static_cast<int>(std::size(damaged)); ++i) {
        const std::wstring locale = L"x" + std::to_wstring(i); // each read anew
        WriteRaw(locale, damaged[i]);
        ASSERT_TRUE(QorSetLanguage(locale.c_str()));
        EXPECT_EQ(Text(L"STR_A"), L"en") << damaged[i];
        EXPECT_NE(TraceLog().find("x" + std::to_string(i)), std::string::npos) << damaged[i];
    }
}

TEST_F(ModuleLangTest, DamagedEnglishShowsKeysAndIsTraced)
{
    WriteRaw(L"en", "<QorLang>");
    EXPECT_EQ(Text(L"STR_A"), L"STR_A");
    EXPECT_NE(TraceLog().find("App.exe.xml"), std::string::npos);
}

TEST_F(ModuleLangTest, DamagedEnglishLeavesTranslationsWithoutPlaceholders)
{
    WriteRaw(L"en", "<QorLang>");
    Write(L"de", "<Strings><STR_A>ohne</STR_A><STR_B>%s mit</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"ohne");
    EXPECT_EQ(Text(L"STR_B"), L"STR_B");
}

TEST_F(ModuleLangTest, FirstOfTwoEqualKeysCounts)
{
    Write(L"en", "<Strings><STR_A>first</STR_A><STR_A>second</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"first");
}
