#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A flat column header with a sort arrow.
 *
 * It sorts nothing: sort column and direction are what it shows, and the owner sets them after it has sorted.
 */
class QORUI_API CFlatHdr : public CHeaderCtrl
{
  public:
    CFlatHdr();

    /**
     * Repaints at once in other colours.
     * @param background colour of the items. @param line colour of separators, bottom line and sort arrow.
     */
    void SetColor(COLORREF background, COLORREF line);

    /** Makes all present items drawn by this object. */
    void SetOwnerDraw();

    /** @param direction receives non-zero for ascending, 0 for descending; may be null. @return -1 for none. */
    int GetSortColumn(int* direction) const;

    /** Repaints at once. @param column -1 for none. @param direction 0 for descending. @return the former column. */
    int SetSortColumn(int column, int direction);

    /** @return the item's value, 0 when there is no such item. */
    DWORD_PTR GetItemData(int item) const;

    /** Keeps a value with an item. @return FALSE when there is no such item. */
    BOOL SetItemData(int item, DWORD_PTR data);

  protected:
    void DrawItem(LPDRAWITEMSTRUCT draw) override;
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

  private:
    friend class CFlatList;

    void SetOwnerDraw(int index);
    void DrawItemText(HDC dc, const DRAWITEMSTRUCT& draw, bool sorted) const;
    void DrawItemLines(HDC dc, const RECT& rect) const;
    void PaintInto(CDC& dc);
    void FillRest(CDC& dc) const;

    int m_nSortColumn;
    int m_nSortDirection; // non-zero: ascending
    CRect m_rcLast;       // of the item drawn last
    COLORREF m_clrBack;
    COLORREF m_clrLine;
};
