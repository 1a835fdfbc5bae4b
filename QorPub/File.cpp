#include "File.h"

namespace qor
{
namespace
{

bool IsPrefixed(const CString& path)
{
    return path.Left(4) == L"\\\\?\\" || path.Left(4) == L"\\\\.\\";
}

constexpr int kMostParts = 1000;

DWORD WriteAndFlush(HANDLE file, const void* data, DWORD size)
{
    DWORD status = WriteAll(file, data, size);
    if (status == ERROR_SUCCESS && !FlushFileBuffers(file)) {
        status = GetLastError();
    }
    return status;
}

} // namespace

CString FullPath(LPCWSTR path)
{
    CString full;
    if (!path || *path == 0) {
        return full;
    }
    DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
    if (size == 0) {
        return full;
    }
    DWORD length = GetFullPathNameW(path, size, full.GetBuffer(static_cast<int>(size)), nullptr);
    full.ReleaseBuffer(length < size ? static_cast<int>(length) : 0);
    return full;
}

CString LongPath(LPCWSTR path)
{
    CString full = FullPath(path);
    if (full.IsEmpty() || IsPrefixed(full)) {
        return full;
    }
    if (full.Left(2) == L"\\\\") {
        return L"\\\\?\\UNC" + full.Mid(1);
    }
    return L"\\\\?\\" + full;
}

DWORD ReadToEnd(HANDLE file, size_t limit, std::vector<BYTE>& bytes)
{
    constexpr DWORD kBlock = 64 * 1024;
    bytes.clear();
    for (;;) {
        size_t used = bytes.size();
        bytes.resize(used + kBlock);
        DWORD got = 0;
        BOOL ok = ReadFile(file, bytes.data() + used, kBlock, &got, nullptr);
        DWORD status = ok ? ERROR_SUCCESS : GetLastError();
        bytes.resize(used + got);
        if (status != ERROR_SUCCESS || got == 0) {
            return status;
        }
        if (bytes.size() > limit) {
            return ERROR_FILE_TOO_LARGE;
        }
    }
}

DWORD ReadWholeFile(LPCWSTR path, size_t limit, std::vector<BYTE>& bytes)
{
    CString name = LongPath(path);
    if (name.IsEmpty()) {
        return ERROR_INVALID_NAME;
    }
    own::File file(CreateFileW(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file ? ReadToEnd(file.Get(), limit, bytes) : GetLastError();
}

DWORD WriteAll(HANDLE file, const void* data, DWORD size)
{
    DWORD written = 0;
    if (size == 0) {
        return ERROR_SUCCESS;
    }
    if (!WriteFile(file, data, size, &written, nullptr)) {
        return GetLastError();
    }
    return written == size ? ERROR_SUCCESS : ERROR_DISK_FULL;
}

DWORD CreatePart(const CString& stem, own::File& file, CString& path)
{
    DWORD status = ERROR_FILE_EXISTS;
    for (int i = 1; i <= kMostParts && status == ERROR_FILE_EXISTS; ++i) {
        path = stem + L".part";
        if (i > 1) {
            path.AppendFormat(L"%d", i);
        }
        file.Reset(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        status = file ? ERROR_SUCCESS : GetLastError();
    }
    return status;
}

DWORD ReplaceWholeFile(LPCWSTR path, const void* data, DWORD size)
{
    CString name = LongPath(path);
    if (name.IsEmpty()) {
        return ERROR_INVALID_NAME;
    }
    own::File file;
    CString part;
    DWORD status = CreatePart(name, file, part);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    status = WriteAndFlush(file.Get(), data, size);
    file.Reset();
    if (status == ERROR_SUCCESS && !MoveFileExW(part, name, MOVEFILE_REPLACE_EXISTING)) {
        status = GetLastError();
    }
    if (status != ERROR_SUCCESS) {
        DeleteFileW(part);
    }
    return status;
}

} // namespace qor
