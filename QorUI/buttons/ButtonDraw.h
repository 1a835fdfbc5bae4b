#pragma once

#include <windows.h>

/** Bits that say which parts of a button's label to draw. */
enum QorLabelMode : UINT
{
    kLabelText = 1,
    kLabelFocus = 2 ///< the focus rectangle around the text
};

/**
 * Draws a rectangle with the rounded corners of a button and a line of one pixel.
 * @param brush fills the inside; null leaves it as it is.
 */
void QorDrawRounded(HDC dc, const RECT& rect, COLORREF line, HGDIOBJ brush);
