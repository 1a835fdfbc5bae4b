#pragma once

#include <afx/imagelist.h>
#include <afx/wnd.h>

/** Sends a message to a control; what goes in and what comes back may be a number, a pointer or a handle. */
template <class Result = LRESULT, class W = WPARAM, class L = LPARAM>
Result Ask(const CWnd& control, UINT message, W wParam = W(), L lParam = L())
{
    return (Result)::SendMessage(control.m_hWnd, message, (WPARAM)wParam, (LPARAM)lParam);
}

/** The handle of an image list that may be missing. */
inline HIMAGELIST HandleOf(const CImageList* pImageList)
{
    return pImageList ? pImageList->GetSafeHandle() : nullptr;
}

/** The object of a window that a control made for itself. */
template <class T>
T* WrapperOf(HWND hWnd)
{
    return static_cast<T*>(CWnd::FromHandle(hWnd));
}
