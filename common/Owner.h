#pragma once

/** @file
 * One owner for handles and memory of every kind. It knows the system only, so that every floor of the house may use
 * it.
 */

#include <windows.h>

#include <objbase.h>

#include <utility>

namespace own
{

/**
 * Holds a handle and frees it at the end of its life.
 * @tparam Kind says what the handle is (`Handle`), what stands for none (`None()`) and how it is freed (`Free()`).
 */
template <class Kind>
class Owner
{
  public:
    using Handle = typename Kind::Handle;

    Owner() = default;
    /** Takes the handle over; none gives an empty owner. */
    explicit Owner(Handle handle) : m_handle(handle) {}
    Owner(Owner&& other) noexcept : m_handle(other.Release()) {}
    ~Owner() { Reset(); }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    Owner& operator=(Owner&& other) noexcept
    {
        if (this != &other) {
            Reset(other.Release());
        }
        return *this;
    }

    /** The handle, which stays owned. */
    Handle Get() const { return m_handle; }
    Handle operator->() const { return m_handle; }
    explicit operator bool() const { return m_handle != Kind::None(); }

    /** Gives the handle up: the caller frees it. */
    Handle Release() { return std::exchange(m_handle, Kind::None()); }

    /** Frees the handle and takes over another one. */
    void Reset(Handle handle = Kind::None())
    {
        const Handle former = std::exchange(m_handle, handle);
        if (former != Kind::None()) {
            Kind::Free(former);
        }
    }

    /** For functions that give a handle by an address: frees the present one and offers its place. */
    Handle* Receive()
    {
        Reset();
        return &m_handle;
    }

  private:
    Handle m_handle = Kind::None();
};

/** A kind of handle whose null value stands for none. */
template <class T, auto Function>
struct FreedBy
{
    using Handle = T;
    static Handle None() { return Handle(); }
    static void Free(Handle handle) { Function(handle); }
};

/** A kind of handle for which `INVALID_HANDLE_VALUE` stands for none. */
template <auto Function>
struct ValidFreedBy
{
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; }
    static void Free(Handle handle) { Function(handle); }
};

/** A reference to a COM object. */
template <class T>
struct ComReference
{
    using Handle = T*;
    static Handle None() { return nullptr; }
    static void Free(Handle object) { object->Release(); }
};

template <class T>
using Com = Owner<ComReference<T>>;

using KernelObject = Owner<FreedBy<HANDLE, ::CloseHandle>>; ///< events, threads, processes, mutexes
using File = Owner<ValidFreedBy<::CloseHandle>>;            ///< what `CreateFileW` gives
using FileSearch = Owner<ValidFreedBy<::FindClose>>;        ///< what `FindFirstFileW` gives
using LocalMemory = Owner<FreedBy<HLOCAL, ::LocalFree>>;    ///< what `LocalAlloc` gives
using TaskMemory = Owner<FreedBy<void*, ::CoTaskMemFree>>;  ///< what the caller frees with `CoTaskMemFree`
using GlobalMemory = Owner<FreedBy<HGLOBAL, ::GlobalFree>>; ///< what `GlobalAlloc` gives
using Module = Owner<FreedBy<HMODULE, ::FreeLibrary>>;
using RegistryKey = Owner<FreedBy<HKEY, ::RegCloseKey>>;
using Icon = Owner<FreedBy<HICON, ::DestroyIcon>>;
using Menu = Owner<FreedBy<HMENU, ::DestroyMenu>>;
using Hook = Owner<FreedBy<HHOOK, ::UnhookWindowsHookEx>>; ///< what `SetWindowsHookExW` gives

/** A GDI object that can be selected: bitmap, brush, font, pen, region. */
template <class T>
using GdiObject = Owner<FreedBy<T, ::DeleteObject>>;
using Bitmap = GdiObject<HBITMAP>;
using MemoryDc = Owner<FreedBy<HDC, ::DeleteDC>>; ///< what `CreateCompatibleDC` gives

/** A device context of a window or of the screen. */
struct SharedDc
{
    using Handle = HDC;
    static Handle None() { return nullptr; }
    static void Free(Handle dc) { ::ReleaseDC(::WindowFromDC(dc), dc); }
};

using DisplayDc = Owner<SharedDc>; ///< what `GetDC` gives

} // namespace own
