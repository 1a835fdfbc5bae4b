#pragma once

#include <QorPub/File.h>
#include <QorPub/Zip.h>

#include <minizip/zip.h>

#include <atomic>
#include <vector>

namespace qor
{

/** What is packed: a file or folder under a source. */
struct ZipItem
{
    CString name; /**< relative to the source, with backslashes */
    ULONGLONG size;
    FILETIME time;
    DWORD attributes;
    bool isFolder;
};

/** How the packing of one item ended. */
enum class ZipStep
{
    Done,
    Retry,
    Stop
};

/** Packs a source into an archive; runs on the packing thread once opened. */
class ZipPacker
{
  public:
    ZipPacker(HWND notify, DWORD flags) : m_notify(notify), m_flags(flags) {}
    ~ZipPacker();
    ZipPacker(const ZipPacker&) = delete;
    ZipPacker& operator=(const ZipPacker&) = delete;

    /** Checks the paths and creates the unfinished archive. 0 or the system's code. */
    DWORD Open(LPCWSTR source, LPCWSTR archive);
    /** Does the whole work and says the result to the window. */
    void Run();

    void Cancel() { m_cancel = true; }
    /** No report begins after this. */
    void Silence() { m_silent = true; }
    bool IsFinished() const { return m_finished; }
    /** Tells whether the thread is waiting for the window's answer to a report. */
    bool IsReporting() const { return m_reporting; }
    LONG Result() const { return m_result; }

  private:
    DWORD OpenPart();
    DWORD Pack();
    bool ScanSource();
    bool ScanFolder(const CString& folder);
    ZipStep TryScanFolder(const CString& folder, std::vector<ZipItem>& found);
    bool TakesItem(const CString& path, const WIN32_FIND_DATAW& data) const;
    bool PackItem(const ZipItem& item);
    bool PackFolder(const ZipItem& item);
    bool PackFile(const ZipItem& item);
    ZipStep TryOpen(const CString& path, own::File& file, DWORD& got);
    bool CopyData(const CString& path, HANDLE file, DWORD got);
    bool ReadBlock(const CString& path, HANDLE file, DWORD& got);
    bool BeginEntry(const ZipItem& item);
    bool EndEntry();
    DWORD CloseArchive(DWORD status);

    LRESULT Report(WPARAM kind, LPARAM value);
    void ReportProgress();
    ZipStep Ask(const CString& path, DWORD error);
    bool Fail(DWORD error);
    bool IsCancelled();
    CString PathOf(const CString& name) const;

    HWND m_notify;
    DWORD m_flags;
    CString m_source;
    CString m_root;
    CString m_archive;
    CString m_part;
    bool m_isFile = false;
    zipFile m_zip = nullptr;
    std::vector<ZipItem> m_items;
    std::vector<BYTE> m_block;
    ULONGLONG m_total = 0;
    ULONGLONG m_done = 0;
    int m_percent = -1;
    DWORD m_error = ERROR_SUCCESS;
    std::atomic<bool> m_cancel{false};
    std::atomic<bool> m_silent{false};
    std::atomic<bool> m_finished{false};
    std::atomic<bool> m_reporting{false};
    std::atomic<LONG> m_result{0};
};

} // namespace qor
