#pragma once

#include <QorUI/lists/FlatList.h>

/**
 * A flat list in which a cell with a text such as "45|Copying" is drawn as a progress bar with the label on it.
 *
 * The text before the bar is a percentage of one to three characters; every other text is drawn as it is.
 */
class QORUI_API CProgressList : public CFlatList
{
  protected:
    /** Draws a cell. @return CDRF_SKIPDEFAULT when it shows progress, else CDRF_DODEFAULT. */
    LRESULT DrawSubItem(NMLVCUSTOMDRAW* draw);

    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()
};
