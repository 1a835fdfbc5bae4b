#include "Skin.h"

#include "Palette.h"
#include "SkinParts.h"

#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/res/resource.h>

std::array<QorBtnStyle, kButtonStyles> g_BtnStyles;

namespace
{

constexpr struct
{
    COLORREF outer;
    COLORREF inner;
} kButtonBorders[kButtonStyles] = {
    {RGB(111, 111, 111), QorLook::kPaleGrey}, // normal
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

void MakeButtonStyles(HINSTANCE inst)
{
    for (UINT i = 0; i < g_BtnStyles.size(); ++i) {
        g_BtnStyles[i].outer = kButtonBorders[i].outer;
        g_BtnStyles[i].inner = kButtonBorders[i].inner;
        LoadPattern(g_BtnStyles[i].brush, inst, IDB_BTN_NORMAL + i);
    }
}

} // namespace

void QorMakeSkin(CQorUIApp& app)
{
    MakeButtonStyles(app.m_hInstance);
    LoadPattern(app.m_brTab, app.m_hInstance, IDB_TAB);
    LoadStrip(app.m_bmpRadio, app.m_hInstance, IDB_RADIO);
    LoadStrip(app.m_bmpCheck, app.m_hInstance, IDB_CHECK);
    app.m_brDlgBack.DeleteObject();
    app.m_brDlgBack.CreateSolidBrush(QorLook::kDlgBody);
}

HBRUSH QorGetDlgBkBrush()
{
    return static_cast<HBRUSH>(g_QorUIApp.m_brDlgBack.GetSafeHandle());
}

const QorAppIcon& QorGetAppIcon()
{
    return g_AppIcon;
}

BOOL QorSetAppIcon(HICON icon, BOOL flag)
{
    g_AppIcon = {icon, flag};
    return TRUE;
}
