#pragma once

/** @file
 * Pictures from resources, and encoders for writing them.
 */

#include <QorUI/app/module/QorUIDef.h>

/**
 * Decodes a picture of a resource for drawing with GDI+.
 * @param inst module with the resource.
 * @param name,type name and type of the resource, or numbers made with `MAKEINTRESOURCEW`.
 * @return a `Gdiplus::Image*` that the caller deletes, or null when there is no such resource or no memory. Data that
 *         is no picture still gives an image: test it through the status of its width and height calls.
 */
QORUI_API const void* QorImageFromResource(HINSTANCE inst, LPCWSTR name, LPCWSTR type);

/**
 * Finds the GDI+ encoder of a kind of pictures.
 * @param mimeType such as "image/png", in upper or lower case.
 * @param clsid class id of the encoder; unchanged when there is none.
 * @return whether there is one.
 */
QORUI_API BOOL QorGetImageEncoder(LPCWSTR mimeType, GUID& clsid);
