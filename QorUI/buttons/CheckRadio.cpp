#include "CheckRadio.h"

#include "ButtonDraw.h"

#include <QorUI/app/base/VisualState.h>
#include <QorUI/app/draw/BitmapPart.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>
#include <QorUI/app/module/QorUIApp.h>
#include <QorUI/res/resource.h>

#include <algorithm>
#include <optional>
#include <vector>

BEGIN_MESSAGE_MAP(CCheckBox, CButton)
    ON_WM_KEYUP()
    ON_WM_PAINT()
    ON_WM_ENABLE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(BM_SETCHECK, &CCheckBox::OnSetCheck)
    ON_MESSAGE(WM_MOUSELEAVE, &CCheckBox::OnMouseLeave)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CRadioBox, CButton)
    ON_WM_PAINT()
    ON_WM_ENABLE()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_MESSAGE(BM_SETCHECK, &CRadioBox::OnSetCheck)
    ON_MESSAGE(WM_MOUSELEAVE, &CRadioBox::OnMouseLeave)
END_MESSAGE_MAP()

namespace
{

/** What a change of state repaints: kept smaller than the glyph. */
constexpr RECT kStateRect = {2, 2, 13, 13};

constexpr int kTextMargin = 2;
constexpr int kTextIndent = 17; // past the glyph
constexpr UINT kTextFormat = DT_WORDBREAK | DT_EDITCONTROL;

/** Style bits of which owner-drawn and automatic radio buttons have at least one. */
constexpr DWORD kRadioStyles = BS_AUTORADIOBUTTON;

/** Frame of a glyph strip for a state, without regard to being checked. */
UINT GlyphOf(const VisualState& state)
{
    if (state.IsDisabled()) {
        return QOR_GLYPH_DISABLED;
    }
    return state.face == VisualState::kHot ? QOR_GLYPH_HOT : QOR_GLYPH_NORMAL;
}

void DrawLabel(CWnd& button, CDC& dc, UINT mode, UINT state)
{
    CString text;
    button.GetWindowText(text);
    if (text.IsEmpty()) {
        return;
    }
    CRect rect;
    button.GetClientRect(&rect);
    rect.DeflateRect(kTextMargin, kTextMargin);
    rect.left += kTextIndent;
    const SelectSaver selectFont(dc.m_hDC, reinterpret_cast<HFONT>(button.SendMessage(WM_GETFONT)));
    const TextModeSaver textMode(dc.m_hDC, QorSysLook.TextColor(state == QOR_GLYPH_DISABLED), TRANSPARENT);
    if (mode & kLabelText) {
        dc.DrawText(text, &rect, kTextFormat);
    }
    if (mode & kLabelFocus) {
        dc.DrawText(text, &rect, DT_CALCRECT | kTextFormat);
        rect.InflateRect(1, 1);
        dc.DrawFocusRect(&rect);
    }
}

template <class Button>
void DrawFocusOf(Button& button)
{
    if (!::IsWindow(button.m_hWnd)) {
        return;
    }
    CWindowDC dc(&button);
    button.DrawText(dc, kLabelFocus, QOR_GLYPH_NORMAL);
}

template <class Button>
void Paint(Button& button, const HotState& hot)
{
    const VisualState state = QorStateOfWindow(button.m_hWnd, static_cast<bool>(hot));
    CPaintDC dc(&button);
    CRect client;
    button.GetClientRect(&client);
    dc.FillSolidRect(&client, QorLook::kDlgBody);
    button.DrawCheck(dc, GlyphOf(state));
    button.DrawText(dc, state.focused ? kLabelText | kLabelFocus : kLabelText, GlyphOf(state));
}

/** @param key transparent colour of the strip, or `CLR_NONE`. */
void DrawGlyph(CWnd& button, CDC& dc, CBitmap& strip, UINT state, COLORREF key)
{
    const BOOL checked = button.SendMessage(BM_GETCHECK) == BST_CHECKED;
    const int frame = static_cast<int>(state + (checked ? QOR_GLYPH_CHECKED : 0));
    const CRect place(CPoint(QorLook::kGlyphPos, QorLook::kGlyphPos), CSize(QorLook::kGlyphSize, QorLook::kGlyphSize));
    QorDrawBitmapPart(dc.m_hDC, place, strip.GetSafeHandle(), {frame * QorLook::kGlyphSize, 0}, key);
}

void RepaintAfterEnable(CWnd& button, BOOL enable)
{
    button.EnableWindow(enable);
    button.Invalidate(FALSE);
}

void NotifyClicked(CWnd& button)
{
    const WPARAM id = MAKEWPARAM(::GetDlgCtrlID(button.m_hWnd), BN_CLICKED);
    ::SendMessageW(::GetParent(button.m_hWnd), WM_COMMAND, id, reinterpret_cast<LPARAM>(button.m_hWnd));
}

bool IsSwallowed(UINT message)
{
    switch (message) {
    case WM_ERASEBKGND:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_UPDATEUISTATE:
    case WM_LBUTTONDBLCLK:
        return true;
    default:
        return false;
    }
}

/** What both answer in the place of the system's button; nothing for what they leave to it. */
template <class Button>
std::optional<LRESULT> AnswerOf(Button& button, UINT message, BOOL checked)
{
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        button.DrawFocus();
        return 1;
    }
    if (IsSwallowed(message)) {
        return 1;
    }
    if (message == BM_GETCHECK) {
        return checked ? BST_CHECKED : BST_UNCHECKED;
    }
    return std::nullopt;
}

