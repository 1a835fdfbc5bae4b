#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws a part of a bitmap as it is; nothing without a bitmap, or when the system has no device context to spare.
 * @param to place in `dc`; the part is as large.
 * @param from left top corner of the part.
 * @param key colour of the bitmap that lets through what is behind; `CLR_NONE` for none.
 */
void QorDrawBitmapPart(HDC dc, const RECT& to, HGDIOBJ bitmap, POINT from, COLORREF key = CLR_NONE);
