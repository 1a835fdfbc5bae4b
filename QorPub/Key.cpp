#include "QorPub.h"

namespace
{

constexpr DWORD kMaxKeyName = 256;
constexpr DWORD kMaxValueName = 16384;

struct PrimaryKey
{
    HKEY key;
    LPCWSTR acronym;
};

const PrimaryKey kPrimaryKeys[] = {
    {HKEY_CLASSES_ROOT, L"HKCR\\"}, {HKEY_CURRENT_USER, L"HKCU\\"},   {HKEY_LOCAL_MACHINE, L"HKLM\\"},
    {HKEY_USERS, L"HKU\\"},         {HKEY_CURRENT_CONFIG, L"HKCC\\"},
};

CString WithoutLastBackslash(LPCWSTR path)
{
    CString text = path;
    if (text.Right(1) == L"\\") {
        text.Truncate(text.GetLength() - 1);
    }
    return text;
}

/** Reads a value whose size may change between the calls. */
LONG QueryBytes(HKEY key, LPCWSTR name, DWORD& type, std::vector<BYTE>& bytes)
{
    if (!key) {
        return ERROR_INVALID_HANDLE;
    }
    DWORD size = 0;
    LONG status = RegQueryValueExW(key, name, nullptr, &type, nullptr, &size);
    while (status == ERROR_SUCCESS) {
        bytes.resize(size);
        // Without a buffer the call would only ask for the size.
        BYTE none = 0;
        status = RegQueryValueExW(key, name, nullptr, &type, size != 0 ? bytes.data() : &none, &size);
        if (status != ERROR_MORE_DATA) {
            break;
        }
        status = ERROR_SUCCESS;
    }
    if (status == ERROR_SUCCESS) {
        bytes.resize(size);
    }
    return status;
}

/** Reads a value that must be of one of two types. */
LONG QueryTyped(HKEY key, LPCWSTR name, DWORD type, DWORD otherType, std::vector<BYTE>& bytes)
{
    DWORD found = 0;
    LONG status = QueryBytes(key, name, found, bytes);
    if (status == ERROR_SUCCESS && found != type && found != otherType) {
        status = ERROR_INVALID_DATATYPE;
    }
    return status;
}

/** The characters of a text value, whose terminating null may be missing. */
std::vector<WCHAR> ToChars(const std::vector<BYTE>& bytes)
{
    std::vector<WCHAR> chars(bytes.size() / sizeof(WCHAR) + 2);
    memcpy(chars.data(), bytes.data(), bytes.size() / sizeof(WCHAR) * sizeof(WCHAR));
    return chars;
}

LONG SetBytes(HKEY key, LPCWSTR name, DWORD type, const void* data, size_t size)
{
    if (!key) {
        return ERROR_INVALID_HANDLE;
    }
    if ((!data && size != 0) || size > MAXDWORD) {
        return ERROR_INVALID_PARAMETER;
    }
    return RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
}

} // namespace

CQorKey::CQorKey(HKEY key) : m_key(key) {}

CQorKey::~CQorKey()
{
    Close();
}

LONG CQorKey::Open(HKEY parent, LPCWSTR path, REGSAM access, DWORD options)
{
    HKEY key = nullptr;
    LONG status = parent ? RegOpenKeyExW(parent, WithoutLastBackslash(path), options, access, &key)
                         : static_cast<LONG>(ERROR_INVALID_HANDLE);
    Close();
    if (status == ERROR_SUCCESS) {
        m_key = key;
    }
    return status;
}

LONG CQorKey::Create(HKEY parent, LPCWSTR path, REGSAM access, DWORD options, DWORD* disposition)
{
    HKEY key = nullptr;
    LONG status = parent ? RegCreateKeyExW(parent, WithoutLastBackslash(path), 0, nullptr, options, access, nullptr,
                                           &key, disposition)
                         : static_cast<LONG>(ERROR_INVALID_HANDLE);
    Close();
    if (status == ERROR_SUCCESS) {
        m_key = key;
    }
    return status;
}

void CQorKey::Close()
{
    if (m_key && !QorPrimaryKey2Acronym(m_key)) {
        RegCloseKey(m_key);
    }
    m_key = nullptr;
}

HKEY CQorKey::Detach()
{
    HKEY key = m_key;
    m_key = nullptr;
    return key;
}

LONG CQorKey::QueryInfo(LPCWSTR name, DWORD* type, DWORD* size) const
{
    if (!m_key) {
        return ERROR_INVALID_HANDLE;
    }
    DWORD foundType = 0;
    DWORD foundSize = 0;
    LONG status = RegQueryValueExW(m_key, name, nullptr, &foundType, nullptr, &foundSize);
    if (status == ERROR_SUCCESS && type) {
        *type = foundType;
    }
    if (status == ERROR_SUCCESS && size) {
        *size = foundSize;
    }
    return status;
}

