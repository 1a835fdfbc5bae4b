#pragma once

#include <afx/oledate.h>
#include <afx/rect.h>
#include <afx/str.h>
#include <afx/wnd.h>

/**
 * @file
 * The common controls. Each wraps one window class of the system; an operation
 * on an object without a window does nothing and returns 0. Image lists that
 * are given to a control stay the caller's; those it returns are borrowed.
 * Owner-drawn controls get their DrawItem call from the parent's message.
 */

class CEdit;
class CHeaderCtrl;
class CImageList;
class CToolTipCtrl;

/** A list of items as icons or as rows with columns. Indices count from 0; -1
 * tells of a failure. */
class AFX_LIB CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

  public:
    CListCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    COLORREF GetOutlineColor() const;
    COLORREF SetOutlineColor(COLORREF color);
    DWORD GetExtendedStyle() const;
    /** @return the former extended style. */
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    DWORD GetView() const;
    DWORD SetView(int iView);
    /** @param nImageListType LVSIL_... @return the former list, or null. */
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    CImageList* GetImageList(int nImageListType) const;
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const;
    BOOL SetBkImage(LVBKIMAGE* plvbkImage);
    BOOL SetBkImage(HBITMAP hbm, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);

    int GetItemCount() const;
    /** Says how many items will come. */
    void SetItemCount(int nItems);
    /** The number of items of a list whose data stays with the owner
     * (LVS_OWNERDATA). */
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam, int nIndent);
    /** @return the item's index, -1 on failure. */
    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    /** @return the whole text; empty for a bad index. */
    CString GetItemText(int nItem, int nSubItem) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    /** @return the value of the item, 0 for a bad index. */
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, LVITEM* pItem);
    /** @param nItem -1 means all items. */
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    /** @param nItem -1 begins at the top. @param nFlags LVNI_... @return -1 when
     * there is no further one. */
    int GetNextItem(int nItem, int nFlags) const;
    /** @return where GetNextSelectedItem begins; null when nothing is selected.
     */
    POSITION GetFirstSelectedItemPosition() const;
    /** @return the item at the position, which moves on and is null after the
     * last one; -1 for a null position. */
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetSelectedCount() const;
    int GetSelectionMark();
    int SetSelectionMark(int iIndex);
    /** @param nStart -1 begins at the top; the search begins behind it. */
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    /** Sorts by the items' values; @p pfnCompare gets two of them and @p dwData.
     */
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    /** Sorts by index: @p pfnCompare gets two indices and @p dwData. */
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    UINT MapIndexToID(UINT index) const;
    UINT MapIDToIndex(UINT id) const;
    CString GetISearchString() const;

    /** @param nCode LVIR_... */
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    BOOL GetOrigin(LPPOINT lpPoint) const;
    BOOL GetViewRect(LPRECT lpRect) const;
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    /** @param iCount rows to make room for, -1 for all. */
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo);
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL IsItemVisible(int nItem) const;
    int GetTopIndex() const;
    int GetCountPerPage() const;
    int GetHotItem();
    int SetHotItem(int iIndex);
    HCURSOR GetHotCursor();
    HCURSOR SetHotCursor(HCURSOR hc);
    DWORD GetHoverTime() const;
    /** @param dwHoverTime milliseconds, (DWORD)-1 for the system's. @return the
     * former time. */
    DWORD SetHoverTime(DWORD dwHoverTime = static_cast<DWORD>(-1));
    BOOL Scroll(CSize size);
    BOOL RedrawItems(int nFirst, int nLast);
    BOOL Update(int nItem);
    BOOL Arrange(UINT nCode);
    int GetStringWidth(LPCTSTR lpsz) const;
    CEdit* EditLabel(int nItem);
    CEdit* GetEditControl() const;
    void CancelEditLabel();
    /** @return a list with the item's picture that the caller deletes; null on
     * failure. */
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);

    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    /** @return the column's index, -1 on failure. */
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    /** @param nWidth pixels, -1 leaves it open. @param nSubItem -1 leaves it
     * open. */
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    int GetColumnWidth(int nCol) const;
    /** @param cx pixels, or LVSCW_... */
    BOOL SetColumnWidth(int nCol, int cx);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);
    /** @param iCount -1 means all columns. */
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1) const;
    int GetSelectedColumn() const;
    void SetSelectedColumn(int iCol);
    CHeaderCtrl* GetHeaderCtrl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);

    LRESULT EnableGroupView(BOOL fEnable);
    BOOL IsGroupViewEnabled() const;
    LRESULT InsertGroup(int index, PLVGROUP pgrp);
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp);
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const;
    LRESULT RemoveGroup(int iGroupId);
    void RemoveAllGroups();
    BOOL HasGroup(int iGroupId) const;
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi);
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const;
    BOOL SetTileInfo(PLVTILEINFO pti);
    BOOL GetTileInfo(PLVTILEINFO plvti) const;
    BOOL SetInsertMark(LPLVINSERTMARK plvim);
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const;
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const;
    int GetInsertMarkRect(LPRECT pRect) const;
    COLORREF SetInsertMarkColor(COLORREF color);
    COLORREF GetInsertMarkColor() const;
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect);
    void GetWorkAreas(int nWorkAreas, LPRECT prc) const;
    UINT GetNumberOfWorkAreas() const;

    /** Called for LVS_OWNERDRAWFIXED; override it to draw. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** The row of column headings over a list. */
