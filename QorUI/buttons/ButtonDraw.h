#pragma once

#include <QorUI/app/QorUIApp.h>

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
