#include "SizeLoop.h"

#include <algorithm>

namespace
{

bool IsLeft(UINT hit)
{
    return hit == HTLEFT || hit == HTTOPLEFT || hit == HTBOTTOMLEFT;
}

bool IsRight(UINT hit)
{
    return hit == HTRIGHT || hit == HTTOPRIGHT || hit == HTBOTTOMRIGHT;
}

bool IsTop(UINT hit)
{
    return hit == HTTOP || hit == HTTOPLEFT || hit == HTTOPRIGHT;
}

bool IsBottom(UINT hit)
{
    return hit == HTBOTTOM || hit == HTBOTTOMLEFT || hit == HTBOTTOMRIGHT;
}

LONG Limited(LONG size, LONG smallest, LONG largest)
{
    return (std::max)(smallest, (std::min)(size, largest));
}

MINMAXINFO LimitsOf(HWND wnd)
{
    MINMAXINFO limits = {};
    limits.ptMinTrackSize = {::GetSystemMetrics(SM_CXMINTRACK), ::GetSystemMetrics(SM_CYMINTRACK)};
    limits.ptMaxTrackSize = {::GetSystemMetrics(SM_CXMAXTRACK), ::GetSystemMetrics(SM_CYMAXTRACK)};
    ::SendMessageW(wnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

/** One sizing of a window, from the button's way down to its way up. The window may be destroyed meanwhile. */
class Sizing
{
  public:
    Sizing(HWND wnd, UINT hit, CPoint from) : m_wnd(wnd), m_hit(hit), m_from(from), m_limits(LimitsOf(wnd))
    {
        ::GetWindowRect(wnd, &m_start);
    }

    void Run()
    {
        ::SendMessageW(m_wnd, WM_ENTERSIZEMOVE, 0, 0);
        ::SetCapture(m_wnd);
        MSG message = {};
        while (::GetCapture() == m_wnd && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
            Handle(message);
        }
        if (message.message == WM_QUIT) {
            ::ReleaseCapture();
            ::PostQuitMessage(static_cast<int>(message.wParam));
        }
        ::SendMessageW(m_wnd, WM_EXITSIZEMOVE, 0, 0);
    }

  private:
    void Handle(const MSG& message)
    {
        switch (message.message) {
        case WM_MOUSEMOVE:
            Follow(message.pt);
            break;
        case WM_LBUTTONUP:
            Follow(message.pt);
            ::ReleaseCapture();
            break;
        case WM_KEYDOWN:
            if (message.wParam == VK_ESCAPE) {
                Place(m_start);
                ::ReleaseCapture();
            }
            break;
        default:
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }

    void Follow(CPoint point)
    {
        CRect rect = QorShape::SizedRect(m_start, m_hit, point - m_from, CPoint(m_limits.ptMinTrackSize),
                                         CPoint(m_limits.ptMaxTrackSize));
        ::SendMessageW(m_wnd, WM_SIZING, m_hit - HTLEFT + WMSZ_LEFT, reinterpret_cast<LPARAM>(&rect));
        Place(rect);
    }

    void Place(const CRect& rect)
    {
        ::SetWindowPos(m_wnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                       SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
        ::UpdateWindow(m_wnd);
    }

    HWND m_wnd;
    UINT m_hit;
    CPoint m_from;
    MINMAXINFO m_limits;
    CRect m_start;
};

} // namespace

namespace QorShape
{

CRect SizedRect(const CRect& start, UINT hit, CSize way, CSize smallest, CSize largest)
{
    CRect rect(start);
    if (IsLeft(hit)) {
        rect.left = rect.right - Limited(rect.Width() - way.cx, smallest.cx, largest.cx);
    } else if (IsRight(hit)) {
        rect.right = rect.left + Limited(rect.Width() + way.cx, smallest.cx, largest.cx);
    }
    if (IsTop(hit)) {
        rect.top = rect.bottom - Limited(rect.Height() - way.cy, smallest.cy, largest.cy);
    } else if (IsBottom(hit)) {
        rect.bottom = rect.top + Limited(rect.Height() + way.cy, smallest.cy, largest.cy);
    }
    return rect;
}

void TrackSize(CWnd& wnd, UINT hit, POINT from)
{
    Sizing(wnd.m_hWnd, hit, from).Run();
}

} // namespace QorShape
