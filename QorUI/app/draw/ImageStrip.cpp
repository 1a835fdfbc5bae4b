#include "ImageStrip.h"

#include <QorPub/QorPub.h>

#include <cstring>

namespace
{

/** Whether a bitmap resource has no extent: loaded, it turns into a bitmap of one pixel. */
bool IsWithoutPixels(HINSTANCE module, UINT id)
{
    DWORD size = 0;
    const void* data = QorLoadResource(module, MAKEINTRESOURCEW(id), RT_BITMAP, size);
    BITMAPINFOHEADER header = {};
    if (!data || size < sizeof(header)) {
        return false;
    }
    std::memcpy(&header, data, sizeof(header));
    return header.biSize >= sizeof(header) && (header.biWidth == 0 || header.biHeight == 0);
}

} // namespace

int QorCreateImageList(CImageList& list, UINT bitmapId, HINSTANCE inst, COLORREF mask, UINT* imageSize)
{
    const HINSTANCE module = inst ? inst : ::GetModuleHandleW(nullptr);
    CBitmap strip;
    if (!strip.Attach(::LoadBitmapW(module, MAKEINTRESOURCEW(bitmapId)))) {
        return 0;
    }
    BITMAP header = {};
    strip.GetBitmap(&header);
    if (header.bmWidth == 0 || header.bmHeight == 0 || IsWithoutPixels(module, bitmapId)) {
        return 0;
    }
    const int size = header.bmHeight;
    if (!list.Create(size, size, ILC_COLORDDB | ILC_MASK, header.bmWidth / size, 1)) {
        return 0;
    }
    if (imageSize) {
        *imageSize = static_cast<UINT>(size);
    }
    list.Add(&strip, mask);
    return list.GetImageCount();
}
