#include <tests/support/Support.h>

#include <gtest/gtest-spi.h>

#include <cstdlib>

namespace
{

TEST(TempFolder, IsEmptyAndGoesWithEverythingInIt)
{
    std::wstring path;
    {
        const ts::TempFolder folder;
        path = folder.Path();
        ASSERT_TRUE(ts::FileExists(path));
        ts::WriteBytes(folder.MakeFolder(L"a\\b") + L"\\c.txt", "x");
        EXPECT_TRUE(ts::FileExists(folder.File(L"a\\b\\c.txt")));
    }
    EXPECT_FALSE(ts::FileExists(path));
}

TEST(TempFolder, IsAnotherOneEachTime)
{
    const ts::TempFolder one;
    const ts::TempFolder other;
    EXPECT_NE(one.Path(), other.Path());
}

TEST(Bytes, ComeBackAsTheyWereWritten)
{
    const ts::TempFolder folder;
    const std::string bytes("a\r\n\0\x1a\xff", 6);
    ts::WriteBytes(folder.File(L"f"), bytes);
    EXPECT_EQ(bytes, ts::ReadBytes(folder.File(L"f")));
}

TEST(Bytes, OfAMissingFileFailTheTest)
{
    EXPECT_NONFATAL_FAILURE(ts::ReadBytes(L"C:\\no\\such\\file"), "cannot read");
}

TEST(Utf8, GoesThereAndBack)
{
    EXPECT_EQ("\xC3\xA4\xE4\xB8\xAD", ts::ToUtf8(L"\x00E4\x4E2D"));
    EXPECT_EQ(L"\x00E4\x4E2D", ts::FromUtf8("\xC3\xA4\xE4\xB8\xAD"));
}

TEST(EnvironmentVariable, IsSetForSystemAndRunTimeAndPutBack)
{
    wchar_t value[32] = {};
    {
        const ts::EnvironmentVariable variable(L"QOR_TEST_VARIABLE", L"yes");
        EXPECT_EQ(3u, GetEnvironmentVariableW(L"QOR_TEST_VARIABLE", value, 32));
        EXPECT_STREQ(L"yes", value);
        EXPECT_STREQ("yes", getenv("QOR_TEST_VARIABLE"));
    }
    EXPECT_EQ(0u, GetEnvironmentVariableW(L"QOR_TEST_VARIABLE", value, 32));
    EXPECT_EQ(nullptr, getenv("QOR_TEST_VARIABLE"));
}

TEST(RunProcess, GivesStatusAndOutput)
{
    const ts::ProcessResult result = ts::RunProcess(L"cmd.exe /c echo hello& exit 7");
    EXPECT_TRUE(result.started);
    EXPECT_FALSE(result.timedOut);
    EXPECT_EQ(7u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("hello")) << result.output;
}

TEST(RunProcess, TellsWhenThereIsNoSuchProgram)
{
    EXPECT_FALSE(ts::RunProcess(L"Z:\\no\\such\\program.exe").started);
}

TEST(ProgramFolder, HoldsTheProgram)
{
    EXPECT_EQ(ts::ProgramFolder() + L"\\support_test.exe", ts::ProgramPath());
}

} // namespace
