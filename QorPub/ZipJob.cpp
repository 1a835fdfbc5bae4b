#include "ZipJob.h"

#include "Guard.h"
#include "QorPub.h"

#include <minizip/iowin32.h>

#include <algorithm>

namespace qor
{
namespace
{

constexpr DWORD kBlockSize = 256 * 1024;
constexpr ULONGLONG kZip64From = 0x7FFFFFFF;
constexpr uLong kFlagUtf8Name = 1 << 11;
constexpr int kDeflateMemory = 8;
constexpr LRESULT kAnswerTimedOut = 32000;

/** The moments that an archive's date can tell. */
constexpr SYSTEMTIME kFirstTime = {1980, 1, 0, 1, 0, 0, 0, 0};
constexpr SYSTEMTIME kLastTime = {2107, 12, 0, 31, 23, 59, 58, 0};

tm_zip ZipTime(const FILETIME& time)
{
    FILETIME local = {};
    SYSTEMTIME parts = {};
    FileTimeToLocalFileTime(&time, &local);
    FileTimeToSystemTime(&local, &parts);
    if (parts.wYear < kFirstTime.wYear) {
        parts = kFirstTime;
    } else if (parts.wYear > kLastTime.wYear) {
        parts = kLastTime;
    }
    tm_zip zip = {};
    zip.tm_sec = parts.wSecond;
    zip.tm_min = parts.wMinute;
    zip.tm_hour = parts.wHour;
    zip.tm_mday = parts.wDay;
    zip.tm_mon = parts.wMonth - 1;
    zip.tm_year = parts.wYear;
    return zip;
}

CString SystemText(DWORD error)
{
    own::LocalMemory found;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   error, 0, reinterpret_cast<LPWSTR>(found.Receive()), 0, nullptr);
    CString text = static_cast<LPCWSTR>(found.Get());
    return text.TrimRight();
}

CString WithoutPrefix(const CString& path)
{
    if (path.Left(8) == L"\\\\?\\UNC\\") {
        return L"\\" + path.Mid(7);
    }
    return path.Left(4) == L"\\\\?\\" ? path.Mid(4) : path;
}

DWORD LastErrorOr(DWORD fallback)
{
    DWORD error = GetLastError();
    return error != ERROR_SUCCESS ? error : fallback;
}

ZipItem MakeItem(const CString& name, const WIN32_FIND_DATAW& data)
{
    bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    ULONGLONG size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    return {name, isFolder ? 0 : size, data.ftLastWriteTime, data.dwFileAttributes, isFolder};
}

bool IsDots(LPCWSTR name)
{
    return wcscmp(name, L".") == 0 || wcscmp(name, L"..") == 0;
}

} // namespace

ZipPacker::~ZipPacker()
{
    if (m_zip) {
        CloseArchive(ERROR_CANCELLED);
    }
}

