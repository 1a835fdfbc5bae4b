#pragma once

/** @file A state of a device context must be the same in the one that draws and the one that is asked. */

#include <afx/gdi.h>

namespace gdi
{

/** Calls a function for either context. @return what the one that is asked gave; `failure` without any. */
template <class Result, class Function>
Result OnBoth(const CDC& dc, Result failure, Function function)
{
    Result result = failure;
    if (dc.m_hDC && dc.m_hDC != dc.m_hAttribDC) {
        result = function(dc.m_hDC);
    }
    if (dc.m_hAttribDC) {
        result = function(dc.m_hAttribDC);
    }
    return result;
}

/** The same for functions that fill in the former value. */
template <class Struct, class Function>
Struct OnBothFill(const CDC& dc, Function function)
{
    Struct former = {};
    OnBoth(dc, FALSE, [&](HDC hDC) { return function(hDC, &former); });
    return former;
}

} // namespace gdi
