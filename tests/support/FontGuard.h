#pragma once

#include <gtest/gtest.h>

#include <windows.h>

namespace ts
{

/** Average width and height of the letters of the dialog font ('MS Shell Dlg', 8 points), which dialog units are made
 * of. */
SIZE DialogBaseUnits();

/** Pixels of dialog units, by the font above. */
SIZE DialogUnitsToPixels(int horizontal, int vertical);

/**
 * Success when dialogs have the size on this system that they have on Windows (base units 6 x 13). Otherwise the
 * failure names the font that is used and the package that brings the right one. A test that depends on dialog geometry
 * begins with `ASSERT_TRUE(ts::HasStandardDialogFont());`
 */
testing::AssertionResult HasStandardDialogFont();

} // namespace ts
