#include <tests/support/Support.h>

#include <gtest/gtest.h>

TEST(Program, WrittenInTheUsualWayRunsAndGetsItsData)
{
    const std::wstring program = ts::ProgramFolder() + L"\\afx_sample.exe";
    const auto result = ts::RunProcess(L"\"" + program + L"\"", 60000);
    ASSERT_TRUE(result.started);
    ASSERT_FALSE(result.timedOut);
    EXPECT_EQ(result.status, 0u) << result.output;
}
