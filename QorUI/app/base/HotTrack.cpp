#include "HotTrack.h"

namespace
{

constexpr DWORD kHoverTime = 1; // ms

} // namespace

void QorHot::Enter(CWnd& wnd, BOOL& hot, const RECT* area)
{
    if (hot) {
        return;
    }
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, wnd.m_hWnd, kHoverTime};
    hot = ::_TrackMouseEvent(&track);
    ::InvalidateRect(wnd.m_hWnd, area, FALSE);
}

LRESULT QorHot::Leave(CWnd& wnd, BOOL& hot, const RECT* area)
{
    hot = FALSE;
    ::InvalidateRect(wnd.m_hWnd, area, FALSE);
    return 1;
}
