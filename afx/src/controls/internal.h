#pragma once

#include <afx/imagelist.h>
#include <afx/wnd.h>

/** Registers window classes of the common controls. @param dwClasses ICC_... */
void AfxInitControls(DWORD dwClasses);

/** Makes a common control; its class is registered first. */
BOOL AfxCreateControl(CWnd& wnd, DWORD dwClasses, DWORD dwExStyle, LPCTSTR lpszClass, DWORD dwStyle, const RECT& rect,
                      CWnd* pParentWnd, UINT nID);

/** Takes ownership of a list that a control made. @return null for none; the caller deletes the object. */
CImageList* AfxOwnImageList(LRESULT lHandle);

inline LPARAM AfxImageListParam(const CImageList* pImageList)
{
    return reinterpret_cast<LPARAM>(pImageList != nullptr ? pImageList->m_hImageList : nullptr);
}

inline WPARAM AfxWindowParam(const CWnd* pWnd)
{
    return reinterpret_cast<WPARAM>(pWnd != nullptr ? pWnd->m_hWnd : nullptr);
}

/** Positions are indices moved by one, so that index 0 is not the null position. */
inline POSITION AfxPositionOf(int nIndex)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(nIndex) + 1);
}
