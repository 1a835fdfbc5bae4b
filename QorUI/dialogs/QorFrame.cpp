#include "QorFrame.h"

#include "WindowShape.h"
#include "WindowSkin.h"

#include <QorUI/app/base/WndClass.h>
#include <QorUI/app/draw/GdiPlusFlat.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/draw/Picture.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SkinParts.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/res/resource.h>

#include <memory>

namespace
{

constexpr int kBannerHeightLow = 64;  // with the flag of the application icon set
constexpr int kBannerHeightHigh = 84; // without it
const CPoint kBannerPos(9, 9);
constexpr int kContentBottom = 10;       // space below the content
constexpr int kTitleButtonsChange = 159; // title buttons and the rounded end of the banner
const CSize kMinTrackSize(360, 260);

constexpr std::array<WindowSkin::TitleButton, CQorFrame::TitleButtons> kTitleButtons = {{
    {IDC_FRAME_MINIMIZE, IDB_FRAME_MINIMIZE, 101, 26},
    {IDC_FRAME_MAXIMIZE, IDB_FRAME_MAXIMIZE, 75, 25},
    {IDC_FRAME_CLOSE, IDB_FRAME_CLOSE, QorLook::kCloseButtonRight, QorLook::kCloseButtonWidth},
}};

int BannerHeight()
{
    return QorGetAppIcon().flag ? kBannerHeightLow : kBannerHeightHigh;
}

LPCWSTR CursorFor(UINT hit)
{
    switch (hit) {
    case HTLEFT:
    case HTRIGHT:
        return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM:
        return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
        return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
        return IDC_SIZENESW;
    default:
        return IDC_ARROW;
    }
}

bool RegisterNamedClass(LPCWSTR name)
{
    WNDCLASSW wndClass = {};
    wndClass.lpfnWndProc = ::DefWindowProcW;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = name;
    return AfxRegisterClass(&wndClass) != FALSE;
}

void DrawBanner(CDC& dc)
{
    const UINT id = QorGetAppIcon().flag ? IDR_PNG_BANNER2 : IDR_PNG_BANNER;
    const void* picture = QorImageFromResource(g_QorUIApp.m_hInstance, MAKEINTRESOURCEW(id), L"PNG");
    // GDI+ asks for the size through an object that may change.
    const std::unique_ptr<Gdiplus::Image> banner(static_cast<Gdiplus::Image*>(const_cast<void*>(picture)));
    if (!banner) {
        return;
    }
    const auto width = static_cast<INT>(banner->GetWidth());
    const auto height = static_cast<INT>(banner->GetHeight());
    Gdiplus::Graphics graphics(dc);
    graphics.DrawImage(banner.get(), kBannerPos.x, kBannerPos.y, width, height);
}

} // namespace

BEGIN_MESSAGE_MAP(CQorFrame, CWnd)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_CREATE()
    ON_WM_ACTIVATE()
    ON_WM_NCHITTEST()
    ON_WM_SETCURSOR()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_GETMINMAXINFO()
    ON_COMMAND_RANGE(IDC_FRAME_MINIMIZE, IDC_FRAME_CLOSE, &CQorFrame::OnClickWndBtn)
END_MESSAGE_MAP()

CQorFrame::CQorFrame() : m_lastWidth(0), m_lastHeight(0), m_lastFocus(nullptr), m_hAccel(nullptr), m_maximizedHeight(0)
{
}

BOOL CQorFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.dwExStyle = WS_EX_CONTROLPARENT;
    cs.style =
        static_cast<LONG>(WS_POPUP | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    if (cs.lpszClass) {
        return RegisterNamedClass(cs.lpszClass);
    }
    cs.lpszClass = QorRegisterWndClass(0);
    return cs.lpszClass != nullptr;
}

int CQorFrame::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1 || !CreateTitleButtons()) {
        return -1;
    }
    CRect work;
    if (::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0)) {
        m_maximizedHeight = work.Height() + 1;
    }
    SetIcon(QorGetAppIcon().icon, FALSE);
    return 0;
}

bool CQorFrame::CreateTitleButtons()
{
    for (UINT i = 0; i < TitleButtons; ++i) {
        if (!WindowSkin::CreateTitleButton(m_titleBtns[i], *this, kTitleButtons[i])) {
            return false;
        }
    }
    return true;
}

