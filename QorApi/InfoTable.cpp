#include "InfoTable.h"

#include <algorithm>

namespace
{

constexpr KnownInfo kKnownInfo[] = {
    {QORINFO_UPDATE_CHECK, false, 1, QORRIGHT_SETTINGS},  {QORINFO_UPDATE_SOURCE, true, 0, QORRIGHT_SETTINGS},
    {QORINFO_UPDATE_VERSION, true, 0, QORRIGHT_SETTINGS}, {QORINFO_KEEP_UPDATES, false, 1, QORRIGHT_SETTINGS},
    {QORINFO_RESTRICT, false, 0, QORRIGHT_SECURITY},      {QORINFO_SNAP_BEFORE, false, 1, QORRIGHT_SETTINGS},
};

std::vector<BYTE> GetDefault(const KnownInfo& info)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(&info.initial);
    return std::vector<BYTE>(bytes, bytes + (info.text ? sizeof(WCHAR) : sizeof(DWORD)));
}

} // namespace

const KnownInfo* FindKnown(UINT id)
{
    const auto* found = std::find_if(std::begin(kKnownInfo), std::end(kKnownInfo),
                                     [=](const KnownInfo& info) { return info.id == id; });
    return found == std::end(kKnownInfo) ? nullptr : found;
}

DWORD LoadInfo(Database& db, UINT id, std::vector<BYTE>& value)
{
    Query query(db, "SELECT value FROM info WHERE id = ?1");
    const KnownInfo* known = FindKnown(id);
    if (query.Bind(1, id).Next()) {
        value = query.GetBlob(0);
    } else if (known) {
        value = GetDefault(*known);
    } else if (db.GetStatus() == ERROR_SUCCESS) {
        return ERROR_NOT_FOUND;
    }
    return db.GetStatus();
}

DWORD StoreInfo(Database& db, UINT id, const void* data, size_t size)
{
    return Query(db, "INSERT OR REPLACE INTO info VALUES(?1, ?2)").Bind(1, id).Bind(2, data, size).Run();
}