class AFX_LIB CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

  public:
    CHeaderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    /** @return the item's index, -1 on failure. */
    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL GetItemDropDownRect(int iItem, LPRECT lpRect) const;
    BOOL GetOverflowRect(LPRECT lpRect) const;
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int OrderToIndex(int nOrder) const;
    /** @param iCount -1 means all items. */
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);
    int GetBitmapMargin() const;
    int SetBitmapMargin(int nWidth);
    int GetFocusedItem() const;
    BOOL SetFocusedItem(int iItem);
    int EditFilter(int nColumn, BOOL bDiscardChanges);
    int ClearFilter(int nColumn);
    int ClearAllFilters();
    int SetFilterChangeTimeout(DWORD dwTimeOut);
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    /** @return a list with the item's picture that the caller deletes; null on
     * failure. */
    CImageList* CreateDragImage(int nIndex);
    int HitTest(LPHDHITTESTINFO phdhti);

    /** Called for items of the format HDF_OWNERDRAW; override it to draw. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** A tree of items. */
class AFX_LIB CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

  public:
    CTreeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetCount() const;
    UINT GetIndent() const;
    void SetIndent(UINT nIndent);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles);
    CImageList* GetImageList(UINT nImageList) const;
    /** @param nImageListType TVSIL_... @return the former list, or null. */
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    COLORREF GetLineColor() const;
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE);
    SHORT GetItemHeight() const;
    /** @param cyHeight pixels, -1 for the standard one. @return the former
     * height. */
    SHORT SetItemHeight(SHORT cyHeight);
    UINT GetScrollTime() const;
    UINT SetScrollTime(UINT uScrollTime);

    /** @param nCode TVGN_... */
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetLastVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    HTREEITEM GetRootItem() const;

    BOOL GetItem(TVITEM* pItem) const;
    BOOL SetItem(TVITEM* pItem);
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    /** @return the whole text; empty for a bad item. */
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;

    /** @return the new item, or null. */
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState, UINT nStateMask,
                         LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem);
    BOOL DeleteAllItems();
    /** @param nCode TVE_... */
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    BOOL Select(HTREEITEM hItem, UINT nCode);
    /** @param hItem null removes the selection. */
    BOOL SelectItem(HTREEITEM hItem);
    BOOL SelectDropTarget(HTREEITEM hItem);
    BOOL SelectSetFirstVisible(HTREEITEM hItem);
    BOOL EnsureVisible(HTREEITEM hItem);
    BOOL SortChildren(HTREEITEM hItem);
    BOOL SortChildrenCB(LPTVSORTCB pSort);
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    UINT GetVisibleCount() const;
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancel);
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    /** @return a list with the item's picture that the caller deletes; null on
     * failure. */
    CImageList* CreateDragImage(HTREEITEM hItem);
    UINT MapItemToAccID(HTREEITEM htreeitem) const;
    HTREEITEM MapAccIDToItem(UINT uAccID) const;
};

