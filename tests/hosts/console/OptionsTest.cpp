#include <hosts/console/Options.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

struct Parsed
{
    bool understood = false;
    ConsoleOptions options;
    CString message;
};

Parsed Parse(const std::vector<const wchar_t*>& arguments)
{
    std::vector<LPWSTR> argv = {const_cast<LPWSTR>(L"QorConsole")};
    for (const wchar_t* argument : arguments) {
        argv.push_back(const_cast<LPWSTR>(argument));
    }
    Parsed parsed;
    parsed.understood = ParseOptions(static_cast<int>(argv.size()), argv.data(), parsed.options, parsed.message);
    return parsed;
}

TEST(ConsoleOptions, NoneAreNeeded)
{
    const Parsed parsed = Parse({});
    EXPECT_TRUE(parsed.understood);
    EXPECT_FALSE(parsed.options.demo);
    EXPECT_FALSE(parsed.options.help);
    EXPECT_TRUE(parsed.options.shotsFolder.IsEmpty());
}

TEST(ConsoleOptions, AllOfThemTogether)
{
    const Parsed parsed = Parse({L"--demo", L"--lang", L"de", L"--shots", L"out", L"--page", L"drawing"});
    EXPECT_TRUE(parsed.understood);
    EXPECT_TRUE(parsed.options.demo);
    EXPECT_STREQ(L"de", parsed.options.language);
    EXPECT_STREQ(L"out", parsed.options.shotsFolder);
    EXPECT_STREQ(L"drawing", parsed.options.page);
}

TEST(ConsoleOptions, AnUnknownOneIsNamedInTheMessage)
{
    const Parsed parsed = Parse({L"--demo", L"--fast"});
    EXPECT_FALSE(parsed.understood);
    EXPECT_GE(parsed.message.Find(L"--fast"), 0);
}

TEST(ConsoleOptions, AStrayWordIsRefused)
{
    EXPECT_FALSE(Parse({L"buttons"}).understood);
}

TEST(ConsoleOptions, HelpNamesThePages)
{
    EXPECT_GE(OptionsHelp(L"one, two").Find(L" one, two\r\n"), 0);
}

TEST(ConsoleOptions, AMissingValueIsRefused)
{
    for (const wchar_t* option : {L"--lang", L"--shots", L"--page"}) {
        const Parsed last = Parse({option});
        EXPECT_FALSE(last.understood);
        EXPECT_GE(last.message.Find(option), 0);
        EXPECT_FALSE(Parse({option, L"--demo"}).understood);
        EXPECT_FALSE(Parse({option, L""}).understood);
    }
}

} // namespace
