#include "GrayCopy.h"

#include "GdiSavers.h"

#include <common/Owner.h>

namespace
{

COLORREF GrayOf(COLORREF pixel)
{
    const auto gray = static_cast<BYTE>(GetRValue(pixel) * 0.299 + GetGValue(pixel) * 0.587 + GetBValue(pixel) * 0.114);
    return RGB(gray, gray, gray);
}

void CopyGray(HDC target, HDC source, int width, int height)
{
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const COLORREF pixel = ::GetPixel(source, x, y);
            if (pixel != 0) {
                ::SetPixel(target, x, y, GrayOf(pixel));
            }
        }
    }
}

} // namespace

HBITMAP QorCreateGrayBmp(HBITMAP source)
{
    BITMAP header = {};
    if (::GetObjectType(source) != OBJ_BITMAP || ::GetObjectW(source, sizeof(header), &header) == 0) {
        return nullptr;
    }
    const own::DisplayDc screen(::GetDC(nullptr));
    const own::MemoryDc from(::CreateCompatibleDC(screen.Get()));
    const own::MemoryDc to(::CreateCompatibleDC(screen.Get()));
    if (!screen || !from || !to) {
        return nullptr;
    }
    CBitmap copy;
    copy.CreateBitmap(header.bmWidth, header.bmHeight, header.bmPlanes, header.bmBitsPixel, nullptr);
    {
        const SelectSaver selectSource(from.Get(), source);
        const SelectSaver selectCopy(to.Get(), copy.GetSafeHandle());
        if (!selectSource || !selectCopy) {
            return nullptr;
        }
        CopyGray(to.Get(), from.Get(), header.bmWidth, header.bmHeight);
    }
    return static_cast<HBITMAP>(copy.Detach());
}

HICON QorCreateGrayIcon(HICON source)
{
    ICONINFO info = {};
    if (!::GetIconInfo(source, &info)) {
        return nullptr;
    }
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    CBitmap gray;
    if (!gray.Attach(QorCreateGrayBmp(info.hbmColor))) {
        return nullptr;
    }
    info.hbmColor = gray;
    return ::CreateIconIndirect(&info);
}