/** The other controls of a control's dialog group, in dialog order. */
std::vector<HWND> OthersOfGroup(HWND control)
{
    std::vector<HWND> others;
    const HWND parent = ::GetParent(control);
    HWND next = ::GetNextDlgGroupItem(parent, control, FALSE);
    // From a hidden or disabled control the walk goes round without ever coming back to it.
    while (next && next != control && std::find(others.begin(), others.end(), next) == others.end()) {
        others.push_back(next);
        next = ::GetNextDlgGroupItem(parent, next, FALSE);
    }
    return others;
}

void SetTabStop(HWND control, bool tabStop)
{
    const LONG_PTR style = ::GetWindowLongPtrW(control, GWL_STYLE);
    const LONG_PTR wanted = tabStop ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP);
    if (wanted != style) {
        ::SetWindowLongPtrW(control, GWL_STYLE, wanted);
    }
}

} // namespace

CCheckBox::CCheckBox() : m_bChecked(FALSE), m_bSecondClick(FALSE) {}

LRESULT CCheckBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_bSecondClick = m_bSecondClick || message == WM_LBUTTONDBLCLK;
    if (const std::optional<LRESULT> answer = AnswerOf(*this, message, m_bChecked)) {
        return *answer;
    }
    if (message == WM_NCDESTROY) { // nothing that this window was waiting for comes any more
        m_hot.OnNewWindow();
        m_bSecondClick = FALSE;
    }
    return CButton::WindowProc(message, wParam, lParam);
}

void CCheckBox::DrawCheck(CDC& dc, UINT state)
{
    DrawGlyph(*this, dc, g_QorUIApp.m_bmpCheck, state, CLR_NONE);
}

void CCheckBox::DrawText(CDC& dc, UINT mode, UINT state)
{
    DrawLabel(*this, dc, mode, state);
}

void CCheckBox::DrawFocus()
{
    DrawFocusOf(*this);
}

void CCheckBox::Toggle()
{
    m_bChecked = !m_bChecked;
    InvalidateRect(&kStateRect, FALSE);
    NotifyClicked(*this);
}

void CCheckBox::OnKeyUp(UINT key, UINT, UINT)
{
    if (key == VK_SPACE) {
        Toggle();
    }
}

void CCheckBox::OnPaint()
{
    Paint(*this, m_hot);
}

void CCheckBox::OnEnable(BOOL enable)
{
    RepaintAfterEnable(*this, enable);
}

void CCheckBox::OnMouseMove(UINT, CPoint)
{
    m_hot.OnMouseMove(*this, &kStateRect);
}

void CCheckBox::OnLButtonUp(UINT, CPoint)
{
    const BOOL second = m_bSecondClick;
    m_bSecondClick = FALSE;
    if (!second) {
        Toggle(); // the parent may delete this object
    }
}

void CCheckBox::OnLButtonDown(UINT, CPoint)
{
    m_bSecondClick = FALSE;
    SetFocus();
}

LRESULT CCheckBox::OnSetCheck(WPARAM state, LPARAM)
{
    m_bChecked = state == BST_CHECKED;
    InvalidateRect(&kStateRect, FALSE);
    return 0;
}

LRESULT CCheckBox::OnMouseLeave(WPARAM, LPARAM)
{
    return m_hot.OnMouseLeave(*this, &kStateRect);
}

CRadioBox::CRadioBox() : m_bChecked(FALSE) {}

LRESULT CRadioBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYUP) {
        return 1;
    }
    if (const std::optional<LRESULT> answer = AnswerOf(*this, message, m_bChecked)) {
        return *answer;
    }
    if (message == WM_NCDESTROY) {
        m_hot.OnNewWindow();
    }
    return CButton::WindowProc(message, wParam, lParam);
}

void CRadioBox::DrawCheck(CDC& dc, UINT state)
{
    DrawGlyph(*this, dc, g_QorUIApp.m_bmpRadio, state, QorLook::kGlyphKey);
}

void CRadioBox::DrawText(CDC& dc, UINT mode, UINT state)
{
    DrawLabel(*this, dc, mode, state);
}

void CRadioBox::DrawFocus()
{
    DrawFocusOf(*this);
}

void CRadioBox::UncheckOtherRadio()
{
    for (const HWND other : OthersOfGroup(m_hWnd)) {
        if (::GetWindowLongPtrW(other, GWL_STYLE) & kRadioStyles) {
            ::SendMessageW(other, BM_SETCHECK, BST_UNCHECKED, 0);
            SetTabStop(other, false);
        }
    }
}

void CRadioBox::OnPaint()
{
    Paint(*this, m_hot);
}

void CRadioBox::OnEnable(BOOL enable)
{
    RepaintAfterEnable(*this, enable);
}

void CRadioBox::OnMouseMove(UINT, CPoint)
{
    m_hot.OnMouseMove(*this, &kStateRect);
}

void CRadioBox::OnLButtonUp(UINT, CPoint)
{
    if (!m_bChecked) {
        OnSetCheck(BST_CHECKED, 0);
    }
    NotifyClicked(*this);
}

void CRadioBox::OnLButtonDown(UINT, CPoint)
{
    SetFocus();
}

LRESULT CRadioBox::OnSetCheck(WPARAM state, LPARAM)
{
    m_bChecked = state == BST_CHECKED;
    if (m_bChecked) {
        UncheckOtherRadio();
        SetTabStop(m_hWnd, true);
    }
    InvalidateRect(&kStateRect, FALSE);
    return 0;
}

LRESULT CRadioBox::OnMouseLeave(WPARAM, LPARAM)
{
    return m_hot.OnMouseLeave(*this, &kStateRect);
}
