#pragma once

#include <QorUI/app/draw/GdiPlusFlat.h>

/** The two calls that start and stop GDI+, replaceable so that a failing start can be tried out. */
struct QorGdiplusCalls
{
    decltype(&Gdiplus::GdiplusStartup) startup;
    decltype(&Gdiplus::GdiplusShutdown) shutdown;
};

extern QorGdiplusCalls g_GdiplusCalls;
