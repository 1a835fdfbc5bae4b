#include <common/Owner.h>
#include <hosts/console/ConsoleOutput.h>
#include <tests/support/Support.h>

namespace
{

/** Gives the program another output while it lives. */
class OtherOutput
{
  public:
    explicit OtherOutput(HANDLE handle) { ::SetStdHandle(STD_OUTPUT_HANDLE, handle); }
    ~OtherOutput() { ::SetStdHandle(STD_OUTPUT_HANDLE, m_former); }
    OtherOutput(const OtherOutput&) = delete;
    OtherOutput& operator=(const OtherOutput&) = delete;

  private:
    HANDLE m_former = ::GetStdHandle(STD_OUTPUT_HANDLE);
};

TEST(ConsoleOutput, LinesAreWrittenInUtf8)
{
    const ts::TempFolder folder;
    const std::wstring path = folder.File(L"out.txt");
    {
        const own::File file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        ASSERT_TRUE(file);
        const OtherOutput output(file.Get());
        EXPECT_TRUE(ConsoleWriteLine(STD_OUTPUT_HANDLE, L"gr\x00FCn"));
        EXPECT_TRUE(ConsoleWriteLine(STD_OUTPUT_HANDLE, L"\x4E2D"));
    }
    EXPECT_EQ("gr\xC3\xBCn\n\xE4\xB8\xAD\n", ts::ReadBytes(path));
}

TEST(ConsoleOutput, WithoutAnOutputNobodySeesTheLine)
{
    for (const HANDLE none : {HANDLE(nullptr), INVALID_HANDLE_VALUE}) {
        const OtherOutput output(none);
        EXPECT_FALSE(ConsoleWriteLine(STD_OUTPUT_HANDLE, L"lost"));
    }
}

TEST(ConsoleOutput, AnOutputThatCannotBeWrittenIsToldOf)
{
    const ts::TempFolder folder;
    const std::wstring path = folder.File(L"out.txt");
    ts::WriteBytes(path, "");
    const own::File file(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(file);
    const OtherOutput output(file.Get());
    EXPECT_FALSE(ConsoleWriteLine(STD_OUTPUT_HANDLE, L"lost"));
}

} // namespace
