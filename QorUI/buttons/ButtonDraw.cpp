#include "ButtonDraw.h"

#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/look/Palette.h>

void QorDrawRounded(HDC dc, const RECT& rect, COLORREF line, HGDIOBJ brush)
{
    const SelectSaver selectPen(dc, ::GetStockObject(DC_PEN));
    const SelectSaver selectBrush(dc, brush ? brush : ::GetStockObject(NULL_BRUSH));
    const COLORREF oldLine = ::SetDCPenColor(dc, line);
    ::RoundRect(dc, rect.left, rect.top, rect.right, rect.bottom, QorLook::kButtonRound, QorLook::kButtonRound);
    ::SetDCPenColor(dc, oldLine);
}
