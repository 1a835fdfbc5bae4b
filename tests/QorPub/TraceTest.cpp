#include <QorPub/QorPub.h>
#include <tests/support/Leaks.h>
#include <tests/support/Status.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <thread>

namespace
{

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

class Trace : public testing::Test
{
  protected:
    std::wstring LogPath() const { return m_folder.File(L"data\\qor.log"); }
    std::string Log() const { return ts::ReadBytes(LogPath()); }
    std::vector<std::string> Fields() const { return Split(Log().substr(0, Log().size() - 2), '\t'); }

    /** Lets two processes write at the same time, kCount lines each. */
    static void RunTwoWriters()
    {
        std::wstring command = L"\"" + ts::ProgramFolder() + L"\\qorpub_writer.exe\" ";
        std::wstring count = std::to_wstring(kCount);
        ts::ProcessResult first;
        std::thread other([&] { first = ts::RunProcess(command + L"first " + count); });
        ts::ProcessResult second = ts::RunProcess(command + L"second " + count);
        other.join();
        ASSERT_TRUE(first.started && second.started);
        EXPECT_EQ(kSuccess, first.status);
        EXPECT_EQ(kSuccess, second.status);
    }

    static void ExpectAllLines(const std::string& log)
    {
        std::vector<std::string> lines = Split(log, '\n');
        EXPECT_EQ(2u * kCount, lines.size());
        for (const std::string& line : lines) {
            EXPECT_EQ(9u, Split(line, '\t').size()) << line;
        }
        for (int i = 0; i < kCount; ++i) {
            EXPECT_NE(std::string::npos, log.find("\tfirst " + std::to_string(i) + "\r\n"));
            EXPECT_NE(std::string::npos, log.find("\tsecond " + std::to_string(i) + "\r\n"));
        }
    }

    static constexpr int kCount = 800;

    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_store{L"QOR_STORE", m_folder.File(L"data\\store.db").c_str()};
};

} // namespace

TEST_F(Trace, OneLineWithAllFields)
{
    QorTrace(0, 0xFFFFFFFF, L"CCheckTree::SaveXml", L"ShellTree", 245, L"Create file '%s' failed.", L"C:\\\u4E2D.xml");
    std::vector<std::string> fields = Fields();
    ASSERT_EQ(9u, fields.size());
    EXPECT_TRUE(std::regex_match(fields[0], std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3})"))) << fields[0];
    EXPECT_EQ(std::to_string(GetCurrentProcessId()), fields[1]);
    EXPECT_EQ(std::to_string(GetCurrentThreadId()), fields[2]);
    EXPECT_EQ("0", fields[3]);
    EXPECT_EQ("0xFFFFFFFF", fields[4]);
    EXPECT_EQ("CCheckTree::SaveXml", fields[5]);
    EXPECT_EQ("ShellTree", fields[6]);
    EXPECT_EQ("245", fields[7]);
    EXPECT_EQ("Create file 'C:\\\\\xE4\xB8\xAD.xml' failed.", fields[8]);
    EXPECT_EQ("\r\n", Log().substr(Log().size() - 2));
}

TEST_F(Trace, SeparatorsInTheTextAreEscaped)
{
    QorTrace(1, 5, L"f", L"s", 1, L"a\r\nb\tc");
    EXPECT_EQ("a\\r\\nb\\tc", Fields().back());
    EXPECT_EQ(1u, Split(Log(), '\n').size());
}

TEST_F(Trace, NullTextsAreEmpty)
{
    QorTrace(1, 5, nullptr, nullptr, -1, nullptr);
    EXPECT_NE(std::string::npos, Log().find("\t1\t0x00000005\t\t\t-1\t\r\n"));
}

TEST_F(Trace, LongTextsAreCut)
{
    std::wstring text(5000, L'x');
    QorTrace(1, 5, L"f", L"s", 1, L"%s", text.c_str());
    EXPECT_EQ(std::string(2000, 'x'), Fields().back());
}

TEST_F(Trace, TheLastErrorStays)
{
    SetLastError(1234);
    QorTrace(1, 5, L"f", L"s", 1, L"text");
    EXPECT_EQ(1234u, GetLastError());
}

TEST_F(Trace, AFolderThatCannotBeMadeIsNoMatter)
{
    ts::WriteBytes(m_folder.File(L"file"), "x");
    ts::EnvironmentVariable store(L"QOR_STORE", m_folder.File(L"file\\sub\\store.db").c_str());
    QorTrace(0, 5, L"f", L"s", 1, L"text");
    EXPECT_EQ("x", ts::ReadBytes(m_folder.File(L"file")));
}

TEST_F(Trace, AFullLogIsMovedAsideAndBegunAnew)
{
    QorCreateFolder(m_folder.File(L"data").c_str());
    ts::WriteBytes(LogPath(), std::string(TRACE_LOG_LIMIT, 'o'));
    ts::WriteBytes(LogPath() + L".1", "older");
    QorTrace(0, 5, L"f", L"s", 1, L"fresh");
    EXPECT_EQ("fresh", Fields().back());
    EXPECT_EQ(1u, Split(Log(), '\n').size());
    EXPECT_EQ(std::string(TRACE_LOG_LIMIT, 'o'), ts::ReadBytes(LogPath() + L".1"));
}

TEST_F(Trace, ALogBelowTheLimitIsContinued)
{
    QorCreateFolder(m_folder.File(L"data").c_str());
    ts::WriteBytes(LogPath(), std::string(TRACE_LOG_LIMIT - 1, 'o'));
    QorTrace(0, 5, L"f", L"s", 1, L"fresh");
    EXPECT_FALSE(ts::FileExists(LogPath() + L".1"));
    EXPECT_GT(Log().size(), TRACE_LOG_LIMIT);
}

TEST_F(Trace, TwoProcessesLoseNoLine)
{
    RunTwoWriters();
    ExpectAllLines(Log());
}

TEST_F(Trace, TwoProcessesLoseNoLineWhenTheLogIsMovedAside)
{
    QorCreateFolder(m_folder.File(L"data").c_str());
    std::string old(TRACE_LOG_LIMIT - 4000, 'o');
    old += '\n';
    ts::WriteBytes(LogPath(), old);
    RunTwoWriters();
    std::string aside = ts::ReadBytes(LogPath() + L".1");
    ASSERT_EQ(0, aside.compare(0, old.size(), old));
    ExpectAllLines(aside.substr(old.size()) + Log());
}

TEST_F(Trace, EntriesLeaveNoHandles)
{
    EXPECT_TRUE(ts::NoLeak([] { QorTrace(2, 0, L"f", L"s", 1, L"text"); }, 50));
}
