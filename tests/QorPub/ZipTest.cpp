#include <QorPub/QorPub.h>
#include <tests/support/Leaks.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Pump.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <thread>

namespace
{

struct ReportLine
{
    WPARAM kind;
    LPARAM value;
    std::wstring text;
    DWORD thread;
};

/** A window that writes down what a packer reports and answers as told. */
class ReportWindow
{
  public:
    using Answer = std::function<LRESULT(const ReportLine&)>;

    explicit ReportWindow(Answer answer = nullptr) : m_answer(std::move(answer))
    {
        m_window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    ~ReportWindow()
    {
        if (m_window != nullptr) {
            DestroyWindow(m_window);
        }
    }
    ReportWindow(const ReportWindow&) = delete;
    ReportWindow& operator=(const ReportWindow&) = delete;

    HWND Get() const { return m_window; }
    void Destroy()
    {
        DestroyWindow(m_window);
        m_window = nullptr;
    }
    bool IsFinished() const { return Count(ZIPREPORT_FINISHED) != 0; }
    size_t Count(WPARAM kind) const
    {
        auto same = [&](const ReportLine& line) { return line.kind == kind; };
        return static_cast<size_t>(std::count_if(lines.begin(), lines.end(), same));
    }
    std::vector<std::wstring> Texts(WPARAM kind) const
    {
        std::vector<std::wstring> texts;
        for (const ReportLine& line : lines) {
            if (line.kind == kind) {
                texts.push_back(line.text);
            }
        }
        return texts;
    }
    LONG Result() const { return static_cast<LONG>(lines.back().value); }

    std::vector<ReportLine> lines;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto self = reinterpret_cast<ReportWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message != WM_QORZIP) {
            return DefWindowProcW(window, message, wParam, lParam);
        }
        ReportLine line = {wParam, lParam, L"", GetCurrentThreadId()};
        if (wParam == ZIPREPORT_FILE || wParam == ZIPREPORT_QUESTION) {
            line.text = reinterpret_cast<LPCWSTR>(lParam);
        }
        self->lines.push_back(line);
        return self->m_answer ? self->m_answer(line) : 0;
    }

    HWND m_window = nullptr;
    Answer m_answer;
};

/** A file that nobody else can open while it lives. */
class HeldFile
{
  public:
    explicit HeldFile(const std::wstring& path)
        : m_file(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(INVALID_HANDLE_VALUE, m_file);
    }
    ~HeldFile() { Release(); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    void Release()
    {
        if (m_file != INVALID_HANDLE_VALUE) {
            CloseHandle(m_file);
        }
        m_file = INVALID_HANDLE_VALUE;
    }

  private:
    HANDLE m_file;
};

constexpr DWORD ALL = QORZIP_OVERWRITE | QORZIP_SUBFOLDERS;
constexpr DWORD LIMIT = 30000;
constexpr size_t KB = 1024;
constexpr size_t MB = 1024 * KB;

class Zip : public testing::Test
{
  protected:
    void SetUp() override { m_folder.MakeFolder(L"src"); }

    std::wstring Source() const { return m_folder.File(L"src"); }
    std::wstring Archive() const { return m_folder.File(L"out.zip"); }
    std::wstring InSource(std::wstring_view name) const { return Source() + L"\\" + std::wstring(name); }
    void Make(std::wstring_view name, std::string_view bytes) const { ts::WriteBytes(InSource(name), bytes); }
    void MakeDir(std::wstring_view name) const { m_folder.MakeFolder(L"src\\" + std::wstring(name)); }

    FILETIME SetTime(std::wstring_view name, const SYSTEMTIME& written) const
    {
        FILETIME time = {};
        EXPECT_TRUE(SystemTimeToFileTime(&written, &time));
        HANDLE file = CreateFileW(InSource(name).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
        CloseHandle(file);
        return time;
    }

    /** Time and date in the archive's first local header. */
    std::string PackedTime() const { return ts::ReadBytes(Archive()).substr(10, 4); }

    LONG Pack(ReportWindow& window, DWORD flags = ALL)
    {
        LONG started = m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), flags);
        EXPECT_EQ(0, started);
        EXPECT_TRUE(started != 0 || ts::PumpUntil([&] { return window.IsFinished(); }, LIMIT));
        return window.IsFinished() ? window.Result() : started;
    }

