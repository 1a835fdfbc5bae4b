#include <common/Owner.h>
#include <QorPub/QorPub.h>
#include <tests/support/Leaks.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

namespace
{

class TextFile : public testing::Test
{
  protected:
    std::wstring Path() const { return m_folder.File(L"text.txt"); }
    void Fill(std::string_view bytes) const { ts::WriteBytes(Path(), bytes); }
    std::string Bytes() const { return ts::ReadBytes(Path()); }

    void Write(int mode, int encoding, LPCWSTR text) const
    {
        CTextFile file;
        ASSERT_TRUE(file.Open(Path().c_str(), mode, encoding));
        EXPECT_TRUE(file.WriteString(text));
        EXPECT_TRUE(file.Close());
    }

    std::wstring ReadAll(int encoding = TEXTFILE_UTF8) const
    {
        CTextFile file;
        CString text;
        EXPECT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, encoding));
        EXPECT_TRUE(file.ReadAll(text));
        return text.GetString();
    }

    ts::TempFolder m_folder;
};

} // namespace

TEST_F(TextFile, EncodingZeroWritesUtf8WithoutMark)
{
    Write(2, 0, L"<\u4E2D>");
    EXPECT_EQ("<\xE4\xB8\xAD>", Bytes());
}

TEST_F(TextFile, OtherEncodingsWriteTheirMarkOnce)
{
    Write(TEXTFILE_CREATE, TEXTFILE_UTF8_BOM, L"a");
    Write(TEXTFILE_APPEND, TEXTFILE_UTF8_BOM, L"b");
    EXPECT_EQ("\xEF\xBB\xBF"
              "ab",
              Bytes());
    Write(TEXTFILE_CREATE, TEXTFILE_UTF16LE, L"a");
    Write(TEXTFILE_APPEND, TEXTFILE_UTF16LE, L"b");
    EXPECT_EQ(std::string("\xFF\xFE"
                          "a\0b\0",
                          6),
              Bytes());
}

TEST_F(TextFile, PiecesAreWrittenAsTheyStand)
{
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), 2, 0));
    EXPECT_TRUE(file.WriteString(L"<d n=\"&\">\n"));
    EXPECT_TRUE(file.WriteString(L""));
    EXPECT_TRUE(file.WriteString(nullptr));
    EXPECT_TRUE(file.WriteStringV(L"|%s %d%%", L"wide", 5));
    EXPECT_TRUE(file.WriteStringV(nullptr));
    file.Close();
    EXPECT_EQ("<d n=\"&\">\n|wide 5%", Bytes());
}

TEST_F(TextFile, APieceIsInTheFileBeforeItIsClosed)
{
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), 2, 0));
    file.WriteString(L"now");
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    ASSERT_TRUE(GetFileAttributesExW(Path().c_str(), GetFileExInfoStandard, &data));
    EXPECT_EQ(3u, data.nFileSizeLow);
}

TEST_F(TextFile, CreateEmptiesAndAppendKeeps)
{
    Fill("old");
    Write(TEXTFILE_APPEND, 0, L"+new");
    EXPECT_EQ("old+new", Bytes());
    Write(TEXTFILE_CREATE, 0, L"x");
    EXPECT_EQ("x", Bytes());
}

TEST_F(TextFile, AppendMakesAMissingFile)
{
    Write(TEXTFILE_APPEND, 0, L"first");
    EXPECT_EQ("first", Bytes());
}

TEST_F(TextFile, AppendFollowsTheMarkItFinds)
{
    Fill(std::string_view("\xFF\xFE"
                          "a\0",
                          4));
    Write(TEXTFILE_APPEND, TEXTFILE_UTF8, L"b");
    EXPECT_EQ(std::string("\xFF\xFE"
                          "a\0b\0",
                          6),
              Bytes());
}

TEST_F(TextFile, AppendToBigEndianTextIsRefused)
{
    Fill(std::string_view("\xFE\xFF\0a", 4));
    CTextFile file;
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_APPEND, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_SUPPORTED), GetLastError());
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(std::string("\xFE\xFF\0a", 4), Bytes());
}

