#pragma once

/** @file
 * Everything of the test support that does not need the class framework. Tests include this one header;
 * what they use stands in the namespace `ts`.
 */

#include <tests/support/CrashHandler.h>
#include <tests/support/FontGuard.h>
#include <tests/support/GdiShortage.h>
#include <tests/support/HostWindow.h>
#include <tests/support/ImportRedirection.h>
#include <tests/support/Input.h>
#include <tests/support/Leaks.h>
#include <tests/support/Locale.h>
#include <tests/support/Message.h>
#include <tests/support/MessageRecorder.h>
#include <tests/support/ModalDriver.h>
#include <tests/support/Picture.h>
#include <tests/support/Pump.h>
#include <tests/support/ScreenDraws.h>
#include <tests/support/Surroundings.h>
