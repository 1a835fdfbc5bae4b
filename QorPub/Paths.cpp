#include "File.h"
#include "QorPub.h"

namespace
{

constexpr DWORD kMaxLongPath = 32768;

CString GetVariable(LPCWSTR name)
{
    CString value;
    DWORD size = GetEnvironmentVariableW(name, nullptr, 0);
    if (size == 0) {
        return value;
    }
    DWORD length = GetEnvironmentVariableW(name, value.GetBuffer(static_cast<int>(size)), size);
    value.ReleaseBuffer(length < size ? static_cast<int>(length) : 0);
    return value;
}

CString FolderOf(const CString& path)
{
    int slash = path.ReverseFind(L'\\');
    bool root = slash == 2 && path[1] == L':';
    return slash < 0 ? CString() : path.Left(root ? slash + 1 : slash);
}

CString TempFolder()
{
    WCHAR path[MAX_PATH + 1] = {};
    GetTempPathW(ARRAYSIZE(path), path);
    return path;
}

CString FindAppPath()
{
    CString path;
    DWORD length = GetModuleFileNameW(nullptr, path.GetBuffer(kMaxLongPath), kMaxLongPath);
    path.ReleaseBuffer(length < kMaxLongPath ? static_cast<int>(length) : 0);
    return path.Left(path.ReverseFind(L'\\') + 1);
}

bool IsFolder(const CString& path)
{
    DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

BOOL CreateFolder(const CString& path)
{
    if (path.IsEmpty()) {
        return FALSE;
    }
    if (IsFolder(path) || CreateDirectoryW(path, nullptr)) {
        return TRUE;
    }
    if (GetLastError() != ERROR_PATH_NOT_FOUND) {
        return IsFolder(path);
    }
    CString parent = FolderOf(path);
    return parent.GetLength() < path.GetLength() && CreateFolder(parent) &&
           (CreateDirectoryW(path, nullptr) || IsFolder(path));
}

} // namespace

CString g_AppPath = FindAppPath();

CString QorGetStorePath()
{
    CString named = qor::FullPath(GetVariable(L"QOR_STORE"));
    if (!named.IsEmpty()) {
        return named;
    }
    CString base = GetVariable(L"LOCALAPPDATA");
    if (base.IsEmpty()) {
        base = TempFolder();
    }
    base.TrimRight(L'\\');
    return base + L"\\Qor\\store.db";
}

CString QorGetStoreFolder()
{
    return FolderOf(QorGetStorePath());
}

BOOL QorCreateFolder(LPCWSTR path)
{
    CString name = qor::LongPath(path);
    name.TrimRight(L'\\');
    return CreateFolder(name.Right(1) == L":" ? name + L"\\" : name);
}
