#pragma once

#include <QorUI/app/module/QorUIApp.h>

/** Bits that say which parts of a button's label to draw. */
enum QorLabelMode : UINT
{
    QOR_LABEL_TEXT = 1,
    QOR_LABEL_FOCUS = 2 ///< the focus rectangle around the text
};

/** Row of the style table, and frame of a picture strip, that a button is drawn with. */
inline QorBtnState QorButtonState(UINT itemState, BOOL hot)
{
    if (itemState & ODS_DISABLED) {
        return QOR_BTN_DISABLED;
    }
    if (itemState & ODS_SELECTED) {
        return QOR_BTN_PRESSED;
    }
    return hot ? QOR_BTN_HOT : QOR_BTN_NORMAL;
}

/**
 * Draws a rectangle with the rounded corners of a button and a line of one pixel.
 * @param brush fills the inside; null leaves it as it is.
 */
void QorDrawRounded(HDC dc, const RECT& rect, COLORREF line, HGDIOBJ brush);