/** A row of tabs. Indices count from 0; -1 tells of a failure. */
class AFX_LIB CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

  public:
    CTabCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    void RemoveImage(int nImage);
    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    /** @return the tab's index, -1 on failure. */
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    int SetCurSel(int nItem);
    int GetCurFocus() const;
    void SetCurFocus(int nItem);
    /** @return the former size. */
    CSize SetItemSize(CSize size);
    BOOL SetItemExtra(int nBytes);
    int SetMinTabWidth(int cx);
    void SetPadding(CSize size);
    int GetRowCount() const;
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);
    void DeselectAll(BOOL fExcludeFocus);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    /** @param bLarger TRUE: from the page's rectangle to the window's; FALSE: the
     * other way. */
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);

    /** Called for TCS_OWNERDRAWFIXED; override it to draw. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/** A pair of arrows that step a value. */
class AFX_LIB CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

  public:
    CSpinButtonCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    /** @param nBase 10 or 16. @return the former one, 0 when refused. */
    int SetBase(int nBase);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    /** 16-bit positions. @return the former one. */
    int SetPos(int nPos);
    int GetPos() const;
    int SetPos32(int nPos);
    /** @param lpbError receives TRUE when the buddy shows no valid number; may be
     * null. */
    int GetPos32(LPBOOL lpbError = nullptr) const;
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    /** Upper end in the low word, lower end in the high one. */
    DWORD GetRange() const;
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
};

/** A track with a thumb. */
class AFX_LIB CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

  public:
    CSliderCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetPos() const;
    void SetPos(int nPos);
    int GetRangeMin() const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    int GetRangeMax() const;
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void GetRange(int& nMin, int& nMax) const;
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void ClearSel(BOOL bRedraw = FALSE);
    int GetLineSize() const;
    int SetLineSize(int nSize);
    int GetPageSize() const;
    int SetPageSize(int nSize);
    void SetTicFreq(int nFreq);
    BOOL SetTic(int nTic);
    UINT GetNumTics() const;
    int GetTic(int nTic) const;
    int GetTicPos(int nTic) const;
    DWORD* GetTicArray() const;
    void ClearTics(BOOL bRedraw = FALSE);
    void GetChannelRect(LPRECT lprc) const;
    void GetThumbRect(LPRECT lprc) const;
    int GetThumbLength() const;
    void SetThumbLength(int nLength);
    /** Moves the thumb back into the range when it is outside. */
    void VerifyPos();
    /** @param fLocation TRUE: left or above. @return the former buddy, borrowed.
     */
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation);
};

/** A bar that fills while something goes on. */
class AFX_LIB CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

  public:
    CProgressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const;
    /** @return the former position. */
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int SetStep(int nStep);
    int GetStep() const;
    int StepIt();
    COLORREF SetBkColor(COLORREF clrNew);
    COLORREF GetBkColor() const;
    COLORREF SetBarColor(COLORREF clrBar);
    COLORREF GetBarColor() const;
    /** @param iState PBST_... @return the former state. */
    int SetState(int iState);
    int GetState() const;
    /** @param nInterval milliseconds between two steps, 0 for the system's. */
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
};

/** What is known about a tool, with room for its text. */
struct CToolInfo : public TOOLINFO
{
    TCHAR szText[256]; ///< Where lpszText of a filled object points.
};

/**
 * Windows with a short explanation of what is under the mouse. A tool is a
 * whole window (tool id 0) or an area of a window with an id of its own; every
 * call names it the same way.
 */
class AFX_LIB CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

  public:
    CToolTipCtrl() = default;
    /** @param pParentWnd owner; may be null. @param dwStyle TTS_... */
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    void Activate(BOOL bActivate);
    /**
     * @param nIDText string resource, searched through the resource chain.
     * @param lpRectTool area in the window's coordinates, needed with an id; null
     * for a whole window.
     */
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    /** @param lpszText is copied; LPSTR_TEXTCALLBACK asks with TTN_NEEDTEXT each
     * time. */
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    /** @p str becomes empty when there is no such tool. */
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    /** Tells where an area tool is now. */
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetToolCount() const;
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    /** Passes a mouse message on, so that tips come and go. */
    void RelayEvent(LPMSG lpMsg);
    /** @param dwDuration TTDT_... @return milliseconds. */
    int GetDelayTime(DWORD dwDuration) const;
    void SetDelayTime(UINT nDelay);
    void SetDelayTime(DWORD dwDuration, int iTime);
    /** @param iWidth pixels after which a tip breaks into lines; -1 for none.
     * @return the former width. */
    int SetMaxTipWidth(int iWidth);
    int GetMaxTipWidth() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipBkColor() const;
    void SetTipTextColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetMargin(LPRECT lprc);
    void GetMargin(LPRECT lprc) const;
    /** @param uIcon TTI_... or an icon handle. */
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle);
    void GetTitle(PTTGETTITLE pttgt) const;
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE);
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    void TrackActivate(LPTOOLINFO lpToolInfo, BOOL bActivate);
    void TrackPosition(CPoint pt);
    void Pop();
    void Popup();
    void Update();

    /** Names a tool the way the other calls do. @return FALSE without a window.
     */
    static BOOL FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool);
};

