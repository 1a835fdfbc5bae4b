#include "Links.h"

#include <common/Owner.h>
#include <QorUI/app/base/OwnStatic.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/module/Messages.h>

#include <shellapi.h>

BEGIN_MESSAGE_MAP(CQorLink, CStatic)
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_CONTROL_REFLECT(STN_CLICKED, &CQorLink::OnClicked)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CTextLink, CStatic)
    ON_WM_PAINT()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kLink = RGB(0, 0, 238);
constexpr COLORREF kVisited = RGB(85, 26, 139);
constexpr UINT kTipId = 1;
constexpr INT_PTR kLastShellError = 32;

BOOL ShowHand()
{
    const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND);
    if (!hand) {
        return FALSE;
    }
    ::SetCursor(hand);
    return TRUE;
}

/** Measures the text of a window. @return whether there was a device context to do it in. */
bool MeasureText(HWND wnd, HGDIOBJ font, CSize& size)
{
    size = CSize(0, 0);
    const own::DisplayDc dc(::GetDC(wnd));
    if (!dc) {
        return false;
    }
    CString text;
    CWnd::FromHandle(wnd)->GetWindowText(text);
    const SelectSaver selectFont(dc.Get(), font);
    ::GetTextExtentPoint32W(dc.Get(), text, text.GetLength(), &size);
    return true;
}

/**
 * Brings back what the parent has painted where a control stands, and has the control painted on it: smoothed text
 * gets bolder when it is drawn over itself.
 */
void RepaintWithParent(HWND wnd)
{
    const HWND parent = ::GetParent(wnd);
    RECT rect = {};
    if (parent && ::GetWindowRect(wnd, &rect)) {
        ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
        ::RedrawWindow(parent, &rect, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        ::RedrawWindow(parent, nullptr, nullptr, RDW_UPDATENOW | RDW_NOCHILDREN);
    }
    ::InvalidateRect(wnd, nullptr, TRUE);
}

/** Shrinks a rectangle to the size of a text, towards where the style of a static control aligns it. */
void FitRect(CRect& rect, CSize extent, DWORD style)
{
    if (style & SS_CENTERIMAGE) {
        rect.top += (rect.Height() - extent.cy) / 2;
    }
    rect.bottom = rect.top + extent.cy;
    switch (style & SS_TYPEMASK) {
    case SS_CENTER:
        rect.left += (rect.Width() - extent.cx) / 2;
        rect.right = rect.left + extent.cx;
        break;
    case SS_RIGHT:
        rect.left = rect.right - extent.cx;
        break;
    default:
        rect.right = rect.left + extent.cx;
        break;
    }
}

} // namespace

CQorLink::CQorLink()
    : m_clrLink(kLink),
      m_clrVisited(kVisited),
      m_clrHover(::GetSysColor(COLOR_HIGHLIGHT)),
      m_bOver(FALSE),
      m_bVisited(FALSE),
      m_bUnderline(FALSE),
      m_bAutoSize(TRUE)
{
}

void CQorLink::SetURL(LPCWSTR url)
{
    m_strUrl = url;
    if (!m_hWnd) {
        return;
    }
    PositionWindow();
    if (m_tip.m_hWnd) {
        m_tip.UpdateTipText(m_strUrl, this, kTipId);
    }
}

void CQorLink::SetColors(COLORREF link, COLORREF visited, COLORREF hover)
{
    m_clrLink = link;
    m_clrVisited = visited;
    m_clrHover = hover == CLR_NONE ? ::GetSysColor(COLOR_HIGHLIGHT) : hover;
    if (m_hWnd) {
        RepaintWithParent(m_hWnd);
    }
}

void CQorLink::SetVisited(BOOL visited)
{
    m_bVisited = visited;
}

void CQorLink::SetAutoSize(BOOL autoSize)
{
    m_bAutoSize = autoSize;
    PositionWindow();
}

void CQorLink::SetUnderline(BOOL underline)
{
    m_bUnderline = underline;
    if (m_hWnd) {
        MakeLinkFont(); // which repaints
    }
}

void CQorLink::PreSubclassWindow()
{
    m_bOver = FALSE; // the former window may have gone under the mouse
    ModifyStyle(0, SS_NOTIFY);
    CString text;
    GetWindowText(text);
    if (m_strUrl.IsEmpty()) {
        m_strUrl = text;
    }
    if (text.IsEmpty()) {
        SetWindowText(m_strUrl);
    }
    MakeLinkFont();
    PositionWindow();
    MakeTooltip();
    RepaintWithParent(m_hWnd); // what the control has painted itself would stay under the link's text
    CStatic::PreSubclassWindow();
}

BOOL CQorLink::PreTranslateMessage(MSG* msg)
{
    if (m_tip.m_hWnd) {
        m_tip.RelayEvent(msg);
    }
    return CStatic::PreTranslateMessage(msg);
}

