#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws a bevelled, filled box.
 * @param x,y,cx,cy place and size; the outermost lines stand at x + cx and y + cy.
 * @param fill colour of the inside.
 */
QORUI_API void QorDrawBox(HDC dc, int x, int y, int cx, int cy, COLORREF fill);
