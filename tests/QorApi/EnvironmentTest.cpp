#include <QorApi/Environment.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

namespace
{

constexpr LPCWSTR kVariable = L"QOR_ENVIRONMENT_TEST";

} // namespace

TEST(Environment, VariableThatIsNotSetIsEmpty)
{
    const ts::EnvironmentVariable none(kVariable, nullptr);
    EXPECT_EQ(ReadEnvironment(kVariable), L"");
}

TEST(Environment, ValueIsReadWholeAndAnewEachTime)
{
    const ts::EnvironmentVariable variable(kVariable, L"first \u4E2D");
    EXPECT_EQ(ReadEnvironment(kVariable), L"first \u4E2D");
    const std::wstring later(2000, L'x');
    SetEnvironmentVariableW(kVariable, later.c_str());
    EXPECT_EQ(ReadEnvironment(kVariable), later);
}
