#include "ZipFixture.h"

namespace
{

using ZipJob = Zip;

} // namespace

TEST_F(ZipJob, PacksAFolderAndUnpacksTheSame)
{
    Make(L"a.txt", "first");
    Make(L"empty.bin", "");
    MakeDir(L"sub\\deep");
    MakeDir(L"hollow");
    Make(L"sub\\deep\\b.bin", std::string("\0\1\2", 3));
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.txt", L"empty.bin", L"hollow/", L"sub/", L"sub/deep/", L"sub/deep/b.bin"}), Names());

    std::wstring out = m_folder.File(L"out");
    ASSERT_EQ(0, CQorZip::Extract(Archive().c_str(), out.c_str(), 0));
    EXPECT_EQ("first", ts::ReadBytes(out + L"\\a.txt"));
    EXPECT_EQ("", ts::ReadBytes(out + L"\\empty.bin"));
    EXPECT_EQ(std::string("\0\1\2", 3), ts::ReadBytes(out + L"\\sub\\deep\\b.bin"));
    EXPECT_NE(0u, GetFileAttributesW((out + L"\\hollow").c_str()) & FILE_ATTRIBUTE_DIRECTORY);
}

TEST_F(ZipJob, UnicodeNamesAreKept)
{
    Make(L"\u4E2D\u6587 \u00E4.txt", "x");
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"\u4E2D\u6587 \u00E4.txt"}), Names());
    // Bit 11 of the local header's flags tells that the name is UTF-8.
    std::string bytes = ts::ReadBytes(Archive());
    EXPECT_EQ(0x08, bytes[7] & 0x08);
    EXPECT_NE(std::string::npos, bytes.find("\xE4\xB8\xAD\xE6\x96\x87 \xC3\xA4.txt"));
}

TEST_F(ZipJob, PacksASingleFileUnderItsName)
{
    Make(L"one.txt", "content");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), InSource(L"one.txt").c_str(), Archive().c_str(), kAll));
    ASSERT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }, kLimit));
    EXPECT_EQ(0, window.Result());
    EXPECT_EQ((List{L"one.txt"}), Names());
}

TEST_F(ZipJob, AnEmptyFolderGivesAnEmptyArchive)
{
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    EXPECT_TRUE(Names().empty());
    EXPECT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), 0));
}

TEST_F(ZipJob, WithoutSubFoldersOnlyTheFilesOfTheFolder)
{
    Make(L"a.txt", "1");
    MakeDir(L"sub");
    Make(L"sub\\b.txt", "2");
    ReportWindow window;
    ASSERT_EQ(0, Pack(window, QORZIP_OVERWRITE));
    EXPECT_EQ((List{L"a.txt"}), Names());
}

TEST_F(ZipJob, ReportsFilesPercentAndEndInOrder)
{
    Make(L"a.bin", std::string(600 * kKb, 'a'));
    Make(L"b.bin", std::string(600 * kKb, 'b'));
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.bin", L"b.bin"}), window.Texts(ZIPREPORT_FILE));
    EXPECT_EQ(static_cast<WPARAM>(ZIPREPORT_PERCENT), window.lines.front().kind);
    EXPECT_EQ(0, window.lines.front().value);
    EXPECT_EQ(static_cast<WPARAM>(ZIPREPORT_FINISHED), window.lines.back().kind);
    EXPECT_EQ(1u, window.Count(ZIPREPORT_FINISHED));
    LPARAM last = -1;
    for (const ReportLine& line : window.lines) {
        EXPECT_EQ(GetCurrentThreadId(), line.thread);
        if (line.kind != ZIPREPORT_PERCENT) {
            continue;
        }
        EXPECT_GT(line.value, last);
        last = line.value;
    }
    EXPECT_EQ(100, last);
    EXPECT_GT(window.Count(ZIPREPORT_PERCENT), 4u);
}

TEST_F(ZipJob, HundredPercentMeansThatTheArchiveIsInItsPlace)
{
    Make(L"a.bin", std::string(600 * kKb, 'a'));
    bool seen = false;
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_PERCENT) {
            seen = ts::FileExists(Archive());
            EXPECT_EQ(line.value == 100, seen) << line.value;
        }
        return 0;
    });
    ASSERT_EQ(0, Pack(window));
    EXPECT_TRUE(seen);
}

TEST_F(ZipJob, HalfOfTheBytesIsFiftyPercent)
{
    Make(L"a.bin", std::string(100 * kKb, 'a'));
    Make(L"b.bin", std::string(100 * kKb, 'b'));
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    auto secondFile =
        std::find_if(window.lines.begin(), window.lines.end(), [](auto& l) { return l.text == L"b.bin"; });
    ASSERT_NE(window.lines.end(), secondFile);
    EXPECT_EQ(50, std::prev(secondFile)->value);
}

TEST_F(ZipJob, LargeFilesComeBackWhole)
{
    std::string bytes(3 * kMb + 7, 0);
    for (size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>((i * 2654435761u) >> 13);
    }
    Make(L"big.bin", bytes);
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    ASSERT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), 0));
    EXPECT_TRUE(bytes == ts::ReadBytes(m_folder.File(L"out\\big.bin")));
}

TEST_F(ZipJob, TheArchiveInsideTheSourceIsLeftOut)
{
    Make(L"a.txt", "1");
    Make(L"own.zip", "old archive");
    Make(L"other.zip", "2");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), InSource(L"OWN.zip").c_str(), kAll));
    ASSERT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }, kLimit));
    EXPECT_EQ(0, window.Result());
    EXPECT_EQ((List{L"a.txt", L"other.zip"}), Names(InSource(L"own.zip")));
}

