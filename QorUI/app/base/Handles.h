#pragma once

/** @file
 * Owners for system handles that are not GDI objects.
 */

#include <windows.h>

#include <memory>

/** Releases a COM object. */
struct ComReleaser
{
    template <class T>
    void operator()(T* object) const
    {
        object->Release();
    }
};

/** Owner of a reference to a COM object. */
template <class T>
using CComRef = std::unique_ptr<T, ComReleaser>;

/** Frees memory of `LocalAlloc`. */
struct LocalFreer
{
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/** Owner of a block of `LocalAlloc`. */
using CLocalMem = std::unique_ptr<void, LocalFreer>;

/** Owner of an open file; a failed open gives an owner without file. */
class CFileHandle
{
  public:
    explicit CFileHandle(HANDLE file) : m_file(file) {}
    ~CFileHandle()
    {
        if (*this) {
            ::CloseHandle(m_file);
        }
    }
    CFileHandle(const CFileHandle&) = delete;
    CFileHandle& operator=(const CFileHandle&) = delete;

    HANDLE get() const { return m_file; }
    explicit operator bool() const { return m_file != INVALID_HANDLE_VALUE; }

  private:
    HANDLE m_file;
};
