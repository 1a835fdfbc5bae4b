#pragma once

#include <afx/array.h>
#include <afx/stdctrl.h>

/**
 * A list box with a check box before each item.
 *
 * The window needs LBS_HASSTRINGS and LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE. The boxes are drawn by the class;
 * their states belong to it too, so that the items' data stay the program's. A click on a box or the space bar changes
 * it and sends CLBN_CHKCHANGE to the parent; boxes of disabled items do not change by mouse and keyboard.
 */
class AFX_LIB CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

  public:
    CCheckListBox();
    /** @param dwStyle without an owner-drawn kind, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS are added. */
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    /**
     * @param nStyle BS_AUTOCHECKBOX (the start) and BS_AUTO3STATE change by themselves; BS_CHECKBOX and BS_3STATE only
     *               notify the parent, which changes them.
     */
    void SetCheckStyle(UINT nStyle);
    UINT GetCheckStyle() const;
    /** @param nCheck BST_...; BST_INDETERMINATE needs a style with three states. A bad index does nothing. */
    void SetCheck(int nIndex, int nCheck);
    /** @return BST_...; BST_UNCHECKED for a bad index. */
    int GetCheck(int nIndex) const;
    /** Sets the boxes of all selected items that are enabled. */
    void SetSelectionCheck(int nCheck);
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    /** @return FALSE for a bad index. */
    BOOL IsEnabled(int nIndex) const;

    /**
     * Places an item's box.
     * @param rectItem the item. @param rectCheckBox where the box stands by itself.
     * @return where it shall stand, all in client coordinates.
     */
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);
    /** Least height that has room for the box and a line of text, in pixels. */
    virtual int CalcMinimumItemHeight();

    /** Draws the item beside its box; the box is drawn already. */
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnEnable(BOOL bEnable);
    DECLARE_MESSAGE_MAP()

  private:
    struct Box
    {
        int nCheck = BST_UNCHECKED;
        BOOL bEnabled = TRUE;
    };

    bool IsItem(int nIndex) const;
    bool IsSelected(int nIndex) const;
    bool HasManySelections() const;
    Box BoxOf(int nIndex) const;
    Box& ChangeBoxOf(int nIndex);
    void FollowChange(UINT message, WPARAM wParam, LRESULT lResult, int nCountBefore);
    void InvalidateItem(int nIndex);
    void ApplyItemHeight();

    CRect BoxRect(const CRect& rectItem);
    CRect BoxRectOf(int nIndex);
    int BoxFromPoint(CPoint point);
    int NextCheck(int nCheck) const;
    void ClickBox(int nIndex);
    void Toggle(int nIndex);
    void NotifyChange();

    void PreDrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    void DrawBox(CDC& dc, const CRect& rect, const Box& box) const;

    UINT m_nCheckStyle;
    CArray<Box> m_boxes; // of the first items; those behind have never been changed
};
