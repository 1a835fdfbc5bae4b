#include "create.h"

#include <afxcmn.h>
#include <afxwin.h>

void AfxInitControls(DWORD dwClasses)
{
    const INITCOMMONCONTROLSEX init = {sizeof(init), dwClasses};
    ::InitCommonControlsEx(&init);
}

BOOL AfxCreateControl(CWnd& wnd, DWORD dwClasses, DWORD dwExStyle, LPCTSTR lpszClass, DWORD dwStyle, const RECT& rect,
                      CWnd* pParentWnd, UINT nID)
{
    AfxInitControls(dwClasses);
    return wnd.CWnd::CreateEx(dwExStyle, lpszClass, nullptr, dwStyle, rect, pParentWnd, nID);
}
