#include "core/adopt.h"
#include "handlemaps.h"

#include <afxwin.h>

#include <string>

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace
{
HGDIOBJ HandleOf(const CGdiObject* pObject)
{
    return pObject != nullptr ? pObject->m_hObject : nullptr;
}

HDC HandleOf(const CDC* pDC)
{
    return pDC != nullptr ? pDC->m_hDC : nullptr;
}

HRGN RegionOf(const CRgn* pRgn)
{
    return static_cast<HRGN>(HandleOf(pRgn));
}

HBRUSH BrushOf(const CBrush* pBrush)
{
    return static_cast<HBRUSH>(HandleOf(pBrush));
}

HWND WindowOf(const CWnd* pWnd)
{
    return pWnd != nullptr ? pWnd->m_hWnd : nullptr;
}

// A state of a device context must be the same in the one that draws and the one that is asked.
template <class TResult, class TFunction>
TResult OnBoth(const CDC& dc, TResult failure, TFunction function)
{
    TResult result = failure;
    if (dc.m_hDC != nullptr && dc.m_hDC != dc.m_hAttribDC) {
        result = function(dc.m_hDC);
    }
    if (dc.m_hAttribDC != nullptr) {
        result = function(dc.m_hAttribDC);
    }
    return result;
}

template <class TStruct, class TFunction>
TStruct OnBothFill(const CDC& dc, TFunction function)
{
    TStruct former = {};
    OnBoth(dc, FALSE, [&](HDC hDC) { return function(hDC, &former); });
    return former;
}

constexpr int HIMETRIC_PER_INCH = 2540;

CGdiObject* SelectOnBoth(CDC& dc, HGDIOBJ hObject)
{
    if (hObject == nullptr) {
        return nullptr;
    }
    HGDIOBJ hFormer = OnBoth(dc, HGDIOBJ{nullptr}, [=](HDC hDC) { return ::SelectObject(hDC, hObject); });
    return CGdiObject::FromHandle(hFormer);
}

void SyncPosition(const CDC& dc)
{
    POINT point = {};
    if (dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC && ::GetCurrentPositionEx(dc.m_hDC, &point)) {
        ::MoveToEx(dc.m_hAttribDC, point.x, point.y, nullptr);
    }
}

void ConvertSize(HDC hDC, LPSIZE lpSize, BOOL(WINAPI* convert)(HDC, LPPOINT, int))
{
    if (lpSize == nullptr) {
        return;
    }
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    convert(hDC, points, 2);
    lpSize->cx = abs(points[1].x - points[0].x);
    lpSize->cy = abs(points[1].y - points[0].y);
}

CSize Density(HDC hDC)
{
    // Without a device the screen's density is the only sensible one, and never a division by zero.
    HDC hScreen = hDC == nullptr ? ::GetDC(nullptr) : nullptr;
    HDC hAsked = hDC == nullptr ? hScreen : hDC;
    const CSize density((std::max)(1, ::GetDeviceCaps(hAsked, LOGPIXELSX)),
                        (std::max)(1, ::GetDeviceCaps(hAsked, LOGPIXELSY)));
    if (hScreen != nullptr) {
        ::ReleaseDC(nullptr, hScreen);
    }
    return density;
}

CSize SizeFromLong(DWORD dwSize)
{
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

CSize ExtentOn(HDC hDC, LPCTSTR lpszString, int nCount)
{
    SIZE size = {};
    if (hDC != nullptr && lpszString != nullptr) {
        ::GetTextExtentPoint32(hDC, lpszString, nCount, &size);
    }
    return size;
}

std::wstring ModifiableText(const CString& str)
{
    // DT_MODIFYSTRING may add up to four characters.
    std::wstring text(str.GetString(), str.GetLength());
    text.append(5, L'\0');
    return text;
}

void MakeFrame(const CDC& dc, CRgn& frame, const RECT& rect, SIZE size)
{
    CRect outer(rect);
    CRect inner(rect);
    inner.DeflateRect(size);
    inner.IntersectRect(inner, outer);
    // Regions clip in device units.
    dc.LPtoDP(&outer);
    dc.LPtoDP(&inner);
    CRgn inside;
    inside.CreateRectRgnIndirect(&inner);
    frame.CreateRectRgnIndirect(&outer);
    frame.CombineRgn(&frame, &inside, RGN_DIFF);
}

void InvertFrame(CDC& dc, CRgn& frame, CBrush* pBrush)
{
    const int nSaved = dc.SaveDC();
    RECT box = {};
    // PatBlt takes logical units, in which the clip box comes back.
    dc.SelectClipRgn(&frame, RGN_AND);
    dc.GetClipBox(&box);
    dc.SelectObject(pBrush);
    dc.PatBlt(box.left, box.top, box.right - box.left, box.bottom - box.top, PATINVERT);
    dc.RestoreDC(nSaved);
}
} // namespace

CDC::~CDC()
{
    if (m_hDC != nullptr) {
        ::DeleteDC(Detach());
    }
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return AfxDcMap::FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap()
{
    return AfxDcMap::DeleteTemp();
}

BOOL CDC::Attach(HDC hDC)
{
    if (hDC == nullptr || m_hDC != nullptr) {
        return FALSE;
    }
    m_hDC = hDC;
    m_hAttribDC = hDC;
    m_bPrinting = ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASPRINTER;
    AfxDcMap::SetPermanent(hDC, this);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    if (hDC != nullptr) {
        AfxDcMap::Remove(hDC);
    }
    m_hDC = nullptr;
    m_hAttribDC = nullptr;
    m_bPrinting = FALSE;
    return hDC;
}

CDC::operator HDC() const
{
    return m_hDC;
}

HDC CDC::GetSafeHdc() const
{
    return m_hDC;
}

CWnd* CDC::GetWindow() const
{
    HWND hWnd = m_hDC != nullptr ? ::WindowFromDC(m_hDC) : nullptr;
    return hWnd != nullptr ? CWnd::FromHandle(hWnd) : nullptr;
}

BOOL CDC::IsPrinting() const
{
    return m_bPrinting;
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return AfxAdopt(*this,
                    ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return AfxAdopt(*this,
                    ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    // An empty object is not the screen: it is a failed call further up.
    if (pDC != nullptr && pDC->m_hDC == nullptr) {
        return FALSE;
    }
    return AfxAdopt(*this, ::CreateCompatibleDC(HandleOf(pDC)));
}

BOOL CDC::DeleteDC()
{
    HDC hDC = Detach();
    return hDC != nullptr && ::DeleteDC(hDC);
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hDC, lpRectBounds, flags);
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode)
{
    return m_hAttribDC != nullptr && lpDevMode != nullptr && ::ResetDC(m_hAttribDC, lpDevMode) != nullptr;
}

int CDC::SaveDC()
{
    const int nSaved = m_hAttribDC != nullptr ? ::SaveDC(m_hAttribDC) : 0;
    if (m_hDC == nullptr || m_hDC == m_hAttribDC) {
        return nSaved;
    }
    // Both are at the same depth; -1 takes back the newest of each.
    return ::SaveDC(m_hDC) != 0 ? -1 : 0;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    return OnBoth(*this, FALSE, [=](HDC hDC) { return ::RestoreDC(hDC, nSavedDC); });
}

CPoint CDC::GetBrushOrg() const
{
    POINT point = {};
    ::GetBrushOrgEx(m_hDC, &point);
    return point;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT point = {};
    ::SetBrushOrgEx(m_hDC, x, y, &point);
    return point;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return SelectOnBoth(*this, ::GetStockObject(nIndex));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return static_cast<CPen*>(SelectOnBoth(*this, HandleOf(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(SelectOnBoth(*this, HandleOf(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return static_cast<CFont*>(SelectOnBoth(*this, HandleOf(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return static_cast<CBitmap*>(SelectOnBoth(*this, HandleOf(pBitmap)));
}

int CDC::SelectObject(CRgn* pRgn)
{
    HRGN hRgn = RegionOf(pRgn);
    if (hRgn == nullptr) {
        return ERROR;
    }
    return OnBoth(*this, ERROR,
                  [=](HDC hDC) { return static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(hDC, hRgn))); });
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    return SelectOnBoth(*this, HandleOf(pObject));
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    return CPalette::FromHandle(::SelectPalette(m_hDC, static_cast<HPALETTE>(HandleOf(pPalette)), bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(*this, COLORREF{CLR_INVALID}, [=](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetPolyFillMode(hDC, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetStretchBltMode(hDC, nStretchMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(*this, COLORREF{CLR_INVALID}, [=](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return OnBoth(*this, FALSE, [=](HDC hDC) { return ::SetColorAdjustment(hDC, lpColorAdjust); });
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return ::SetDCBrushColor(m_hDC, crColor);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return ::SetDCPenColor(m_hDC, crColor);
}

int CDC::SetGraphicsMode(int iMode)
{
    return ::SetGraphicsMode(m_hDC, iMode);
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hDC);
}

BOOL CDC::SetWorldTransform(const XFORM* pXform)
{
    return ::SetWorldTransform(m_hDC, pXform);
}

BOOL CDC::ModifyWorldTransform(const XFORM* pXform, DWORD iMode)
{
    return ::ModifyWorldTransform(m_hDC, pXform, iMode);
}

BOOL CDC::GetWorldTransform(XFORM* pXform) const
{
    return ::GetWorldTransform(m_hDC, pXform);
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hDC);
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return ::SetLayout(m_hDC, dwLayout);
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

CPoint CDC::GetViewportOrg() const
{
    POINT point = {};
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return OnBothFill<POINT>(*this, [=](HDC hDC, POINT* pFormer) { return ::SetViewportOrgEx(hDC, x, y, pFormer); });
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return OnBothFill<POINT>(
        *this, [=](HDC hDC, POINT* pFormer) { return ::OffsetViewportOrgEx(hDC, nWidth, nHeight, pFormer); });
}

CSize CDC::GetViewportExt() const
{
    SIZE size = {};
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return OnBothFill<SIZE>(*this, [=](HDC hDC, SIZE* pFormer) { return ::SetViewportExtEx(hDC, cx, cy, pFormer); });
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return OnBothFill<SIZE>(
        *this, [=](HDC hDC, SIZE* pFormer) { return ::ScaleViewportExtEx(hDC, xNum, xDenom, yNum, yDenom, pFormer); });
}

CPoint CDC::GetWindowOrg() const
{
    POINT point = {};
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return OnBothFill<POINT>(*this, [=](HDC hDC, POINT* pFormer) { return ::SetWindowOrgEx(hDC, x, y, pFormer); });
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    return OnBothFill<POINT>(
        *this, [=](HDC hDC, POINT* pFormer) { return ::OffsetWindowOrgEx(hDC, nWidth, nHeight, pFormer); });
}

CSize CDC::GetWindowExt() const
{
    SIZE size = {};
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return OnBothFill<SIZE>(*this, [=](HDC hDC, SIZE* pFormer) { return ::SetWindowExtEx(hDC, cx, cy, pFormer); });
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return OnBothFill<SIZE>(
        *this, [=](HDC hDC, SIZE* pFormer) { return ::ScaleWindowExtEx(hDC, xNum, xDenom, yNum, yDenom, pFormer); });
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    ConvertSize(m_hAttribDC, lpSize, ::DPtoLP);
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    ConvertSize(m_hAttribDC, lpSize, ::LPtoDP);
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    if (lpSize == nullptr) {
        return;
    }
    const CSize density = Density(m_hAttribDC);
    lpSize->cx = ::MulDiv(lpSize->cx, HIMETRIC_PER_INCH, density.cx);
    lpSize->cy = ::MulDiv(lpSize->cy, HIMETRIC_PER_INCH, density.cy);
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    if (lpSize == nullptr) {
        return;
    }
    const CSize density = Density(m_hAttribDC);
    lpSize->cx = ::MulDiv(lpSize->cx, density.cx, HIMETRIC_PER_INCH);
    lpSize->cy = ::MulDiv(lpSize->cy, density.cy, HIMETRIC_PER_INCH);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    return ::InvertRgn(m_hDC, RegionOf(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, RegionOf(pRgn));
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return m_hDC != nullptr && ::PtVisible(m_hDC, x, y) == TRUE;
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return m_hDC != nullptr && lpRect != nullptr && ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    HRGN hRgn = RegionOf(pRgn);
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::SelectClipRgn(hDC, hRgn); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    HRGN hRgn = RegionOf(pRgn);
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::ExtSelectClipRgn(hDC, hRgn, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return lpRect != nullptr ? ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, WindowOf(pWnd));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return lpRect != nullptr ? IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom) : ERROR;
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, ERROR, [=](HDC hDC) { return ::OffsetClipRgn(hDC, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

BOOL CDC::SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}

CPoint CDC::GetCurrentPosition() const
{
    POINT point = {};
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    return OnBothFill<POINT>(*this, [=](HDC hDC, POINT* pFormer) { return ::MoveToEx(hDC, x, y, pFormer); });
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC != nullptr && m_hDC != m_hAttribDC) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const BOOL bOk = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    SyncPosition(*this);
    return bOk;
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    return ::AngleArc(m_hDC, x, y, nRadius, fStartAngle, fSweepAngle);
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return OnBoth(*this, 0, [=](HDC hDC) { return ::SetArcDirection(hDC, nArcDirection); });
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    const BOOL bOk = ::PolylineTo(m_hDC, lpPoints, nCount);
    SyncPosition(*this);
    return bOk;
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    const BOOL bOk = ::PolyBezierTo(m_hDC, lpPoints, nCount);
    SyncPosition(*this);
    return bOk;
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (m_hDC != nullptr && lpRect != nullptr && BrushOf(pBrush) != nullptr) {
        ::FillRect(m_hDC, lpRect, BrushOf(pBrush));
    }
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (m_hDC != nullptr && lpRect != nullptr && BrushOf(pBrush) != nullptr) {
        ::FrameRect(m_hDC, lpRect, BrushOf(pBrush));
    }
}

void CDC::InvertRect(LPCRECT lpRect)
{
    if (m_hDC != nullptr && lpRect != nullptr) {
        ::InvertRect(m_hDC, lpRect);
    }
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return ::DrawIcon(m_hDC, point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y, size.cx, size.cy,
                       nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, static_cast<HBITMAP>(HandleOf(pBitmap)), nFlags, BrushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y, size.cx, size.cy,
                       nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, BrushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen, HBRUSH hBrush)
{
    if (lpszText == nullptr) {
        return FALSE;
    }
    const UINT nType = bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText), nTextLen, pt.x, pt.y, size.cx,
                       size.cy, nFlags | nType);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, BrushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy, nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, BrushOf(pBrush));
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    if (m_hDC != nullptr && lpRect != nullptr) {
        ::DrawFocusRect(m_hDC, lpRect);
    }
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return lpRect != nullptr && ::Ellipse(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return lpRect != nullptr && ::Rectangle(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return lpRect != nullptr &&
           ::RoundRect(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return ::GetPixel(m_hDC, point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return ::SetPixel(m_hDC, point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, point.x, point.y, crColor);
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, maskBitmap, xMask, yMask, dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap& maskBitmap,
                 int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, HandleOf(pSrcDC), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask, yMask);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                         int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::GdiTransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                               nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::GdiAlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                           nSrcHeight, blend);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, str.GetString(), str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str.GetString(), str.GetLength(), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    return SizeFromLong(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions, int nTabOrigin)
{
    return TabbedTextOut(x, y, str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    if (m_hDC == nullptr || lpszString == nullptr || lpRect == nullptr) {
        return 0;
    }
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    if (!(nFormat & DT_MODIFYSTRING)) {
        return DrawText(str.GetString(), str.GetLength(), lpRect, nFormat);
    }
    std::wstring text = ModifiableText(str);
    return DrawText(text.c_str(), str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    if (m_hDC == nullptr || lpszString == nullptr || lpRect == nullptr) {
        return 0;
    }
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    std::wstring text = ModifiableText(str);
    return DrawTextEx(text.data(), str.GetLength(), lpRect, nFormat, lpDTParams);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    return ExtentOn(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return ExtentOn(m_hAttribDC, str.GetString(), str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    return ExtentOn(m_hDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return ExtentOn(m_hDC, str.GetString(), str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return SizeFromLong(::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return SizeFromLong(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str.GetString(), str.GetLength(), nTabPositions, lpnTabStopPositions);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                     int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, BrushOf(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBoth(*this, UINT{GDI_ERROR}, [=](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    const int nLength = ::GetTextFace(m_hAttribDC, 0, nullptr);
    if (nLength <= 0) {
        rString.Empty();
        return 0;
    }
    const int nGot = ::GetTextFace(m_hAttribDC, nLength, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
    return nGot;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hDC, lpMetrics);
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return OnBoth(*this, FALSE, [=](HDC hDC) { return ::SetTextJustification(hDC, nBreakExtra, nBreakCount); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return OnBoth(*this, int(0x80000000), [=](HDC hDC) { return ::SetTextCharacterExtra(hDC, nCharExtra); });
}

DWORD CDC::SetMapperFlags(DWORD dwFlag)
{
    return ::SetMapperFlags(m_hDC, dwFlag);
}

CSize CDC::GetAspectRatioFilter() const
{
    SIZE size = {};
    ::GetAspectRatioFilterEx(m_hDC, &size);
    return size;
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const
{
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}

BOOL CDC::GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}

BOOL CDC::GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const
{
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hDC);
}

DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hDC, pgiIn, cgi, lpSize);
}

DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}

int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, nPairs, lpkrnpair));
}

UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}

DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                           const MAT2* lpmat2) const
{
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return m_hDC != nullptr && lpRect != nullptr && ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return m_hDC != nullptr && lpRect != nullptr && ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate, LPRECT lpRectUpdate)
{
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, RegionOf(pRgnUpdate), lpRectUpdate);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO info = {};
    info.cbSize = sizeof(info);
    info.lpszDocName = lpszDocName;
    return StartDoc(&info);
}

int CDC::StartDoc(LPDOCINFO lpDocInfo)
{
    return lpDocInfo != nullptr ? ::StartDoc(m_hDC, lpDocInfo) : SP_ERROR;
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF)
{
    return ::PlayMetaFile(m_hDC, hMF);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

float CDC::GetMiterLimit() const
{
    float fLimit = 0;
    ::GetMiterLimit(m_hDC, &fLimit);
    return fLimit;
}

BOOL CDC::SetMiterLimit(float fMiterLimit)
{
    return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr);
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static constexpr WORD s_pattern[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
    static const HBRUSH s_hBrush = [] {
        CBitmap bitmap;
        bitmap.CreateBitmap(8, 8, 1, 1, s_pattern);
        return bitmap.m_hObject != nullptr ? ::CreatePatternBrush(bitmap) : nullptr;
    }();
    return CBrush::FromHandle(s_hBrush);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush, CBrush* pBrushLast)
{
    if (lpRect == nullptr) {
        return;
    }
    CBrush* pNew = pBrush != nullptr ? pBrush : GetHalftoneBrush();
    CBrush* pLast = pBrushLast != nullptr ? pBrushLast : pNew;
    CRgn newFrame;
    MakeFrame(*this, newFrame, *lpRect, size);
    if (lpRectLast == nullptr) {
        return InvertFrame(*this, newFrame, pNew);
    }
    CRgn lastFrame;
    MakeFrame(*this, lastFrame, *lpRectLast, sizeLast);
    if (BrushOf(pNew) != BrushOf(pLast)) {
        InvertFrame(*this, lastFrame, pLast);
        return InvertFrame(*this, newFrame, pNew);
    }
    // Drawing what differs only keeps the common part from flickering.
    CRgn changed;
    changed.CreateRectRgn(0, 0, 0, 0);
    changed.CombineRgn(&lastFrame, &newFrame, RGN_XOR);
    InvertFrame(*this, changed, pNew);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    if (m_hDC == nullptr || lpRect == nullptr) {
        return;
    }
    const COLORREF clrFormer = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrFormer);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (lpRect != nullptr) {
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
                   clrBottomRight);
    }
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (cx <= 0 || cy <= 0) {
        return;
    }
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(WindowOf(pWnd))
{
    // A window that does not exist any more must not turn into the screen.
    if ((pWnd != nullptr && m_hWnd == nullptr) || !Attach(::GetDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CClientDC::~CClientDC()
{
    if (m_hDC != nullptr) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(WindowOf(pWnd))
{
    if ((pWnd != nullptr && m_hWnd == nullptr) || !Attach(::GetWindowDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CWindowDC::~CWindowDC()
{
    if (m_hDC != nullptr) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(WindowOf(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) {
        AfxThrowResourceException();
    }
}

CPaintDC::~CPaintDC()
{
    if (m_hDC == nullptr) {
        return;
    }
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
