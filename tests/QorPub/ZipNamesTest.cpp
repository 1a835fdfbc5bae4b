#include <QorPub/ZipNames.h>

#include <gtest/gtest.h>

TEST(ZipNames, OrdinaryNamesAreAllowed)
{
    for (LPCWSTR name :
         {L"a", L"a/b.txt", L"a\\b", L"folder/", L".hidden", L"a..b", L"console", L"com10", L"\u4E2D/x y"}) {
        EXPECT_TRUE(qor::IsSafeEntryName(name)) << ts::ToUtf8(name);
    }
}

TEST(ZipNames, NamesThatLeaveTheFolderAreRefused)
{
    for (LPCWSTR name :
         {L"..", L"../a", L"a/../../b", L"a\\..\\b", L"/a", L"\\a", L"C:\\a", L"C:a", L"//server/a", L"a/./b"}) {
        EXPECT_FALSE(qor::IsSafeEntryName(name)) << ts::ToUtf8(name);
    }
}

TEST(ZipNames, NamesThatAreNoFilesAreRefused)
{
    for (LPCWSTR name : {L"", L"/", L"a//b", L"a?", L"a*", L"a|b", L"a\tb", L"a:stream", L"a.", L"a ", L"CON",
                         L"nul.txt", L"x/Com1", L"lpt9.a.b", L"aux "}) {
        EXPECT_FALSE(qor::IsSafeEntryName(name)) << ts::ToUtf8(name);
    }
}
