#pragma once

#include <afx/str.h>
#include <afx/wnd.h>

/**
 * @file
 * The plain controls. Each wraps one window class of the system; an operation on an object without a window does
 * nothing and returns 0. Owner-drawn controls get their DrawItem and related calls from the parent's messages.
 */

class CImageList;

/** A static text, picture or frame. */
class AFX_LIB CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

  public:
    CStatic() = default;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xffff);

    /** Each shows a picture that stays the caller's. @return the one shown before, or null. */
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HENHMETAFILE GetEnhMetaFile() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    /** Called for SS_OWNERDRAW; override it to draw. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** A push button, check box, radio button or group box. */
class AFX_LIB CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

  public:
    CButton() = default;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    /** @return BST_... */
    int GetCheck() const;
    void SetCheck(int nCheck);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    /** Each shows a picture that stays the caller's. @return the one shown before, or null. */
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();
    BOOL GetIdealSize(LPSIZE psize) const;
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const;
    BOOL SetTextMargin(LPRECT pmargin);
    BOOL GetTextMargin(LPRECT pmargin) const;
    BOOL SetNote(LPCTSTR lpszNote);
    UINT GetNoteLength() const;
    CString GetNote() const;
    /** Shows or hides the shield of commands that need more rights. @return the former icon. */
    HICON SetShield(BOOL fElevationRequired);
    BOOL SetDropDownState(BOOL fDropDown);
#if _WIN32_WINNT >= 0x0600
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo);
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const;
#endif

    /** Called for BS_OWNERDRAW; override it to draw. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** A list box. Indices count from 0; LB_ERR (-1) tells of a bad index. */
class AFX_LIB CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

  public:
    CListBox() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int InitStorage(int nItems, UINT nBytes);
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    DWORD GetListBoxInfo() const;

    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int GetSel(int nIndex) const;
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex);
    int GetAnchorIndex() const;
    int GetCaretIndex() const;
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);

    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    /** @p rString becomes empty for a bad index. */
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    void SetColumnWidth(int cxWidth);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops();
    /** One stop for every @p cxEachStop dialog units. */
    BOOL SetTabStops(const int& cxEachStop);
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;

    int AddString(LPCTSTR lpszItem);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    /** Searches from behind @p nStartAfter (-1: from the top) and goes round. */
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);

    /** For owner-drawn lists; drawing and measuring do nothing here, items compare as equal. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /** For LBS_WANTKEYBOARDINPUT. @return -2: handled; -1: the list's own handling; else it applies to that item. */
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** A combo box. Indices count from 0; CB_ERR (-1) tells of a bad index. */
class AFX_LIB CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

  public:
    CComboBox() = default;
    /** @param rect its height includes the dropped list. */
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int InitStorage(int nItems, UINT nBytes);
    void SetHorizontalExtent(UINT nExtent);
    UINT GetHorizontalExtent() const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    BOOL SetMinVisibleItems(int iMinVisible);
    int GetMinVisible() const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;

    /** Selection of the edit part: start in the low word, end in the high one. */
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);
    BOOL SetCueBanner(LPCTSTR lpszText);
    CString GetCueBanner() const;

    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    /** @p rString becomes empty for a bad index. */
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    /** @param nIndex -1 means the edit part. */
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;
    int SetExtendedUI(BOOL bExtended = TRUE);
    BOOL GetExtendedUI() const;
    /** @param lprect receives the dropped list's rectangle in screen coordinates. */
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetDroppedState() const;
    void ShowDropDown(BOOL bShowIt = TRUE);

    int AddString(LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);

    void Clear();
    void Copy();
    void Cut();
    void Paste();

    /** For owner-drawn boxes; drawing and measuring do nothing here, items compare as equal. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** An edit field. Positions count characters from 0. */
class AFX_LIB CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

  public:
    CEdit() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const;
    int GetLineCount() const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    /** Without repainting. */
    void SetRectNP(LPCRECT lpRect);
    /** Start in the low word, end in the high one. */
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    /** @param dwSelection start in the low word, end in the high one. */
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    /** @param nEndChar -1 with start 0 selects all; start -1 removes the selection. */
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    HLOCAL GetHandle() const;
    void SetHandle(HLOCAL hBuffer);
    void SetMargins(UINT nLeft, UINT nRight);
    /** Left margin in the low word, right one in the high word, in pixels. */
    DWORD GetMargins() const;
    void SetLimitText(UINT nMax);
    UINT GetLimitText() const;
    void LimitText(int nChars = 0);
    CPoint PosFromChar(UINT nChar) const;
    /** @return character in the low word, line in the high word. */
    int CharFromPos(CPoint pt) const;
    /** @param lpszBuffer not terminated by this call. @return characters copied. */
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    void EmptyUndoBuffer();
    BOOL FmtLines(BOOL bAddEOL);
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    int GetFirstVisibleLine() const;
    void SetPasswordChar(TCHAR ch);
    TCHAR GetPasswordChar() const;
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    /** The grey text of an empty field. @param fDrawWhenFocused TRUE keeps it while the field has the focus. */
    BOOL SetCueBanner(LPCTSTR lpszText, BOOL fDrawWhenFocused = FALSE);
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCTSTR lpszTitle, LPCTSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip();

    BOOL Undo();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
};

/** A scroll bar control. */
class AFX_LIB CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

  public:
    CScrollBar() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    /** @return the former position. */
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    /** Fills in the structure's size itself. */
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /** The greatest position that can be reached: the range less the page. */
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
};
