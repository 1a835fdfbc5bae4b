#pragma once

/** @file The handles in objects that may be missing. */

#include <afx/gdi.h>
#include <afx/imagelist.h>
#include <afx/menu.h>
#include <afx/wnd.h>

namespace gdi
{

inline HGDIOBJ HandleOf(const CGdiObject* pObject)
{
    return pObject ? pObject->m_hObject : nullptr;
}

inline HDC HandleOf(const CDC* pDC)
{
    return pDC ? pDC->m_hDC : nullptr;
}

inline HIMAGELIST HandleOf(const CImageList* pList)
{
    return pList ? pList->m_hImageList : nullptr;
}

inline HRGN RegionOf(const CRgn* pRgn)
{
    return static_cast<HRGN>(HandleOf(pRgn));
}

inline HBRUSH BrushOf(const CBrush* pBrush)
{
    return static_cast<HBRUSH>(HandleOf(pBrush));
}

inline HBITMAP BitmapOf(const CBitmap* pBitmap)
{
    return static_cast<HBITMAP>(HandleOf(pBitmap));
}

inline HMENU MenuOf(const CMenu* pMenu)
{
    return pMenu ? pMenu->m_hMenu : nullptr;
}

inline HWND WindowOf(const CWnd* pWnd)
{
    return pWnd ? pWnd->m_hWnd : nullptr;
}

} // namespace gdi
