#pragma once

#include <windows.h>

#include <vector>

/** A password as it is kept: nothing of it but a derived key. All empty: no password. */
struct PasswordHash
{
    std::vector<BYTE> salt;
    int rounds = 0;
    std::vector<BYTE> hash;

    bool IsEmpty() const { return hash.empty(); }
};

/** Derives the hash with a new random salt; null and empty give the empty hash. @return status. */
DWORD HashPassword(LPCWSTR password, PasswordHash& result);

/**
 * Compares a password with a kept hash, in a time that does not depend on where they differ.
 * @param[out] equal the answer. @return status; ERROR_FILE_CORRUPT for a hash that HashPassword() cannot have made.
 */
DWORD CheckPassword(LPCWSTR password, const PasswordHash& kept, bool& equal);