LRESULT CQorLink::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY) {
        m_tip.DestroyWindow(); // it belongs to the top-level window, which may stay
    }
    const HWND wnd = m_hWnd;
    const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
    const bool newFont = message == WM_SETFONT && LOWORD(lParam);
    if (newFont || QorRepaintStatic(wnd, message)) {
        RepaintWithParent(wnd);
    }
    if (message == WM_SIZE && m_tip.m_hWnd) {
        CRect client;
        GetClientRect(&client);
        m_tip.SetToolRect(this, kTipId, &client);
    }
    return result;
}

void CQorLink::MakeLinkFont()
{
    HGDIOBJ current = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    LOGFONTW description = {};
    if (!current) {
        current = ::GetStockObject(SYSTEM_FONT); // what a control without a font of its own draws with
    }
    if (::GetObjectW(current, sizeof(description), &description) == 0) {
        return;
    }
    description.lfUnderline = m_bUnderline != FALSE;
    CFont font;
    if (font.CreateFontIndirect(&description)) {
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), TRUE);
        m_font.DeleteObject();
        m_font.Attach(font.Detach());
    }
}

HGDIOBJ CQorLink::LinkFont() const
{
    const HGDIOBJ font = m_font.GetSafeHandle();
    return font ? font : reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
}

void CQorLink::MakeTooltip()
{
    m_tip.DestroyWindow(); // that of a window which was given back
    CRect client;
    GetClientRect(&client);
    if (m_tip.Create(this)) {
        m_tip.AddTool(this, m_strUrl, &client, kTipId);
    }
}

void CQorLink::PositionWindow()
{
    CSize extent;
    if (!m_bAutoSize || !m_hWnd || !MeasureText(m_hWnd, LinkFont(), extent)) {
        return;
    }
    CRect rect;
    GetWindowRect(&rect);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    FitRect(rect, extent, GetStyle());
    SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER);
}

void CQorLink::OnPaint()
{
    CPaintDC dc(this);
    CString text;
    GetWindowText(text);
    if (text.IsEmpty()) {
        return;
    }
    const COLORREF unhovered = m_bVisited ? m_clrVisited : m_clrLink;
    const TextModeSaver textMode(dc.m_hDC, m_bOver ? m_clrHover : unhovered, TRANSPARENT);
    const SelectSaver selectFont(dc.m_hDC, LinkFont());
    CRect client;
    GetClientRect(&client);
    dc.DrawText(text, &client, DT_WORDBREAK | DT_EDITCONTROL);
}

void CQorLink::SetOver(BOOL over)
{
    m_bOver = over;
    if (!over) {
        ::ReleaseCapture();
    }
    RepaintWithParent(m_hWnd);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    if (over) {
        SetCapture();
    }
}

void CQorLink::OnMouseMove(UINT flags, CPoint point)
{
    CStatic::OnMouseMove(flags, point);
    if (!m_bOver) {
        SetOver(TRUE);
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point)) {
        SetOver(FALSE);
    } else if (::GetCapture() != m_hWnd) {
        SetCapture(); // a menu or another program may have taken it, and leaving would not be seen
    }
}

BOOL CQorLink::OnSetCursor(CWnd*, UINT, UINT)
{
    return ShowHand();
}

void CQorLink::OnClicked()
{
    const HINSTANCE result = ::ShellExecuteW(nullptr, L"open", m_strUrl, nullptr, nullptr, SW_SHOW);
    m_bVisited = reinterpret_cast<INT_PTR>(result) > kLastShellError;
    if (m_bVisited && m_hWnd) {
        RepaintWithParent(m_hWnd);
    }
}

CTextLink::CTextLink() = default;

LRESULT CTextLink::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND wnd = m_hWnd;
    const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
    QorRepaintStatic(wnd, message);
    return result;
}

BOOL CTextLink::GetExtent(CSize& size)
{
    size = CSize(0, 0);
    return m_hWnd && MeasureText(m_hWnd, ::GetStockObject(DEFAULT_GUI_FONT), size);
}

void CTextLink::OnPaint()
{
    CPaintDC dc(this);
    if (const HWND parent = ::GetParent(m_hWnd)) {
        ::SendMessageW(parent, WM_DRAWPARENTBACK, reinterpret_cast<WPARAM>(static_cast<CDC*>(&dc)),
                       reinterpret_cast<LPARAM>(this));
    }
    CString text;
    GetWindowText(text);
    if (text.IsEmpty()) {
        return;
    }
    const TextModeSaver textMode(dc.m_hDC, QorLook::kCaptionText, TRANSPARENT);
    const SelectSaver selectFont(dc.m_hDC, ::GetStockObject(DEFAULT_GUI_FONT));
    CRect client;
    GetClientRect(&client);
    dc.DrawText(text, &client, DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX);
}

BOOL CTextLink::OnSetCursor(CWnd*, UINT, UINT)
{
    return ShowHand();
}
