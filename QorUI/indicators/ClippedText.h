#pragma once

#include <QorUI/app/draw/GdiSavers.h>

#include <afxwin.h>

/**
 * Draws a part of a centred line of text.
 * @param clip the part to draw. @param area what the text is centred in.
 */
inline void QorDrawClippedText(HDC dc, const CString& text, const CRect& clip, const CRect& area, COLORREF colour)
{
    const DcStateSaver saver(dc);
    ::IntersectClipRect(dc, clip.left, clip.top, clip.right, clip.bottom);
    ::SetTextColor(dc, colour);
    ::SetBkMode(dc, TRANSPARENT);
    CRect place(area);
    ::DrawTextW(dc, text, text.GetLength(), &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
