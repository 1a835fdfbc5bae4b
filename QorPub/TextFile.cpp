#include "File.h"
#include "Guard.h"
#include "QorPub.h"

#include <cstdarg>

namespace
{

constexpr size_t kReadLimit = size_t{256} * 1024 * 1024;
constexpr int kTextFileUtf16Be = 3;
constexpr int kBomSizeUtf8 = 3;
constexpr int kBomSizeUtf16 = 2;

/** Encoding that a byte-order mark names, or -1. */
int EncodingOfMark(const BYTE* bytes, size_t size)
{
    if (size >= kBomSizeUtf8 && bytes[0] == 0xEF && bytes[1] == 0xBB && bytes[2] == 0xBF) {
        return TEXTFILE_UTF8_BOM;
    }
    if (size >= kBomSizeUtf16 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        return TEXTFILE_UTF16LE;
    }
    if (size >= kBomSizeUtf16 && bytes[0] == 0xFE && bytes[1] == 0xFF) {
        return kTextFileUtf16Be;
    }
    return -1;
}

CString DecodeUtf16(const BYTE* bytes, size_t size, bool lowFirst)
{
    CString text;
    auto length = static_cast<int>(size / sizeof(WCHAR));
    LPWSTR buffer = text.GetBuffer(length);
    for (int i = 0; i < length; ++i, bytes += sizeof(WCHAR)) {
        buffer[i] = static_cast<WCHAR>(lowFirst ? bytes[0] | bytes[1] << 8 : bytes[0] << 8 | bytes[1]);
    }
    text.ReleaseBuffer(length);
    return text;
}

CString Decode(const BYTE* bytes, size_t size, int encoding)
{
    int marked = EncodingOfMark(bytes, size);
    if (marked >= 0) {
        size_t mark = marked == TEXTFILE_UTF8_BOM ? kBomSizeUtf8 : kBomSizeUtf16;
        bytes += mark;
        size -= mark;
        encoding = marked;
    }
    if (encoding == TEXTFILE_UTF16LE || encoding == kTextFileUtf16Be) {
        return DecodeUtf16(bytes, size, encoding == TEXTFILE_UTF16LE);
    }
    return UTF8ToWStr(reinterpret_cast<LPCSTR>(bytes), static_cast<int>(size));
}

HANDLE OpenFor(LPCWSTR path, int mode)
{
    CString name = qor::LongPath(path);
    if (name.IsEmpty()) {
        SetLastError(ERROR_INVALID_NAME);
        return INVALID_HANDLE_VALUE;
    }
    if (mode == TEXTFILE_READ) {
        return CreateFileW(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    return CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                       mode == TEXTFILE_CREATE ? CREATE_ALWAYS : OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/** TRUE when the work gives no error; otherwise its status becomes the last error. */
template <class Work>
BOOL Succeeds(Work work)
{
    DWORD status = qor::GuardMemory(work);
    if (status != ERROR_SUCCESS) {
        SetLastError(status);
    }
    return status == ERROR_SUCCESS;
}

} // namespace

CTextFile::CTextFile() = default;

CTextFile::~CTextFile()
{
    Close();
}

BOOL CTextFile::Open(LPCWSTR path, int mode, int encoding)
{
    Close();
    if (mode < TEXTFILE_READ || mode > TEXTFILE_APPEND || encoding < TEXTFILE_UTF8 || encoding > TEXTFILE_UTF16LE) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    DWORD status = qor::GuardMemory([&] { return OpenFile(path, mode, encoding); });
    if (status == ERROR_SUCCESS) {
        return TRUE;
    }
    Close();
    SetLastError(status);
    return FALSE;
}

DWORD CTextFile::OpenFile(LPCWSTR path, int mode, int encoding)
{
    m_file = OpenFor(path, mode);
    if (m_file == INVALID_HANDLE_VALUE) {
        return GetLastError();
    }
    m_mode = mode;
    if (mode == TEXTFILE_READ) {
        return LoadText(encoding);
    }
    return StartWriting(encoding) ? ERROR_SUCCESS : GetLastError();
}

DWORD CTextFile::LoadText(int encoding)
{
    std::vector<BYTE> bytes;
    DWORD status = qor::ReadToEnd(m_file, kReadLimit, bytes);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    m_text = Decode(bytes.data(), bytes.size(), encoding);
    m_pos = 0;
    return ERROR_SUCCESS;
}

BOOL CTextFile::StartWriting(int encoding)
{
    m_encoding = FindEncoding(encoding);
    if (m_encoding == kTextFileUtf16Be) {
        SetLastError(ERROR_NOT_SUPPORTED);
        return FALSE;
    }
    LARGE_INTEGER size = {};
    if (!SetFilePointerEx(m_file, {}, &size, FILE_END)) {
        return FALSE;
    }
    if (size.QuadPart != 0 || m_encoding == TEXTFILE_UTF8) {
        return TRUE;
    }
    return m_encoding == TEXTFILE_UTF8_BOM ? WriteBytes("\xEF\xBB\xBF", kBomSizeUtf8)
                                           : WriteBytes("\xFF\xFE", kBomSizeUtf16);
}

int CTextFile::FindEncoding(int encoding)
{
    BYTE head[kBomSizeUtf8] = {};
    DWORD got = 0;
    int marked = ReadFile(m_file, head, sizeof(head), &got, nullptr) ? EncodingOfMark(head, got) : -1;
    return marked >= 0 ? marked : encoding;
}

BOOL CTextFile::IsOpen() const
{
    return m_file != INVALID_HANDLE_VALUE;
}

BOOL CTextFile::WriteBytes(const void* data, DWORD size)
{
    return Succeeds([&] { return qor::WriteAll(m_file, data, size); });
}

BOOL CTextFile::WriteString(LPCWSTR text)
{
    if (!IsOpen() || m_mode == TEXTFILE_READ) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (!text) {
        text = L"";
    }
    if (m_encoding == TEXTFILE_UTF16LE) {
        return WriteBytes(text, static_cast<DWORD>(wcslen(text) * sizeof(WCHAR)));
    }
    return Succeeds([&] {
        CStringA utf8 = WStrToUTF8(text);
        return qor::WriteAll(m_file, utf8.GetString(), static_cast<DWORD>(utf8.GetLength()));
    });
}

BOOL CTextFile::WriteStringV(LPCWSTR format, ...)
{
    CString text;
    va_list args;
    va_start(args, format);
    BOOL formatted = Succeeds([&] {
        if (format) {
            text.FormatV(format, args);
        }
        return static_cast<DWORD>(ERROR_SUCCESS);
    });
    va_end(args);
    return formatted && WriteString(text);
}

BOOL CTextFile::ReadLine(CString& line)
{
    line.Empty();
    if (!IsOpen() || m_mode != TEXTFILE_READ) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    int length = m_text.GetLength();
    if (m_pos >= length) {
        SetLastError(ERROR_HANDLE_EOF);
        return FALSE;
    }
    LPCWSTR text = m_text.GetString();
    int end = m_pos;
    while (end < length && text[end] != L'\r' && text[end] != L'\n') {
        ++end;
    }
    return Succeeds([&] {
        line = CString(text + m_pos, end - m_pos);
        bool pair = end + 1 < length && text[end] == L'\r' && text[end + 1] == L'\n';
        m_pos = end + (pair ? 2 : 1);
        return static_cast<DWORD>(ERROR_SUCCESS);
    });
}

BOOL CTextFile::ReadAll(CString& text)
{
    text.Empty();
    if (!IsOpen() || m_mode != TEXTFILE_READ) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    return Succeeds([&] {
        text = m_pos < m_text.GetLength() ? m_text.Mid(m_pos) : CString();
        m_pos = m_text.GetLength();
        return static_cast<DWORD>(ERROR_SUCCESS);
    });
}

BOOL CTextFile::Close()
{
    BOOL closed = TRUE;
    if (IsOpen()) {
        closed = CloseHandle(m_file);
    }
    m_file = INVALID_HANDLE_VALUE;
    m_mode = 0;
    m_encoding = TEXTFILE_UTF8;
    m_text.Empty();
    m_pos = 0;
    return closed;
}
