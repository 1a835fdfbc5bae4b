#include "internal.h"

#include <shellapi.h>

namespace
{

HMENU MenuHandle(const CMenu* pMenu)
{
    return pMenu ? pMenu->m_hMenu : nullptr;
}

HRGN RegionHandle(const CRgn* pRgn)
{
    return pRgn ? static_cast<HRGN>(pRgn->m_hObject) : nullptr;
}

HDC DcHandle(const CDC* pDC)
{
    return pDC ? pDC->m_hDC : nullptr;
}

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

// Styles

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

// Messages

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

// Text, font, menu, icon

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
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, MenuHandle(pMenu));
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
    return ::HiliteMenuItem(m_hWnd, MenuHandle(pMenu), nIDHiliteItem, nHilite);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bBigIcon, 0));
}

// Place and size

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof placement;
    return ::SetWindowPlacement(m_hWnd, &placement);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    DWORD dwExStyle = GetExStyle();
    if (nAdjustType == adjustBorder) {
        dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    }
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, dwExStyle);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
}

// Painting

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, RegionHandle(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, DcHandle(pDC));
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(DcHandle(pDC)), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(DcHandle(pDC)), static_cast<LPARAM>(dwFlags));
}

BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const
{
    return ::PrintWindow(m_hWnd, DcHandle(pDC), nFlags);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    ::SendMessage(m_hWnd, WM_SETREDRAW, bRedraw, 0);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, RegionHandle(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase)
{
    if (m_hWnd) { // a null window would mean every window on the screen
        ::InvalidateRect(m_hWnd, nullptr, bErase);
    }
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    if (m_hWnd) {
        ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    if (m_hWnd) {
        ::InvalidateRgn(m_hWnd, RegionHandle(pRgn), bErase);
    }
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    if (m_hWnd) {
        ::ValidateRect(m_hWnd, lpRect);
    }
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    if (m_hWnd) {
        ::ValidateRgn(m_hWnd, RegionHandle(pRgn));
    }
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

void CWnd::ShowOwnedPopups(BOOL bShow)
{
    ::ShowOwnedPopups(m_hWnd, bShow);
}

BOOL CWnd::LockWindowUpdate()
{
    return m_hWnd ? ::LockWindowUpdate(m_hWnd) : FALSE;
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(nullptr);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return m_hWnd ? ::RedrawWindow(m_hWnd, lpRectUpdate, RegionHandle(prgnUpdate), flags) : FALSE;
}

BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, DcHandle(pDC), lprc, uFlags);
}

BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags)
{
    return ::AnimateWindow(m_hWnd, dwTime, dwFlags);
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO info = {sizeof info, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                               BLENDFUNCTION* pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, DcHandle(pDCDst), pptDst, psize, DcHandle(pDCSrc), pptSrc, crKey, pblend,
                                 dwFlags);
}

BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}

// Timers, state, input

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    // Without a window the system would make a thread timer that nobody stops.
    return m_hWnd ? ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer) : 0;
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return m_hWnd ? ::KillTimer(m_hWnd, nIDEvent) : FALSE;
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

BOOL CWnd::DragDetect(POINT pt) const
{
    return ::DragDetect(m_hWnd, pt);
}

int CWnd::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers)
{
    return static_cast<int>(::SendMessage(m_hWnd, WM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers), 0));
}

DWORD CWnd::GetHotKey() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, WM_GETHOTKEY, 0, 0));
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}

DWORD CWnd::GetWindowContextHelpId() const
{
    return ::GetWindowContextHelpId(m_hWnd);
}

BOOL CWnd::IsWindowUnicode() const
{
    return ::IsWindowUnicode(m_hWnd);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(m_hWnd, lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}

// Scrolling

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const
{
    return ::GetScrollPos(m_hWnd, nBar);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, RegionHandle(prgnUpdate), lpRectUpdate, flags);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    const int nPage = info.nPage > 0 ? static_cast<int>(info.nPage) - 1 : 0;
    return info.nMax - nPage;
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    psbi->cbSize = sizeof *psbi;
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}

// Controls of a dialog

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const
{
    for (int nID = nIDFirstButton; nID <= nIDLastButton; ++nID) {
        if (::IsDlgButtonChecked(m_hWnd, nID)) {
            return nID;
        }
    }
    return 0;
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    const HWND hWndControl = ::GetDlgItem(m_hWnd, nID);
    const int nLength = hWndControl ? ::GetWindowTextLength(hWndControl) : 0;
    if (nLength <= 0) {
        return 0;
    }
    ::GetWindowText(hWndControl, rString.GetBufferSetLength(nLength), nLength + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}

BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, nSize, nIDListBox);
}

BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox)
{
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, nSize, nIDComboBox);
}

// Clipboard and caret

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}

BOOL CWnd::ChangeClipboardChain(HWND hWndNext)
{
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}

void CWnd::CreateCaret(CBitmap* pBitmap)
{
    ::CreateCaret(m_hWnd, pBitmap ? static_cast<HBITMAP>(pBitmap->m_hObject) : nullptr, 0, 0);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(1)), nWidth, nHeight);
}

CPoint CWnd::GetCaretPos()
{
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

void CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
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
