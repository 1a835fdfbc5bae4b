#include "LanguageFixture.h"

#include <tests/support/MemoryShortage.h>

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
    CXmlElem* german = QorGetModuleLang(kModule, L"Strings");
    LPCWSTR text = german->GetChildData(L"STR_A", 1);
    QorSetLanguage(L"en");
    EXPECT_EQ(Text(L"STR_A"), L"en");
    EXPECT_STREQ(text, L"de");
    EXPECT_STREQ(german->GetChildData(L"STR_A", 1), L"de");
}

TEST_F(LanguageTest, MissingSectionsModulesAndNullNamesGiveEmptyElements)
{
    Write(L"en", "<Strings/>");
    for (CXmlElem* element :
         {QorGetModuleLang(kModule, L"IDD_DLG_NONE"), QorGetModuleLang(L"None.dll", L"Strings"),
          QorGetModuleLang(nullptr, L"Strings"), QorGetModuleLang(kModule, nullptr), QorGetModuleLang(L"", L""),
          QorGetModuleLang(L"..\\en\\App.exe", L"Strings"), QorSetDlgLang(nullptr, kModule, nullptr, 1)}) {
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

TEST_F(LanguageTest, ShortMemoryGivesAnEmptyElementAndIsGotOver)
{
    Write(L"en", "<Strings><STR_A>en</STR_A></Strings>");
    {
        const ts::MemoryShortage shortage(L"QorApi.dll");
        EXPECT_EQ(QorGetModuleLang(kModule, L"Strings")->GetChildCount(), 0);
        EXPECT_EQ(QorSetDlgLang(nullptr, kModule, L"Strings", 0)->GetChildCount(), 0);
        EXPECT_FALSE(QorIsSameFormat(L"%d %d %d %d %d", L"%d %d %d %d %d"));
    }
    EXPECT_EQ(Text(L"STR_A"), L"en");
}

TEST_F(LanguageTest, DialogGetsItsTextAndThoseOfItsControls)
{
    Write(L"en", "<IDD_DLG_ONE><Text>Title</Text><Ctrl100>First</Ctrl100><Ctrl102>None</Ctrl102>"
                 "<STR_MORE>More</STR_MORE></IDD_DLG_ONE>");
    ts::HostWindow host;
    const HWND first = host.Add(L"STATIC", L"old", WS_CHILD, 0, 0, 50, 20, 100);
    const HWND second = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 20, 50, 20, 101);
    CXmlElem* element = QorSetDlgLang(host.Hwnd(), kModule, L"IDD_DLG_ONE", 1);
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
    EXPECT_STREQ(QorSetDlgLang(host.Hwnd(), kModule, L"IDD_DLG_ONE", 0)->GetChildData(L"Ctrl100", 1), L"First");
    EXPECT_EQ(WindowText(host.Hwnd()), L"kept");
    EXPECT_EQ(WindowText(control), L"old");
}

TEST_F(LanguageTest, WindowWithoutTextElementKeepsItsText)
{
    Write(L"en", "<IDD_DLG_ONE><Ctrl100>First</Ctrl100></IDD_DLG_ONE>");
    ts::HostWindow host;
    SetWindowTextW(host.Hwnd(), L"kept");
    QorSetDlgLang(host.Hwnd(), kModule, L"IDD_DLG_ONE", 1);
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
        EXPECT_STREQ(QorSetDlgLang(window, kModule, L"IDD_DLG_ONE", 1)->GetChildData(L"Text", 1), L"Title");
    }
}

TEST_F(LanguageTest, ElementsThatOnlyLookLikeControlsAreNoControls)
{
    Write(L"en", "<IDD_DLG_ONE><Ctrl>a</Ctrl><Ctrlx>b</Ctrlx><Ctrl12x>c</Ctrl12x><Ctrl0>d</Ctrl0>"
                 "<Ctrl99999999999>e</Ctrl99999999999></IDD_DLG_ONE>");
    ts::HostWindow host;
    const HWND control = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 0, 50, 20, 12);
    const HWND zero = host.Add(L"STATIC", L"kept", WS_CHILD, 0, 0, 50, 20, 0);
    QorSetDlgLang(host.Hwnd(), kModule, L"IDD_DLG_ONE", 1);
    EXPECT_EQ(WindowText(control), L"kept");
    EXPECT_EQ(WindowText(zero), L"kept");
}
