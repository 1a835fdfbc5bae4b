#pragma once

/** @file
 * Where a context menu opens that the keyboard asked for.
 */

#include <QorUI/app/module/QorUIDef.h>

/**
 * Finds the place of a context menu over a tree when the keyboard asked for it.
 * @param point screen position of the mouse; with a negative coordinate it becomes the centre of the selected item, or
 *              the tree's top left corner when nothing is selected.
 */
QORUI_API void QorGetTreePopupPoint(CTreeCtrl& tree, CPoint& point);

/** As `QorGetTreePopupPoint`, for the first selected item of a list. */
QORUI_API void QorGetListPopupPoint(CListCtrl& list, CPoint& point);
