#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
HINSTANCE StringModule(UINT nIDText)
{
    HINSTANCE hInst = AfxFindStringResourceHandle(nIDText);
    return hInst ? hInst : AfxGetResourceHandle();
}

// The system copies texts without a limit of ours.
constexpr int kTipTextMax = 32767;
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
                          rect.bottom, pParentWnd ? pParentWnd->m_hWnd : nullptr, nullptr);
}

void CToolTipCtrl::Activate(BOOL bActivate)
{
    Ask(*this, TTM_ACTIVATE, bActivate);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return FALSE;
    }
    info.hinst = StringModule(nIDText);
    info.lpszText = MAKEINTRESOURCE(nIDText);
    if (lpRectTool) {
        info.rect = *lpRectTool;
    }
    return Ask<BOOL>(*this, TTM_ADDTOOL, 0, &info);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return FALSE;
    }
    info.lpszText = const_cast<LPTSTR>(lpszText);
    if (lpRectTool) {
        info.rect = *lpRectTool;
    }
    return Ask<BOOL>(*this, TTM_ADDTOOL, 0, &info);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (FillInToolInfo(info, pWnd, nIDTool)) {
        Ask(*this, TTM_DELTOOL, 0, &info);
    }
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.lpszText = const_cast<LPTSTR>(lpszText);
    Ask(*this, TTM_UPDATETIPTEXT, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.hinst = StringModule(nIDText);
    info.lpszText = MAKEINTRESOURCE(nIDText);
    Ask(*this, TTM_UPDATETIPTEXT, 0, &info);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    str.Empty();
    TOOLINFO info;
    if (!FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    std::vector<TCHAR> buffer(kTipTextMax + 1);
    info.lpszText = buffer.data();
    Ask(*this, TTM_GETTEXT, kTipTextMax, &info);
    str = buffer.data();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    if (!FillInToolInfo(ToolInfo, pWnd, nIDTool)) {
        return FALSE;
    }
    // The message does not know how much space there is.
    std::vector<TCHAR> buffer(kTipTextMax + 1);
    ToolInfo.lpszText = buffer.data();
    const LRESULT found = Ask(*this, TTM_GETTOOLINFO, 0, &ToolInfo);
    // Neither a resource nor a text that is asked for when it is shown comes in the buffer.
    if (ToolInfo.lpszText == buffer.data()) {
        ::lstrcpyn(ToolInfo.szText, buffer.data(), static_cast<int>(_countof(ToolInfo.szText)));
        ToolInfo.lpszText = ToolInfo.szText;
    }
    return static_cast<BOOL>(found);
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo)
{
    Ask(*this, TTM_SETTOOLINFO, 0, lpToolInfo);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO info;
    if (!lpRect || !FillInToolInfo(info, pWnd, nIDTool)) {
        return;
    }
    info.rect = *lpRect;
    Ask(*this, TTM_NEWTOOLRECT, 0, &info);
}

int CToolTipCtrl::GetToolCount() const
{
    return Ask<int>(*this, TTM_GETTOOLCOUNT);
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const
{
    return Ask<BOOL>(*this, TTM_GETCURRENTTOOL, 0, lpToolInfo);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    if (!pWnd || !lpToolInfo) {
        return FALSE;
    }
    TTHITTESTINFO info = {};
    info.hwnd = pWnd->m_hWnd;
    info.pt = pt;
    info.ti.cbSize = TTTOOLINFOW_V2_SIZE;
    if (!Ask(*this, TTM_HITTEST, 0, &info)) {
        return FALSE;
    }
    *lpToolInfo = info.ti;
    return TRUE;
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg)
{
    Ask(*this, TTM_RELAYEVENT, 0, lpMsg);
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const
{
    return Ask<int>(*this, TTM_GETDELAYTIME, dwDuration);
}

void CToolTipCtrl::SetDelayTime(UINT nDelay)
{
    SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay));
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime)
{
    Ask(*this, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth)
{
    return Ask<int>(*this, TTM_SETMAXTIPWIDTH, 0, iWidth);
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return Ask<int>(*this, TTM_GETMAXTIPWIDTH);
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr)
{
    Ask(*this, TTM_SETTIPBKCOLOR, clr);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return Ask<COLORREF>(*this, TTM_GETTIPBKCOLOR);
}

void CToolTipCtrl::SetTipTextColor(COLORREF clr)
{
    Ask(*this, TTM_SETTIPTEXTCOLOR, clr);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return Ask<COLORREF>(*this, TTM_GETTIPTEXTCOLOR);
}

void CToolTipCtrl::SetMargin(LPRECT lprc)
{
    Ask(*this, TTM_SETMARGIN, 0, lprc);
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const
{
    Ask(*this, TTM_GETMARGIN, 0, lprc);
}

BOOL CToolTipCtrl::SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
{
    return Ask<BOOL>(*this, TTM_SETTITLE, uIcon, lpstrTitle);
}

void CToolTipCtrl::GetTitle(PTTGETTITLE pttgt) const
{
    Ask(*this, TTM_GETTITLE, 0, pttgt);
}

BOOL CToolTipCtrl::AdjustRect(LPRECT lprc, BOOL bLarger)
{
    return Ask<BOOL>(*this, TTM_ADJUSTRECT, bLarger, lprc);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    const DWORD dwSize = Ask<DWORD>(*this, TTM_GETBUBBLESIZE, 0, lpToolInfo);
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

void CToolTipCtrl::TrackActivate(LPTOOLINFO lpToolInfo, BOOL bActivate)
{
    Ask(*this, TTM_TRACKACTIVATE, bActivate, lpToolInfo);
}

void CToolTipCtrl::TrackPosition(CPoint pt)
{
    Ask(*this, TTM_TRACKPOSITION, 0, MAKELPARAM(pt.x, pt.y));
}

void CToolTipCtrl::Pop()
{
    Ask(*this, TTM_POP);
}

void CToolTipCtrl::Popup()
{
    Ask(*this, TTM_POPUP);
}

void CToolTipCtrl::Update()
{
    Ask(*this, TTM_UPDATE);
}

BOOL CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool)
{
    if (!pWnd || !pWnd->m_hWnd) {
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
