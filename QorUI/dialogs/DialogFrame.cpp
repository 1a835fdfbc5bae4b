#include "DialogFrame.h"

#include "WindowSkin.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SkinParts.h>

namespace
{

void DrawIconInCaption(CDC& dc)
{
    if (const HICON icon = QorGetAppIcon().icon) {
        ::DrawIconEx(dc, QorLook::kCaptionIconPos, QorLook::kCaptionIconPos, icon, QorLook::kCaptionIconSize,
                     QorLook::kCaptionIconSize, 0, nullptr, DI_NORMAL);
    }
}

void DrawTitle(CDC& dc, const CRect& client, const CString& title)
{
    if (title.IsEmpty()) {
        return;
    }
    const SelectSaver font(dc, ::GetStockObject(DEFAULT_GUI_FONT));
    const TextModeSaver mode(dc, QorLook::kBlack, TRANSPARENT);
    CRect text(QorLook::kCaptionTextLeft, client.top, client.right - QorLook::kCaptionTextRight,
               QorLook::kCaptionHeight);
    dc.DrawText(title, text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_HIDEPREFIX);
}

} // namespace

void QorDrawDialogFrame(CDC& dc, const CRect& client, const CString& title)
{
    const int body = client.top + QorLook::kCaptionHeight;
    dc.FillSolidRect(client.left, client.top, client.Width(), QorLook::kCaptionHeight, QorLook::kDlgCaption);
    dc.FillSolidRect(CRect(client.left, body, client.right, client.bottom), QorLook::kDlgBody);
    WindowSkin::DrawOutline(dc, client, ::GetStockObject(NULL_BRUSH));
    DrawIconInCaption(dc);
    DrawTitle(dc, client, title);
}
