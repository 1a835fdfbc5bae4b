#pragma once

#include <afx/config.h>
#include <afx/object.h>
#include <afx/rect.h>

class CBitmap;
class CDC;
class CWnd;

/** A list of pictures of one size. Destroys its handle at the end unless detached or borrowed through FromHandle. */
class AFX_LIB CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

  public:
    HIMAGELIST m_hImageList = nullptr; ///< The handle, or null.

    CImageList() = default;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    ~CImageList() override;

    /** @param cx,cy picture size in pixels. @param nFlags ILC_... */
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /** Makes the list from a bitmap resource that is cut into pictures @p cx wide; @p crMask is transparent. */
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /** Makes a list with one picture: @p nImage2 laid over @p nImage1 with the offset dx, dy. */
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    /** Makes a copy of a list. */
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    operator HIMAGELIST() const;
    HIMAGELIST GetSafeHandle() const;
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    /** The object that owns @p hImageList, or null. */
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    /** Each returns the index of the first added picture, or -1. The bitmaps and icons stay the caller's. */
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    /** @param nImage -1 removes all. */
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    /** @return an icon that the caller destroys; null on failure. */
    HICON ExtractIcon(int nImage);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const;
    BOOL SetOverlayImage(int nImage, int nOverlay);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    /** The system copies inside one list only. */
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);

    /** @param nStyle ILD_... */
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    /** Fills in the list and the structure's size itself. */
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag();
    static BOOL PASCAL DragMove(CPoint pt);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
    /** @return the list that is being dragged, borrowed; null when there is none. */
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
    /** @param pWndLock window whose coordinates count and that is not updated meanwhile; null means the desktop. */
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
};
