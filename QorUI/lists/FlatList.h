#pragma once

#include "FlatHdr.h"

/**
 * A report list with the library's look: soft background, full-row selection, flat header and border.
 *
 * It sorts nothing itself: the owner sorts the rows and then sets sort column and direction for display.
 */
class QORUI_API CFlatList : public CListCtrl
{
  public:
    CFlatList();
    ~CFlatList() override;

    /** The list's header; it has no window while the control has none. */
    CFlatHdr& GetFlatHdr() { return m_header; }

    /**
     * Text that is shown while the list has no rows. Does not repaint.
     * @param text not copied: the caller keeps it as long as the list can paint; null for none.
     */
    void SetEmptyText(LPCWSTR text) { m_lpszEmptyText = text; }

    /**
     * @param format LVCFMT_... of the alignment.
     * @param width pixels; -1 leaves it to the control.
     * @return index of the column; negative on failure.
     */
    int InsertColumn(int column, LPCWSTR heading, int format, int width);

    /** @return 0 also for a list without a header. */
    int GetColumnCount() const;

    /** @return the first row with this item data, -1 when there is none. */
    int FindItemData(LPARAM data) const;

    /**
     * Selects or deselects a row and leaves the focus.
     * @param row -1 means all rows.
     * @return FALSE when there is no such row.
     */
    BOOL SelectItem(int row, BOOL select);

    /** @return the first selected row, -1 when there is none. */
    int GetSelectedItem() const;

    /** Item data of the first selected row, or `defaultValue` when there is none. */
    DWORD_PTR GetSelectedData(DWORD_PTR defaultValue) const;

    /** As `CFlatHdr::GetSortColumn`. */
    int GetSortColumn(int* direction) const;

    /** As `CFlatHdr::SetSortColumn`; repaints the header, not the rows. */
    int SetSortColumn(int column, int direction);

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /** Shows the library's check boxes; leaves the control's own when they cannot be made. */
    void SetCheckImage();

    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg LRESULT OnSetListExStyle(WPARAM mask, LPARAM style);
    DECLARE_MESSAGE_MAP()

  private:
    void SetUp();
    void DrawEmptyText();
    HWND HeaderWindow() const;
    HIMAGELIST StateImages() const;
    HIMAGELIST SetStateImages(HIMAGELIST images);
    bool ReleaseCheckImage();

    CFlatHdr m_header;
    LPCWSTR m_lpszEmptyText;
};