DWORD ZipPacker::Open(LPCWSTR source, LPCWSTR archive)
{
    m_source = LongPath(source);
    m_archive = LongPath(archive);
    if (m_source.IsEmpty() || m_archive.IsEmpty()) {
        return ERROR_INVALID_NAME;
    }
    if (m_source.Right(1) == L"\\" && m_source.Right(2) != L":\\") {
        m_source.Truncate(m_source.GetLength() - 1);
    }
    DWORD attributes = GetFileAttributesW(m_source);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return GetLastError();
    }
    m_isFile = (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    m_root = m_isFile ? m_source.Left(m_source.ReverseFind(L'\\')) : m_source;
    if (m_source.CompareNoCase(m_archive) == 0) {
        return ERROR_INVALID_PARAMETER;
    }
    DWORD existing = GetFileAttributesW(m_archive);
    if (existing != INVALID_FILE_ATTRIBUTES && (m_flags & QORZIP_OVERWRITE) == 0) {
        return ERROR_FILE_EXISTS;
    }
    if (existing != INVALID_FILE_ATTRIBUTES && (existing & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return ERROR_ACCESS_DENIED;
    }
    return OpenPart();
}

DWORD ZipPacker::OpenPart()
{
    // The archive library does not tell why a file could not be created, and takes one that is there already.
    own::File probe;
    DWORD status = CreatePart(m_archive, probe, m_part);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    probe.Reset();
    zlib_filefunc64_def files = {};
    fill_win32_filefunc64W(&files);
    m_zip = zipOpen2_64(m_part.GetString(), APPEND_STATUS_CREATE, nullptr, &files);
    if (m_zip) {
        return ERROR_SUCCESS;
    }
    DeleteFileW(m_part);
    return ERROR_OPEN_FAILED;
}

void ZipPacker::Run()
{
    DWORD status = GuardMemory([this] {
        m_block.resize(kBlockSize);
        return Pack();
    });
    status = CloseArchive(status);
    m_result = HRESULT_FROM_WIN32(status);
    m_finished = true;
    if (m_notify && !m_silent) {
        PostMessageW(m_notify, WM_QORZIP, ZIPREPORT_FINISHED, m_result);
    }
}

DWORD ZipPacker::Pack()
{
    ReportProgress();
    if (!ScanSource()) {
        return m_error;
    }
    for (const ZipItem& item : m_items) {
        if (IsCancelled() || !PackItem(item)) {
            return m_error;
        }
        ReportProgress();
    }
    m_done = m_total;
    return IsCancelled() ? m_error : static_cast<DWORD>(ERROR_SUCCESS);
}

DWORD ZipPacker::CloseArchive(DWORD status)
{
    SetLastError(ERROR_SUCCESS);
    if (zipClose(m_zip, nullptr) != ZIP_OK && status == ERROR_SUCCESS) {
        status = LastErrorOr(ERROR_WRITE_FAULT);
    }
    m_zip = nullptr;
    DWORD replace = (m_flags & QORZIP_OVERWRITE) != 0 ? MOVEFILE_REPLACE_EXISTING : 0;
    if (status == ERROR_SUCCESS && !MoveFileExW(m_part, m_archive, replace)) {
        status = GetLastError();
    }
    if (status != ERROR_SUCCESS) {
        DeleteFileW(m_part);
    } else {
        ReportProgress();
    }
    return status;
}

bool ZipPacker::ScanSource()
{
    if (!m_isFile) {
        if (!ScanFolder(CString())) {
            return false;
        }
        // Folders found on the way are appended behind, and so get their turn too.
        for (size_t i = 0; (m_flags & QORZIP_SUBFOLDERS) != 0 && i < m_items.size(); ++i) {
            if (m_items[i].isFolder && !ScanFolder(CString(m_items[i].name))) {
                return false;
            }
        }
        auto less = [](const ZipItem& a, const ZipItem& b) { return a.name.CompareNoCase(b.name) < 0; };
        std::sort(m_items.begin(), m_items.end(), less);
    } else {
        WIN32_FIND_DATAW data = {};
        own::FileSearch find(FindFirstFileW(m_source, &data));
        if (!find) {
            return Fail(GetLastError());
        }
        m_items.push_back(MakeItem(m_source.Mid(m_source.ReverseFind(L'\\') + 1), data));
    }
    for (const ZipItem& item : m_items) {
        m_total += item.size;
    }
    return true;
}

bool ZipPacker::ScanFolder(const CString& folder)
{
    std::vector<ZipItem> found;
    ZipStep step = ZipStep::Retry;
    while (step == ZipStep::Retry) {
        step = IsCancelled() ? ZipStep::Stop : TryScanFolder(folder, found);
    }
    m_items.insert(m_items.end(), found.begin(), found.end());
    return step == ZipStep::Done;
}

ZipStep ZipPacker::TryScanFolder(const CString& folder, std::vector<ZipItem>& found)
{
    found.clear();
    WIN32_FIND_DATAW data = {};
    CString path = PathOf(folder);
    own::FileSearch find(FindFirstFileW(path + (path.Right(1) == L"\\" ? L"*" : L"\\*"), &data));
    if (!find) {
        return GetLastError() == ERROR_FILE_NOT_FOUND ? ZipStep::Done : Ask(path, GetLastError());
    }
    do {
        CString name = folder.IsEmpty() ? CString(data.cFileName) : folder + L"\\" + data.cFileName;
        if (!IsDots(data.cFileName) && TakesItem(PathOf(name), data)) {
            found.push_back(MakeItem(name, data));
        }
    } while (FindNextFileW(find.Get(), &data));
    return GetLastError() == ERROR_NO_MORE_FILES ? ZipStep::Done : Ask(path, GetLastError());
}

bool ZipPacker::TakesItem(const CString& path, const WIN32_FIND_DATAW& data) const
{
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return (m_flags & QORZIP_SUBFOLDERS) != 0 && (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
    }
    return path.CompareNoCase(m_archive) != 0 && path.CompareNoCase(m_part) != 0;
}

bool ZipPacker::PackItem(const ZipItem& item)
{
    Report(ZIPREPORT_FILE, reinterpret_cast<LPARAM>(item.name.GetString()));
    return item.isFolder ? PackFolder(item) : PackFile(item);
}

bool ZipPacker::PackFolder(const ZipItem& item)
{
    return BeginEntry(item) && EndEntry();
}

bool ZipPacker::PackFile(const ZipItem& item)
{
    CString path = PathOf(item.name);
    ULONGLONG planned = m_done + item.size;
    own::File file;
    DWORD got = 0;
    ZipStep step = ZipStep::Retry;
    while (step == ZipStep::Retry) {
        step = IsCancelled() ? ZipStep::Stop : TryOpen(path, file, got);
    }
    if (step == ZipStep::Stop) {
        return false;
    }
    bool packed = !file || (BeginEntry(item) && CopyData(path, file.Get(), got) && EndEntry());
    m_done = planned;
    return packed;
}

/** Opens a file and reads its first block; Done without a file means that it is left out. */
ZipStep ZipPacker::TryOpen(const CString& path, own::File& file, DWORD& got)
{
    file.Reset(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                           OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (file && ReadFile(file.Get(), m_block.data(), kBlockSize, &got, nullptr)) {
        return ZipStep::Done;
    }
    DWORD error = GetLastError();
    file.Reset();
    return Ask(path, error);
}

/** Writes the block already read and everything after it. */
bool ZipPacker::CopyData(const CString& path, HANDLE file, DWORD got)
{
    while (got != 0) {
        if (IsCancelled()) {
            return false;
        }
        SetLastError(ERROR_SUCCESS);
        if (zipWriteInFileInZip(m_zip, m_block.data(), got) != ZIP_OK) {
            return Fail(LastErrorOr(ERROR_WRITE_FAULT));
        }
        m_done += got;
        ReportProgress();
        if (!ReadBlock(path, file, got)) {
            return false;
        }
    }
    return true;
}

bool ZipPacker::ReadBlock(const CString& path, HANDLE file, DWORD& got)
{
    for (;;) {
        if (ReadFile(file, m_block.data(), kBlockSize, &got, nullptr)) {
            return true;
        }
        got = 0;
        ZipStep step = Ask(path, GetLastError());
        if (step != ZipStep::Retry) {
            return step == ZipStep::Done;
        }
        if (IsCancelled()) {
            return false;
        }
    }
}

bool ZipPacker::BeginEntry(const ZipItem& item)
{
    CString name = item.name + (item.isFolder ? L"/" : L"");
    name.Replace(L'\\', L'/');
    CStringA utf8 = WStrToUTF8(name);
    zip_fileinfo info = {};
    info.tmz_date = ZipTime(item.time);
    info.external_fa = item.attributes & 0xFF;
    SetLastError(ERROR_SUCCESS);
    int status =
        zipOpenNewFileInZip4_64(m_zip, utf8.GetString(), &info, nullptr, 0, nullptr, 0, nullptr,
                                item.isFolder ? 0 : Z_DEFLATED, Z_DEFAULT_COMPRESSION, 0, -MAX_WBITS, kDeflateMemory,
                                Z_DEFAULT_STRATEGY, nullptr, 0, 0, kFlagUtf8Name, item.size >= kZip64From ? 1 : 0);
    return status == ZIP_OK ? true : Fail(LastErrorOr(ERROR_WRITE_FAULT));
}

bool ZipPacker::EndEntry()
{
    SetLastError(ERROR_SUCCESS);
    return zipCloseFileInZip(m_zip) == ZIP_OK ? true : Fail(LastErrorOr(ERROR_WRITE_FAULT));
}

LRESULT ZipPacker::Report(WPARAM kind, LPARAM value)
{
    if (!m_notify) {
        return 0;
    }
    m_reporting = true;
    LRESULT answer = m_silent ? 0 : SendMessageW(m_notify, WM_QORZIP, kind, value);
    m_reporting = false;
    return answer;
}

void ZipPacker::ReportProgress()
{
    int percent = 100;
    if (m_zip) {
        percent = m_total != 0 ? static_cast<int>((std::min)(m_done * 100.0 / m_total, 99.0)) : 0;
    }
    if (percent <= m_percent) {
        return;
    }
    m_percent = percent;
    Report(ZIPREPORT_PERCENT, percent);
}

ZipStep ZipPacker::Ask(const CString& path, DWORD error)
{
    if (!m_notify) {
        Fail(error);
        return ZipStep::Stop;
    }
    CString question = WithoutPrefix(path) + L"\n" + SystemText(error);
    LRESULT answer = Report(ZIPREPORT_QUESTION, reinterpret_cast<LPARAM>(question.GetString()));
    if (answer == IDRETRY) {
        return ZipStep::Retry;
    }
    if (answer == IDIGNORE || answer == kAnswerTimedOut) {
        return ZipStep::Done;
    }
    Fail(ERROR_CANCELLED);
    return ZipStep::Stop;
}

bool ZipPacker::Fail(DWORD error)
{
    m_error = error;
    return false;
}

bool ZipPacker::IsCancelled()
{
    if (m_cancel) {
        m_error = ERROR_CANCELLED;
    }
    return m_cancel;
}

CString ZipPacker::PathOf(const CString& name) const
{
    if (name.IsEmpty()) {
        return m_root;
    }
    return m_root + (m_root.Right(1) == L"\\" ? L"" : L"\\") + name;
}

} // namespace qor
