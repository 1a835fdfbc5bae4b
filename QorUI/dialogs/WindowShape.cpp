#include "WindowShape.h"

#include "SizeLoop.h"

#include <common/Owner.h>
#include <QorUI/app/look/Palette.h>

namespace
{

constexpr int kSizedStrip = 9; // the outline and the band's margin: what moves with the right and bottom edges

/** Notes whether the system is about to carry out a sizing command: a window may also keep it to itself. */
class SizeCommandWatch
{
  public:
    SizeCommandWatch() : m_hook(::SetWindowsHookExW(WH_CBT, &Hook, nullptr, ::GetCurrentThreadId()))
    {
        Reached() = false;
    }

    static bool& Reached()
    {
        static thread_local bool reached;
        return reached;
    }

  private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        constexpr WPARAM kCommand = 0xFFF0; // the lowest bits are the direction
        const LRESULT refused = ::CallNextHookEx(nullptr, code, wParam, lParam);
        if (code == HCBT_SYSCOMMAND && (wParam & kCommand) == SC_SIZE && refused == 0) {
            Reached() = true;
        }
        return refused;
    }

    own::Hook m_hook;
};

/** @return whether the system got the command and let it come back without sizing anything. */
bool SystemDeclinesToSize(HWND wnd, UINT hit, POINT point)
{
    const SizeCommandWatch watch;
    const LONG lastMessage = ::GetMessageTime();
    // The direction codes of SC_SIZE run parallel to the hit-test codes.
    ::SendMessageW(wnd, WM_SYSCOMMAND, SC_SIZE + (hit - HTLEFT + 1), MAKELPARAM(point.x, point.y));
    return SizeCommandWatch::Reached() && ::GetMessageTime() == lastMessage;
}

} // namespace

namespace QorShape
{

UINT SizingHit(const RECT& window, POINT point)
{
    using QorLook::kSizeCorner;
    using QorLook::kSizeEdge;
    const bool cornerLeft = point.x <= window.left + kSizeCorner;
    const bool cornerRight = point.x >= window.right - kSizeCorner;
    if (point.y <= window.top + kSizeCorner && (cornerLeft || cornerRight)) {
        return cornerLeft ? HTTOPLEFT : HTTOPRIGHT;
    }
    if (point.y >= window.bottom - kSizeCorner && (cornerLeft || cornerRight)) {
        return cornerLeft ? HTBOTTOMLEFT : HTBOTTOMRIGHT;
    }
    if (point.x <= window.left + kSizeEdge) {
        return HTLEFT;
    }
    if (point.x >= window.right - kSizeEdge) {
        return HTRIGHT;
    }
    if (point.y <= window.top + kSizeEdge) {
        return HTTOP;
    }
    return point.y >= window.bottom - kSizeEdge ? HTBOTTOM : HTNOWHERE;
}

bool StartSizing(CWnd& wnd, UINT hit, POINT point)
{
    if (hit < HTLEFT || hit > HTBOTTOMRIGHT) {
        return false;
    }
    const HWND handle = wnd.m_hWnd;
    // Wine declines the command for a window without the system's sizing border: it comes back at once, without having
    // fetched a message, and the button is still down. Any system declines it for a maximised window, rightly.
    if (SystemDeclinesToSize(handle, hit, point) && ::IsWindow(handle) && !::IsZoomed(handle) &&
        ::GetKeyState(VK_LBUTTON) < 0) {
        TrackSize(wnd, hit, point);
    }
    return true;
}

void RoundWindow(CWnd& wnd, CRgn& region, int cx, int cy)
{
    region.DeleteObject();
    if (!region.CreateRoundRectRgn(0, 0, cx, cy, QorLook::kWindowRound, QorLook::kWindowRound)) {
        return;
    }
    CRgn owned;
    if (owned.CreateRectRgn(0, 0, 0, 0) && owned.CopyRgn(&region) != ERROR && wnd.SetWindowRgn(owned, TRUE)) {
        owned.Detach();
    }
}

std::array<CRect, 3> SizedParts(CSize oldSize, CSize newSize, CSize band)
{
    const int right = (newSize.cx > oldSize.cx ? oldSize.cx : newSize.cx) - kSizedStrip;
    const int bottom = (newSize.cy > oldSize.cy ? oldSize.cy : newSize.cy) - kSizedStrip;
    return {CRect(oldSize.cx - band.cx, 0, newSize.cx, band.cy), CRect(right, 0, newSize.cx, oldSize.cy),
            CRect(0, bottom, newSize.cx, newSize.cy)};
}

void InvalidateSizedParts(CWnd& wnd, CSize oldSize, CSize newSize, CSize band)
{
    for (const CRect& part : SizedParts(oldSize, newSize, band)) {
        wnd.InvalidateRect(part, FALSE);
    }
}

} // namespace QorShape
