#include <QorApi/QorApi.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

constexpr LPCWSTR MODULE = L"App.exe";

/** Language data made for one test, with German chosen. */
class LanguageTest : public testing::Test
{
  protected:
    LanguageTest()
        : m_data(L"QOR_LANG_DIR", m_folder.File(L"lang").c_str()),
          m_locale(L"QOR_LANG", L"de-AT"),
          m_store(L"QOR_STORE", m_folder.File(L"store.db").c_str())
    {
        QorSetLanguage(nullptr);
    }
    ~LanguageTest() override { QorSetLanguage(nullptr); }

    /** Writes a language file with the given sections. */
    void Write(const std::wstring& locale, const std::string& sections, const std::wstring& module = MODULE) const
    {
        WriteRaw(locale, "<?xml version=\"1.0\" encoding=\"UTF-8\"?><QorLang>" + sections + "</QorLang>", module);
    }

    void WriteRaw(const std::wstring& locale, const std::string& bytes, const std::wstring& module = MODULE) const
    {
        const std::wstring folder = m_folder.MakeFolder(L"lang\\" + locale);
        ts::WriteBytes(folder + L"\\" + module + L".xml", bytes);
    }

    static std::wstring Text(LPCWSTR key, LPCWSTR section = L"Strings")
    {
        return QorGetModuleLang(MODULE, section)->GetChildData(key, 1);
    }

    std::string TraceLog() const { return ts::ReadBytes(m_folder.File(L"qor.log")); }
    bool HasTraceLog() const { return ts::FileExists(m_folder.File(L"qor.log")); }

  private:
    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_data;
    ts::EnvironmentVariable m_locale;
    ts::EnvironmentVariable m_store;
};

std::wstring WindowText(HWND window)
{
    WCHAR text[100] = {};
    GetWindowTextW(window, text, 100);
    return text;
}

} // namespace

// ------------------------------------------------------------------ which language

TEST_F(LanguageTest, LocaleComesBeforeItsLanguageBeforeEnglish)
{
    Write(L"en", "<Strings><STR_A>a en</STR_A><STR_B>b en</STR_B><STR_C>c en</STR_C></Strings>");
    Write(L"de", "<Strings><STR_A>a de</STR_A><STR_B>b de</STR_B></Strings>");
    Write(L"de-AT", "<Strings><STR_A>a at</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"a at");
    EXPECT_EQ(Text(L"STR_B"), L"b de");
    EXPECT_EQ(Text(L"STR_C"), L"c en");
}

TEST_F(LanguageTest, FolderNameIsTheBestThatExists)
{
    Write(L"en", "");
    EXPECT_STREQ(QorGetLanguage(), L"en");
    Write(L"de", "");
    EXPECT_STREQ(QorGetLanguage(), L"de");
    Write(L"de-AT", "");
    EXPECT_STREQ(QorGetLanguage(), L"de-AT");
}

TEST_F(LanguageTest, ChosenLanguageComesBeforeTheEnvironment)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>de</STR_A></Strings>");
    Write(L"zh-CN", "<Strings><STR_A>\xE4\xB8\xAD</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"de");
    EXPECT_TRUE(QorSetLanguage(L"zh-CN"));
    EXPECT_EQ(Text(L"STR_A"), L"\u4E2D");
    EXPECT_STREQ(QorGetLanguage(), L"zh-CN");
    EXPECT_TRUE(QorSetLanguage(L"en-GB"));
    EXPECT_EQ(Text(L"STR_A"), L"en");
    EXPECT_TRUE(QorSetLanguage(L""));
    EXPECT_EQ(Text(L"STR_A"), L"de");
}

TEST_F(LanguageTest, UnknownLanguageIsRefusedAndChangesNothing)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>de</STR_A></Strings>");
    for (LPCWSTR name : {L"fr", L"fr-FR", L"..", L"..\\en", L"de/AT", L"d e"}) {
        EXPECT_FALSE(QorSetLanguage(name)) << name;
    }
    EXPECT_EQ(Text(L"STR_A"), L"de");
}

