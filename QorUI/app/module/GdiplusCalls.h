#pragma once

// gdiplus.h declares the property ids that it takes from here.
#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

/** The two calls that start and stop GDI+, replaceable so that a failing start can be tried out. */
struct QorGdiplusCalls
{
    decltype(&Gdiplus::GdiplusStartup) startup;
    decltype(&Gdiplus::GdiplusShutdown) shutdown;
};

extern QorGdiplusCalls g_GdiplusCalls;
