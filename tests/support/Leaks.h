#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

namespace ts
{

/**
 * Numbers of handles that this process has, by kind: "brush", "pen", "font", "bitmap", "region", "DC", "palette" and
 * other GDI objects, "window", "menu", "icon", "accelerators", and kernel objects by their type ("Event", "File" ...).
 * Where the system has counters of its own they count instead: "GDI objects", "USER objects", "kernel handles".
 */
using HandleCounts = std::map<std::string, int>;

/** Counts now. */
HandleCounts CountHandles();

/** What there is more (positive) or less in the second count, kinds without a difference left out. */
HandleCounts Difference(const HandleCounts& before, const HandleCounts& after);

/**
 * Runs a cycle again and again and looks for handles that it leaves behind. What grows only at first (caches) is no
 * leak. Use with EXPECT_TRUE.
 * @param cycle Something that opens, uses and closes what is tested.
 * @param cycles Number of cycles that are counted; some more come before.
 */
testing::AssertionResult NoLeak(const std::function<void()>& cycle, int cycles = 200);

} // namespace ts
