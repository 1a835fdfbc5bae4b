#include "core/adopt.h"
#include "core/nullthis.h"
#include "handlemaps.h"
#include "handles.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::~CImageList()
{
    DeleteImageList();
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return AfxAdopt(*this, ::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return AfxAdopt(*this, ::ImageList_LoadImage(hInst, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy)
{
    return AfxAdopt(*this,
                    ::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList)
{
    return gdi::HandleOf(pImageList) && AfxAdopt(*this, ::ImageList_Duplicate(gdi::HandleOf(pImageList)));
}

BOOL CImageList::DeleteImageList()
{
    HIMAGELIST hImageList = Detach();
    return hImageList && ::ImageList_Destroy(hImageList);
}

CImageList::operator HIMAGELIST() const
{
    return m_hImageList;
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    return AfxIsNullThis(this) ? nullptr : m_hImageList;
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return AfxImageListMap::FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return AfxImageListMap::FromHandlePermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    return AfxImageListMap::DeleteTemp();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (!hImageList || m_hImageList) {
        return FALSE;
    }
    m_hImageList = hImageList;
    AfxImageListMap::SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    HIMAGELIST hImageList = m_hImageList;
    if (hImageList) {
        AfxImageListMap::Remove(hImageList);
    }
    m_hImageList = nullptr;
    return hImageList;
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT uNewCount)
{
    return ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return gdi::BitmapOf(pbmImage) ? ::ImageList_Add(m_hImageList, gdi::BitmapOf(pbmImage), gdi::BitmapOf(pbmMask))
                                   : -1;
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return gdi::BitmapOf(pbmImage) ? ::ImageList_AddMasked(m_hImageList, gdi::BitmapOf(pbmImage), crMask) : -1;
}

int CImageList::Add(HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage)
{
    return ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    return gdi::BitmapOf(pbmImage) &&
           ::ImageList_Replace(m_hImageList, nImage, gdi::BitmapOf(pbmImage), gdi::BitmapOf(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

HICON CImageList::ExtractIcon(int nImage)
{
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    return pImageInfo && ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    return ::ImageList_SetBkColor(m_hImageList, cr);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags)
{
    return gdi::HandleOf(pSrc) && ::ImageList_Copy(m_hImageList, iDst, gdi::HandleOf(pSrc), iSrc, uFlags);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    return ::ImageList_Draw(m_hImageList, nImage, gdi::HandleOf(pDC), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
{
    return ::ImageList_DrawEx(m_hImageList, nImage, gdi::HandleOf(pDC), pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
{
    if (!pimldp || !m_hImageList) {
        return FALSE;
    }
    pimldp->cbSize = sizeof(IMAGELISTDRAWPARAMS);
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle, DWORD dwRop,
                              COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame, COLORREF crEffect)
{
    IMAGELISTDRAWPARAMS params = {};
    params.i = nImage;
    params.hdcDst = gdi::HandleOf(pDC);
    params.x = pt.x;
    params.y = pt.y;
    params.cx = sz.cx;
    params.cy = sz.cy;
    params.xBitmap = ptOrigin.x;
    params.yBitmap = ptOrigin.y;
    params.rgbBk = rgbBack;
    params.rgbFg = rgbFore;
    params.fStyle = fStyle;
    params.dwRop = dwRop;
    params.fState = fState;
    params.Frame = Frame;
    params.crEffect = crEffect;
    return DrawIndirect(&params);
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

void PASCAL CImageList::EndDrag()
{
    return ::ImageList_EndDrag();
}

BOOL PASCAL CImageList::DragMove(CPoint pt)
{
    return ::ImageList_DragMove(pt.x, pt.y);
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

BOOL PASCAL CImageList::DragShowNolock(BOOL bShow)
{
    return ::ImageList_DragShowNolock(bShow);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(gdi::WindowOf(pWndLock), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock)
{
    return ::ImageList_DragLeave(gdi::WindowOf(pWndLock));
}
