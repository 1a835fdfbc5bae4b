#include "BmpBtn.h"

#include <QorUI/app/base/VisualState.h>
#include <QorUI/app/draw/BitmapPart.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>

BEGIN_MESSAGE_MAP(CBmpBtn, CButton)
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_MOUSELEAVE, &CBmpBtn::OnMouseLeave)
END_MESSAGE_MAP()

CBmpBtn::CBmpBtn() : m_clrTransparent(CLR_NONE) {}

BOOL CBmpBtn::Create(const RECT& rect, CWnd* parent, UINT id)
{
    return CButton::Create(nullptr, WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, rect, parent, id);
}

BOOL CBmpBtn::SetImage(HINSTANCE inst, UINT id, LPCWSTR type, COLORREF transparent)
{
    m_bmp.DeleteObject();
    if (!(type ? m_bmp.Load(inst, id, type) : m_bmp.Attach(::LoadBitmapW(inst, MAKEINTRESOURCEW(id))))) {
        return FALSE;
    }
    m_clrTransparent = transparent;
    if (m_hWnd) {
        Invalidate(TRUE);
    }
    return TRUE;
}

void CBmpBtn::PreSubclassWindow()
{
    m_hot.OnNewWindow();
    ModifyStyle(0, BS_OWNERDRAW);
}

void CBmpBtn::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (!item->hDC) {
        return;
    }
    CRect rect(item->rcItem);
    const VisualState state = QorStateOfItem(item->itemState, static_cast<bool>(m_hot));
    DrawFrame(item->hDC, rect, state.face);
    DrawCaption(CDC::FromHandle(item->hDC), rect, state.IsDisabled());
}

void CBmpBtn::DrawFrame(HDC dc, const CRect& rect, UINT frame)
{
    const CRect place(CPoint(0, 0), rect.Size());
    QorDrawBitmapPart(dc, place, m_bmp.GetSafeHandle(), {rect.Width() * static_cast<int>(frame), 0}, m_clrTransparent);
}

void CBmpBtn::DrawCaption(CDC* dc, CRect& rect, BOOL disabled)
{
    CString text;
    GetWindowText(text);
    if (text.IsEmpty()) {
        return;
    }
    const SelectSaver selectFont(dc->m_hDC, ::GetStockObject(DEFAULT_GUI_FONT));
    const TextModeSaver textMode(dc->m_hDC, disabled ? QorSysLook.m_clrGrayText : QorLook::kCaptionText, TRANSPARENT);
    dc->DrawText(text, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void CBmpBtn::OnDestroy()
{
    CButton::OnDestroy();
    m_bmp.DeleteObject();
}

void CBmpBtn::OnMouseMove(UINT flags, CPoint point)
{
    m_hot.OnMouseMove(*this);
    CButton::OnMouseMove(flags, point);
}

BOOL CBmpBtn::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

LRESULT CBmpBtn::OnMouseLeave(WPARAM, LPARAM)
{
    return m_hot.OnMouseLeave(*this);
}
