#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

BOOL AFXAPI AfxInitRichEdit2()
{
    // Kept until the process ends: windows of the class may outlive whoever asked for it.
    static const HMODULE kLibrary = ::LoadLibrary(_T("riched20.dll"));
    return kLibrary != nullptr;
}

BOOL AFXAPI AfxInitRichEdit()
{
    return AfxInitRichEdit2();
}

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CRichEditCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxInitRichEdit2() && CWnd::CreateEx(dwExStyle, RICHEDIT_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CRichEditCtrl::GetLineCount() const
{
    return Ask<int>(*this, EM_GETLINECOUNT);
}

BOOL CRichEditCtrl::CanUndo() const
{
    return Ask<BOOL>(*this, EM_CANUNDO);
}

BOOL CRichEditCtrl::CanRedo() const
{
    return Ask<BOOL>(*this, EM_CANREDO);
}

BOOL CRichEditCtrl::CanPaste(UINT nFormat) const
{
    return Ask<BOOL>(*this, EM_CANPASTE, nFormat);
}

BOOL CRichEditCtrl::Undo()
{
    return Ask<BOOL>(*this, EM_UNDO);
}

BOOL CRichEditCtrl::Redo()
{
    return Ask<BOOL>(*this, EM_REDO);
}

void CRichEditCtrl::EmptyUndoBuffer()
{
    Ask(*this, EM_EMPTYUNDOBUFFER);
}

UINT CRichEditCtrl::SetUndoLimit(UINT nLimit)
{
    return Ask<UINT>(*this, EM_SETUNDOLIMIT, nLimit);
}

BOOL CRichEditCtrl::GetModify() const
{
    return Ask<BOOL>(*this, EM_GETMODIFY);
}

void CRichEditCtrl::SetModify(BOOL bModified)
{
    Ask(*this, EM_SETMODIFY, bModified);
}

int CRichEditCtrl::LineIndex(int nLine) const
{
    return Ask<int>(*this, EM_LINEINDEX, nLine);
}

int CRichEditCtrl::LineLength(int nLine) const
{
    return Ask<int>(*this, EM_LINELENGTH, nLine);
}

long CRichEditCtrl::LineFromChar(long nIndex) const
{
    return Ask<long>(*this, EM_EXLINEFROMCHAR, 0, nIndex);
}

void CRichEditCtrl::LineScroll(int nLines, int nChars)
{
    Ask(*this, EM_LINESCROLL, nChars, nLines);
}

int CRichEditCtrl::GetFirstVisibleLine() const
{
    return Ask<int>(*this, EM_GETFIRSTVISIBLELINE);
}

long CRichEditCtrl::GetLimitText() const
{
    return Ask<long>(*this, EM_GETLIMITTEXT);
}

void CRichEditCtrl::LimitText(long nChars)
{
    Ask(*this, EM_EXLIMITTEXT, 0, nChars);
}

long CRichEditCtrl::GetTextLength() const
{
    return Ask<long>(*this, WM_GETTEXTLENGTH);
}

void CRichEditCtrl::GetSel(CHARRANGE& cr) const
{
    Ask(*this, EM_EXGETSEL, 0, &cr);
}

void CRichEditCtrl::SetSel(CHARRANGE& cr)
{
    Ask(*this, EM_EXSETSEL, 0, &cr);
}

long CRichEditCtrl::GetSelText(LPTSTR lpBuf) const
{
    return Ask<long>(*this, EM_GETSELTEXT, 0, lpBuf);
}

WORD CRichEditCtrl::GetSelectionType() const
{
    return Ask<WORD>(*this, EM_SELECTIONTYPE);
}

void CRichEditCtrl::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    Ask(*this, EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CRichEditCtrl::HideSelection(BOOL bHide, BOOL bPerm)
{
    Ask(*this, EM_HIDESELECTION, bHide, bPerm);
}

long CRichEditCtrl::FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const
{
    return Ask<long>(*this, EM_FINDTEXTEX, dwFlags, pFindText);
}

DWORD CRichEditCtrl::FindWordBreak(UINT nCode, DWORD nStart) const
{
    return Ask<DWORD>(*this, EM_FINDWORDBREAK, nCode, nStart);
}

void CRichEditCtrl::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CRichEditCtrl::Copy()
{
    Ask(*this, WM_COPY);
}

void CRichEditCtrl::Cut()
{
    Ask(*this, WM_CUT);
}

void CRichEditCtrl::Paste()
{
    Ask(*this, WM_PASTE);
}

long CRichEditCtrl::GetEventMask() const
{
    return Ask<long>(*this, EM_GETEVENTMASK);
}

DWORD CRichEditCtrl::SetEventMask(DWORD dwEventMask)
{
    return Ask<DWORD>(*this, EM_SETEVENTMASK, 0, dwEventMask);
}

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL bSysColor, COLORREF cr)
{
    return Ask<COLORREF>(*this, EM_SETBKGNDCOLOR, bSysColor, cr);
}

BOOL CRichEditCtrl::SetReadOnly(BOOL bReadOnly)
{
    return Ask<BOOL>(*this, EM_SETREADONLY, bReadOnly);
}

void CRichEditCtrl::SetOptions(WORD wOp, DWORD dwFlags)
{
    Ask(*this, EM_SETOPTIONS, wOp, dwFlags);
}

void CRichEditCtrl::GetRect(LPRECT lpRect) const
{
    Ask(*this, EM_GETRECT, 0, lpRect);
}

void CRichEditCtrl::SetRect(LPCRECT lpRect)
{
    Ask(*this, EM_SETRECT, 0, lpRect);
}

void CRichEditCtrl::RequestResize()
{
    Ask(*this, EM_REQUESTRESIZE);
}

BOOL CRichEditCtrl::SetTargetDevice(HDC hDC, long lLineWidth)
{
    return Ask<BOOL>(*this, EM_SETTARGETDEVICE, hDC, lLineWidth);
}

long CRichEditCtrl::StreamIn(int nFormat, EDITSTREAM& es)
{
    return Ask<long>(*this, EM_STREAMIN, nFormat, &es);
}

long CRichEditCtrl::StreamOut(int nFormat, EDITSTREAM& es)
{
    return Ask<long>(*this, EM_STREAMOUT, nFormat, &es);
}

BOOL CRichEditCtrl::SetAutoURLDetect(BOOL bEnable)
{
    return Ask<BOOL>(*this, EM_AUTOURLDETECT, bEnable);
}

UINT CRichEditCtrl::GetTextMode() const
{
    return Ask<UINT>(*this, EM_GETTEXTMODE);
}

BOOL CRichEditCtrl::SetTextMode(UINT fMode)
{
    return Ask<BOOL>(*this, EM_SETTEXTMODE, fMode);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask<int>(*this, EM_GETLINE, nIndex, lpszBuffer);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (!lpszBuffer || nMaxLength <= 0) {
        return 0;
    }
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>((std::min)(nMaxLength, 0xFFFF));
    return GetLine(nIndex, lpszBuffer);
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const
{
    return PosFromChar(static_cast<UINT>(lChar));
}

CPoint CRichEditCtrl::PosFromChar(UINT nChar) const
{
    POINTL point = {};
    Ask(*this, EM_POSFROMCHAR, &point, nChar);
    return CPoint(point.x, point.y);
}

int CRichEditCtrl::CharFromPos(CPoint pt) const
{
    POINTL point = {pt.x, pt.y};
    return Ask<int>(*this, EM_CHARFROMPOS, 0, &point);
}

long CRichEditCtrl::GetTextLengthEx(DWORD dwFlags, UINT uCodePage) const
{
    GETTEXTLENGTHEX length = {dwFlags, uCodePage};
    return Ask<long>(*this, EM_GETTEXTLENGTHEX, &length);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const
{
    CHARRANGE range = {};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar)
{
    CHARRANGE range = {nStartChar, nEndChar};
    SetSel(range);
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range = {};
    GetSel(range);
    CString text;
    GetSelText(text.GetBufferSetLength(range.cpMax - range.cpMin));
    text.ReleaseBuffer();
    return text;
}

int CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const
{
    const int end = nLast == -1 ? static_cast<int>(GetTextLength()) : nLast;
    if (nFirst < 0 || end < nFirst) {
        refString.Empty();
        return 0;
    }
    TEXTRANGE range = {};
    range.chrg.cpMin = nFirst;
    range.chrg.cpMax = end;
    range.lpstrText = refString.GetBufferSetLength(end - nFirst);
    const auto copied = Ask<int>(*this, EM_GETTEXTRANGE, 0, &range);
    refString.ReleaseBuffer(copied);
    return refString.GetLength();
}

void CRichEditCtrl::PasteSpecial(UINT nClipFormat, DWORD dvAspect, HMETAFILE hMF)
{
    REPASTESPECIAL special = {};
    special.dwAspect = dvAspect;
    special.dwParam = reinterpret_cast<DWORD_PTR>(hMF);
    Ask(*this, EM_PASTESPECIAL, nClipFormat, &special);
}

BOOL CRichEditCtrl::SetTargetDevice(CDC& dc, long lLineWidth)
{
    return SetTargetDevice(dc.GetSafeHdc(), lLineWidth);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT& cf) const
{
    cf.cbSize = sizeof(CHARFORMAT);
    return Ask<DWORD>(*this, EM_GETCHARFORMAT, SCF_DEFAULT, &cf);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT2& cf) const
{
    cf.cbSize = sizeof(CHARFORMAT2);
    return Ask<DWORD>(*this, EM_GETCHARFORMAT, SCF_DEFAULT, &cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT& cf)
{
    cf.cbSize = sizeof(CHARFORMAT);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_DEFAULT, &cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT2& cf)
{
    cf.cbSize = sizeof(CHARFORMAT2);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_DEFAULT, &cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT& cf) const
{
    cf.cbSize = sizeof(CHARFORMAT);
    return Ask<DWORD>(*this, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT2& cf) const
{
    cf.cbSize = sizeof(CHARFORMAT2);
    return Ask<DWORD>(*this, EM_GETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT& cf)
{
    cf.cbSize = sizeof(CHARFORMAT);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT2& cf)
{
    cf.cbSize = sizeof(CHARFORMAT2);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_SELECTION, &cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT& cf)
{
    cf.cbSize = sizeof(CHARFORMAT);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, &cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT2& cf)
{
    cf.cbSize = sizeof(CHARFORMAT2);
    return Ask<BOOL>(*this, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, &cf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& pf) const
{
    pf.cbSize = sizeof(PARAFORMAT);
    return Ask<DWORD>(*this, EM_GETPARAFORMAT, 0, &pf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT2& pf) const
{
    pf.cbSize = sizeof(PARAFORMAT2);
    return Ask<DWORD>(*this, EM_GETPARAFORMAT, 0, &pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& pf)
{
    pf.cbSize = sizeof(PARAFORMAT);
    return Ask<BOOL>(*this, EM_SETPARAFORMAT, 0, &pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT2& pf)
{
    pf.cbSize = sizeof(PARAFORMAT2);
    return Ask<BOOL>(*this, EM_SETPARAFORMAT, 0, &pf);
}