TEST_F(LanguageTest, EnvironmentWithoutLocaleNameMeansTheUsersLocale)
{
    WCHAR user[LOCALE_NAME_MAX_LENGTH] = {};
    ASSERT_NE(GetUserDefaultLocaleName(user, LOCALE_NAME_MAX_LENGTH), 0);
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(user, "<Strings><STR_A>user</STR_A></Strings>");
    const ts::EnvironmentVariable damaged(L"QOR_LANG", L"..\\..\\de");
    EXPECT_EQ(Text(L"STR_A"), L"user");
}

TEST_F(LanguageTest, TextsOfAFormerLanguageStayValid)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>de</STR_A></Strings>");
    CXmlElem* german = QorGetModuleLang(MODULE, L"Strings");
    LPCWSTR text = german->GetChildData(L"STR_A", 1);
    QorSetLanguage(L"en");
    EXPECT_EQ(Text(L"STR_A"), L"en");
    EXPECT_STREQ(text, L"de");
    EXPECT_STREQ(german->GetChildData(L"STR_A", 1), L"de");
}

// ------------------------------------------------------------------ what is missing

TEST_F(LanguageTest, MissingKeyGivesTheKey)
{
    Write(L"en", "<Strings/>");
    EXPECT_EQ(Text(L"STR_NONE"), L"STR_NONE");
}

TEST_F(LanguageTest, MissingSectionsModulesAndNullNamesGiveEmptyElements)
{
    Write(L"en", "<Strings/>");
    for (CXmlElem* element :
         {QorGetModuleLang(MODULE, L"IDD_DLG_NONE"), QorGetModuleLang(L"None.dll", L"Strings"),
          QorGetModuleLang(nullptr, L"Strings"), QorGetModuleLang(MODULE, nullptr), QorGetModuleLang(L"", L""),
          QorGetModuleLang(L"..\\en\\App.exe", L"Strings"), QorSetDlgLang(nullptr, MODULE, nullptr, 1)}) {
        ASSERT_NE(element, nullptr);
        EXPECT_EQ(element->GetChildCount(), 0);
        EXPECT_STREQ(element->GetChildData(L"STR_KEY", 1), L"STR_KEY");
    }
}

TEST_F(LanguageTest, ProductTextsComeFromTheProductModule)
{
    Write(L"en", "<Strings><STR_ERROR>Error</STR_ERROR></Strings>", L"Product");
    EXPECT_STREQ(QorGetString(L"STR_ERROR"), L"Error");
    EXPECT_STREQ(QorGetString(L"STR_NONE"), L"STR_NONE");
    EXPECT_STREQ(QorGetString(nullptr), L"");
}

TEST_F(LanguageTest, MissingTranslationFileIsNotTraced)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    Write(L"de", "", L"Other");
    EXPECT_EQ(Text(L"STR_A"), L"en");
    EXPECT_FALSE(HasTraceLog());
}

// ------------------------------------------------------------------ placeholders

TEST_F(LanguageTest, TranslationWithTheSamePlaceholdersIsTaken)
{
    Write(L"en", "<Strings><STR_A>%s has %d items (%5.1f%%)</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>%s hat %i Elemente (%.2f %%)</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s hat %i Elemente (%.2f %%)");
    EXPECT_FALSE(HasTraceLog());
}

TEST_F(LanguageTest, TranslationWithOtherPlaceholdersIsDropped)
{
    Write(L"en", "<Strings><STR_A>%s %d</STR_A><STR_B>plain</STR_B><STR_C>%s</STR_C><STR_D>%s</STR_D></Strings>");
    Write(L"de", "<Strings><STR_A>%d %s</STR_A><STR_B>%s</STR_B><STR_C>ohne</STR_C><STR_D>%s %s</STR_D></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s %d");
    EXPECT_EQ(Text(L"STR_B"), L"plain");
    EXPECT_EQ(Text(L"STR_C"), L"%s");
    EXPECT_EQ(Text(L"STR_D"), L"%s");
    EXPECT_NE(TraceLog().find("STR_A"), std::string::npos);
}

