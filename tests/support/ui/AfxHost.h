#pragma once

#include <tests/support/HostWindow.h>

#include <afxwin.h>

namespace ts
{

/**
 * A host window that is a CWnd, so that its controls get their notifications reflected. Needs afx; header only.
 * The log shows every notification, also those that a control took for itself by reflection.
 */
class AfxHost : public CWnd
{
  public:
    /** @param cx,cy Size of the client area in pixels. */
    explicit AfxHost(int cx = 400, int cy = 300, DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE,
                     COLORREF background = CLR_DEFAULT)
        : m_host(cx, cy, style, background)
    {
        m_host.EndLog();
        SubclassWindow(m_host.Hwnd());
        m_log = std::make_unique<MessageRecorder>(m_host.Hwnd());
    }

    ~AfxHost() override
    {
        m_log.reset();
        if (m_hWnd) {
            DestroyWindow();
        }
    }

    /** What this window received. */
    MessageRecorder& Log() { return *m_log; }

  private:
    HostWindow m_host;
    std::unique_ptr<MessageRecorder> m_log;
};

} // namespace ts
