#include "File.h"
#include "Guard.h"
#include "QorPub.h"
#include "ZipNames.h"

#include <minizip/unzip.h>

#include <minizip/iowin32.h>

namespace
{

constexpr DWORD kBlockSize = 256 * 1024;
constexpr uLong kFlagUtf8Name = 1 << 11;

/** An archive open for reading. */
class Archive
{
  public:
    /** ERROR_SUCCESS or the system's code. An archive without entries is open, but without file. */
    DWORD Open(LPCWSTR path);
    unzFile Get() const { return m_file.Get(); }

    /** Calls @p visit with every entry until one gives another code than ERROR_SUCCESS. */
    template <typename F>
    DWORD ForEach(F visit)
    {
        if (!m_file) {
            return ERROR_SUCCESS;
        }
        unz_global_info64 global = {};
        if (unzGetGlobalInfo64(m_file.Get(), &global) != UNZ_OK) {
            return ERROR_INVALID_DATA;
        }
        int found = global.number_entry != 0 ? unzGoToFirstFile(m_file.Get()) : UNZ_END_OF_LIST_OF_FILE;
        for (; found == UNZ_OK; found = unzGoToNextFile(m_file.Get())) {
            DWORD status = visit();
            if (status != ERROR_SUCCESS) {
                return status;
            }
        }
        return found == UNZ_END_OF_LIST_OF_FILE ? ERROR_SUCCESS : ERROR_INVALID_DATA;
    }

    /** Name and time of the current entry. */
    DWORD Current(CString& name, uLong& dosTime) const;

