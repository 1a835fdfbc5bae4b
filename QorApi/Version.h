#pragma once

#include <string_view>

/**
 * Compares two version numbers of up to four parts ("1.2.10" is later than "1.2.9"; missing parts are 0).
 * @param[out] order less than, equal to or greater than 0 as the first is earlier, the same or later.
 * @return false when one of them is no version number: then order is 0.
 */
bool CompareVersions(std::wstring_view first, std::wstring_view second, int& order);
