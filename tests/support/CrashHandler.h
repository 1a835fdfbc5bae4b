#pragma once

namespace ts
{

/** Exit status of a test program that crashed (access violation, illegal instruction, stack overflow, abort ...). */
constexpr unsigned kCrashStatus = 70;
/** Exit status of a test program that a C++ exception left. */
constexpr unsigned kTerminateStatus = 71;
/** Exit status of a test program that ended itself because it could not go on. */
constexpr unsigned kHungStatus = 72;

/**
 * From now on a crash prints what happened in which test with a back trace (module and offset; the script that runs
 * tests adds functions and lines) and ends the program with one of the statuses above, instead of opening a dialog.
 */
void InstallCrashHandler();

/** Ends the program with kHungStatus, naming the test and giving the back trace of this thread. */
[[noreturn]] void EndHungProgram(const char* why);

} // namespace ts
