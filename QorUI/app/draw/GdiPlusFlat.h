#pragma once

/** @file
 * The flat interface of GDI+ with owners for its objects.
 */

// gdiplus.h declares the property ids that it takes from here.
#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <memory>

namespace QorGdip
{

/** Deletes a GDI+ object with its own function of the flat interface. */
template <auto Delete>
struct Deleter
{
    template <class T>
    void operator()(T* object) const
    {
        Delete(object);
    }
};

using Graphics = std::unique_ptr<Gdiplus::GpGraphics, Deleter<Gdiplus::DllExports::GdipDeleteGraphics>>;
using Pen = std::unique_ptr<Gdiplus::GpPen, Deleter<Gdiplus::DllExports::GdipDeletePen>>;
using Path = std::unique_ptr<Gdiplus::GpPath, Deleter<Gdiplus::DllExports::GdipDeletePath>>;

template <class T>
using BrushOf = std::unique_ptr<T, Deleter<Gdiplus::DllExports::GdipDeleteBrush>>;
using SolidBrush = BrushOf<Gdiplus::GpSolidFill>;
using LineBrush = BrushOf<Gdiplus::GpLineGradient>;

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
