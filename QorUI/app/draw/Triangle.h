#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** Where the apex of a triangle points to. */
enum QorTriangle
{
    QOR_TRIANGLE_UP,
    QOR_TRIANGLE_DOWN,
    QOR_TRIANGLE_LEFT,
    QOR_TRIANGLE_RIGHT
};

/** Draws a filled triangle inside a rectangle. @param direction a `QorTriangle`; another value draws nothing. */
void QorDrawTriangle(CDC* dc, const RECT& rect, int direction, COLORREF colour);
