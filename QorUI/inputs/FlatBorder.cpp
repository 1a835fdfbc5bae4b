#include "FlatBorder.h"

#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>

void QorDrawFlatBorder(CWnd* wnd, BOOL inner)
{
    if (!wnd || !(wnd->GetExStyle() & WS_EX_CLIENTEDGE)) {
        return;
    }
    CRect rect;
    wnd->GetWindowRect(&rect);
    wnd->ScreenToClient(&rect);
    rect.OffsetRect(-rect.left, -rect.top);
    CWindowDC dc(wnd);
    dc.Draw3dRect(&rect, QorLook::kFlatBorder, QorLook::kFlatBorder);
    if (inner) {
        rect.DeflateRect(1, 1);
        dc.Draw3dRect(&rect, QorSysLook.m_clrWindow, QorSysLook.m_clrWindow);
    }
}
