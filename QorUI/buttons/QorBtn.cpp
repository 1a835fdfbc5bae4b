#include "QorBtn.h"

#include "ButtonDraw.h"

#include <QorUI/app/base/VisualState.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SkinParts.h>
#include <QorUI/app/look/SysLook.h>

BEGIN_MESSAGE_MAP(CQorBtn, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(BM_SETSTYLE, &CQorBtn::OnSetStyle)
    ON_MESSAGE(WM_MOUSELEAVE, &CQorBtn::OnMouseLeave)
END_MESSAGE_MAP()

CQorBtn::CQorBtn() = default;

BOOL CQorBtn::PreCreateWindow(CREATESTRUCT& create)
{
    // The window gets its place only after it is bound to the object: what PreSubclassWindow sets would be lost.
    create.cy = QorLook::kButtonHeight;
    return CButton::PreCreateWindow(create);
}

void CQorBtn::PreSubclassWindow()
{
    m_hot.OnNewWindow();
    ModifyStyle(0, BS_OWNERDRAW);
    CRect rect;
    GetWindowRect(&rect);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), QorLook::kButtonHeight, SWP_NOZORDER);
}

void CQorBtn::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC* dc = CDC::FromHandle(item->hDC);
    CRect rect(item->rcItem);
    const VisualState state = QorStateOfItem(item->itemState, static_cast<bool>(m_hot));
    DrawBack(dc, rect, state.face, state.focused);
    DrawText(dc, rect, state.IsDisabled());
}

void CQorBtn::DrawBack(CDC* dc, CRect& rect, UINT row, BOOL focus)
{
    if (!dc || row >= g_BtnStyles.size()) {
        return;
    }
    const QorBtnStyle& style = g_BtnStyles[row];
    QorDrawRounded(dc->m_hDC, rect, style.outer, nullptr);
    rect.DeflateRect(1, 1);
    POINT origin = {};
    // The pattern's first row comes just under the top border.
    ::SetBrushOrgEx(dc->m_hDC, rect.left, rect.top + 1, &origin);
    QorDrawRounded(dc->m_hDC, rect, style.inner, style.brush.GetSafeHandle());
    ::SetBrushOrgEx(dc->m_hDC, origin.x, origin.y, nullptr);
    if (focus) {
        rect.DeflateRect(1, 1);
        dc->DrawFocusRect(&rect);
    }
}

void CQorBtn::DrawText(CDC* dc, CRect& rect, BOOL disabled)
{
    if (!dc) {
        return;
    }
    CString text;
    GetWindowText(text);
    const SelectSaver selectFont(dc->m_hDC, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    const TextModeSaver textMode(dc->m_hDC, QorSysLook.TextColor(disabled != FALSE), TRANSPARENT);
    dc->DrawText(text, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void CQorBtn::OnMouseMove(UINT flags, CPoint point)
{
    m_hot.OnMouseMove(*this);
    CButton::OnMouseMove(flags, point);
}

BOOL CQorBtn::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

LRESULT CQorBtn::OnSetStyle(WPARAM, LPARAM)
{
    // The dialog manager marks the default button by its style: this one would lose its look.
    ModifyStyle(0, BS_OWNERDRAW);
    return 0;
}

LRESULT CQorBtn::OnMouseLeave(WPARAM, LPARAM)
{
    return m_hot.OnMouseLeave(*this);
}