TEST_F(TextFile, ReadingFollowsTheMark)
{
    Fill("\xEF\xBB\xBF\xC3\xA4");
    EXPECT_EQ(L"\u00E4", ReadAll());
    Fill(std::string_view("\xFF\xFE\xE4\0", 4));
    EXPECT_EQ(L"\u00E4", ReadAll());
    Fill(std::string_view("\xFE\xFF\0\xE4", 4));
    EXPECT_EQ(L"\u00E4", ReadAll());
}

TEST_F(TextFile, ReadingWithoutMarkFollowsTheParameter)
{
    Fill("\xC3\xA4");
    EXPECT_EQ(L"\u00E4", ReadAll(TEXTFILE_UTF8));
    EXPECT_EQ(L"\u00E4", ReadAll(TEXTFILE_UTF8_BOM));
    EXPECT_EQ(L"\xA4C3", ReadAll(TEXTFILE_UTF16LE));
}

TEST_F(TextFile, LinesEndAtEveryKindOfLineEnd)
{
    Fill("one\r\ntwo\nthree\r\rlast");
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    CString line;
    for (LPCWSTR expected : {L"one", L"two", L"three", L"", L"last"}) {
        EXPECT_TRUE(file.ReadLine(line));
        EXPECT_STREQ(expected, line.GetString());
    }
    line = L"old";
    EXPECT_FALSE(file.ReadLine(line));
    EXPECT_TRUE(line.IsEmpty());
    EXPECT_EQ(static_cast<DWORD>(ERROR_HANDLE_EOF), GetLastError());
}

TEST_F(TextFile, ALastLineEndMakesNoFurtherLine)
{
    Fill("one\r\n");
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    CString line;
    EXPECT_TRUE(file.ReadLine(line));
    EXPECT_FALSE(file.ReadLine(line));
}

TEST_F(TextFile, ReadAllGivesWhatReadLineLeft)
{
    Fill("one\ntwo\nthree");
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    CString text;
    file.ReadLine(text);
    EXPECT_TRUE(file.ReadAll(text));
    EXPECT_STREQ(L"two\nthree", text.GetString());
    EXPECT_TRUE(file.ReadAll(text));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_FALSE(file.ReadLine(text));
}

TEST_F(TextFile, AnEmptyFileHasNoLines)
{
    Fill("");
    CTextFile file;
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    CString line;
    EXPECT_FALSE(file.ReadLine(line));
    EXPECT_TRUE(file.ReadAll(line));
}

TEST_F(TextFile, AMissingFileCannotBeRead)
{
    CTextFile file;
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_NOT_FOUND), GetLastError());
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(TextFile, AFileInAMissingFolderCannotBeCreated)
{
    CTextFile file;
    EXPECT_FALSE(file.Open(m_folder.File(L"none\\a.txt").c_str(), TEXTFILE_CREATE, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_PATH_NOT_FOUND), GetLastError());
}

TEST_F(TextFile, AFolderCannotBeOpened)
{
    CTextFile file;
    EXPECT_FALSE(file.Open(m_folder.Path().c_str(), TEXTFILE_READ, 0));
    EXPECT_FALSE(file.Open(m_folder.Path().c_str(), TEXTFILE_CREATE, 0));
}

TEST_F(TextFile, BadParametersAreRefusedAndTouchNothing)
{
    Fill("old");
    CTextFile file;
    EXPECT_FALSE(file.Open(nullptr, TEXTFILE_READ, 0));
    EXPECT_FALSE(file.Open(L"", TEXTFILE_CREATE, 0));
    EXPECT_FALSE(file.Open(Path().c_str(), 0, 0));
    EXPECT_FALSE(file.Open(Path().c_str(), 4, 0));
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_CREATE, -1));
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_CREATE, 3));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_PARAMETER), GetLastError());
    EXPECT_EQ("old", Bytes());
}