  private:
    own::Owner<own::FreedBy<unzFile, ::unzClose>> m_file;
};

/** Tells an archive without entries, which the archive library takes for a damaged one. */
bool IsEmptyArchive(HANDLE file)
{
    static constexpr BYTE kEmpty[] = {'P', 'K', 5, 6, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    BYTE bytes[sizeof(kEmpty) + 1] = {};
    DWORD got = 0;
    return ReadFile(file, bytes, sizeof(bytes), &got, nullptr) && got == sizeof(kEmpty) &&
           memcmp(bytes, kEmpty, sizeof(kEmpty)) == 0;
}

DWORD Archive::Open(LPCWSTR path)
{
    CString name = qor::LongPath(path);
    if (name.IsEmpty()) {
        return ERROR_INVALID_NAME;
    }
    // The archive library does not tell a missing file from a damaged one.
    own::File probe(
        CreateFileW(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!probe) {
        return GetLastError();
    }
    if (IsEmptyArchive(probe.Get())) {
        return ERROR_SUCCESS;
    }
    probe.Reset();
    zlib_filefunc64_def files = {};
    fill_win32_filefunc64W(&files);
    m_file.Reset(unzOpen2_64(name.GetString(), &files));
    return m_file ? ERROR_SUCCESS : ERROR_INVALID_DATA;
}

CString DecodeName(const std::vector<char>& bytes, bool utf8)
{
    UINT codePage = utf8 ? CP_UTF8 : CP_OEMCP;
    auto length = static_cast<int>(strlen(bytes.data()));
    CString name;
    int size = length != 0 ? MultiByteToWideChar(codePage, 0, bytes.data(), length, nullptr, 0) : 0;
    MultiByteToWideChar(codePage, 0, bytes.data(), length, name.GetBuffer(size), size);
    name.ReleaseBuffer(size);
    return name;
}

DWORD Archive::Current(CString& name, uLong& dosTime) const
{
    unz_file_info64 info = {};
    if (unzGetCurrentFileInfo64(m_file.Get(), &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK) {
        return ERROR_INVALID_DATA;
    }
    std::vector<char> bytes(info.size_filename + 1);
    if (unzGetCurrentFileInfo64(m_file.Get(), &info, bytes.data(), info.size_filename, nullptr, 0, nullptr, 0) !=
        UNZ_OK) {
        return ERROR_INVALID_DATA;
    }
    name = DecodeName(bytes, (info.flag & kFlagUtf8Name) != 0);
    dosTime = info.dosDate;
    return ERROR_SUCCESS;
}

/** Unpacks the entries of one archive into one folder. */
class Unpacker
{
  public:
    Unpacker(Archive& archive, CString folder, bool overwrite)
        : m_archive(archive), m_folder(std::move(folder)), m_overwrite(overwrite), m_block(kBlockSize)
    {
    }

    DWORD CheckCurrent();
    DWORD UnpackCurrent();

  private:
    DWORD UnpackFile(const CString& path, uLong dosTime);
    DWORD WriteEntry(HANDLE file, uLong dosTime);
    DWORD WriteFileData(HANDLE file);
    DWORD MoveIntoPlace(const CString& part, const CString& path) const;

    Archive& m_archive;
    CString m_folder;
    bool m_overwrite;
    std::vector<BYTE> m_block;
};

DWORD Unpacker::CheckCurrent()
{
    CString name;
    uLong dosTime = 0;
    DWORD status = m_archive.Current(name, dosTime);
    if (status == ERROR_SUCCESS && !qor::IsSafeEntryName(name.GetString())) {
        status = ERROR_BAD_PATHNAME;
    }
    return status;
}

DWORD Unpacker::UnpackCurrent()
{
    CString name;
    uLong dosTime = 0;
    DWORD status = m_archive.Current(name, dosTime);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    name.Replace(L'/', L'\\');
    CString path = m_folder + L"\\" + name;
    bool isFolder = path.Right(1) == L"\\";
    if (!QorCreateFolder(path.Left(path.ReverseFind(L'\\')))) {
        return GetLastError();
    }
    return isFolder ? static_cast<DWORD>(ERROR_SUCCESS) : UnpackFile(path, dosTime);
}

void SetDosTime(HANDLE file, uLong dosTime)
{
    FILETIME local = {};
    FILETIME time = {};
    if (DosDateTimeToFileTime(HIWORD(dosTime), LOWORD(dosTime), &local) && LocalFileTimeToFileTime(&local, &time)) {
        SetFileTime(file, nullptr, nullptr, &time);
    }
}

DWORD Unpacker::UnpackFile(const CString& path, uLong dosTime)
{
    if (!m_overwrite && GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES) {
        return ERROR_FILE_EXISTS;
    }
    own::File file;
    CString part;
    // Not called after the entry, whose name may be as long as a name can be.
    DWORD status = qor::CreatePart(path.Left(path.ReverseFind(L'\\')) + L"\\~unpacked", file, part);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    status = WriteEntry(file.Get(), dosTime);
    file.Reset();
    if (status == ERROR_SUCCESS) {
        status = MoveIntoPlace(part, path);
    }
    if (status != ERROR_SUCCESS) {
        DeleteFileW(part);
    }
    return status;
}

DWORD Unpacker::WriteEntry(HANDLE file, uLong dosTime)
{
    if (unzOpenCurrentFile(m_archive.Get()) != UNZ_OK) {
        return ERROR_INVALID_DATA;
    }
    DWORD status = WriteFileData(file);
    // Tells whether the checksum is right.
    int closed = unzCloseCurrentFile(m_archive.Get());
    SetDosTime(file, dosTime);
    return status == ERROR_SUCCESS && closed != UNZ_OK ? static_cast<DWORD>(ERROR_INVALID_DATA) : status;
}

DWORD Unpacker::MoveIntoPlace(const CString& part, const CString& path) const
{
    if (MoveFileExW(part, path, m_overwrite ? MOVEFILE_REPLACE_EXISTING : 0)) {
        return ERROR_SUCCESS;
    }
    DWORD error = GetLastError();
    return error == ERROR_ALREADY_EXISTS ? static_cast<DWORD>(ERROR_FILE_EXISTS) : error;
}

DWORD Unpacker::WriteFileData(HANDLE file)
{
    for (;;) {
        int got = unzReadCurrentFile(m_archive.Get(), m_block.data(), kBlockSize);
        if (got <= 0) {
            return got == 0 ? ERROR_SUCCESS : ERROR_INVALID_DATA;
        }
        DWORD status = qor::WriteAll(file, m_block.data(), static_cast<DWORD>(got));
        if (status != ERROR_SUCCESS) {
            return status;
        }
    }
}

DWORD ExtractAll(LPCWSTR archive, LPCWSTR folder, bool overwrite)
{
    Archive file;
    DWORD status = file.Open(archive);
    CString target = qor::LongPath(folder);
    target.TrimRight(L'\\');
    if (status == ERROR_SUCCESS && target.IsEmpty()) {
        status = ERROR_INVALID_NAME;
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    Unpacker unpacker(file, target, overwrite);
    status = file.ForEach([&] { return unpacker.CheckCurrent(); });
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (!QorCreateFolder(target)) {
        return GetLastError();
    }
    return file.ForEach([&] { return unpacker.UnpackCurrent(); });
}

DWORD ListAll(LPCWSTR archive, CStringArray& names)
{
    Archive file;
    DWORD status = file.Open(archive);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    return file.ForEach([&] {
        CString name;
        uLong dosTime = 0;
        DWORD found = file.Current(name, dosTime);
        if (found == ERROR_SUCCESS) {
            names.Add(name);
        }
        return found;
    });
}

} // namespace

LONG CQorZip::Extract(LPCWSTR archive, LPCWSTR folder, DWORD flags)
{
    // The macro evaluates its argument more than once.
    DWORD status = qor::GuardMemory([&] { return ExtractAll(archive, folder, (flags & QORZIP_OVERWRITE) != 0); });
    return HRESULT_FROM_WIN32(status);
}

LONG CQorZip::List(LPCWSTR archive, CStringArray& names)
{
    names.RemoveAll();
    DWORD status = qor::GuardMemory([&] { return ListAll(archive, names); });
    return HRESULT_FROM_WIN32(status);
}