    std::vector<std::wstring> Names(const std::wstring& archive) const
    {
        CStringArray names;
        EXPECT_EQ(0, CQorZip::List(archive.c_str(), names));
        std::vector<std::wstring> all;
        for (INT_PTR i = 0; i < names.GetSize(); ++i) {
            all.emplace_back(names[i].GetString());
        }
        return all;
    }
    std::vector<std::wstring> Names() const { return Names(Archive()); }

    bool IsCleanFailure() const { return !ts::FileExists(Archive()) && !ts::FileExists(Archive() + L".part"); }

    using List = std::vector<std::wstring>;

    ts::TempFolder m_folder;
    CQorZip m_zip;
};

} // namespace

TEST_F(Zip, PacksAFolderAndUnpacksTheSame)
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

TEST_F(Zip, UnicodeNamesAreKept)
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

TEST_F(Zip, PacksASingleFileUnderItsName)
{
    Make(L"one.txt", "content");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), InSource(L"one.txt").c_str(), Archive().c_str(), ALL));
    ASSERT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }, LIMIT));
    EXPECT_EQ(0, window.Result());
    EXPECT_EQ((List{L"one.txt"}), Names());
}

TEST_F(Zip, AnEmptyFolderGivesAnEmptyArchive)
{
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    EXPECT_TRUE(Names().empty());
    EXPECT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), 0));
}

TEST_F(Zip, WithoutSubFoldersOnlyTheFilesOfTheFolder)
{
    Make(L"a.txt", "1");
    MakeDir(L"sub");
    Make(L"sub\\b.txt", "2");
    ReportWindow window;
    ASSERT_EQ(0, Pack(window, QORZIP_OVERWRITE));
    EXPECT_EQ((List{L"a.txt"}), Names());
}

TEST_F(Zip, ReportsFilesPercentAndEndInOrder)
{
    Make(L"a.bin", std::string(600 * KB, 'a'));
    Make(L"b.bin", std::string(600 * KB, 'b'));
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

TEST_F(Zip, HundredPercentMeansThatTheArchiveIsInItsPlace)
{
    Make(L"a.bin", std::string(600 * KB, 'a'));
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

TEST_F(Zip, HalfOfTheBytesIsFiftyPercent)
{
    Make(L"a.bin", std::string(100 * KB, 'a'));
    Make(L"b.bin", std::string(100 * KB, 'b'));
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    auto secondFile =
        std::find_if(window.lines.begin(), window.lines.end(), [](auto& l) { return l.text == L"b.bin"; });
    ASSERT_NE(window.lines.end(), secondFile);
    EXPECT_EQ(50, std::prev(secondFile)->value);
}

TEST_F(Zip, LargeFilesComeBackWhole)
{
    std::string bytes(3 * MB + 7, 0);
    for (size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>((i * 2654435761u) >> 13);
    }
    Make(L"big.bin", bytes);
    ReportWindow window;
    ASSERT_EQ(0, Pack(window));
    ASSERT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), 0));
    EXPECT_TRUE(bytes == ts::ReadBytes(m_folder.File(L"out\\big.bin")));
}

TEST_F(Zip, TheArchiveInsideTheSourceIsLeftOut)
{
    Make(L"a.txt", "1");
    Make(L"own.zip", "old archive");
    Make(L"other.zip", "2");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), InSource(L"OWN.zip").c_str(), ALL));
    ASSERT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }, LIMIT));
    EXPECT_EQ(0, window.Result());
    EXPECT_EQ((List{L"a.txt", L"other.zip"}), Names(InSource(L"own.zip")));
}

TEST_F(Zip, ThePackagedTimeIsRestored)
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

TEST_F(Zip, TimesThatAnArchiveCannotTellBecomeTheNearest)
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

TEST_F(Zip, FilesThatLookLikeUnfinishedArchivesAreKept)
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

