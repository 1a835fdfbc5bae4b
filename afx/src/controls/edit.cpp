#include "wnd/ask.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return Ask<BOOL>(*this, EM_CANUNDO);
}

int CEdit::GetLineCount() const
{
    return Ask<int>(*this, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return Ask<BOOL>(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified)
{
    Ask(*this, EM_SETMODIFY, bModified);
}

void CEdit::GetRect(LPRECT lpRect) const
{
    Ask(*this, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect)
{
    Ask(*this, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    Ask(*this, EM_SETRECTNP, 0, lpRect);
}

DWORD CEdit::GetSel() const
{
    return Ask<DWORD>(*this, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    Ask(*this, EM_GETSEL, &dwStart, &dwEnd);
    nStartChar = static_cast<int>(dwStart);
    nEndChar = static_cast<int>(dwEnd);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    Ask(*this, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll) {
        Ask(*this, EM_SCROLLCARET);
    }
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    Ask(*this, EM_REPLACESEL, bCanUndo, lpszNewText);
}

HLOCAL CEdit::GetHandle() const
{
    return Ask<HLOCAL>(*this, EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    Ask(*this, EM_SETHANDLE, hBuffer);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    Ask(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

DWORD CEdit::GetMargins() const
{
    return Ask<DWORD>(*this, EM_GETMARGINS);
}

void CEdit::SetLimitText(UINT nMax)
{
    Ask(*this, EM_SETLIMITTEXT, nMax);
}

UINT CEdit::GetLimitText() const
{
    return Ask<UINT>(*this, EM_GETLIMITTEXT);
}

void CEdit::LimitText(int nChars)
{
    Ask(*this, EM_LIMITTEXT, nChars);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const DWORD dwPos = Ask<DWORD>(*this, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos)));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return Ask<int>(*this, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask<int>(*this, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (!lpszBuffer || nMaxLength <= 0) {
        return 0;
    }
    // The control reads the buffer's size from its first word.
    *reinterpret_cast<LPWORD>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::EmptyUndoBuffer()
{
    Ask(*this, EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return Ask<BOOL>(*this, EM_FMTLINES, bAddEOL);
}

int CEdit::LineFromChar(int nIndex) const
{
    return Ask<int>(*this, EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const
{
    return Ask<int>(*this, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const
{
    return Ask<int>(*this, EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars)
{
    Ask(*this, EM_LINESCROLL, nChars, nLines);
}

int CEdit::GetFirstVisibleLine() const
{
    return Ask<int>(*this, EM_GETFIRSTVISIBLELINE);
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    Ask(*this, EM_SETPASSWORDCHAR, ch);
}

TCHAR CEdit::GetPasswordChar() const
{
    return Ask<TCHAR>(*this, EM_GETPASSWORDCHAR);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return Ask<BOOL>(*this, EM_SETREADONLY, bReadOnly);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return Ask<BOOL>(*this, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

void CEdit::SetTabStops()
{
    Ask(*this, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return Ask<BOOL>(*this, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetCueBanner(LPCTSTR lpszText, BOOL fDrawWhenFocused)
{
    return Ask<BOOL>(*this, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
}

BOOL CEdit::GetCueBanner(LPTSTR lpszText, int cchText) const
{
    return Ask<BOOL>(*this, EM_GETCUEBANNER, lpszText, cchText);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return Ask<BOOL>(*this, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCTSTR lpszTitle, LPCTSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {};
    tip.cbStruct = sizeof(tip);
    tip.pszTitle = lpszTitle;
    tip.pszText = lpszText;
    tip.ttiIcon = ttiIcon;
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return Ask<BOOL>(*this, EM_HIDEBALLOONTIP);
}

BOOL CEdit::Undo()
{
    return Ask<BOOL>(*this, EM_UNDO);
}

void CEdit::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CEdit::Copy()
{
    Ask(*this, WM_COPY);
}

void CEdit::Cut()
{
    Ask(*this, WM_CUT);
}

void CEdit::Paste()
{
    Ask(*this, WM_PASTE);
}
