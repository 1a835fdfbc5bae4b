#pragma once

#include <afxwin.h>

#include <algorithm>

/** @file
 * The arithmetic of the progress displays.
 */

namespace QorProgress
{

/**
 * Which part of a range a position has passed: 0 at its lower end, 1 at its upper end.
 * A range without width counts as nothing done: 0.
 */
constexpr double Fraction(int position, int lower, int upper)
{
    if (lower == upper) {
        return 0.0;
    }
    return (static_cast<double>(position) - lower) / (static_cast<double>(upper) - lower);
}

/** The filled part of an area. @param fraction what is outside 0 to 1 counts as the nearer bound. */
inline CRect Filled(const CRect& area, double fraction)
{
    const double part = (std::clamp)(fraction, 0.0, 1.0);
    return CRect(area.left, area.top, area.left + static_cast<int>(area.Width() * part), area.bottom);
}

/** The empty part of an area that is filled up to `filled`. */
inline CRect Empty(const CRect& area, const CRect& filled)
{
    return CRect(filled.right, area.top, area.right, area.bottom);
}

/** A list cell that shows progress. */
struct Cell
{
    bool valid = false; ///< whether the text has the form "percent|label"
    int percent = 0;    ///< as written, not limited
    CString label;
};

/** Takes a cell's text apart. The bar stands behind one to three characters. */
inline Cell ParseCell(const CString& text)
{
    const int bar = text.Find(L'|');
    if (bar < 1 || bar > 3) {
        return {};
    }
    return {true, _wtoi(text), text.Mid(bar + 1)};
}

/** The filled part of a cell's bar. */
inline CRect FilledCell(const CRect& area, int percent)
{
    const int width = ::MulDiv((std::clamp)(percent, 0, 100), area.Width(), 100);
    return CRect(area.left, area.top, area.left + width, area.bottom);
}

} // namespace QorProgress