TEST_F(LanguageTest, DroppedTranslationFallsBackToTheNextFitOne)
{
    Write(L"en", "<Strings><STR_A>%s en</STR_A></Strings>");
    Write(L"de", "<Strings><STR_A>%s de</STR_A></Strings>");
    Write(L"de-AT", "<Strings><STR_A>%d at</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"%s de");
}

TEST_F(LanguageTest, TranslationWithoutEnglishTextMayHaveNoPlaceholders)
{
    Write(L"en", "<Strings/>");
    Write(L"de", "<Strings><STR_A>nur deutsch</STR_A><STR_B>%s</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"nur deutsch");
    EXPECT_EQ(Text(L"STR_B"), L"STR_B");
}

TEST_F(LanguageTest, WritingPlaceholderIsNeverServed)
{
    Write(L"en", "<Strings><STR_A>%n</STR_A><STR_B>en</STR_B></Strings>");
    Write(L"de", "<Strings><STR_A>%n</STR_A><STR_B>%n</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"STR_A");
    EXPECT_EQ(Text(L"STR_B"), L"en");
}

TEST(SameFormat, PlaceholdersCountInNumberOrderAndKind)
{
    EXPECT_TRUE(QorIsSameFormat(L"%s: 0x%04X", L"%s %x"));
    EXPECT_TRUE(QorIsSameFormat(L"100 %%", L"none"));
    EXPECT_TRUE(QorIsSameFormat(nullptr, L""));
    for (LPCWSTR text : {L"", L"%s", L"%s %s", L"%x %s", L"%s %x %x", L"%s %I64x", L"%s %x %"}) {
        EXPECT_FALSE(QorIsSameFormat(text, L"%s %x")) << ts::ToUtf8(text);
    }
    EXPECT_FALSE(QorIsSameFormat(L"%n", L"%n"));
}

// ------------------------------------------------------------------ damage

TEST_F(LanguageTest, ShortMemoryGivesAnEmptyElementAndIsGotOver)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    {
        const ts::MemoryShortage shortage(L"QorApi.dll");
        EXPECT_EQ(QorGetModuleLang(MODULE, L"Strings")->GetChildCount(), 0);
        EXPECT_EQ(QorSetDlgLang(nullptr, MODULE, L"Strings", 0)->GetChildCount(), 0);
        EXPECT_FALSE(QorIsSameFormat(L"%d %d %d %d %d", L"%d %d %d %d %d"));
    }
    EXPECT_EQ(Text(L"STR_A"), L"en");
}

TEST_F(LanguageTest, DamagedTranslationFallsBackToEnglishAndIsTraced)
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

TEST_F(LanguageTest, DamagedEnglishShowsKeysAndIsTraced)
{
    WriteRaw(L"en", "<QorLang>");
    EXPECT_EQ(Text(L"STR_A"), L"STR_A");
    EXPECT_NE(TraceLog().find("App.exe.xml"), std::string::npos);
}

TEST_F(LanguageTest, DamagedEnglishLeavesTranslationsWithoutPlaceholders)
{
    WriteRaw(L"en", "<QorLang>");
    Write(L"de", "<Strings><STR_A>ohne</STR_A><STR_B>%s mit</STR_B></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"ohne");
    EXPECT_EQ(Text(L"STR_B"), L"STR_B");
}

TEST_F(LanguageTest, FirstOfTwoEqualKeysCounts)
{
    Write(L"en", "<Strings><STR_A>first</STR_A><STR_A>second</STR_A></Strings>");
    EXPECT_EQ(Text(L"STR_A"), L"first");
}

// ------------------------------------------------------------------ dialogs

TEST_F(LanguageTest, DialogGetsItsTextAndThoseOfItsControls)
{
    Write(L"en", "<IDD_DLG_ONE><Text>Title</Text><Ctrl100>First</Ctrl100><Ctrl102>None</Ctrl102>"
                 "<STR_MORE>More</STR_MORE></IDD_DLG_ONE>");
    ts::HostWindow host;
    const HWND first = host.Add(L"STATIC", L"old", WS_CHILD, 0, 0, 50, 20, 100);
    const HWND second = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 20, 50, 20, 101);
    CXmlElem* element = QorSetDlgLang(host.Hwnd(), MODULE, L"IDD_DLG_ONE", 1);
    EXPECT_EQ(WindowText(host.Hwnd()), L"Title");
    EXPECT_EQ(WindowText(first), L"First");
    EXPECT_EQ(WindowText(second), L"kept");
    EXPECT_STREQ(element->GetChildData(L"STR_MORE", 1), L"More");
    EXPECT_STREQ(element->GetChildData(L"STR_NONE", 1), L"STR_NONE");
}

TEST_F(LanguageTest, WithoutTheFlagNoTextIsSet)
{
    Write(L"en", "<IDD_DLG_ONE><Text>Title</Text><Ctrl100>First</Ctrl100></IDD_DLG_ONE>");
    ts::HostWindow host;
    const HWND control = host.Add(L"STATIC", L"old", WS_CHILD, 0, 0, 50, 20, 100);
    SetWindowTextW(host.Hwnd(), L"kept");
    EXPECT_STREQ(QorSetDlgLang(host.Hwnd(), MODULE, L"IDD_DLG_ONE", 0)->GetChildData(L"Ctrl100", 1), L"First");
    EXPECT_EQ(WindowText(host.Hwnd()), L"kept");
    EXPECT_EQ(WindowText(control), L"old");
}

TEST_F(LanguageTest, WindowWithoutTextElementKeepsItsText)
{
    Write(L"en", "<IDD_DLG_ONE><Ctrl100>First</Ctrl100></IDD_DLG_ONE>");
    ts::HostWindow host;
    SetWindowTextW(host.Hwnd(), L"kept");
    QorSetDlgLang(host.Hwnd(), MODULE, L"IDD_DLG_ONE", 1);
    EXPECT_EQ(WindowText(host.Hwnd()), L"kept");
}

TEST_F(LanguageTest, NullAndDestroyedWindowsStillGiveTheElement)
{
    Write(L"en", "<IDD_DLG_ONE><Text>Title</Text></IDD_DLG_ONE>");
    HWND destroyed = nullptr;
    {
        ts::HostWindow host;
        destroyed = host.Hwnd();
    }
    for (const HWND window : {static_cast<HWND>(nullptr), destroyed}) {
        EXPECT_STREQ(QorSetDlgLang(window, MODULE, L"IDD_DLG_ONE", 1)->GetChildData(L"Text", 1), L"Title");
    }
}

TEST_F(LanguageTest, ElementsThatOnlyLookLikeControlsAreNoControls)
{
    Write(L"en", "<IDD_DLG_ONE><Ctrl>a</Ctrl><Ctrlx>b</Ctrlx><Ctrl12x>c</Ctrl12x><Ctrl0>d</Ctrl0>"
                 "<Ctrl99999999999>e</Ctrl99999999999></IDD_DLG_ONE>");
    ts::HostWindow host;
    const HWND control = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 0, 50, 20, 12);
    const HWND zero = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 0, 50, 20, 0);
    QorSetDlgLang(host.Hwnd(), MODULE, L"IDD_DLG_ONE", 1);
    EXPECT_EQ(WindowText(control), L"kept");
    EXPECT_EQ(WindowText(zero), L"kept");
}
