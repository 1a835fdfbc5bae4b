#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws a rule that fades from blue to white.
 * @param start left end; the rule is the row of pixels above it.
 * @param length in pixels.
 */
QORUI_API void QorDrawGradientLine(CDC* dc, CPoint start, int length);
