#pragma once

#include <QorUI/app/module/QorUIDef.h>

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
