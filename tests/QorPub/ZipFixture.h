#pragma once

#include <common/Owner.h>
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
        if (m_window) {
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
        ReportLine line = {wParam, lParam, {}, GetCurrentThreadId()};
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
        EXPECT_TRUE(m_file);
    }
    void Release() { m_file.Reset(); }

  private:
    own::File m_file;
};

constexpr DWORD kAll = QORZIP_OVERWRITE | QORZIP_SUBFOLDERS;
constexpr DWORD kLimit = 30000;
constexpr size_t kKb = 1024;
constexpr size_t kMb = 1024 * kKb;

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
        const own::File file(CreateFileW(InSource(name).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_TRUE(SetFileTime(file.Get(), nullptr, nullptr, &time));
        return time;
    }

    /** Time and date in the archive's first local header. */
    std::string PackedTime() const { return ts::ReadBytes(Archive()).substr(10, 4); }

    LONG Pack(ReportWindow& window, DWORD flags = kAll)
    {
        LONG started = m_zip.Start(window.Get(), Source().c_str(), Archive().c_str(), flags);
        EXPECT_EQ(0, started);
        EXPECT_TRUE(started != 0 || ts::PumpUntil([&] { return window.IsFinished(); }, kLimit));
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
