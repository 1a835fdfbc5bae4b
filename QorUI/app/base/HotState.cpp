#include "HotState.h"

namespace
{

constexpr DWORD kHoverTime = 1; // ms

} // namespace

void HotState::OnMouseMove(CWnd& wnd, const RECT* area)
{
    if (m_hot) {
        return;
    }
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, wnd.m_hWnd, kHoverTime};
    m_hot = ::_TrackMouseEvent(&track);
    ::InvalidateRect(wnd.m_hWnd, area, FALSE);
}

LRESULT HotState::OnMouseLeave(CWnd& wnd, const RECT* area)
{
    m_hot = false;
    ::InvalidateRect(wnd.m_hWnd, area, FALSE);
    return 1;
}
