#pragma once

#include <common/Owner.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/module/QorUIDef.h>

/** Measures texts in a list's own font. */
class ListMeasure
{
  public:
    explicit ListMeasure(CListBox& list);

    /** Null when the system gives none, and then nothing can be measured. */
    HDC Dc() const { return m_dc.Get(); }

    /** What every text needs beside itself, pixels. */
    int Margin() const { return m_margin; }

    /** Width of a text with its margin, pixels. */
    int Width(LPCWSTR text, int length) const;

  private:
    own::DisplayDc m_dc;
    SelectSaver m_font;
    int m_margin;
};

/**
 * Widens a list box's horizontal scroll range when a text needs it.
 * @param widest width of the widest text up to now, in pixels, with its margin.
 * @return the width of the widest text, this one included.
 */
int QorWidenList(CListBox& list, int widest, LPCWSTR text);

/**
 * Sets the horizontal scroll range to what the list's texts need.
 * @param former width of the widest text before, which stays when the texts cannot be measured.
 * @return the width of the widest one.
 */
int QorRefitList(CListBox& list, int former);

/** @return width of the widest text of a list that is taken over, as its scroll range tells it. */
int QorWidestOf(const CListBox& list);
