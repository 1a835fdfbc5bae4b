#pragma once

#include "Store.h"

/** A setting that the product knows: a number, or a text whose default is empty. */
struct KnownInfo
{
    UINT id;
    bool text;
    DWORD initial;
    DWORD right;
};

/** The setting of this id, or null for one that the product does not know. */
const KnownInfo* FindKnown(UINT id);

/** Reads a setting; the default of a known one that was never set. @return ERROR_NOT_FOUND, or a failure of the
 * database. */
DWORD LoadInfo(Database& db, UINT id, std::vector<BYTE>& value);

/** Stores a setting without asking for a right. @return the database's status. */
DWORD StoreInfo(Database& db, UINT id, const void* data, size_t size);
