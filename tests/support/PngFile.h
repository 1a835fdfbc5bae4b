#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ts
{

/**
 * Writes a true-colour PNG file (uncompressed inside).
 * @param pixels Row by row from the top, cx * cy of them.
 * @return Whether all was written.
 */
bool WritePng(const std::wstring& path, int cx, int cy, const std::vector<COLORREF>& pixels);

} // namespace ts
