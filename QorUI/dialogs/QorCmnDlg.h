#pragma once

/** @file
 * The library's common dialogs that are reached by a function.
 */

#include <QorUI/app/module/QorUIDef.h>

/** Kinds of message box: bits 0 to 6 of the type word. A higher value counts as information. */
enum QorMsgBoxKind : UINT
{
    QOR_MSG_ERROR = 0,   ///< OK
    QOR_MSG_WARNING = 1, ///< OK
    QOR_MSG_INFO = 2,    ///< OK
    QOR_MSG_CONFIRM = 3, ///< OK, Cancel
    QOR_MSG_RETRY = 4,   ///< Retry, Ignore, Cancel
    QOR_MSG_YESNO = 5,   ///< Yes, No, Cancel
};

/** Bit 7 of the type word: the box stays above all other windows. */
inline constexpr UINT QOR_MSG_TOPMOST = 0x80;

/** Result of a message box whose time ran out. */
inline constexpr UINT QOR_MSG_TIMEOUT = 32000;

/** Error code that stands for `GetLastError()` at the time of the call. */
inline constexpr DWORD QOR_LAST_ERROR = 0xFFFFFFFF;

/** Bits 8 to 15 of the type word: the box closes itself after so many seconds (1 to 255; 0 for never). */
constexpr UINT QorMsgAutoClose(BYTE seconds)
{
    return static_cast<UINT>(seconds) << 8;
}

/**
 * The library's message box.
 * @param text the message; null and empty are the same. An empty text of type 0 says that the operation failed.
 * @param type kind (#QorMsgBoxKind), #QOR_MSG_TOPMOST and `QorMsgAutoClose`.
 * @param error Win32 or HRESULT code whose text is appended; 0 for none, #QOR_LAST_ERROR for the last error.
 * @param parent owner window; null for the program's main window.
 * @return `IDOK`, `IDCANCEL` (also for Escape and the close button), `IDRETRY`, `IDIGNORE`, `IDYES`, `IDNO`,
 *         #QOR_MSG_TIMEOUT, or 0xFFFFFFFF when the box could not be created.
 */
QORUI_API UINT QorMsgBox(LPCWSTR text, UINT type, DWORD error, CWnd* parent);

/** The same, without parent, with a text formatted as by `CString::FormatV`. */
QORUI_API UINT QorMsgBox(UINT type, DWORD error, LPCWSTR format, ...);
