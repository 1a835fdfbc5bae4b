#include "Settings.h"

#include "Names.h"
#include "Session.h"

#include <algorithm>
#include <set>

namespace
{

constexpr UINT FIRST_ID = 1;
constexpr UINT LAST_ID = 1023;
constexpr int MAX_SIZE = 4096;
constexpr DWORD UPDATE_RUNNING = 0x0100; // byte 1

/** A setting that the product knows: a number, or a text whose default is empty. */
struct KNOWNINFO
{
    UINT id;
    bool text;
    DWORD initial;
    DWORD right;
};

constexpr KNOWNINFO KNOWN_INFO[] = {
    {QORINFO_UPDATE_CHECK, false, 1, QORRIGHT_SETTINGS},  {QORINFO_UPDATE_SOURCE, true, 0, QORRIGHT_SETTINGS},
    {QORINFO_UPDATE_VERSION, true, 0, QORRIGHT_SETTINGS}, {QORINFO_KEEP_UPDATES, false, 1, QORRIGHT_SETTINGS},
    {QORINFO_RESTRICT, false, 0, QORRIGHT_SECURITY},      {QORINFO_SNAP_BEFORE, false, 1, QORRIGHT_SETTINGS},
};

const KNOWNINFO* FindKnown(UINT id)
{
    const auto* found = std::find_if(std::begin(KNOWN_INFO), std::end(KNOWN_INFO),
                                     [=](const KNOWNINFO& info) { return info.id == id; });
    return found == std::end(KNOWN_INFO) ? nullptr : found;
}

bool IsId(UINT id)
{
    return id >= FIRST_ID && id <= LAST_ID;
}

std::vector<BYTE> GetDefault(const KNOWNINFO& info)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(&info.initial);
    return std::vector<BYTE>(bytes, bytes + (info.text ? sizeof(WCHAR) : sizeof(DWORD)));
}

DWORD LoadInfo(CDatabase& db, UINT id, std::vector<BYTE>& value)
{
    CQuery query(db, "SELECT value FROM info WHERE id = ?1");
    const KNOWNINFO* known = FindKnown(id);
    if (query.Bind(1, id).Next()) {
        value = query.GetBlob(0);
    } else if (known) {
        value = GetDefault(*known);
    } else if (db.GetStatus() == 0) {
        return ERROR_NOT_FOUND;
    }
    return db.GetStatus();
}

DWORD StoreInfo(CDatabase& db, UINT id, const void* data, size_t size)
{
    return CQuery(db, "INSERT OR REPLACE INTO info VALUES(?1, ?2)").Bind(1, id).Bind(2, data, size).Run();
}

bool IsFitValue(const KNOWNINFO& info, const void* data, int size)
{
    if (!info.text) {
        return size == sizeof(DWORD);
    }
    WCHAR last = L'?';
    if (size < static_cast<int>(sizeof(WCHAR)) || size % sizeof(WCHAR) != 0) {
        return false;
    }
    memcpy(&last, static_cast<const BYTE*>(data) + size - sizeof(WCHAR), sizeof(WCHAR));
    return last == 0;
}

bool IsUpdateRunning()
{
    const HANDLE event = OpenEventW(SYNCHRONIZE, FALSE, GetUpdateEventName());
    if (event) {
        CloseHandle(event);
    }
    return event != nullptr;
}

// What is running is not kept: a check that was killed must not read as running for ever.
DWORD WithoutRunning(DWORD value)
{
    return value & ~0xFF00U;
}

void AppendText(CDatabase& db, UINT id, int position, const CString& text)
{
    CQuery(db, "INSERT INTO multi VALUES(?1, ?2, ?3)").Bind(1, id).Bind(2, position).Bind(3, text).Run();
}

void LoadTexts(CDatabase& db, UINT id, CStringArray& texts)
{
    CQuery query(db, "SELECT value FROM multi WHERE id = ?1 ORDER BY pos");
    query.Bind(1, id);
    while (query.Next()) {
        texts.Add(query.GetText(0));
    }
}

