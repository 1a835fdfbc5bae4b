#pragma once

#include <afx/wnd.h>

/** Registers window classes of the common controls. @param dwClasses ICC_... */
void AfxInitControls(DWORD dwClasses);

/** Makes a common control; its class is registered first. */
BOOL AfxCreateControl(CWnd& wnd, DWORD dwClasses, DWORD dwExStyle, LPCTSTR lpszClass, DWORD dwStyle, const RECT& rect,
                      CWnd* pParentWnd, UINT nID);
