#pragma once

#include <common/Owner.h>
#include <QorPub/QorPubDef.h>

#include <vector>

/** File helpers inside the library. */
namespace qor
{

/** Full path with the prefix that lifts the length limit of file calls; empty for an empty or impossible path. */
CString LongPath(LPCWSTR path);

/** Full path as a person writes it; empty for an empty or impossible path. */
CString FullPath(LPCWSTR path);

/** Reads everything from an open file's position on; ERROR_FILE_TOO_LARGE above @p limit bytes. */
DWORD ReadToEnd(HANDLE file, size_t limit, std::vector<BYTE>& bytes);

/** Reads a whole file; ERROR_SUCCESS or the system's code. */
DWORD ReadWholeFile(LPCWSTR path, size_t limit, std::vector<BYTE>& bytes);

/** Writes all bytes; ERROR_SUCCESS or the system's code. */
DWORD WriteAll(HANDLE file, const void* data, DWORD size);

/**
 * Makes a new, empty file called @p stem with ".part" added, and a number behind it when that name is taken.
 * @param[out] file open for writing. @param[out] path its name.
 * @return ERROR_SUCCESS or the system's code.
 */
DWORD CreatePart(const CString& stem, own::File& file, CString& path);

/** Writes a file beside its place and moves it there when complete; ERROR_SUCCESS or the system's code. */
DWORD ReplaceWholeFile(LPCWSTR path, const void* data, DWORD size);

} // namespace qor
