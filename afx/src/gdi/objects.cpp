#include "core/adopt.h"
#include "handlemaps.h"

#include <afxwin.h>

#include <string>
#include <vector>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
HGDIOBJ HandleOf(const CGdiObject* pObject)
{
    return pObject != nullptr ? pObject->m_hObject : nullptr;
}

HRGN RegionOf(const CRgn* pRgn)
{
    return static_cast<HRGN>(HandleOf(pRgn));
}
} // namespace

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject::operator HGDIOBJ() const
{
    return m_hObject;
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return AfxGdiMap::FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    return AfxGdiMap::DeleteTemp();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (hObject == nullptr || m_hObject != nullptr) {
        return FALSE;
    }
    m_hObject = hObject;
    AfxGdiMap::SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ hObject = m_hObject;
    if (hObject != nullptr) {
        AfxGdiMap::Remove(hObject);
    }
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    HGDIOBJ hObject = Detach();
    return hObject != nullptr && ::DeleteObject(hObject);
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return m_hObject != nullptr ? ::GetObject(m_hObject, nCount, lpObject) : 0;
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return m_hObject != nullptr && ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const
{
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const
{
    return m_hObject != obj.m_hObject;
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor)) {
        AfxThrowResourceException();
    }
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle)) {
        AfxThrowResourceException();
    }
}

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen));
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(m_hObject);
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return AfxAdopt(*this, ::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (pLogBrush == nullptr) {
        return FALSE;
    }
    return AfxAdopt(*this, ::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return lpLogPen != nullptr && AfxAdopt(*this, ::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen)
{
    return GetObject(sizeof(LOGPEN), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    const int nSize = GetObject(0, nullptr);
    if (pLogPen == nullptr || nSize <= 0) {
        return 0;
    }
    // A cosmetic pen's dash list makes the description longer than the structure.
    std::vector<BYTE> data(nSize);
    const int nGot = GetObject(nSize, data.data());
    const int nCopy = (std::min)(nGot, static_cast<int>(sizeof(EXTLOGPEN)));
    memcpy(pLogPen, data.data(), nCopy);
    return nCopy;
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor)) {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap)) {
        AfxThrowResourceException();
    }
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(m_hObject);
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return AfxAdopt(*this, ::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return AfxAdopt(*this, ::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return lpLogBrush != nullptr && AfxAdopt(*this, ::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    HBITMAP hBitmap = static_cast<HBITMAP>(HandleOf(pBitmap));
    return hBitmap != nullptr && AfxAdopt(*this, ::CreatePatternBrush(hBitmap));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    const void* pDIB = hPackedDIB != nullptr ? ::GlobalLock(hPackedDIB) : nullptr;
    if (pDIB == nullptr) {
        return FALSE;
    }
    const BOOL bOk = CreateDIBPatternBrush(pDIB, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return bOk;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return lpPackedDIB != nullptr && AfxAdopt(*this, ::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return Attach(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return GetObject(sizeof(LOGBRUSH), pLogBrush);
}

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

CFont::operator HFONT() const
{
    return static_cast<HFONT>(m_hObject);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return lpLogFont != nullptr && AfxAdopt(*this, ::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return AfxAdopt(*this,
                    ::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                 nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT logFont = {};
    logFont.lfHeight = nPointSize;
    logFont.lfCharSet = DEFAULT_CHARSET;
    if (lpszFaceName != nullptr) {
        lstrcpyn(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    }
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    if (lpLogFont == nullptr) {
        return FALSE;
    }
    HDC hScreen = pDC != nullptr ? nullptr : ::GetDC(nullptr);
    HDC hDC = pDC != nullptr ? pDC->m_hAttribDC : hScreen;
    // Through logical units, so that a mapping mode of the caller's device counts.
    POINT size = {0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), lpLogFont->lfHeight, 720)};
    POINT origin = {0, 0};
    ::DPtoLP(hDC, &size, 1);
    ::DPtoLP(hDC, &origin, 1);
    if (hScreen != nullptr) {
        ::ReleaseDC(nullptr, hScreen);
    }
    LOGFONT logFont = *lpLogFont;
    logFont.lfHeight = -abs(size.y - origin.y);
    return CreateFontIndirect(&logFont);
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return GetObject(sizeof(LOGFONT), pLogFont);
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(m_hObject);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return AfxAdopt(*this, ::LoadBitmap(hInst, lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return AfxAdopt(*this, ::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return AfxAdopt(*this, ::CreateMappedBitmap(hInst, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return AfxAdopt(*this, ::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return lpBitmap != nullptr && AfxAdopt(*this, ::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != nullptr && AfxAdopt(*this, ::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != nullptr && AfxAdopt(*this, ::CreateDiscardableBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap)
{
    return GetObject(sizeof(BITMAP), pBitMap);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    return ::SetBitmapBits(*this, dwCount, lpBits);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return ::GetBitmapBits(*this, dwCount, lpBits);
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    SIZE size = {};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &size);
    return size;
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette)
{
    return static_cast<CPalette*>(CGdiObject::FromHandle(hPalette));
}

CPalette::operator HPALETTE() const
{
    return static_cast<HPALETTE>(m_hObject);
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette)
{
    return lpLogPalette != nullptr && AfxAdopt(*this, ::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC)
{
    return pDC != nullptr && AfxAdopt(*this, ::CreateHalftonePalette(pDC->m_hDC));
}

int CPalette::GetEntryCount()
{
    WORD nEntries = 0;
    GetObject(sizeof(nEntries), &nEntries);
    return nEntries;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const
{
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

void CPalette::AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const
{
    return ::GetNearestPaletteIndex(*this, crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries)
{
    return ::ResizePalette(*this, nNumEntries);
}

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn));
}

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(m_hObject);
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return AfxAdopt(*this, ::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return lpRect != nullptr && AfxAdopt(*this, ::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return AfxAdopt(*this, ::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return lpRect != nullptr && AfxAdopt(*this, ::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode)
{
    return AfxAdopt(*this, ::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode)
{
    return AfxAdopt(*this, ::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return AfxAdopt(*this, ::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return pDC != nullptr && AfxAdopt(*this, ::PathToRegion(pDC->m_hDC));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return AfxAdopt(*this, ::ExtCreateRegion(lpXForm, nCount, pRgnData));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    if (lpRect != nullptr) {
        ::SetRectRgn(*this, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, RegionOf(pRgn1), RegionOf(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc)
{
    return ::CombineRgn(*this, RegionOf(pRgnSrc), nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const
{
    return ::EqualRgn(*this, RegionOf(pRgn));
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return ::OffsetRgn(*this, point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return ::PtInRegion(*this, point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return lpRect != nullptr && ::RectInRegion(*this, lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nCount) const
{
    return static_cast<int>(::GetRegionData(*this, nCount, lpRgnData));
}
