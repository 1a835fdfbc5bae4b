#include "CtrlLayout.h"

#include <QorPub/QorPub.h>

#include <vector>

namespace
{

/**
 * The controls of a range. They are collected first: enabling or moving one may make its parent destroy others, and a
 * range may be far wider than the number of controls.
 */
std::vector<HWND> CtrlsOfRange(const CWnd* parent, UINT first, UINT last)
{
    std::vector<HWND> ctrls;
    if (!parent || !::IsWindow(parent->GetSafeHwnd())) {
        return ctrls;
    }
    for (HWND child = ::GetWindow(*parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const auto id = static_cast<UINT>(::GetDlgCtrlID(child));
        // Of several controls with one id only the first counts, as for GetDlgItem.
        if (id >= first && id <= last && ::GetDlgItem(*parent, static_cast<int>(id)) == child) {
            ctrls.push_back(child);
        }
    }
    return ctrls;
}

HWND FindCtrl(const CWnd* parent, UINT id)
{
    return parent && ::IsWindow(parent->GetSafeHwnd()) ? ::GetDlgItem(*parent, static_cast<int>(id)) : nullptr;
}

bool RectInParent(const CWnd& parent, HWND ctrl, CRect& rect)
{
    CRect found;
    if (!::GetWindowRect(ctrl, found)) {
        return false;
    }
    parent.ScreenToClient(found);
    rect = found;
    return true;
}

CFont g_TopicFont;

bool MakeTopicFont(LONG height)
{
    if (g_TopicFont.GetSafeHandle()) {
        return true;
    }
    LOGFONTW heading = {};
    heading.lfHeight = height;
    heading.lfWeight = FW_BOLD;
    ::lstrcpynW(heading.lfFaceName, L"Arial", LF_FACESIZE);
    if (g_TopicFont.CreateFontIndirect(&heading)) {
        return true;
    }
    LOGFONTW stock = {};
    if (::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(stock), &stock) == 0) {
        return false;
    }
    stock.lfHeight = height;
    stock.lfWeight = FW_BOLD;
    return g_TopicFont.CreateFontIndirect(&stock) != FALSE;
}

} // namespace

BOOL QorGetCtrlRect(CWnd* parent, UINT id, CRect& rect)
{
    const HWND ctrl = FindCtrl(parent, id);
    return ctrl && RectInParent(*parent, ctrl, rect);
}

void QorEnableCtrls(CWnd* parent, UINT first, UINT last, BOOL enable)
{
    for (const HWND ctrl : CtrlsOfRange(parent, first, last)) {
        ::EnableWindow(ctrl, enable);
    }
}

void QorEnableCtrlsV(CWnd* parent, BOOL enable, int count, ...)
{
    va_list ids;
    va_start(ids, count);
    for (int i = 0; i < count; ++i) {
        if (const HWND ctrl = FindCtrl(parent, static_cast<UINT>(va_arg(ids, int)))) {
            ::EnableWindow(ctrl, enable);
        }
    }
    va_end(ids);
}

void QorShowCtrls(CWnd* parent, UINT first, UINT last, BOOL show)
{
    for (const HWND ctrl : CtrlsOfRange(parent, first, last)) {
        ::ShowWindow(ctrl, show ? SW_SHOWNORMAL : SW_HIDE);
    }
}

void QorMoveCtrls(CWnd* parent, UINT first, UINT last, int dx, int dy)
{
    for (const HWND ctrl : CtrlsOfRange(parent, first, last)) {
        CRect rect;
        if (RectInParent(*parent, ctrl, rect)) {
            ::MoveWindow(ctrl, rect.left + dx, rect.top + dy, rect.Width(), rect.Height(), TRUE);
            ::ShowWindow(ctrl, SW_SHOWNORMAL);
        }
    }
}

void QorMoveCtrlsEx(CWnd* parent, UINT anchor, UINT first, UINT last, int dx, int dy)
{
    CRect to;
    CRect from;
    if (QorGetCtrlRect(parent, anchor, to) && QorGetCtrlRect(parent, first, from)) {
        QorMoveCtrls(parent, first, last, to.left - from.left + dx, to.top - from.top + dy);
    }
}

BOOL QorGetText(CWnd& wnd, CString& text)
{
    text.Empty();
    if (!wnd.GetSafeHwnd()) {
        return FALSE;
    }
    wnd.GetWindowText(text);
    text.Trim();
    return !text.IsEmpty();
}

BOOL QorGetUtf8(CWnd& wnd, CStringA& text, BOOL xmlEscape)
{
    text.Empty();
    CString wide;
    if (!QorGetText(wnd, wide)) {
        return FALSE;
    }
    if (xmlEscape) {
        CQorXml::ReplaceEntityChar(wide);
    }
    text = WStrToUTF8(wide);
    return TRUE;
}

void QorSetTopicCtrl(CWnd* parent, UINT id, LPCWSTR text, LONG height)
{
    const HWND ctrl = FindCtrl(parent, id);
    if (!ctrl) {
        return;
    }
    if (MakeTopicFont(height)) {
        ::SendMessageW(ctrl, WM_SETFONT, reinterpret_cast<WPARAM>(g_TopicFont.GetSafeHandle()), TRUE);
    }
    if (text && *text) {
        ::SetWindowTextW(ctrl, text);
    }
}
