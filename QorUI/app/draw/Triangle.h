#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** Where the apex of a triangle points to. */
enum QorTriangle
{
    kTriangleUp,
    kTriangleDown,
    kTriangleLeft,
    kTriangleRight
};

/** Draws a filled triangle inside a rectangle. @param direction a `QorTriangle`; another value draws nothing. */
void QorDrawTriangle(CDC* dc, const RECT& rect, int direction, COLORREF colour);
