#include <tests/hosts/console/ConsoleFixture.h>

namespace
{

TEST_F(Console, ABadOptionIsAClearMessageAndStatusTwo)
{
    const ts::ProcessResult result = Run(L"--fast");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("unknown option '--fast'")) << result.output;
}

TEST_F(Console, AnUnknownLanguageIsStatusTwo)
{
    const ts::ProcessResult result = Run(L"--lang xx-YY");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("xx-YY")) << result.output;
}

TEST_F(Console, AnUnknownPageIsStatusTwoAndThePagesAreNamed)
{
    const ts::ProcessResult result = Run(L"--page nothing");
    EXPECT_EQ(2u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("'nothing'")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("buttons, links")) << result.output;
}

TEST_F(Console, HelpListsTheOptionsAndPages)
{
    const ts::ProcessResult result = Run(L"--help");
    EXPECT_EQ(0u, result.status);
    EXPECT_NE(std::string::npos, result.output.find("--shots")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("progress, info")) << result.output;
}

TEST_F(Console, StartsWithADamagedStoreAndLeavesItAlone)
{
    const std::string damage(4096, 'x');
    ts::WriteBytes(m_folder.File(L"store.db"), damage);
    const ts::ProcessResult result = Run(L"--shots \"" + m_folder.File(L"shots") + L"\"", 480000);
    EXPECT_EQ(0u, result.status) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("the store")) << result.output;
    EXPECT_EQ(damage, ts::ReadBytes(m_folder.File(L"store.db")));
}

} // namespace
