#pragma once

#include <afxwin.h>

#include <cstdio>

/** @file
 * What every kind of host finds after the library is attached. A host prints what is wrong; its exit status is the
 * number of things that are.
 */

namespace host
{

inline int g_failures = 0;

inline void Check(bool holds, const char* what, int line)
{
    if (!holds) {
        std::printf("line %d: %s\n", line, what);
        ++g_failures;
    }
}

#define HOST_CHECK(condition) host::Check((condition), #condition, __LINE__)

inline HMODULE Program()
{
    return ::GetModuleHandleW(nullptr);
}

inline HMODULE Library()
{
    return ::GetModuleHandleW(L"QorUI.dll");
}

/** Whether the framework's search for a bitmap ends in a module. */
inline bool FindsBitmapIn(UINT id, HMODULE module)
{
    return AfxFindResourceHandle(MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(2) /* RT_BITMAP */) == module;
}

constexpr UINT kOwnBitmap = 1000;  ///< of the host
constexpr UINT kOwnPicture = 1100; ///< of the host, type "PNG"
constexpr UINT kRadioStrip = 200;  ///< of the library

/** The search goes through the host first and then through the library. */
inline void CheckResourceSearch()
{
    HOST_CHECK(AfxGetModuleState()->m_hCurrentResourceHandle == Program());
    HOST_CHECK(FindsBitmapIn(kOwnBitmap, Program()));
    HOST_CHECK(FindsBitmapIn(kRadioStrip, Library()));
    CBitmap strip;
    HOST_CHECK(strip.LoadBitmap(kRadioStrip));
}

/** The shared look is there. */
inline void CheckBrush(HBRUSH brush)
{
    LOGBRUSH look = {};
    HOST_CHECK(::GetObjectW(brush, sizeof(look), &look) != 0);
    HOST_CHECK(look.lbColor == RGB(236, 245, 250));
}

/** After a dialog of the library resources come from the host, whatever was named before. */
template <class ShowBox>
void CheckResourceRule(ShowBox showBox)
{
    constexpr UINT kTimeout = 32000;
    HOST_CHECK(showBox() == kTimeout);
    HOST_CHECK(AfxGetModuleState()->m_hCurrentResourceHandle == Program());
    AfxGetModuleState()->m_hCurrentResourceHandle = ::GetModuleHandleW(L"user32.dll");
    HOST_CHECK(showBox() == kTimeout);
    HOST_CHECK(AfxGetModuleState()->m_hCurrentResourceHandle == Program());
}

/** Threads of the host come and go while the library is attached. */
inline void RunThread()
{
    const auto work = [](LPVOID) -> DWORD {
        const HWND window = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        const bool wrapped = CWnd::FromHandle(window) != nullptr; // temporary objects of this thread
        ::DestroyWindow(window);
        return wrapped ? 1 : 0;
    };
    const HANDLE thread = ::CreateThread(nullptr, 0, work, nullptr, 0, nullptr);
    HOST_CHECK(::WaitForSingleObject(thread, 20000) == WAIT_OBJECT_0);
    DWORD result = 0;
    HOST_CHECK(::GetExitCodeThread(thread, &result) && result == 1);
    ::CloseHandle(thread);
}

} // namespace host