TEST_F(Zip, ASourceThatLooksLikeAnUnfinishedArchiveIsPacked)
{
    ts::WriteBytes(Archive() + L".part", "mine");
    ASSERT_EQ(0, m_zip.Start(nullptr, (Archive() + L".part").c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_EQ((List{L"out.zip.part"}), Names());
    EXPECT_EQ("mine", ts::ReadBytes(Archive() + L".part"));
}

TEST_F(Zip, ShortMemoryIsAnError)
{
    Make(L"a.txt", "1");
    const ts::MemoryShortage shortage(L"QorPub.dll");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY),
              m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, WithoutTheFlagAnExistingArchiveIsKept)
{
    Make(L"a.txt", "1");
    ts::WriteBytes(Archive(), "precious");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_EXISTS),
              m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), QORZIP_SUBFOLDERS));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ("precious", ts::ReadBytes(Archive()));
}

TEST_F(Zip, WithTheFlagAnExistingArchiveIsReplaced)
{
    Make(L"a.txt", "1");
    ts::WriteBytes(Archive(), "old");
    ReportWindow window;
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"a.txt"}), Names());
    EXPECT_FALSE(ts::FileExists(Archive() + L".part"));
}

TEST_F(Zip, StartRefusesBadParameters)
{
    Make(L"a.txt", "1");
    EXPECT_EQ(E_INVALIDARG, m_zip.Start(nullptr, nullptr, Archive().c_str(), ALL));
    EXPECT_EQ(E_INVALIDARG, m_zip.Start(nullptr, Source().c_str(), L"", ALL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND),
              m_zip.Start(nullptr, m_folder.File(L"none").c_str(), Archive().c_str(), ALL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND),
              m_zip.Start(nullptr, Source().c_str(), m_folder.File(L"none\\x.zip").c_str(), ALL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_PARAMETER),
              m_zip.Start(nullptr, InSource(L"a.txt").c_str(), InSource(L"A.txt").c_str(), ALL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED),
              m_zip.Start(nullptr, InSource(L"a.txt").c_str(), Source().c_str(), ALL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE),
              m_zip.Start(reinterpret_cast<HWND>(0x7FFE), Source().c_str(), Archive().c_str(), ALL));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_TRUE(IsCleanFailure());
    EXPECT_EQ("1", ts::ReadBytes(InSource(L"a.txt")));
}

TEST_F(Zip, AnUnreadableFileCanBeIgnored)
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

TEST_F(Zip, AnUnansweredQuestionCountsAsIgnore)
{
    Make(L"held.txt", "2");
    Make(L"z.txt", "3");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window([](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? 32000 : 0; });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ((List{L"z.txt"}), Names());
}

TEST_F(Zip, AnUnreadableFileCanBeTriedAgain)
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

TEST_F(Zip, CancelAnswersEndThePackingAndLeaveNothing)
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

TEST_F(Zip, AFailureKeepsTheOlderArchive)
{
    Make(L"held.txt", "2");
    ts::WriteBytes(Archive(), "precious");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window;
    EXPECT_LT(Pack(window), 0);
    EXPECT_EQ("precious", ts::ReadBytes(Archive()));
    EXPECT_FALSE(ts::FileExists(Archive() + L".part"));
}

TEST_F(Zip, WithoutWindowAnUnreadableFileEndsThePacking)
{
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    ASSERT_EQ(0, m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_SHARING_VIOLATION), m_zip.GetResult());
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, AVanishedSourceMakesAQuestion)
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

TEST_F(Zip, WorksWithoutWindow)
{
    Make(L"a.txt", "1");
    ASSERT_EQ(0, m_zip.Start(nullptr, Source().c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ(0, m_zip.GetResult());
    EXPECT_EQ((List{L"a.txt"}), Names());
}

TEST_F(Zip, CancelEndsSoonAndLeavesNothing)
{
    Make(L"a.bin", std::string(2 * MB, 'a'));
    Make(L"b.bin", std::string(2 * MB, 'b'));
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            m_zip.Cancel();
        }
        return 0;
    });
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
    EXPECT_EQ(1u, window.Count(ZIPREPORT_FILE));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, OnlyOneJobAtATime)
{
    Make(L"a.txt", "1");
    LONG second = 0;
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            EXPECT_TRUE(m_zip.IsRunning());
            second = m_zip.Start(nullptr, Source().c_str(), m_folder.File(L"2.zip").c_str(), ALL);
        }
        return 0;
    });
    EXPECT_EQ(0, Pack(window));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_BUSY), second);
    EXPECT_FALSE(ts::FileExists(m_folder.File(L"2.zip")));
}

