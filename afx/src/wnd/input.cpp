#include "ask.h"
#include "gdi/handles.h"

#include <afxwin.h>

#include <shellapi.h>

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
    return Ask<int>(*this, WM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
}

DWORD CWnd::GetHotKey() const
{
    return Ask<DWORD>(*this, WM_GETHOTKEY);
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
    ::CreateCaret(m_hWnd, gdi::BitmapOf(pBitmap), 0, 0);
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
