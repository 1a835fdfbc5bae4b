#pragma once

#include <windows.h>

#include <array>

/**
 * Where a flat combo box draws its parts. Text and button part share the column of pixels between them.
 */
struct QorComboParts
{
    RECT text;                   ///< text part
    RECT button;                 ///< button part
    RECT face;                   ///< inside of the button part, within its two lines
    std::array<POINT, 3> corner; ///< of the arrow, which points down
};

inline constexpr LONG kComboArrowWidth = 6;
inline constexpr LONG kComboArrowHeight = 3;

/** @param client client rectangle of the combo box. @param thumb width of a scroll bar's thumb. */
inline QorComboParts QorComboLayout(const RECT& client, int thumb)
{
    QorComboParts parts = {client, client, client, {}};
    parts.text.right = client.right - thumb - 1;
    parts.button.left = parts.text.right - 1;
    parts.face = {parts.button.left + 2, parts.button.top + 2, parts.button.right - 2, parts.button.bottom - 2};
    const LONG x = parts.face.left + (parts.face.right - parts.face.left - kComboArrowWidth) / 2 - 1;
    const LONG y = parts.face.top + (parts.face.bottom - parts.face.top - kComboArrowHeight) / 2;
    const LONG tip = (2 * x + kComboArrowWidth) / 2;
    parts.corner = {{{x, y}, {x + kComboArrowWidth, y}, {tip, y + kComboArrowHeight}}};
    return parts;
}
