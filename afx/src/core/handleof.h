#pragma once

#include <afxcmn.h>
#include <afxwin.h>

// The handle of an object that may be missing.

inline HWND HandleOf(const CWnd* pWnd)
{
    return pWnd ? pWnd->m_hWnd : nullptr;
}

inline HMENU HandleOf(const CMenu* pMenu)
{
    return pMenu ? pMenu->m_hMenu : nullptr;
}

inline HDC HandleOf(const CDC* pDC)
{
    return pDC ? pDC->m_hDC : nullptr;
}

inline HRGN HandleOf(const CRgn* pRgn)
{
    return pRgn ? static_cast<HRGN>(pRgn->m_hObject) : nullptr;
}

inline HBITMAP HandleOf(const CBitmap* pBitmap)
{
    return pBitmap ? static_cast<HBITMAP>(pBitmap->m_hObject) : nullptr;
}

inline HFONT HandleOf(const CFont* pFont)
{
    return pFont ? static_cast<HFONT>(pFont->m_hObject) : nullptr;
}

inline HIMAGELIST HandleOf(const CImageList* pImageList)
{
    return pImageList ? pImageList->m_hImageList : nullptr;
}
