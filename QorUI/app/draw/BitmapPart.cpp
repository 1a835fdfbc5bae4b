#include "BitmapPart.h"

#include "GdiSavers.h"

#include <common/Owner.h>

void QorDrawBitmapPart(HDC dc, const RECT& to, HGDIOBJ bitmap, POINT from, COLORREF key)
{
    if (!bitmap) {
        return;
    }
    const own::MemoryDc memory(::CreateCompatibleDC(dc));
    const SelectSaver select(memory.Get(), bitmap);
    if (!select) {
        return;
    }
    const int width = to.right - to.left;
    const int height = to.bottom - to.top;
    if (key == CLR_NONE) {
        ::BitBlt(dc, to.left, to.top, width, height, memory.Get(), from.x, from.y, SRCCOPY);
    } else {
        ::GdiTransparentBlt(dc, to.left, to.top, width, height, memory.Get(), from.x, from.y, width, height, key);
    }
}
