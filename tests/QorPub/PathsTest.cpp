#include <QorPub/QorPub.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

TEST(AppPath, IsTheProgramsFolderWithBackslash)
{
    EXPECT_EQ(ts::ProgramFolder() + L"\\", g_AppPath.GetString());
}

TEST(StorePath, TheEnvironmentNamesIt)
{
    ts::EnvironmentVariable store(L"QOR_STORE", L"C:\\somewhere\\my.db");
    EXPECT_STREQ(L"C:\\somewhere\\my.db", QorGetStorePath().GetString());
    EXPECT_STREQ(L"C:\\somewhere", QorGetStoreFolder().GetString());
}

TEST(StorePath, ARelativeNameBecomesAFullPath)
{
    ts::EnvironmentVariable store(L"QOR_STORE", L"my.db");
    WCHAR folder[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, folder);
    EXPECT_EQ(std::wstring(folder) + L"\\my.db", QorGetStorePath().GetString());
}

TEST(StorePath, ADrivesRootKeepsItsBackslash)
{
    ts::EnvironmentVariable store(L"QOR_STORE", L"C:\\my.db");
    EXPECT_STREQ(L"C:\\", QorGetStoreFolder().GetString());
}

TEST(StorePath, TheDefaultLiesInTheLocalApplicationData)
{
    ts::EnvironmentVariable store(L"QOR_STORE", nullptr);
    ts::EnvironmentVariable local(L"LOCALAPPDATA", L"C:\\local\\");
    EXPECT_STREQ(L"C:\\local\\Qor\\store.db", QorGetStorePath().GetString());
    EXPECT_STREQ(L"C:\\local\\Qor", QorGetStoreFolder().GetString());
}

TEST(StorePath, WithoutLocalApplicationDataTheTemporaryFolderServes)
{
    ts::EnvironmentVariable store(L"QOR_STORE", nullptr);
    ts::EnvironmentVariable local(L"LOCALAPPDATA", nullptr);
    WCHAR temp[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH, temp);
    EXPECT_EQ(std::wstring(temp) + L"Qor\\store.db", QorGetStorePath().GetString());
}

TEST(QorCreateFolder, MakesMissingFoldersAbove)
{
    ts::TempFolder folder;
    std::wstring path = folder.File(L"a\\b\\c");
    EXPECT_TRUE(QorCreateFolder(path.c_str()));
    EXPECT_NE(0u, GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(QorCreateFolder((path + L"\\").c_str()));
    EXPECT_TRUE(QorCreateFolder(L"C:\\"));
}

TEST(QorCreateFolder, FailsBelowAFileAndForAnEmptyPath)
{
    ts::TempFolder folder;
    ts::WriteBytes(folder.File(L"file"), "x");
    EXPECT_FALSE(QorCreateFolder(folder.File(L"file").c_str()));
    EXPECT_FALSE(QorCreateFolder(folder.File(L"file\\sub").c_str()));
    EXPECT_FALSE(QorCreateFolder(L""));
    EXPECT_FALSE(QorCreateFolder(nullptr));
}
