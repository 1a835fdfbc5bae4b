#include <QorPub/File.h>

namespace qor
{
namespace
{

bool IsPrefixed(const CString& path)
{
    return path.Left(4) == L"\\\\?\\" || path.Left(4) == L"\\\\.\\";
}

DWORD WriteNewFile(const CString& path, const void* data, DWORD size)
{
    Handle file(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsValid())
        return GetLastError();
    DWORD status = WriteAll(file.Get(), data, size);
    if (status == ERROR_SUCCESS && !FlushFileBuffers(file.Get()))
        status = GetLastError();
    return status;
}

} // namespace

CString FullPath(LPCWSTR path)
{
    CString full;
    if (path == nullptr || *path == 0)
        return full;
    DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
    if (size == 0)
        return full;
    DWORD length = GetFullPathNameW(path, size, full.GetBuffer(static_cast<int>(size)), nullptr);
    full.ReleaseBuffer(length < size ? static_cast<int>(length) : 0);
    return full;
}

CString LongPath(LPCWSTR path)
{
    CString full = FullPath(path);
    if (full.IsEmpty() || IsPrefixed(full))
        return full;
    if (full.Left(2) == L"\\\\")
        return L"\\\\?\\UNC" + full.Mid(1);
    return L"\\\\?\\" + full;
}

DWORD ReadToEnd(HANDLE file, size_t limit, std::vector<BYTE>& bytes)
{
    constexpr DWORD BLOCK = 64 * 1024;
    bytes.clear();
    for (;;) {
        size_t used = bytes.size();
        bytes.resize(used + BLOCK);
        DWORD got = 0;
        BOOL ok = ReadFile(file, bytes.data() + used, BLOCK, &got, nullptr);
        DWORD status = ok ? ERROR_SUCCESS : GetLastError();
        bytes.resize(used + got);
        if (status != ERROR_SUCCESS || got == 0)
            return status;
        if (bytes.size() > limit)
            return ERROR_FILE_TOO_LARGE;
    }
}

DWORD ReadWholeFile(LPCWSTR path, size_t limit, std::vector<BYTE>& bytes)
{
    CString name = LongPath(path);
    if (name.IsEmpty())
        return ERROR_INVALID_NAME;
    Handle file(CreateFileW(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.IsValid() ? ReadToEnd(file.Get(), limit, bytes) : GetLastError();
}

DWORD WriteAll(HANDLE file, const void* data, DWORD size)
{
    DWORD written = 0;
    if (size == 0)
        return ERROR_SUCCESS;
    if (!WriteFile(file, data, size, &written, nullptr))
        return GetLastError();
    return written == size ? ERROR_SUCCESS : ERROR_DISK_FULL;
}

DWORD ReplaceWholeFile(LPCWSTR path, const void* data, DWORD size)
{
    CString name = LongPath(path);
    if (name.IsEmpty())
        return ERROR_INVALID_NAME;
    CString part = name + L".part";
    DWORD status = WriteNewFile(part, data, size);
    if (status == ERROR_SUCCESS && !MoveFileExW(part, name, MOVEFILE_REPLACE_EXISTING))
        status = GetLastError();
    if (status != ERROR_SUCCESS)
        DeleteFileW(part);
    return status;
}

} // namespace qor
