#pragma once

#include <afx/str.h>
#include <afx/wnd.h>

/**
 * Loads the rich edit library, which registers the window class. `CRichEditCtrl::Create` does it by itself; a program
 * with a rich edit in a dialog template calls it before it opens the dialog.
 */
AFX_LIB BOOL AFXAPI AfxInitRichEdit2();
/** The same: there is one version of the class here. */
AFX_LIB BOOL AFXAPI AfxInitRichEdit();

/** Edits text with formats. Positions count characters; an end of -1 means the end of the text. */
class AFX_LIB CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

  public:
    CRichEditCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineCount() const;
    /** @param lpszBuffer its first word holds its size, in characters, at the call. @return characters copied; no zero
     *  follows them. */
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    /** @param nMaxLength size of the buffer, in characters. */
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    BOOL CanUndo() const;
    BOOL CanRedo() const;
    BOOL CanPaste(UINT nFormat = 0) const;
    BOOL Undo();
    BOOL Redo();
    void EmptyUndoBuffer();
    UINT SetUndoLimit(UINT nLimit);
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    CPoint GetCharPos(long lChar) const;
    CPoint PosFromChar(UINT nChar) const;
    int CharFromPos(CPoint pt) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    long LineFromChar(long nIndex) const;
    void LineScroll(int nLines, int nChars = 0);
    int GetFirstVisibleLine() const;
    long GetLimitText() const;
    void LimitText(long nChars = 0);
    long GetTextLength() const;
    long GetTextLengthEx(DWORD dwFlags, UINT uCodePage = 1200) const;

    void GetSel(CHARRANGE& cr) const;
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr);
    CString GetSelText() const;
    long GetSelText(LPTSTR lpBuf) const;
    WORD GetSelectionType() const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void HideSelection(BOOL bHide, BOOL bPerm);
    int GetTextRange(int nFirst, int nLast, CString& refString) const;
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const;
    DWORD FindWordBreak(UINT nCode, DWORD nStart) const;
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    void PasteSpecial(UINT nClipFormat, DWORD dvAspect = 0, HMETAFILE hMF = nullptr);

    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const;
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const;
    BOOL SetDefaultCharFormat(CHARFORMAT& cf);
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf);
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const;
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const;
    BOOL SetSelectionCharFormat(CHARFORMAT& cf);
    BOOL SetSelectionCharFormat(CHARFORMAT2& cf);
    BOOL SetWordCharFormat(CHARFORMAT& cf);
    BOOL SetWordCharFormat(CHARFORMAT2& cf);
    DWORD GetParaFormat(PARAFORMAT& pf) const;
    DWORD GetParaFormat(PARAFORMAT2& pf) const;
    BOOL SetParaFormat(PARAFORMAT& pf);
    BOOL SetParaFormat(PARAFORMAT2& pf);

    long GetEventMask() const;
    DWORD SetEventMask(DWORD dwEventMask);
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    void SetOptions(WORD wOp, DWORD dwFlags);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void RequestResize();
    BOOL SetTargetDevice(HDC hDC, long lLineWidth);
    BOOL SetTargetDevice(CDC& dc, long lLineWidth);
    /** @param nFormat SF_TEXT, SF_RTF, ... */
    long StreamIn(int nFormat, EDITSTREAM& es);
    long StreamOut(int nFormat, EDITSTREAM& es);
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE);
    UINT GetTextMode() const;
    BOOL SetTextMode(UINT fMode);
};
