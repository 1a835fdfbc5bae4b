#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A list box whose items the user can move by dragging, once that is enabled, and whose horizontal scroll range follows
 * its widest text. Subclassing makes it unsorted with a single selection.
 */
class QORUI_API CDragLB : public CDragListBox
{
  public:
    CDragLB();

    /** Lets the user move items, or not (as at the start). */
    void EnableDrag(BOOL enable);

    /** As `CListBox::AddString`. */
    int AddString(LPCWSTR text);

    /** As `CListBox::InsertString`. */
    int InsertString(int index, LPCWSTR text);

    /** As `CListBox::DeleteString`; the scroll range shrinks when it was the widest text. */
    int DeleteString(int index);

    /** Removes all items. The scroll range stays until the next text sets it. */
    void ResetContent();

  protected:
    /** Widens the scroll range when the text needs it. */
    void UpdateWidth(LPCWSTR text);

    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    int m_nMaxWidth; // of the widest text with its margin, pixels
    BOOL m_bEnableDrag;
};
