#include "ask.h"
#include "gdi/handles.h"

#include <afxwin.h>

namespace
{
BOOL ChangeStyle(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    const auto dwOld = static_cast<DWORD>(::GetWindowLong(hWnd, nIndex));
    const DWORD dwNew = (dwOld & ~dwRemove) | dwAdd;
    if (dwOld == dwNew) {
        return FALSE;
    }
    ::SetWindowLong(hWnd, nIndex, static_cast<LONG>(dwNew));
    if (nFlags) {
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    }
    return TRUE;
}
} // namespace

// The compiler takes for granted that `this` is not null; a volatile copy keeps the documented meaning.
HWND CWnd::GetSafeHwnd() const
{
    const CWnd* const volatile pThis = this;
    return pThis ? pThis->m_hWnd : nullptr;
}

CWnd::operator HWND() const
{
    return m_hWnd;
}

BOOL CWnd::operator==(const CWnd& wnd) const
{
    return wnd.m_hWnd == m_hWnd;
}

BOOL CWnd::operator!=(const CWnd& wnd) const
{
    return wnd.m_hWnd != m_hWnd;
}

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int nLength = ::GetWindowTextLength(m_hWnd);
    if (nLength <= 0) {
        rString.Empty();
        return;
    }
    ::GetWindowText(m_hWnd, rString.GetBufferSetLength(nLength), nLength + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    Ask(*this, WM_SETFONT, gdi::HandleOf(pFont), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(Ask<HFONT>(*this, WM_GETFONT));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, gdi::MenuOf(pMenu));
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, gdi::MenuOf(pMenu), nIDHiliteItem, nHilite);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return Ask<HICON>(*this, WM_SETICON, bBigIcon, hIcon);
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return Ask<HICON>(*this, WM_GETICON, bBigIcon);
}

void AfxSetWindowText(HWND hWndCtrl, LPCTSTR lpszNew)
{
    CString strOld;
    const int nLength = ::GetWindowTextLength(hWndCtrl);
    if (nLength > 0) {
        ::GetWindowText(hWndCtrl, strOld.GetBufferSetLength(nLength), nLength + 1);
        strOld.ReleaseBuffer();
    }
    if (strOld != lpszNew) { // setting the same text again would only flicker
        ::SetWindowText(hWndCtrl, lpszNew);
    }
}