/** Plays a silent animation. */
class AFX_LIB CAnimateCtrl : public CWnd
{
    DECLARE_DYNAMIC(CAnimateCtrl)

  public:
    CAnimateCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /** @param lpszFileName file or resource name. */
    BOOL Open(LPCTSTR lpszFileName);
    /** @param nID resource of the type "AVI", searched through the resource
     * chain. */
    BOOL Open(UINT nID);
    /** @param nTo last frame, (UINT)-1 for the end. @param nRep repetitions,
     * (UINT)-1 for ever. */
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep);
    BOOL Stop();
    BOOL Seek(UINT nTo);
    BOOL Close();
    BOOL IsPlaying() const;
};

/** Picks a date or a time of day. */
class AFX_LIB CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)

  public:
    CDateTimeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /** @return GDT_VALID, GDT_NONE when "no date" is chosen, GDT_ERROR on
     * failure. */
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
    /** @param pTimeNew null chooses "no date". */
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
    /** @return FALSE on failure; "no date" gives a null date and TRUE. */
    BOOL GetTime(COleDateTime& timeDest) const;
    /** @param timeNew a null date chooses "no date"; an invalid one is refused.
     */
    BOOL SetTime(const COleDateTime& timeNew);
    BOOL SetFormat(LPCTSTR pstrFormat);
    COLORREF GetMonthCalColor(int iColor) const;
    COLORREF SetMonthCalColor(int iColor, COLORREF ref);
    HFONT GetMonthCalFont() const;
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE);
    /** @param pRange two times, receives the least and the greatest. @return
     * GDTR_... of those that are set. */
    DWORD GetRange(SYSTEMTIME* pRange) const;
    BOOL SetRange(DWORD dwFlags, SYSTEMTIME* pRange);
    /** Gives null dates for the ends that are open; either pointer may be null.
     */
    DWORD GetRange(COleDateTime* pMinTime, COleDateTime* pMaxTime) const;
    /** A null pointer or date leaves that end open; an invalid date is refused.
     */
    BOOL SetRange(const COleDateTime* pMinTime, const COleDateTime* pMaxTime);
    BOOL GetIdealSize(LPSIZE psize) const;
    void CloseMonthCal();
};

/** Takes a combination of keys. */
class AFX_LIB CHotKeyCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHotKeyCtrl)

  public:
    CHotKeyCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /** @param wModifiers HOTKEYF_... */
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    /** Key in the low byte of the low word, modifiers in its high byte. */
    DWORD GetHotKey() const;
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const;
    /** @param wInvalidComb HKCOMB_... that are refused. @param wModifiers what
     * they are replaced by. */
    void SetRules(WORD wInvalidComb, WORD wModifiers);
    /** Name of the combination in the language of the keyboard, such as "Ctrl +
     * F5". */
    CString GetHotKeyName() const;
    static CString PASCAL GetKeyName(UINT vk, BOOL fExtended);
};

/** Takes an address of four numbers. */
class AFX_LIB CIPAddressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CIPAddressCtrl)

  public:
    CIPAddressCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL IsBlank() const;
    void ClearAddress();
    /** @return number of fields that are not blank. */
    int GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const;
    int GetAddress(DWORD& dwAddress) const;
    void SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3);
    void SetAddress(DWORD dwAddress);
    void SetFieldFocus(WORD nField);
    void SetFieldRange(int nField, BYTE nLower, BYTE nUpper);
};
