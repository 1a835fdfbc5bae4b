#include "WindowSkin.h"

#include "WindowShape.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/module/QorUIApp.h>

#include <algorithm>

namespace
{

bool IsOnButton(const CBmpBtn& button, POINT point)
{
    CRect rect;
    return button.GetSafeHwnd() && ::GetWindowRect(button.m_hWnd, rect) && rect.PtInRect(point);
}

} // namespace

namespace WindowSkin
{

bool CreateTitleButton(CBmpBtn& button, CWnd& wnd, const TitleButton& look)
{
    if (!button.Create(CRect(0, 0, 0, 0), &wnd, look.id)) {
        return false;
    }
    button.SetImage(g_QorUIApp.m_hInstance, look.bitmap, nullptr, CLR_NONE);
    return true;
}

void PlaceTitleButton(CBmpBtn& button, const TitleButton& look, int cx, BOOL repaint)
{
    if (button.GetSafeHwnd()) {
        button.MoveWindow(cx - look.fromRight, QorLook::kTitleButtonTop, look.width, QorLook::kTitleButtonHeight,
                          repaint);
    }
}

UINT HitTest(const CWnd& wnd, std::span<const CBmpBtn> buttons, bool sizes, POINT point)
{
    if (std::any_of(buttons.begin(), buttons.end(),
                    [point](const CBmpBtn& button) { return IsOnButton(button, point); })) {
        return HTCLIENT;
    }
    if (!sizes) {
        return HTNOWHERE;
    }
    CRect window;
    wnd.GetWindowRect(window);
    return QorShape::SizingHit(window, point);
}

void TakeSize(CWnd& wnd, int& lastWidth, int& lastHeight, CSize size, CSize band)
{
    QorShape::InvalidateSizedParts(wnd, CSize(lastWidth, lastHeight), size, band);
    lastWidth = size.cx;
    lastHeight = size.cy;
}

void LimitSize(MINMAXINFO& info, CSize smallest)
{
    info.ptMinTrackSize.x = smallest.cx;
    info.ptMinTrackSize.y = smallest.cy;
}

void SetCloseState(const CWnd& wnd, UINT state)
{
    if (CMenu* menu = wnd.GetSystemMenu(FALSE)) {
        menu->EnableMenuItem(SC_CLOSE, MF_BYCOMMAND | state);
    }
}

CRect ContentOf(const CWnd& wnd, int top, int bottomMargin)
{
    CRect rect;
    wnd.GetClientRect(rect);
    rect.left += QorLook::kContentLeft;
    rect.top += top;
    rect.right -= QorLook::kContentRight;
    rect.bottom -= bottomMargin;
    return rect;
}

void DrawOutline(CDC& dc, const CRect& client, HGDIOBJ inside)
{
    CPen pen(PS_SOLID, 1, QorLook::kOutline);
    const SelectSaver outline(dc, pen.GetSafeHandle());
    const SelectSaver fill(dc, inside);
    dc.RoundRect(client.left, client.top, client.right - 1, client.bottom - 1, QorLook::kWindowRound,
                 QorLook::kWindowRound);
}

} // namespace WindowSkin
