#pragma once

#include <afx/stdctrl.h>

/**
 * A list box whose items the user moves by dragging them. It must be unsorted with a single selection.
 *
 * The parent's messages come to the virtual functions; all points are in screen coordinates.
 */
class AFX_LIB CDragListBox : public CListBox
{
    DECLARE_DYNAMIC(CDragListBox)

  public:
    CDragListBox();

    /**
     * The item under a point.
     * @param bAutoScroll scrolls the list by a line when the point is above or below it.
     * @return its index; -1 when the point is over no item.
     */
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const;

    /** Draws the insertion mark before an item. @param nItem -1 removes the mark. */
    virtual void DrawInsert(int nItem);

    /** The button went down on an item. @return whether it may be dragged; TRUE here. */
    virtual BOOL BeginDrag(CPoint pt);
    /** The drag was given up with Escape or the right button. */
    virtual void CancelDrag(CPoint pt);
    /** The pointer moved. @return DL_MOVECURSOR, DL_COPYCURSOR, DL_STOPCURSOR, or DL_CURSORSET to leave it. */
    virtual UINT Dragging(CPoint pt);
    /** The button went up: moves the item before the one at the point; nothing happens elsewhere. */
    virtual void Dropped(int nSrcIndex, CPoint pt);

  protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  private:
    void ShowInsert(int nItem);

    int m_nInsert; // item with the mark, or -1
};