TEST_F(TextFile, AReaderCannotWriteAndAWriterCannotRead)
{
    Fill("old");
    CTextFile file;
    CString text;
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, 0));
    EXPECT_FALSE(file.WriteString(L"x"));
    EXPECT_FALSE(file.WriteStringV(L"%d", 1));
    ASSERT_TRUE(file.Open(Path().c_str(), TEXTFILE_APPEND, 0));
    EXPECT_FALSE(file.ReadLine(text));
    EXPECT_FALSE(file.ReadAll(text));
    EXPECT_EQ("old", Bytes());
}

TEST_F(TextFile, AClosedFileDoesNothing)
{
    CTextFile file;
    CString text;
    EXPECT_TRUE(file.Close());
    EXPECT_FALSE(file.WriteString(L"x"));
    EXPECT_FALSE(file.ReadLine(text));
    EXPECT_FALSE(file.ReadAll(text));
}

TEST_F(TextFile, AFileInUseCannotBeWritten)
{
    CTextFile first;
    ASSERT_TRUE(first.Open(Path().c_str(), TEXTFILE_CREATE, 0));
    CTextFile second;
    EXPECT_FALSE(second.Open(Path().c_str(), TEXTFILE_CREATE, 0));
    EXPECT_EQ(static_cast<DWORD>(ERROR_SHARING_VIOLATION), GetLastError());
}

TEST_F(TextFile, LargeTextsComeBackWhole)
{
    CString text(L'\u4E2D', 500000);
    Write(TEXTFILE_CREATE, TEXTFILE_UTF8, text);
    EXPECT_EQ(1500000u, Bytes().size());
    EXPECT_EQ(std::wstring(text.GetString()), ReadAll());
}

TEST_F(TextFile, PathsLongerThanTheOldLimitWork)
{
    std::wstring path = m_folder.Path();
    for (int i = 0; i < 6; ++i) {
        path += L"\\" + std::wstring(60, L'x');
    }
    ASSERT_TRUE(QorCreateFolder(path.c_str()));
    CTextFile file;
    EXPECT_TRUE(file.Open((path + L"\\a.txt").c_str(), TEXTFILE_CREATE, 0));
    EXPECT_TRUE(file.WriteString(L"x"));
}

TEST_F(TextFile, TooLargeAFileIsNotRead)
{
    own::File handle(CreateFileW(Path().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    LARGE_INTEGER size = {};
    size.QuadPart = 256 * 1024 * 1024 + 1;
    EXPECT_TRUE(SetFilePointerEx(handle.Get(), size, nullptr, FILE_BEGIN) && SetEndOfFile(handle.Get()));
    handle.Reset();
    CTextFile file;
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_READ, TEXTFILE_UTF8));
    EXPECT_EQ(static_cast<DWORD>(ERROR_FILE_TOO_LARGE), GetLastError());
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(TextFile, ShortMemoryIsAnError)
{
    Fill("text");
    CTextFile file;
    const ts::MemoryShortage shortage(L"QorPub.dll");
    EXPECT_FALSE(file.Open(Path().c_str(), TEXTFILE_READ, TEXTFILE_UTF8));
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY), GetLastError());
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(TextFile, OpeningLeavesNoHandles)
{
    Fill("text");
    EXPECT_TRUE(ts::NoLeak([this] {
        CTextFile file;
        CString line;
        EXPECT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, TEXTFILE_UTF8));
        EXPECT_TRUE(file.ReadLine(line));
        EXPECT_TRUE(file.Open(Path().c_str(), TEXTFILE_APPEND, TEXTFILE_UTF8)); // closes the former one
        EXPECT_FALSE(file.Open(m_folder.File(L"none\\x.txt").c_str(), TEXTFILE_CREATE, TEXTFILE_UTF8));
        EXPECT_TRUE(file.Open(Path().c_str(), TEXTFILE_READ, TEXTFILE_UTF8)); // closed by the destructor
    }));
}
