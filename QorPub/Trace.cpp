#include "File.h"
#include "QorPub.h"

#include <cstdarg>

namespace
{

constexpr int kTraceTextLimit = 2000;
constexpr DWORD kTraceLockWait = 2000;

/** Keeps the thread's last error as it was. */
class LastErrorKeeper
{
  public:
    LastErrorKeeper() : m_error(GetLastError()) {}
    ~LastErrorKeeper() { SetLastError(m_error); }
    LastErrorKeeper(const LastErrorKeeper&) = delete;
    LastErrorKeeper& operator=(const LastErrorKeeper&) = delete;

  private:
    DWORD m_error;
};

/** The log's turn among the processes that write it: appending and moving it aside are not atomic everywhere. */
class LogLock
{
  public:
    explicit LogLock(const CString& path) : m_mutex(CreateMutexW(nullptr, FALSE, MutexName(path)))
    {
        DWORD waited = m_mutex ? WaitForSingleObject(m_mutex.Get(), kTraceLockWait) : WAIT_FAILED;
        m_owned = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
    }
    ~LogLock()
    {
        if (m_owned) {
            ReleaseMutex(m_mutex.Get());
        }
    }
    LogLock(const LogLock&) = delete;
    LogLock& operator=(const LogLock&) = delete;

  private:
    static CString MutexName(CString path)
    {
        constexpr ULONGLONG kFnvStart = 14695981039346656037ULL;
        constexpr ULONGLONG kFnvPrime = 1099511628211ULL;
        path.MakeUpper();
        ULONGLONG hash = kFnvStart;
        for (int i = 0; i < path.GetLength(); ++i) {
            hash = (hash ^ path[i]) * kFnvPrime;
        }
        CString name;
        name.Format(L"Local\\QorTrace-%016I64x", hash);
        return name;
    }

    own::KernelObject m_mutex;
    bool m_owned = false;
};

CString Escape(LPCWSTR text)
{
    CString escaped = text;
    escaped.Replace(L"\\", L"\\\\");
    escaped.Replace(L"\t", L"\\t");
    escaped.Replace(L"\r", L"\\r");
    escaped.Replace(L"\n", L"\\n");
    return escaped;
}

CString TimeAndPlace()
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    CString text;
    text.Format(L"%04d-%02d-%02d %02d:%02d:%02d.%03d\t%lu\t%lu", now.wYear, now.wMonth, now.wDay, now.wHour,
                now.wMinute, now.wSecond, now.wMilliseconds, GetCurrentProcessId(), GetCurrentThreadId());
    return text;
}

HANDLE OpenLog(const CString& path)
{
    return CreateFileW(path, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

void AppendToLog(const CString& folder, const CStringA& line)
{
    CString path = folder + L"\\qor.log";
    LogLock lock(path);
    own::File file(OpenLog(path));
    if (!file && QorCreateFolder(folder)) {
        file.Reset(OpenLog(path));
    }
    LARGE_INTEGER size = {};
    if (file && GetFileSizeEx(file.Get(), &size) && size.QuadPart >= TRACE_LOG_LIMIT) {
        file.Reset();
        MoveFileExW(path, path + L".1", MOVEFILE_REPLACE_EXISTING);
        file.Reset(OpenLog(path));
    }
    if (file) {
        qor::WriteAll(file.Get(), line.GetString(), static_cast<DWORD>(line.GetLength()));
    }
}

} // namespace

void QorTrace(DWORD level, DWORD code, LPCWSTR function, LPCWSTR source, int line, LPCWSTR format, ...)
{
    LastErrorKeeper keeper;
    WCHAR text[kTraceTextLimit + 1] = {};
    va_list args;
    va_start(args, format);
    if (format) {
        _vsnwprintf(text, kTraceTextLimit, format, args);
    }
    va_end(args);
    try {
        CString place;
        place.Format(L"\t%lu\t0x%08lX\t", level, code);
        CString number;
        number.Format(L"\t%d\t", line);
        CString entry = TimeAndPlace() + place + Escape(function) + L"\t" + Escape(source) + number + Escape(text);
        AppendToLog(QorGetStoreFolder(), WStrToUTF8(entry + L"\r\n"));
    } catch (CException* error) {
        // There is nobody to tell that the log cannot be written.
        error->Delete();
    }
}
