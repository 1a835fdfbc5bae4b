#pragma once

#include <windows.h>

/** Saves the state of a device context and restores it at the end of the scope. */
class CDcStateSaver
{
  public:
    explicit CDcStateSaver(HDC dc) : m_dc(dc), m_saved(::SaveDC(dc)) {}
    ~CDcStateSaver()
    {
        if (m_saved != 0) {
            ::RestoreDC(m_dc, m_saved);
        }
    }
    CDcStateSaver(const CDcStateSaver&) = delete;
    CDcStateSaver& operator=(const CDcStateSaver&) = delete;

  private:
    HDC m_dc;
    int m_saved;
};

/** Selects an object into a device context and selects the former one at the end of the scope. */
class CSelectSaver
{
  public:
    /** @param object not owned and must outlive the saver; null selects nothing. */
    CSelectSaver(HDC dc, HGDIOBJ object) : m_dc(dc), m_old(object ? ::SelectObject(dc, object) : nullptr) {}
    ~CSelectSaver()
    {
        if (m_old) {
            ::SelectObject(m_dc, m_old);
        }
    }
    CSelectSaver(const CSelectSaver&) = delete;
    CSelectSaver& operator=(const CSelectSaver&) = delete;

    /** Whether the object could be selected. */
    explicit operator bool() const { return m_old != nullptr; }

  private:
    HDC m_dc;
    HGDIOBJ m_old;
};

/** Sets text colour and background mode of a device context and sets the former ones at the end of the scope. */
class CTextModeSaver
{
  public:
    CTextModeSaver(HDC dc, COLORREF text, int backMode)
        : m_dc(dc), m_text(::SetTextColor(dc, text)), m_mode(::SetBkMode(dc, backMode))
    {
    }
    ~CTextModeSaver()
    {
        ::SetBkMode(m_dc, m_mode);
        ::SetTextColor(m_dc, m_text);
    }
    CTextModeSaver(const CTextModeSaver&) = delete;
    CTextModeSaver& operator=(const CTextModeSaver&) = delete;

  private:
    HDC m_dc;
    COLORREF m_text;
    int m_mode;
};

/** The device context of a window's client area, or of the screen for a null handle, released at the end of the scope.
 */
class CWndDc
{
  public:
    explicit CWndDc(HWND wnd) : m_wnd(wnd), m_dc(::GetDC(wnd)) {}
    ~CWndDc()
    {
        if (m_dc) {
            ::ReleaseDC(m_wnd, m_dc);
        }
    }
    CWndDc(const CWndDc&) = delete;
    CWndDc& operator=(const CWndDc&) = delete;

    /** Null when there is none. */
    HDC get() const { return m_dc; }

  private:
    HWND m_wnd;
    HDC m_dc;
};

/** The screen's device context, released at the end of the scope. */
class CScreenDc : public CWndDc
{
  public:
    CScreenDc() : CWndDc(nullptr) {}
};

/** A memory device context compatible with another one. */
class CMemoryDc
{
  public:
    explicit CMemoryDc(HDC like) : m_dc(::CreateCompatibleDC(like)) {}
    ~CMemoryDc()
    {
        if (m_dc) {
            ::DeleteDC(m_dc);
        }
    }
    CMemoryDc(const CMemoryDc&) = delete;
    CMemoryDc& operator=(const CMemoryDc&) = delete;

    /** Null when it could not be made. */
    HDC get() const { return m_dc; }

  private:
    HDC m_dc;
};
