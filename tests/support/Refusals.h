#pragma once

#include <windows.h>

/** @file What stands in for calls of the system that are to fail (`ts::ReplacedImport`). */

namespace ts
{

inline HDC WINAPI NoDc(HWND /*window*/)
{
    return nullptr;
}

inline HDC WINAPI NoMemoryDc(HDC /*like*/)
{
    return nullptr;
}

inline HBITMAP WINAPI NoCompatibleBitmap(HDC /*dc*/, int /*cx*/, int /*cy*/)
{
    return nullptr;
}

inline HBITMAP WINAPI NoBitmapResource(HINSTANCE /*module*/, LPCWSTR /*name*/)
{
    return nullptr;
}

/** GetObject of anything. */
inline int WINAPI NothingKnown(HANDLE /*object*/, int /*size*/, LPVOID /*data*/)
{
    return 0;
}

inline HWND WINAPI NoWindow(DWORD, LPCWSTR, LPCWSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE, LPVOID)
{
    return nullptr;
}

} // namespace ts
