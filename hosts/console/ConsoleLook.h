#pragma once

#include <windows.h>

/** @file
 * What several pages show alike.
 */

constexpr COLORREF kAccent = RGB(28, 78, 120);       // of headings
constexpr COLORREF kDialogBody = RGB(236, 245, 250); // the colour of QorGetDlgBkBrush
constexpr LPCWSTR kSite = L"http://www.example.org/help";

// Pictures in QorUI.dll
constexpr UINT kDialogCloseStrip = 223; // four frames: normal, hot, pressed, disabled
constexpr UINT kLogonPicture = 262;
