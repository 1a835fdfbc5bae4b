#pragma once

/** @file
 * What the library's own controls share of its skin, besides what the application object holds.
 */

#include <QorUI/app/module/QorUIDef.h>

#include <array>

/** One row of the button style table: how a push button looks in one state. */
struct QorBtnStyle
{
    CBrush brush;       ///< pattern of the face; without handle when its bitmap is missing
    COLORREF outer = 0; ///< outer border
    COLORREF inner = 0; ///< inner border
};

/** Normal, hot, pressed and disabled. */
inline constexpr size_t kButtonStyles = 4;

extern std::array<QorBtnStyle, kButtonStyles> g_BtnStyles;

/** An icon and the banner that belongs to it, as given to `QorSetAppIcon`. */
struct QorAppIcon
{
    HICON icon = nullptr;
    BOOL flag = FALSE;
};

/** What was given to `QorSetAppIcon` last. */
const QorAppIcon& QorGetAppIcon();
