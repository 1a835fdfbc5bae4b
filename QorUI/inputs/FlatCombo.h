#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A combo box with a flat frame and drop-down button, and look-ups by item data.
 *
 * A box from a template or one that is taken over gets a selection field of 15 pixels; one that is created keeps that
 * of its font.
 */
class QORUI_API CFlatCombo : public CComboBox
{
  public:
    /** @return index of the first item with the data, -1 when there is none. */
    int FindItem(DWORD_PTR data);

    /** Removes the first item with the data. @return number of the items that remain, -1 when there is none. */
    int RemoveItem(DWORD_PTR data);

    /** Selects the first item with the data. @return its index, -1 when there is none. */
    int SelectItem(DWORD_PTR data);

    /** @return data of the selected item, or `fallback` when nothing is selected. */
    DWORD_PTR GetCurSelData(DWORD_PTR fallback);

  protected:
    void PreSubclassWindow() override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
