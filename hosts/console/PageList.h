#pragma once

#include <QorUI/QorUI.h>

/** The console's list of pages: one line a page, on the dialog background. */
class CPageList : public CListBox
{
  public:
    static constexpr int kRowHeight = 22; ///< pixels
    static constexpr int kMargin = 8;     ///< pixels left and right of a text

    /** Creates the list, empty. @param area place in the parent's client coordinates, pixels. */
    BOOL Create(CWnd* parent, const CRect& area, UINT id);

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;
};
