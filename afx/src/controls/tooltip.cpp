#include "internal.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
HINSTANCE StringModule(UINT nIDText)
{
    HINSTANCE hInst = AfxFindStringResourceHandle(nIDText);
    return hInst != nullptr ? hInst : AfxGetResourceHandle();
}

// The system copies texts without a limit of ours.
constexpr int TIP_TEXT_MAX = 32767;
} // namespace

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle, WS_EX_TOPMOST);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    const RECT rect = {CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT};
    AfxInitControls(ICC_TAB_CLASSES | ICC_BAR_CLASSES);
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, rect.left, rect.top, rect.right,
                          rect.bottom, pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr, nullptr);
}

void CToolTipCtrl::Activate(BOOL bActivate)
{
    ::SendMessage(m_hWnd, TTM_ACTIVATE, bActivate, 0);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return FALSE;
    }
    info.hinst = StringModule(nIDText);
    info.lpszText = MAKEINTRESOURCE(nIDText);
    if (lpRectTool != nullptr) {
        info.rect = *lpRectTool;
    }
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return FALSE;
    }
    info.lpszText = const_cast<LPTSTR>(lpszText);
    if (lpRectTool != nullptr) {
        info.rect = *lpRectTool;
    }
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        ::SendMessage(m_hWnd, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&info));
    }
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.lpszText = const_cast<LPTSTR>(lpszText);
    ::SendMessage(m_hWnd, TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.hinst = StringModule(nIDText);
    info.lpszText = MAKEINTRESOURCE(nIDText);
    ::SendMessage(m_hWnd, TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    str.Empty();
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    std::vector<TCHAR> buffer(TIP_TEXT_MAX + 1);
    info.lpszText = buffer.data();
    ::SendMessage(m_hWnd, TTM_GETTEXT, TIP_TEXT_MAX, reinterpret_cast<LPARAM>(&info));
    str = buffer.data();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    if (!FillInToolInfo(ToolInfo, pWnd, nIDTool)) {
        return FALSE;
    }
    // The message does not know how much space there is.
    std::vector<TCHAR> buffer(TIP_TEXT_MAX + 1);
    ToolInfo.lpszText = buffer.data();
    const LRESULT found = ::SendMessage(m_hWnd, TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&ToolInfo));
    // Neither a resource nor a text that is asked for when it is shown comes in the buffer.
    if (ToolInfo.lpszText == buffer.data()) {
        ::lstrcpyn(ToolInfo.szText, buffer.data(), static_cast<int>(_countof(ToolInfo.szText)));
        ToolInfo.lpszText = ToolInfo.szText;
    }
    return static_cast<BOOL>(found);
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo)
{
    ::SendMessage(m_hWnd, TTM_SETTOOLINFO, 0, reinterpret_cast<LPARAM>(lpToolInfo));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO info;
    if (lpRect == nullptr || !FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.rect = *lpRect;
    ::SendMessage(m_hWnd, TTM_NEWTOOLRECT, 0, reinterpret_cast<LPARAM>(&info));
}

int CToolTipCtrl::GetToolCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TTM_GETTOOLCOUNT, 0, 0));
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_GETCURRENTTOOL, 0, reinterpret_cast<LPARAM>(lpToolInfo)));
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    if (pWnd == nullptr || lpToolInfo == nullptr) {
        return FALSE;
    }
    TTHITTESTINFO info = {};
    info.hwnd = pWnd->m_hWnd;
    info.pt = pt;
    info.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!::SendMessage(m_hWnd, TTM_HITTEST, 0, reinterpret_cast<LPARAM>(&info))) {
        return FALSE;
    }
    *lpToolInfo = info.ti;
    return TRUE;
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg)
{
    ::SendMessage(m_hWnd, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg));
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const
{
    return static_cast<int>(::SendMessage(m_hWnd, TTM_GETDELAYTIME, dwDuration, 0));
}

void CToolTipCtrl::SetDelayTime(UINT nDelay)
{
    SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay));
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime)
{
    ::SendMessage(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth)
{
    return static_cast<int>(::SendMessage(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth));
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TTM_GETMAXTIPWIDTH, 0, 0));
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr)
{
    ::SendMessage(m_hWnd, TTM_SETTIPBKCOLOR, clr, 0);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TTM_GETTIPBKCOLOR, 0, 0));
}

void CToolTipCtrl::SetTipTextColor(COLORREF clr)
{
    ::SendMessage(m_hWnd, TTM_SETTIPTEXTCOLOR, clr, 0);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TTM_GETTIPTEXTCOLOR, 0, 0));
}

void CToolTipCtrl::SetMargin(LPRECT lprc)
{
    ::SendMessage(m_hWnd, TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(lprc));
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const
{
    ::SendMessage(m_hWnd, TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(lprc));
}

BOOL CToolTipCtrl::SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_SETTITLE, uIcon, reinterpret_cast<LPARAM>(lpstrTitle)));
}

void CToolTipCtrl::GetTitle(PTTGETTITLE pttgt) const
{
    ::SendMessage(m_hWnd, TTM_GETTITLE, 0, reinterpret_cast<LPARAM>(pttgt));
}

BOOL CToolTipCtrl::AdjustRect(LPRECT lprc, BOOL bLarger)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TTM_ADJUSTRECT, bLarger, reinterpret_cast<LPARAM>(lprc)));
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    const DWORD dwSize =
        static_cast<DWORD>(::SendMessage(m_hWnd, TTM_GETBUBBLESIZE, 0, reinterpret_cast<LPARAM>(lpToolInfo)));
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

void CToolTipCtrl::TrackActivate(LPTOOLINFO lpToolInfo, BOOL bActivate)
{
    ::SendMessage(m_hWnd, TTM_TRACKACTIVATE, bActivate, reinterpret_cast<LPARAM>(lpToolInfo));
}

void CToolTipCtrl::TrackPosition(CPoint pt)
{
    ::SendMessage(m_hWnd, TTM_TRACKPOSITION, 0, MAKELPARAM(pt.x, pt.y));
}

void CToolTipCtrl::Pop()
{
    ::SendMessage(m_hWnd, TTM_POP, 0, 0);
}

void CToolTipCtrl::Popup()
{
    ::SendMessage(m_hWnd, TTM_POPUP, 0, 0);
}

void CToolTipCtrl::Update()
{
    ::SendMessage(m_hWnd, TTM_UPDATE, 0, 0);
}

BOOL CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool)
{
    if (pWnd == nullptr || pWnd->m_hWnd == nullptr) {
        return FALSE;
    }
    ti = {};
    // The size without the last member is the one that every version of the
    // common controls takes.
    ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (nIDTool != 0) {
        ti.hwnd = pWnd->m_hWnd;
        ti.uId = nIDTool;
        return TRUE;
    }
    ti.hwnd = ::GetParent(pWnd->m_hWnd);
    ti.uId = reinterpret_cast<UINT_PTR>(pWnd->m_hWnd);
    ti.uFlags = TTF_IDISHWND;
    return TRUE;
}
