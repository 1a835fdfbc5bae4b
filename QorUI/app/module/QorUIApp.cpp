#include "QorUIApp.h"

#include "GdiplusCalls.h"

#include <QorUI/app/look/Palette.h>
#include <QorUI/res/resource.h>

std::array<QorBtnStyle, QOR_BTN_STATES> g_BtnStyles;
CQorUIApp g_QorUIApp;
QorGdiplusCalls g_GdiplusCalls = {&Gdiplus::GdiplusStartup, &Gdiplus::GdiplusShutdown};

namespace
{

constexpr struct
{
    COLORREF outer;
    COLORREF inner;
} kButtonBorders[QOR_BTN_STATES] = {
    {RGB(111, 111, 111), RGB(242, 242, 242)}, // normal
    {RGB(59, 126, 176), RGB(231, 244, 251)},  // hot
    {RGB(43, 97, 138), RGB(231, 244, 251)},   // pressed
    {RGB(172, 177, 180), RGB(251, 251, 251)}, // disabled
};

QorAppIcon g_AppIcon;

void LoadPattern(CBrush& brush, HINSTANCE inst, UINT id)
{
    brush.DeleteObject();
    CBitmap bitmap;
    if (bitmap.Attach(::LoadBitmapW(inst, MAKEINTRESOURCEW(id)))) {
        brush.CreatePatternBrush(&bitmap);
    }
}

void LoadStrip(CBitmap& strip, HINSTANCE inst, UINT id)
{
    strip.DeleteObject();
    strip.Attach(::LoadBitmapW(inst, MAKEINTRESOURCEW(id)));
}

} // namespace

CQorUIApp::CQorUIApp() = default;

BOOL CQorUIApp::InitInstance()
{
    CWinApp::InitInstance();
    m_hHost = ::GetModuleHandleW(nullptr);
    StartGdiplus();
    MakeButtonStyles();
    LoadPattern(m_brTab, m_hInstance, IDB_TAB);
    LoadStrip(m_bmpRadio, m_hInstance, IDB_RADIO);
    LoadStrip(m_bmpCheck, m_hInstance, IDB_CHECK);
    m_brDlgBack.DeleteObject();
    m_brDlgBack.CreateSolidBrush(QorLook::kDlgBody);
    return TRUE;
}

int CQorUIApp::ExitInstance()
{
    if (m_nGdiplusToken != 0) {
        g_GdiplusCalls.shutdown(m_nGdiplusToken);
        m_nGdiplusToken = 0;
    }
    return CWinApp::ExitInstance();
}

void CQorUIApp::StartGdiplus()
{
    const Gdiplus::GdiplusStartupInput input; // version 1, nothing suppressed
    if (g_GdiplusCalls.startup(&m_nGdiplusToken, &input, nullptr) != Gdiplus::Ok) {
        m_nGdiplusToken = 0;
    }
}

void CQorUIApp::MakeButtonStyles()
{
    for (UINT i = 0; i < g_BtnStyles.size(); ++i) {
        g_BtnStyles[i].outer = kButtonBorders[i].outer;
        g_BtnStyles[i].inner = kButtonBorders[i].inner;
        LoadPattern(g_BtnStyles[i].brush, m_hInstance, IDB_BTN_NORMAL + i);
    }
}

const QorAppIcon& QorGetAppIcon()
{
    return g_AppIcon;
}

HBRUSH QorGetDlgBkBrush()
{
    return static_cast<HBRUSH>(g_QorUIApp.m_brDlgBack.GetSafeHandle());
}

BOOL QorSetAppIcon(HICON icon, BOOL flag)
{
    g_AppIcon = {icon, flag};
    return TRUE;
}