TEST_F(ZipJob, ThePackagedTimeIsRestored)
{
    Make(L"a.txt", "1");
    FILETIME time = SetTime(L"a.txt", {2011, 5, 0, 17, 10, 20, 30, 0});
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    ASSERT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), 0));
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    GetFileAttributesExW(m_folder.File(L"out\\a.txt").c_str(), GetFileExInfoStandard, &data);
    EXPECT_EQ(0, CompareFileTime(&time, &data.ftLastWriteTime));
}

TEST_F(ZipJob, TimesThatAnArchiveCannotTellBecomeTheNearest)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    SetTime(L"a.txt", {1975, 6, 0, 5, 4, 3, 2, 0});
    ASSERT_EQ(0, Pack(window));
    EXPECT_EQ(std::string("\x00\x00\x21\x00", 4), PackedTime()); // 1980-01-01 0:00:00
    SetTime(L"a.txt", {2110, 6, 0, 5, 4, 3, 2, 0});
    ReportWindow again;
    ASSERT_EQ(0, Pack(again));
    EXPECT_EQ("\x7D\xBF\x9F\xFF", PackedTime()); // 2107-12-31 23:59:58
}

TEST_F(ZipJob, FilesThatLookLikeUnfinishedArchivesAreKept)
{
    Make(L"a.txt", "1");
    ts::WriteBytes(Archive() + L".part", "mine");
    ReportWindow window;
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.txt"}), Names());
    HeldFile held(InSource(L"a.txt"));
    ReportWindow failing;
    EXPECT_LT(Pack(failing), 0);
    EXPECT_EQ("mine", ts::ReadBytes(Archive() + L".part"));
    EXPECT_FALSE(ts::FileExists(Archive() + L".part2"));
}

TEST_F(ZipJob, ASourceThatLooksLikeAnUnfinishedArchiveIsPacked)
{
    ts::WriteBytes(Archive() + L".part", "mine");
    ASSERT_EQ(0, m_zip.Start(nullptr, (Archive() + L".part").c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_EQ((List{L"out.zip.part"}), Names());
    EXPECT_EQ("mine", ts::ReadBytes(Archive() + L".part"));
}

TEST_F(ZipJob, WithoutTheFlagAnExistingArchiveIsKept)
{
    Make(L"a.txt", "1");
    ts::WriteBytes(Archive(), "precious");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_EXISTS),
              m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), QORZIP_SUBFOLDERS));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ("precious", ts::ReadBytes(Archive()));
}

TEST_F(ZipJob, WithTheFlagAnExistingArchiveIsReplaced)
{
    Make(L"a.txt", "1");
    ts::WriteBytes(Archive(), "old");
    ReportWindow window;
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.txt"}), Names());
    EXPECT_FALSE(ts::FileExists(Archive() + L".part"));
}

TEST_F(ZipJob, AnUnreadableFileCanBeIgnored)
{
    Make(L"a.txt", "1");
    Make(L"held.txt", "2");
    Make(L"z.txt", "3");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window([](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? IDIGNORE : 0; });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.txt", L"z.txt"}), Names());
    ASSERT_EQ(1u, window.Count(ZIPREPORT_QUESTION));
    std::wstring question = window.Texts(ZIPREPORT_QUESTION)[0];
    EXPECT_EQ(0u, question.find(InSource(L"held.txt") + L"\n"));
    EXPECT_GT(question.size(), InSource(L"held.txt").size() + 5);
}

TEST_F(ZipJob, AnUnansweredQuestionCountsAsIgnore)
{
    Make(L"held.txt", "2");
    Make(L"z.txt", "3");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window([](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? 32000 : 0; });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"z.txt"}), Names());
}

TEST_F(ZipJob, AnUnreadableFileCanBeTriedAgain)
{
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    int questions = 0;
    ReportWindow window([&](const ReportLine& line) -> LRESULT {
        if (line.kind != ZIPREPORT_QUESTION) {
            return 0;
        }
        if (++questions == 2) {
            held.Release();
        }
        return IDRETRY;
    });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ(2, questions);
    EXPECT_EQ((List{L"held.txt"}), Names());
}

TEST_F(ZipJob, CancelAnswersEndThePackingAndLeaveNothing)
{
    Make(L"a.txt", "1");
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    for (LRESULT answer : {IDCANCEL, 0, 77}) {
        ReportWindow window([=](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? answer : 0; });
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), m_zip.GetResult());
        EXPECT_TRUE(IsCleanFailure());
    }
}

TEST_F(ZipJob, AFailureKeepsTheOlderArchive)
{
    Make(L"held.txt", "2");
    ts::WriteBytes(Archive(), "precious");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window;
    EXPECT_LT(Pack(window), 0);
    EXPECT_EQ("precious", ts::ReadBytes(Archive()));
    EXPECT_FALSE(ts::FileExists(Archive() + L".part"));
}

TEST_F(ZipJob, WithoutWindowAnUnreadableFileEndsThePacking)
{
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    ASSERT_EQ(0, m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), kAll));
    EXPECT_TRUE(m_zip.Wait(kLimit));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_SHARING_VIOLATION), m_zip.GetResult());
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(ZipJob, AVanishedSourceMakesAQuestion)
{
    ReportWindow window([&](const ReportLine& line) -> LRESULT {
        if (line.kind == ZIPREPORT_PERCENT && line.value == 0) {
            RemoveDirectoryW(Source().c_str());
        }
        return line.kind == ZIPREPORT_QUESTION ? IDCANCEL : 0;
    });
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
    ASSERT_EQ(1u, window.Count(ZIPREPORT_QUESTION));
    EXPECT_EQ(0u, window.Texts(ZIPREPORT_QUESTION)[0].find(Source() + L"\n"));
}
