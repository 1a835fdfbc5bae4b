#pragma once

#include <windows.h>

/** Delays the answer to a log-on as the failures in a row before it demand. */
void DelayAnswer(int failures);
