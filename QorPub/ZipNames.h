#pragma once

#include <string_view>

namespace qor
{

/**
 * Tells whether an archive entry's name stays inside the folder it is unpacked into and is allowed for a file:
 * relative, no "..", no drive, no device name, no character or ending that the file system refuses or changes.
 */
bool IsSafeEntryName(std::wstring_view name);

} // namespace qor