LONG CQorKey::QueryString(LPCWSTR name, CString& value) const
{
    std::vector<BYTE> bytes;
    LONG status = QueryTyped(m_key, name, REG_SZ, REG_EXPAND_SZ, bytes);
    if (status == ERROR_SUCCESS) {
        value = ToChars(bytes).data();
    }
    return status;
}

LONG CQorKey::QueryDword(LPCWSTR name, DWORD& value) const
{
    std::vector<BYTE> bytes;
    LONG status = QueryTyped(m_key, name, REG_DWORD, REG_DWORD, bytes);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (bytes.size() != sizeof(value)) {
        return ERROR_INVALID_DATATYPE;
    }
    memcpy(&value, bytes.data(), sizeof(value));
    return ERROR_SUCCESS;
}

LONG CQorKey::QueryBinary(LPCWSTR name, std::vector<BYTE>& value) const
{
    DWORD type = 0;
    std::vector<BYTE> bytes;
    LONG status = QueryBytes(m_key, name, type, bytes);
    if (status == ERROR_SUCCESS) {
        value.swap(bytes);
    }
    return status;
}

LONG CQorKey::QueryMultiString(LPCWSTR name, CStringArray& value) const
{
    std::vector<BYTE> bytes;
    LONG status = QueryTyped(m_key, name, REG_MULTI_SZ, REG_MULTI_SZ, bytes);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    value.RemoveAll();
    std::vector<WCHAR> chars = ToChars(bytes);
    for (LPCWSTR text = chars.data(); *text != 0; text += wcslen(text) + 1) {
        value.Add(text);
    }
    return ERROR_SUCCESS;
}

LONG CQorKey::SetString(LPCWSTR name, LPCWSTR value, DWORD type)
{
    if (!value) {
        value = L"";
    }
    return SetBytes(m_key, name, type, value, (wcslen(value) + 1) * sizeof(WCHAR));
}

LONG CQorKey::SetDword(LPCWSTR name, DWORD value)
{
    return SetBytes(m_key, name, REG_DWORD, &value, sizeof(value));
}

LONG CQorKey::SetBinary(LPCWSTR name, const void* data, DWORD size)
{
    return SetBytes(m_key, name, REG_BINARY, data, size);
}

LONG CQorKey::SetMultiString(LPCWSTR name, const CStringArray& value)
{
    std::vector<WCHAR> chars;
    for (INT_PTR i = 0; i < value.GetSize(); ++i) {
        LPCWSTR text = value[i].GetString();
        if (*text == 0) {
            return ERROR_INVALID_PARAMETER;
        }
        chars.insert(chars.end(), text, text + wcslen(text) + 1);
    }
    chars.push_back(0);
    return SetBytes(m_key, name, REG_MULTI_SZ, chars.data(), chars.size() * sizeof(WCHAR));
}

LONG CQorKey::EnumKey(DWORD index, CString& name) const
{
    if (!m_key) {
        return ERROR_INVALID_HANDLE;
    }
    WCHAR text[kMaxKeyName] = {};
    LONG status = RegEnumKeyW(m_key, index, text, kMaxKeyName);
    if (status == ERROR_SUCCESS) {
        name = text;
    }
    return status;
}

LONG CQorKey::EnumValue(DWORD index, CString& name, DWORD* type) const
{
    if (!m_key) {
        return ERROR_INVALID_HANDLE;
    }
    std::vector<WCHAR> text(kMaxValueName);
    DWORD length = kMaxValueName;
    DWORD foundType = 0;
    LONG status = RegEnumValueW(m_key, index, text.data(), &length, nullptr, &foundType, nullptr, nullptr);
    if (status != ERROR_SUCCESS) {
        return status;
    }
    name = CString(text.data(), static_cast<int>(length));
    if (type) {
        *type = foundType;
    }
    return ERROR_SUCCESS;
}

LONG CQorKey::DeleteValue(LPCWSTR name)
{
    return m_key ? RegDeleteValueW(m_key, name) : static_cast<LONG>(ERROR_INVALID_HANDLE);
}

LONG CQorKey::DeleteKey(LPCWSTR path)
{
    if (!m_key) {
        return ERROR_INVALID_HANDLE;
    }
    CString name = WithoutLastBackslash(path);
    // An empty name would empty this key itself.
    return name.IsEmpty() ? static_cast<LONG>(ERROR_INVALID_PARAMETER) : RegDeleteTreeW(m_key, name);
}

HKEY QorAcronym2PrimaryKey(LPCWSTR entry, int* acronymLength)
{
    if (acronymLength) {
        *acronymLength = 0;
    }
    for (const PrimaryKey& primary : kPrimaryKeys) {
        size_t length = wcslen(primary.acronym);
        if (!entry || _wcsnicmp(entry, primary.acronym, length) != 0) {
            continue;
        }
        if (acronymLength) {
            *acronymLength = static_cast<int>(length);
        }
        return primary.key;
    }
    return nullptr;
}

LPCWSTR QorPrimaryKey2Acronym(HKEY key)
{
    for (const PrimaryKey& primary : kPrimaryKeys) {
        if (primary.key == key) {
            return primary.acronym;
        }
    }
    return nullptr;
}
