#pragma once

/** @file
 * Keys of the registry, and the acronyms of the predefined ones.
 */

#include <QorPub/QorPubDef.h>

#include <vector>

/**
 * A registry key, closed by its object. All operations give the system's status, 0 for success; on an object without
 * key ERROR_INVALID_HANDLE. Results are changed only by success.
 */
class QORPUB_API CQorKey
{
  public:
    /** Makes an object without key. */
    CQorKey() = default;
    /** Takes over an open key. */
    explicit CQorKey(HKEY key);
    /** Closes the key as Close does. */
    ~CQorKey();
    CQorKey(const CQorKey&) = delete;
    CQorKey& operator=(const CQorKey&) = delete;

    /**
     * Opens an existing key; a key held before is closed first.
     * @param parent  an open key or one of the predefined ones.
     * @param path    path below @p parent; null or empty for the parent itself. A trailing backslash is tolerated.
     * @param access  rights wanted, KEY_WOW64_64KEY included where wanted.
     * @param options 0, or REG_OPTION_OPEN_LINK.
     */
    LONG Open(HKEY parent, LPCWSTR path, REGSAM access = KEY_READ, DWORD options = 0);

    /**
     * Opens a key and makes it, with the keys above it, when it is missing.
     * @param options     0, or REG_OPTION_VOLATILE.
     * @param disposition takes REG_CREATED_NEW_KEY or REG_OPENED_EXISTING_KEY; may be null.
     */
    LONG Create(HKEY parent, LPCWSTR path, REGSAM access = KEY_READ | KEY_WRITE, DWORD options = 0,
                DWORD* disposition = nullptr);

    /** Closes the key; predefined ones are only let go. */
    void Close();
    /** Gives the open key away to the caller, who closes it. */
    HKEY Detach();
    /** The open key, which stays the object's; null for none. */
    HKEY Get() const { return m_key; }
    operator HKEY() const { return m_key; } ///< as Get
    /** Whether the object has a key. */
    BOOL IsOpen() const { return m_key != nullptr; }

    /** Type and size in bytes of a value; either result may be null. A null or empty name is the default value. */
    LONG QueryInfo(LPCWSTR name, DWORD* type, DWORD* size) const;
    /** Reads a text value (REG_SZ, or REG_EXPAND_SZ as it stands); ERROR_INVALID_DATATYPE for other types. */
    LONG QueryString(LPCWSTR name, CString& value) const;
    /** Reads a REG_DWORD value; ERROR_INVALID_DATATYPE for others. */
    LONG QueryDword(LPCWSTR name, DWORD& value) const;
    /** Reads a value of any type as bytes. */
    LONG QueryBinary(LPCWSTR name, std::vector<BYTE>& value) const;
    /** Reads a REG_MULTI_SZ value; ERROR_INVALID_DATATYPE for others. */
    LONG QueryMultiString(LPCWSTR name, CStringArray& value) const;

    /** Writes a text value. @param value null counts as empty. @param type REG_SZ or REG_EXPAND_SZ. */
    LONG SetString(LPCWSTR name, LPCWSTR value, DWORD type = REG_SZ);
    /** Writes a REG_DWORD value. */
    LONG SetDword(LPCWSTR name, DWORD value);
    /** Writes a REG_BINARY value. @param size bytes at @p data, which may be null for none. */
    LONG SetBinary(LPCWSTR name, const void* data, DWORD size);
    /** Writes a REG_MULTI_SZ value. Empty strings, which would end the list, give ERROR_INVALID_PARAMETER. */
    LONG SetMultiString(LPCWSTR name, const CStringArray& value);

    /** Name of the sub-key at @p index (from 0); ERROR_NO_MORE_ITEMS behind the last. */
    LONG EnumKey(DWORD index, CString& name) const;
    /** Name and type of the value at @p index (from 0); ERROR_NO_MORE_ITEMS behind the last. @p type may be null. */
    LONG EnumValue(DWORD index, CString& name, DWORD* type = nullptr) const;

    /** Deletes a value; ERROR_FILE_NOT_FOUND when there is none of that name. */
    LONG DeleteValue(LPCWSTR name);
    /** Deletes a sub-key with everything under it; ERROR_INVALID_PARAMETER for an empty path. */
    LONG DeleteKey(LPCWSTR path);

  private:
    HKEY m_key = nullptr;
};

/**
 * The predefined key whose acronym begins an entry: HKCR\, HKCU\, HKLM\, HKU\ or HKCC\, in any letter case and always
 * with the backslash.
 * @param entry         the entry, for example "HKCU\Software\Qor\".
 * @param acronymLength takes the number of characters of the acronym with its backslash, 0 when there is none; may be
 *                      null.
 * @return the key, or null when the entry begins with no acronym.
 */
QORPUB_API HKEY QorAcronym2PrimaryKey(LPCWSTR entry, int* acronymLength);

/** The acronym of a predefined key with its backslash (a constant text), or null for any other key. */
QORPUB_API LPCWSTR QorPrimaryKey2Acronym(HKEY key);
