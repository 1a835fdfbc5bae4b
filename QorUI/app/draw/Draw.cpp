#include "Draw.h"

#include "GdiSavers.h"

#include <common/Owner.h>
#include <QorPub/QorPub.h>

#include <cstring>

namespace
{

constexpr COLORREF kBoxOuterLight = RGB(168, 168, 152);
constexpr COLORREF kBoxOuterDark = RGB(248, 252, 248);
constexpr COLORREF kBoxInnerLight = RGB(112, 108, 96);
constexpr COLORREF kBoxInnerDark = RGB(240, 236, 224);
constexpr COLOR16 kRuleBlue = 0xC800;
constexpr COLOR16 kRuleWhite = 0xFF00;

void DrawLine(HDC dc, POINT from, POINT to)
{
    ::MoveToEx(dc, from.x, from.y, nullptr);
    ::LineTo(dc, to.x, to.y);
}

/** Draws two lines that meet in a corner; nothing when there is no pen to be had. */
void DrawCorner(HDC dc, POINT corner, POINT oneEnd, POINT otherEnd, COLORREF colour)
{
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, colour);
    const SelectSaver select(dc, pen.GetSafeHandle());
    if (select) {
        DrawLine(dc, corner, oneEnd);
        DrawLine(dc, corner, otherEnd);
    }
}

void DrawEdge(HDC dc, const CRect& rect, COLORREF topLeft, COLORREF bottomRight)
{
    const POINT rightTop = {rect.right, rect.top};
    const POINT leftBottom = {rect.left, rect.bottom};
    DrawCorner(dc, {rect.left, rect.top}, rightTop, leftBottom, topLeft);
    DrawCorner(dc, {rect.right, rect.bottom}, rightTop, leftBottom, bottomRight);
}

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

void MoveToItem(const CWnd& control, const RECT* item, CPoint& point)
{
    point = item ? CRect(*item).CenterPoint() : CPoint(0, 0);
    ::ClientToScreen(control.m_hWnd, &point);
}

bool GivenByMouse(const CPoint& point)
{
    return point.x >= 0 && point.y >= 0;
}

} // namespace

void QorDrawBox(HDC dc, int x, int y, int cx, int cy, COLORREF fill)
{
    CRect rect(x, y, x + cx, y + cy);
    DrawEdge(dc, rect, kBoxOuterLight, kBoxOuterDark);
    rect.DeflateRect(1, 1);
    DrawEdge(dc, rect, kBoxInnerLight, kBoxInnerDark);
    rect.DeflateRect(1, 1);
    CBrush brush;
    if (brush.CreateSolidBrush(fill)) {
        ::FillRect(dc, &rect, brush);
    }
}

void QorDrawGradientLine(CDC* dc, CPoint start, int length)
{
    if (!dc) {
        return;
    }
    TRIVERTEX ends[] = {{start.x, start.y - 1, 0, 0, kRuleBlue, 0},
                        {start.x + length, start.y, kRuleWhite, kRuleWhite, kRuleWhite, 0}};
    GRADIENT_RECT rect = {0, 1};
    dc->GradientFill(ends, 2, &rect, 1, GRADIENT_FILL_RECT_H);
}

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

void QorGetTreePopupPoint(CTreeCtrl& tree, CPoint& point)
{
    if (GivenByMouse(point)) {
        return;
    }
    const HTREEITEM item = tree.GetSelectedItem();
    CRect rect;
    MoveToItem(tree, item && tree.GetItemRect(item, &rect, TRUE) ? &rect : nullptr, point);
}

void QorGetListPopupPoint(CListCtrl& list, CPoint& point)
{
    if (GivenByMouse(point)) {
        return;
    }
    const int item = list.GetNextItem(-1, LVNI_SELECTED);
    CRect rect;
    MoveToItem(list, item >= 0 && list.GetItemRect(item, &rect, LVIR_LABEL) ? &rect : nullptr, point);
}
