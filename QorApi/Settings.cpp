#include "Settings.h"

#include "InfoTable.h"
#include "Names.h"
#include "UpdateMark.h"

#include <QorApi/logon/Session.h>

#include <set>

namespace
{

constexpr UINT kFirstId = 1;
constexpr UINT kLastId = 1023;
constexpr int kMaxSize = 4096;
constexpr DWORD kUpdateRunning = 0x0100; // byte 1

bool IsId(UINT id)
{
    return id >= kFirstId && id <= kLastId;
}

bool IsFitValue(const KnownInfo& info, const void* data, int size)
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

/** What is running is not kept: a check that was killed must not read as running for ever. */
DWORD WithoutRunning(DWORD value)
{
    return value & ~0xFF00U;
}

void AppendText(Database& db, UINT id, int position, const CString& text)
{
    Query(db, "INSERT INTO multi VALUES(?1, ?2, ?3)").Bind(1, id).Bind(2, position).Bind(3, text).Run();
}

void LoadTexts(Database& db, UINT id, CStringArray& texts)
{
    Query query(db, "SELECT value FROM multi WHERE id = ?1 ORDER BY pos");
    query.Bind(1, id);
    while (query.Next()) {
        texts.Add(query.GetText(0));
    }
}

DWORD ReplaceTexts(Database& db, UINT id, const CStringArray& texts)
{
    Query(db, "DELETE FROM multi WHERE id = ?1").Bind(1, id).Run();
    for (int i = 0; i < texts.GetSize(); ++i) {
        AppendText(db, id, i, texts.GetAt(i));
    }
    return db.GetStatus();
}

DWORD AddMissingTexts(Database& db, UINT id, const CStringArray& texts)
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

DWORD QorGetInfo(UINT id, void* data, int size)
{
    if (!data || size <= 0) {
        return ERROR_INVALID_PARAMETER;
    }
    memset(data, 0, size);
    const KnownInfo* known = FindKnown(id);
    if (!IsId(id) || (known && !known->text && size != sizeof(DWORD))) {
        return ERROR_INVALID_PARAMETER;
    }
    std::vector<BYTE> value;
    const DWORD status = ReadStore([&](Database& db) { return LoadInfo(db, id, value); });
    if (status != ERROR_SUCCESS) {
        return status;
    }
    if (value.size() > static_cast<size_t>(size)) {
        return ERROR_INSUFFICIENT_BUFFER;
    }
    memcpy(data, value.data(), value.size());
    if (id == QORINFO_UPDATE_CHECK) {
        auto& flags = *static_cast<DWORD UNALIGNED*>(data);
        flags = WithoutRunning(flags) | (IsUpdateRunning() ? kUpdateRunning : 0);
    }
    return ERROR_SUCCESS;
}

DWORD QorSetInfo(UINT id, const void* data, int size)
{
    const KnownInfo* known = FindKnown(id);
    if (!data || size <= 0 || size > kMaxSize || !IsId(id) || (known && !IsFitValue(*known, data, size))) {
        return ERROR_INVALID_PARAMETER;
    }
    return WriteStore([&](Database& db) {
        const DWORD status = NeedRights(db, known ? known->right : static_cast<DWORD>(QORRIGHT_SETTINGS));
        return status == ERROR_SUCCESS ? StoreInfo(db, id, data, size) : status;
    });
}

DWORD QorGetMultiString(UINT id, CStringArray& texts)
{
    texts.RemoveAll();
    if (!IsId(id)) {
        return ERROR_INVALID_PARAMETER;
    }
    const DWORD status = ReadStore([&](Database& db) {
        LoadTexts(db, id, texts);
        return db.GetStatus();
    });
    if (status != ERROR_SUCCESS) {
        texts.RemoveAll();
    }
    return status;
}

DWORD QorSetMultiString(UINT id, const CStringArray& texts, int flag)
{
    if (!IsId(id)) {
        return ERROR_INVALID_PARAMETER;
    }
    return WriteStore([&](Database& db) {
        const DWORD status = NeedRights(db, QORRIGHT_SETTINGS);
        if (status != ERROR_SUCCESS) {
            return status;
        }
        return flag ? ReplaceTexts(db, id, texts) : AddMissingTexts(db, id, texts);
    });
}
