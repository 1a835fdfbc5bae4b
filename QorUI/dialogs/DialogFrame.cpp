#include "DialogFrame.h"

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

void DrawOutline(CDC& dc, const CRect& client)
{
    CPen pen(PS_SOLID, 1, QorLook::kOutline);
    const SelectSaver outline(dc, pen.GetSafeHandle());
    const SelectSaver hollow(dc, ::GetStockObject(NULL_BRUSH));
    dc.RoundRect(client.left, client.top, client.right - 1, client.bottom - 1, QorLook::kWindowRound,
                 QorLook::kWindowRound);
}

} // namespace

void QorDrawDialogFrame(CDC& dc, const CRect& client, const CString& title)
{
    const int body = client.top + QorLook::kCaptionHeight;
    dc.FillSolidRect(client.left, client.top, client.Width(), QorLook::kCaptionHeight, QorLook::kDlgCaption);
    dc.FillSolidRect(CRect(client.left, body, client.right, client.bottom), QorLook::kDlgBody);
    DrawOutline(dc, client);
    DrawIconInCaption(dc);
    DrawTitle(dc, client, title);
}
