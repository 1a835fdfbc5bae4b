#pragma once

#include <tests/support/MessageRecorder.h>

#include <commctrl.h>

#include <memory>

namespace ts
{

/**
 * A plain window to put a control into: in the foreground, with a caption, its client area of exactly the given size,
 * at a fixed place. It records the notifications it receives (see MessageLog) and is destroyed with the object.
 */
class HostWindow
{
  public:
    /**
     * @param cx,cy Size of the client area in pixels.
     * @param style Window style; WS_VISIBLE to show it.
     * @param background Colour behind the controls; CLR_DEFAULT is the dialog face.
     */
    explicit HostWindow(int cx = 400, int cy = 300, DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE,
                        COLORREF background = CLR_DEFAULT);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND Hwnd() const { return m_window; }

    /** What this window received. */
    MessageRecorder& Log() { return *m_log; }

    /** Makes a visible child window. @param x,y,cx,cy In pixels of the client area. @return Null when it failed. */
    HWND Add(const wchar_t* className, const wchar_t* text, DWORD style, int x, int y, int cx, int cy, int id);

    /** Ends the log for good, so that somebody else can subclass the window and log in front of that. */
    void EndLog() { m_log.reset(); }

    /** Gives children that were destroyed and made anew the same start: empties the log and deals with all messages. */
    void Restart();

  private:
    HWND m_window = nullptr;
    HBRUSH m_background = nullptr;
    std::unique_ptr<MessageRecorder> m_log;
};

} // namespace ts
