#include <gtest/gtest.h>
#include <tests/support/Support.h>

namespace
{

void ExpectContent(const wchar_t* program)
{
    const ts::ProcessResult result = ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\" + program + L"\"");
    EXPECT_TRUE(result.started);
    EXPECT_FALSE(result.timedOut);
    EXPECT_EQ(0u, result.status) << result.output;
    EXPECT_EQ("", result.output);
}

TEST(Hosts, ProgramWithItsOwnApplicationObject)
{
    ExpectContent(L"host_own_app.exe");
}

TEST(Hosts, ProgramWithoutApplicationObject)
{
    ExpectContent(L"host_plain.exe");
}

TEST(Hosts, ProgramThatLoadsAndFreesTheLibraryTwice)
{
    ExpectContent(L"host_loading.exe");
}

} // namespace