TEST_F(Zip, AnotherJobMayStartWhenTheEndIsReported)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    EXPECT_EQ(0, Pack(window));
    ReportWindow again;
    EXPECT_EQ(0, Pack(again));
}

TEST_F(Zip, WaitServesTheReports)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_EQ((List{L"a.txt"}), window.Texts(ZIPREPORT_FILE));
    EXPECT_EQ(0u, window.Count(ZIPREPORT_FINISHED));
    EXPECT_TRUE(ts::PumpUntil([&] { return window.IsFinished(); }));
}

TEST_F(Zip, WaitGivesUpAfterItsTime)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    // The window's thread does not look for messages meanwhile, so the job stands still at its first report.
    BOOL ended = TRUE;
    std::thread other([&] { ended = m_zip.Wait(20); });
    other.join();
    EXPECT_FALSE(ended);
    EXPECT_TRUE(m_zip.IsRunning());
    EXPECT_TRUE(m_zip.Wait(LIMIT));
}

TEST_F(Zip, WaitInsideAReportDoesNotHang)
{
    Make(L"a.txt", "1");
    BOOL ended = FALSE;
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            m_zip.Cancel();
            ended = m_zip.Wait(LIMIT);
        }
        return 0;
    });
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), Pack(window));
    EXPECT_TRUE(ended);
}

TEST_F(Zip, TheDestructorEndsTheJobQuietly)
{
    Make(L"a.bin", std::string(4 * MB, 'a'));
    ReportWindow window;
    {
        CQorZip zip;
        ASSERT_EQ(0, zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    }
    ts::PumpPending();
    EXPECT_FALSE(window.IsFinished());
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, TheObjectMayBeDestroyedInsideAReport)
{
    Make(L"a.txt", "1");
    auto zip = std::make_unique<CQorZip>();
    ReportWindow window([&](const ReportLine& line) {
        if (line.kind == ZIPREPORT_FILE) {
            zip.reset();
        }
        return 0;
    });
    ASSERT_EQ(0, zip->Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    EXPECT_TRUE(ts::PumpUntil([&] { return zip == nullptr; }));
    EXPECT_TRUE(IsCleanFailure());
}

TEST_F(Zip, ADestroyedWindowIsNotMissed)
{
    Make(L"a.txt", "1");
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    window.Destroy();
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_EQ(0, m_zip.GetResult());
}

TEST_F(Zip, ADestroyedWindowAnswersNoQuestionSoThePackingEnds)
{
    Make(L"held.txt", "1");
    HeldFile held(InSource(L"held.txt"));
    ReportWindow window;
    ASSERT_EQ(0, m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
    window.Destroy();
    EXPECT_TRUE(m_zip.Wait(LIMIT));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_CANCELLED), m_zip.GetResult());
}

TEST_F(Zip, AnIdleObjectAnswersQuietly)
{
    m_zip.Cancel();
    EXPECT_TRUE(m_zip.Wait(0));
    EXPECT_FALSE(m_zip.IsRunning());
    EXPECT_EQ(0, m_zip.GetResult());
}

TEST_F(Zip, PackingAndUnpackingLeaveNoHandles)
{
    Make(L"a.txt", "1");
    Make(L"held.txt", "2");
    HeldFile held(InSource(L"held.txt"));
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            CQorZip zip;
            ReportWindow window([](const ReportLine& line) { return line.kind == ZIPREPORT_QUESTION ? IDIGNORE : 0; });
            EXPECT_EQ(0, zip.Start(window.Get(), Source().c_str(), Archive().c_str(), ALL));
            EXPECT_TRUE(zip.Wait(LIMIT));
            EXPECT_EQ(0, CQorZip::Extract(Archive().c_str(), m_folder.File(L"out").c_str(), QORZIP_OVERWRITE));
        },
        50));
}
