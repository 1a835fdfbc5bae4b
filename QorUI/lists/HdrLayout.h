#pragma once

#include <windows.h>

#include <commctrl.h>

/** @file
 * Where the parts of a flat header's item stand, in the coordinates of the item's rectangle.
 */

namespace QorHdr
{

inline constexpr int kTextMargin = 6;
inline constexpr int kArrowSpace = 18; // taken off the text of the sorted column
inline constexpr int kArrowRight = 6;
inline constexpr int kArrowWidth = 6;
inline constexpr int kArrowHeight = 3;
inline constexpr int kPressedX = 1;
inline constexpr int kPressedY = 2;

/** Format for DrawText of a header item's HDF_ format. */
constexpr UINT TextFormat(int itemFormat)
{
    UINT align = DT_LEFT;
    if (itemFormat & HDF_CENTER) {
        align = DT_CENTER;
    } else if (itemFormat & HDF_RIGHT) {
        align = DT_RIGHT;
    }
    return align | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP | DT_NOPREFIX | DT_END_ELLIPSIS;
}

/** Where an item's text stands; without width when the column is too narrow for a text. */
constexpr RECT TextRect(RECT item, bool pressed, bool sorted)
{
    if (pressed) {
        item.left += kPressedX;
        item.top += kPressedY;
        item.right += kPressedX;
    }
    item.left += kTextMargin;
    item.right -= kTextMargin + (sorted ? kArrowSpace : 0);
    return item;
}

/** Where the sort arrow of an item stands. */
constexpr RECT ArrowRect(const RECT& item)
{
    const LONG right = item.right - kArrowRight;
    const LONG top = item.top + (item.bottom - item.top - kArrowHeight) / 2;
    return {right - kArrowWidth, top, right, top + kArrowHeight};
}

} // namespace QorHdr