void CQorFrame::PlaceTitleButtons(int cx)
{
    for (UINT i = 0; i < TitleButtons; ++i) {
        if (m_titleBtns[i].GetSafeHwnd()) {
            WindowSkin::PlaceTitleButton(m_titleBtns[i], kTitleButtons[i], cx, FALSE);
            m_titleBtns[i].Invalidate();
        }
    }
}

void CQorFrame::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    QorShape::RoundWindow(*this, m_region, cx, cy);
    PlaceTitleButtons(cx);
    WindowSkin::TakeSize(*this, m_lastWidth, m_lastHeight, CSize(cx, cy), CSize(kTitleButtonsChange, BannerHeight()));
}

LRESULT CQorFrame::OnNcHitTest(CPoint point)
{
    if (const UINT hit = WindowSkin::HitTest(*this, m_titleBtns, true, point)) {
        return static_cast<LRESULT>(hit);
    }
    CRect rect;
    GetWindowRect(rect);
    if (point.x <= rect.left + QorLook::kSizeEdge || point.x >= rect.right - QorLook::kSizeEdge ||
        point.y <= rect.top + QorLook::kSizeEdge) {
        return HTCLIENT;
    }
    return point.y <= rect.top + BannerHeight() ? HTCAPTION : HTCLIENT;
}

BOOL CQorFrame::OnSetCursor(CWnd* /*wnd*/, UINT hit, UINT /*message*/)
{
    ::SetCursor(::LoadCursorW(nullptr, CursorFor(hit)));
    return TRUE;
}

void CQorFrame::OnNcLButtonDown(UINT hit, CPoint point)
{
    if (!QorShape::StartSizing(*this, hit, point)) {
        CWnd::OnNcLButtonDown(hit, point);
    }
}

void CQorFrame::OnClickWndBtn(UINT id)
{
    const WPARAM commands[] = {SC_MINIMIZE, static_cast<WPARAM>(IsZoomed() ? SC_RESTORE : SC_MAXIMIZE), SC_CLOSE};
    SendMessage(WM_SYSCOMMAND, commands[id - IDC_FRAME_MINIMIZE]);
}

void CQorFrame::OnGetMinMaxInfo(MINMAXINFO* info)
{
    WindowSkin::LimitSize(*info, kMinTrackSize);
    if (m_maximizedHeight > 0) {
        info->ptMaxSize.y = m_maximizedHeight;
    }
    CWnd::OnGetMinMaxInfo(info);
}

void CQorFrame::GetClientPos(CRect& rect) const
{
    rect = WindowSkin::ContentOf(*this, BannerHeight() - 1, kContentBottom);
}

void CQorFrame::DisableTitleBtn(UINT which, BOOL disable)
{
    if (which >= TitleButtons) {
        return;
    }
    if (which == CloseButton) {
        WindowSkin::SetCloseState(*this, disable ? MF_GRAYED : MF_ENABLED);
    } else {
        const DWORD style = which == MinimizeButton ? WS_MINIMIZEBOX : WS_MAXIMIZEBOX;
        ModifyStyle(disable ? style : 0, disable ? 0 : style);
    }
    m_titleBtns[which].EnableWindow(!disable);
}

void CQorFrame::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE) {
        m_lastFocus = ::GetFocus();
    } else if (::IsWindow(m_lastFocus)) {
        ::SetFocus(m_lastFocus);
    }
}

BOOL CQorFrame::PreTranslateMessage(MSG* msg)
{
    if (m_hAccel && ::TranslateAcceleratorW(m_hWnd, m_hAccel, msg)) {
        return TRUE;
    }
    if (IsDialogMessage(msg)) {
        return TRUE;
    }
    return CWnd::PreTranslateMessage(msg);
}

void CQorFrame::OnPaint()
{
    CPaintDC dc(this);
    const DcStateSaver state(dc);
    CRect client;
    GetClientRect(client);
    DrawBackground(dc, client);
}

void CQorFrame::DrawBackground(CDC& dc, const CRect& client) const
{
    CBrush back(QorLook::kFrameBack);
    WindowSkin::DrawOutline(dc, client, back.GetSafeHandle());
    DrawBanner(dc);
}
