#pragma once

/** @file
 * Drawing helpers: boxes, pies, the gradient rule, grey copies, image lists.
 */

#include <QorUI/app/module/QorUIDef.h>

/**
 * Draws a bevelled, filled box.
 * @param x,y,cx,cy place and size; the outermost lines stand at x + cx and y + cy.
 * @param fill colour of the inside.
 */
QORUI_API void QorDrawBox(HDC dc, int x, int y, int cx, int cy, COLORREF fill);

/**
 * Draws a flat disc seen at an angle, 160 pixels wide and 76 high, that shows a used and a free share.
 * @param x,y top left corner.
 * @param ratio the used share from 0 to 1; what is outside counts as the nearer bound.
 */
QORUI_API void QorDrawPie(HDC dc, int x, int y, COLORREF usedColour, COLORREF freeColour, double ratio);

/**
 * Draws a rule that fades from blue to white.
 * @param start left end; the rule is the row of pixels above it.
 * @param length in pixels.
 */
QORUI_API void QorDrawGradientLine(CDC* dc, CPoint start, int length);

/**
 * Makes a grey copy of a bitmap; black stays black.
 * @return owned by the caller; null when it could not be made.
 */
QORUI_API HBITMAP QorCreateGrayBmp(HBITMAP source);

/**
 * Makes a grey copy of an icon for a disabled look.
 * @return owned by the caller; null when it could not be made.
 */
QORUI_API HICON QorCreateGrayIcon(HICON source);

/**
 * Makes an image list of a strip of square images.
 * @param list must be empty.
 * @param bitmapId bitmap resource with the strip, as high as one image.
 * @param inst module with the bitmap; null for the host program.
 * @param mask colour that becomes transparent.
 * @param imageSize receives width and height of an image in pixels; may be null.
 * @return number of images, 0 on failure.
 */
QORUI_API int QorCreateImageList(CImageList& list, UINT bitmapId, HINSTANCE inst, COLORREF mask, UINT* imageSize);

/**
 * Finds the place of a context menu over a tree when the keyboard asked for it.
 * @param point screen position of the mouse; with a negative coordinate it becomes the centre of the selected item, or
 *              the tree's top left corner when nothing is selected.
 */
QORUI_API void QorGetTreePopupPoint(CTreeCtrl& tree, CPoint& point);

/** As `QorGetTreePopupPoint`, for the first selected item of a list. */
QORUI_API void QorGetListPopupPoint(CListCtrl& list, CPoint& point);
