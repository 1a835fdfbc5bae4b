#pragma once

#include <QorUI/app/GdiSavers.h>
#include <QorUI/app/QorUIDef.h>

/** Measures texts in a list's own font. */
class CListMeasure
{
  public:
    explicit CListMeasure(CListBox& list);

    HDC Dc() const { return m_dc.m_hDC; }

    /** What every text needs beside itself, pixels. */
    int Margin() const { return m_margin; }

    /** Width of a text with its margin, pixels. */
    int Width(LPCWSTR text, int length) const;

  private:
    CClientDC m_dc;
    CSelectSaver m_font;
    int m_margin;
};

/**
 * Widens a list box's horizontal scroll range when a text needs it.
 * @param widest width of the widest text up to now, in pixels, with its margin.
 * @return the width of the widest text, this one included.
 */
int QorWidenList(CListBox& list, int widest, LPCWSTR text);

/** Sets the horizontal scroll range to what the list's texts need. @return the width of the widest one. */
int QorRefitList(CListBox& list);
