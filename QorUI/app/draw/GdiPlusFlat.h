#pragma once

/** @file
 * The flat interface of GDI+ with owners for its objects.
 */

// gdiplus.h declares the property ids that it takes from here.
#include <common/Owner.h>

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace QorGdip
{

/** A GDI+ object and the function of the flat interface that deletes it. */
template <class T, auto Delete>
using ObjectOf = own::Owner<own::FreedBy<T*, Delete>>;

using Graphics = ObjectOf<Gdiplus::GpGraphics, Gdiplus::DllExports::GdipDeleteGraphics>;
using Pen = ObjectOf<Gdiplus::GpPen, Gdiplus::DllExports::GdipDeletePen>;
using Path = ObjectOf<Gdiplus::GpPath, Gdiplus::DllExports::GdipDeletePath>;
using SolidBrush = ObjectOf<Gdiplus::GpSolidFill, Gdiplus::DllExports::GdipDeleteBrush>;
using LineBrush = ObjectOf<Gdiplus::GpLineGradient, Gdiplus::DllExports::GdipDeleteBrush>;
using Font = ObjectOf<Gdiplus::GpFont, Gdiplus::DllExports::GdipDeleteFont>;
using Family = ObjectOf<Gdiplus::GpFontFamily, Gdiplus::DllExports::GdipDeleteFontFamily>;
using StringFormat = ObjectOf<Gdiplus::GpStringFormat, Gdiplus::DllExports::GdipDeleteStringFormat>;

/** Opaque GDI+ colour of a GDI colour. */
constexpr Gdiplus::ARGB Opaque(COLORREF colour)
{
    return 0xFF000000u | (static_cast<Gdiplus::ARGB>(GetRValue(colour)) << 16) |
           (static_cast<Gdiplus::ARGB>(GetGValue(colour)) << 8) | GetBValue(colour);
}

/** A drawing surface on a device context; null when GDI+ is not running or `dc` is no device context. */
inline Graphics GraphicsOn(HDC dc)
{
    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::DllExports::GdipCreateFromHDC(dc, &graphics);
    return Graphics(graphics);
}

/** A pen of `width` pixels; null on failure. */
inline Pen SolidPen(Gdiplus::ARGB colour, float width)
{
    Gdiplus::GpPen* pen = nullptr;
    Gdiplus::DllExports::GdipCreatePen1(colour, width, Gdiplus::UnitPixel, &pen);
    return Pen(pen);
}

/** A brush of one colour; null on failure. */
inline SolidBrush Solid(Gdiplus::ARGB colour)
{
    Gdiplus::GpSolidFill* brush = nullptr;
    Gdiplus::DllExports::GdipCreateSolidFill(colour, &brush);
    return SolidBrush(brush);
}

/** An empty path that is filled alternately; null on failure. */
inline Path NewPath()
{
    Gdiplus::GpPath* path = nullptr;
    Gdiplus::DllExports::GdipCreatePath(Gdiplus::FillModeAlternate, &path);
    return Path(path);
}

} // namespace QorGdip