DWORD ReplaceTexts(CDatabase& db, UINT id, const CStringArray& texts)
{
    CQuery(db, "DELETE FROM multi WHERE id = ?1").Bind(1, id).Run();
    for (int i = 0; i < texts.GetSize(); ++i) {
        AppendText(db, id, i, texts.GetAt(i));
    }
    return db.GetStatus();
}

DWORD AddMissingTexts(CDatabase& db, UINT id, const CStringArray& texts)
{
    CStringArray present;
    LoadTexts(db, id, present);
    std::set<std::wstring> known;
    for (int i = 0; i < present.GetSize(); ++i) {
        known.insert(FoldName(present.GetAt(i)).GetString());
    }
    int position = static_cast<int>(present.GetSize());
    for (int i = 0; i < texts.GetSize(); ++i) {
        if (known.insert(FoldName(texts.GetAt(i)).GetString()).second) {
            AppendText(db, id, position++, texts.GetAt(i));
        }
    }
    return db.GetStatus();
}

} // namespace

CString GetUpdateEventName()
{
    const CStringA path = WStrToUTF8(FoldName(QorGetStorePath()));
    BYTE digest[MD5_DIGEST_SIZE] = {};
    CQorMd5::Digest(path.GetString(), path.GetLength(), digest);
    return L"Local\\QorUpdateCheck-" + CQorMd5::ToHex(digest);
}

DWORD PutInfoText(CDatabase& db, UINT id, const CString& text)
{
    return StoreInfo(db, id, text.GetString(), (text.GetLength() + 1) * sizeof(WCHAR));
}

DWORD GetInfoText(UINT id, CString& text)
{
    WCHAR buffer[MAX_SIZE / sizeof(WCHAR)] = {};
    const DWORD status = QorGetInfo(id, buffer, sizeof(buffer));
    buffer[std::size(buffer) - 1] = 0;
    text = buffer;
    return status;
}

DWORD QorGetInfo(UINT id, void* data, int size)
{
    if (!data || size <= 0) {
        return ERROR_INVALID_PARAMETER;
    }
    memset(data, 0, size);
    const KNOWNINFO* known = FindKnown(id);
    if (!IsId(id) || (known && !known->text && size != sizeof(DWORD))) {
        return ERROR_INVALID_PARAMETER;
    }
    std::vector<BYTE> value;
    const DWORD status = ReadStore([&](CDatabase& db) { return LoadInfo(db, id, value); });
    if (status != 0) {
        return status;
    }
    if (value.size() > static_cast<size_t>(size)) {
        return ERROR_INSUFFICIENT_BUFFER;
    }
    memcpy(data, value.data(), value.size());
    if (id == QORINFO_UPDATE_CHECK) {
        auto& flags = *static_cast<DWORD UNALIGNED*>(data);
        flags = WithoutRunning(flags) | (IsUpdateRunning() ? UPDATE_RUNNING : 0);
    }
    return 0;
}

DWORD QorSetInfo(UINT id, const void* data, int size)
{
    const KNOWNINFO* known = FindKnown(id);
    if (!data || size <= 0 || size > MAX_SIZE || !IsId(id) || (known && !IsFitValue(*known, data, size))) {
        return ERROR_INVALID_PARAMETER;
    }
    return WriteStore([&](CDatabase& db) {
        const DWORD status = NeedRights(db, known ? known->right : static_cast<DWORD>(QORRIGHT_SETTINGS));
        return status ? status : StoreInfo(db, id, data, size);
    });
}

DWORD QorGetMultiString(UINT id, CStringArray& texts)
{
    texts.RemoveAll();
    if (!IsId(id)) {
        return ERROR_INVALID_PARAMETER;
    }
    const DWORD status = ReadStore([&](CDatabase& db) {
        LoadTexts(db, id, texts);
        return db.GetStatus();
    });
    if (status != 0) {
        texts.RemoveAll();
    }
    return status;
}

DWORD QorSetMultiString(UINT id, const CStringArray& texts, int flag)
{
    if (!IsId(id)) {
        return ERROR_INVALID_PARAMETER;
    }
    return WriteStore([&](CDatabase& db) {
        const DWORD status = NeedRights(db, QORRIGHT_SETTINGS);
        if (status != 0) {
            return status;
        }
        return flag ? ReplaceTexts(db, id, texts) : AddMissingTexts(db, id, texts);
    });
}
