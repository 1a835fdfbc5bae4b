#pragma once

#include <windows.h>

/** Saves the state of a device context and restores it at the end of the scope. */
class DcStateSaver
{
  public:
    explicit DcStateSaver(HDC dc) : m_dc(dc), m_saved(::SaveDC(dc)) {}
    ~DcStateSaver()
    {
        if (m_saved != 0) {
            ::RestoreDC(m_dc, m_saved);
        }
    }
    DcStateSaver(const DcStateSaver&) = delete;
    DcStateSaver& operator=(const DcStateSaver&) = delete;

  private:
    HDC m_dc;
    int m_saved;
};

/** Selects an object into a device context and selects the former one at the end of the scope. */
class SelectSaver
{
  public:
    /** @param object not owned and must outlive the saver; null selects nothing. */
    SelectSaver(HDC dc, HGDIOBJ object) : m_dc(dc), m_old(object ? ::SelectObject(dc, object) : nullptr) {}
    ~SelectSaver()
    {
        if (m_old) {
            ::SelectObject(m_dc, m_old);
        }
    }
    SelectSaver(const SelectSaver&) = delete;
    SelectSaver& operator=(const SelectSaver&) = delete;

    /** Whether the object could be selected. */
    explicit operator bool() const { return m_old != nullptr; }

  private:
    HDC m_dc;
    HGDIOBJ m_old;
};

/** Sets text colour and background mode of a device context and sets the former ones at the end of the scope. */
class TextModeSaver
{
  public:
    TextModeSaver(HDC dc, COLORREF text, int backMode)
        : m_dc(dc), m_text(::SetTextColor(dc, text)), m_mode(::SetBkMode(dc, backMode))
    {
    }
    ~TextModeSaver()
    {
        ::SetBkMode(m_dc, m_mode);
        ::SetTextColor(m_dc, m_text);
    }
    TextModeSaver(const TextModeSaver&) = delete;
    TextModeSaver& operator=(const TextModeSaver&) = delete;

  private:
    HDC m_dc;
    COLORREF m_text;
    int m_mode;
};
