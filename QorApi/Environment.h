#pragma once

#include <string>

/** Value of an environment variable as it is now; empty when it is not set. */
std::wstring ReadEnvironment(const wchar_t* name);
