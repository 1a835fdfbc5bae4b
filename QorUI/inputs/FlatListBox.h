#pragma once

#include <QorUI/app/module/QorUIDef.h>
#include <QorUI/inputs/TextBound.h>

/** A list box with a flat border whose horizontal scroll range follows its widest text. */
class QORUI_API CFlatListBox : public CListBox
{
  public:
    CFlatListBox();

    /** As `CListBox::AddString`. */
    int AddString(LPCWSTR text);

    /** As `CListBox::InsertString`. */
    int InsertString(int index, LPCWSTR text);

    /** Replaces an item by a new one at the same place. @return its index; -1 when there is no such item. */
    int SetString(int index, LPCWSTR text);

    /** As `CListBox::DeleteString`; the scroll range shrinks when it was the widest text. */
    int DeleteString(int index);

    /** Removes all items. The scroll range stays until the next text sets it. */
    void ResetContent();

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()

  private:
    void UpdateWidth(LPCWSTR text);

    int m_nMaxWidth; // of the widest text with its margin, pixels
    TextBound m_bound;
};
