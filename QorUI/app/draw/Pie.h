#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws a flat disc seen at an angle, 160 pixels wide and 76 high, that shows a used and a free share.
 * @param x,y top left corner.
 * @param ratio the used share from 0 to 1; what is outside counts as the nearer bound.
 */
QORUI_API void QorDrawPie(HDC dc, int x, int y, COLORREF usedColour, COLORREF freeColour, double ratio);
