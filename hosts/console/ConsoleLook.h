#pragma once

#include <QorUI/res/resource.h>

#include <windows.h>

/** @file
 * What several pages show alike.
 */

constexpr COLORREF kAccent = RGB(28, 78, 120); // of headings
constexpr LPCWSTR kSite = L"http://www.example.org/help";

// Pictures of the library, whose resources are searched, too
constexpr UINT kDialogCloseStrip = IDB_DLG_CLOSE; // four frames: normal, hot, pressed, disabled
constexpr UINT kLogonPicture = IDB_LOGON;
