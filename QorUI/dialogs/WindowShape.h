#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <array>

/**
 * What dialogs, the wizard and frame windows share: the rounded shape and the sizing border of their own.
 */
namespace QorShape
{

/**
 * Sizing code of a point near the border of a window that sizes itself.
 * @param window the window rectangle, in screen coordinates like `point`.
 * @return `HTTOPLEFT`, ..., `HTBOTTOM`, or `HTNOWHERE` (0) away from the border.
 */
UINT SizingHit(const RECT& window, POINT point);

/**
 * Starts sizing when the left button goes down on the border. A maximised window and one that keeps `SC_SIZE` from its
 * default processing are not sized.
 * @return false when `hit` is no sizing code: the message then wants its default processing.
 */
bool StartSizing(CWnd& wnd, UINT hit, POINT point);

/**
 * Gives a window of `cx` x `cy` pixels its rounded shape.
 * @param region keeps the shape; what it held before is freed. The window gets a copy, which the system owns.
 */
void RoundWindow(CWnd& wnd, CRgn& region, int cx, int cy);

/**
 * What looks different after a change of size, in client coordinates: the changing end of the caption or banner, the
 * strip along the right edge and the strip along the bottom.
 * @param band how far the changing end of the caption or banner reaches left of the old right edge, and its height.
 */
std::array<CRect, 3> SizedParts(CSize oldSize, CSize newSize, CSize band);

/** Invalidates, without erasing, only what looks different after a change of size. Parameters as in `SizedParts`. */
void InvalidateSizedParts(CWnd& wnd, CSize oldSize, CSize newSize, CSize band);

} // namespace QorShape
