#pragma once

#include <afxwin.h>

/** Draws a part of a line of text that is centred in an area, as in a progress bar. */
inline void DrawTextPart(HDC dc, const CRect& part, CRect area, const wchar_t* text, COLORREF colour)
{
    CRgn clip;
    clip.CreateRectRgnIndirect(&part);
    ::SelectClipRgn(dc, clip);
    ::SetTextColor(dc, colour);
    ::DrawTextW(dc, text, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    ::SelectClipRgn(dc, nullptr);
}
