#include "CmdBtn.h"

#include "ButtonDraw.h"

#include <QorUI/app/base/VisualState.h>
#include <QorUI/app/draw/GrayCopy.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>

BEGIN_MESSAGE_MAP(CCmdBtn, CButton)
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_MOUSELEAVE, &CCmdBtn::OnMouseLeave)
END_MESSAGE_MAP()

namespace
{

constexpr UINT kFirstNonId = 0x10000;
constexpr int kIconPos = 6;
constexpr int kIconSize = 32;
constexpr int kTextMargin = 5;
constexpr int kTextIndent = 38; // past the icon

} // namespace

CCmdBtn::CCmdBtn() : m_hIcon(nullptr) {}

CCmdBtn::~CCmdBtn() = default;

BOOL CCmdBtn::Create(UINT iconId, LPCWSTR description, const RECT& rect, CWnd* parent, UINT id)
{
    return CButton::Create(nullptr, WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, rect, parent, id) &&
           SetBtn(iconId, description);
}

BOOL CCmdBtn::SetBtn(UINT iconId, LPCWSTR description)
{
    if (iconId < kFirstNonId) {
        const HICON icon = ::LoadIconW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(iconId));
        if (!icon) {
            return FALSE;
        }
        m_hIcon = icon;
        FreeGrayIcon();
    }
    if (description) {
        m_strDescription = description;
    }
    if (m_hWnd) {
        Invalidate(TRUE);
    }
    return TRUE;
}

void CCmdBtn::PreSubclassWindow()
{
    m_hot.OnNewWindow();
    ModifyStyle(0, BS_OWNERDRAW);
}

void CCmdBtn::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC* dc = CDC::FromHandle(item->hDC);
    if (!dc) {
        return;
    }
    CRect rect(item->rcItem);
    const VisualState state = QorStateOfItem(item->itemState, static_cast<bool>(m_hot));
    UINT mode = kLabelFocus;
    if ((item->itemAction & ODA_FOCUS) == 0) {
        DrawFace(dc, rect, state.IsDisabled());
        mode = state.focused ? kLabelText | kLabelFocus : kLabelText;
    }
    const COLORREF oldColour = dc->SetTextColor(QorSysLook.TextColor(state.IsDisabled()));
    DrawText(dc, rect, mode);
    dc->SetTextColor(oldColour);
}

void CCmdBtn::DrawFace(CDC* dc, CRect& rect, BOOL disabled)
{
    if (m_hot) {
        DrawRect(dc, rect);
    } else {
        dc->PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), PATCOPY);
    }
    if (const HICON icon = IconFor(disabled)) {
        ::DrawIconEx(dc->m_hDC, kIconPos, kIconPos, icon, kIconSize, kIconSize, 0, nullptr, DI_NORMAL);
    }
}

HICON CCmdBtn::IconFor(BOOL disabled)
{
    if (!disabled) {
        return m_hIcon;
    }
    if (!m_grayIcon) {
        m_grayIcon.Reset(QorCreateGrayIcon(m_hIcon));
    }
    return m_grayIcon ? m_grayIcon.Get() : m_hIcon;
}

void CCmdBtn::DrawRect(CDC* dc, CRect& rect)
{
    if (!dc) {
        return;
    }
    CBrush brush;
    brush.CreateSolidBrush(QorLook::kCmdHotFill);
    QorDrawRounded(dc->m_hDC, rect, QorLook::kCmdHotBorder, brush.GetSafeHandle());
}

void CCmdBtn::DrawText(CDC* dc, CRect& rect, UINT mode)
{
    if (!dc) {
        return;
    }
    rect.DeflateRect(kTextMargin, kTextMargin);
    rect.left += kTextIndent;
    CString title;
    GetWindowText(title);
    CRect titleRect(rect);
    dc->DrawText(title, &titleRect, DT_CALCRECT | DT_SINGLELINE);
    if (mode & kLabelText) {
        dc->DrawText(title, &titleRect, DT_SINGLELINE);
        rect.top += titleRect.Height();
        dc->DrawText(m_strDescription, &rect, DT_WORDBREAK | DT_EDITCONTROL | DT_HIDEPREFIX);
    }
    if (mode & kLabelFocus) {
        titleRect.InflateRect(1, 1);
        dc->DrawFocusRect(&titleRect);
    }
}

void CCmdBtn::FreeGrayIcon()
{
    m_grayIcon.Reset();
}

void CCmdBtn::OnDestroy()
{
    CButton::OnDestroy();
    FreeGrayIcon();
}

void CCmdBtn::OnMouseMove(UINT flags, CPoint point)
{
    m_hot.OnMouseMove(*this);
    CButton::OnMouseMove(flags, point);
}

BOOL CCmdBtn::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

LRESULT CCmdBtn::OnMouseLeave(WPARAM, LPARAM)
{
    return m_hot.OnMouseLeave(*this);
}
