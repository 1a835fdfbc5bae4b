#include "create.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

BOOL CAnimateCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_ANIMATE_CLASS, 0, ANIMATE_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_ANIMATE_CLASS, dwExStyle, ANIMATE_CLASS, dwStyle, rect, pParentWnd, nID);
}

BOOL CAnimateCtrl::Open(LPCTSTR lpszFileName)
{
    return Ask<BOOL>(*this, ACM_OPEN, 0, lpszFileName);
}

BOOL CAnimateCtrl::Open(UINT nID)
{
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCE(nID), TEXT("AVI"));
    return Ask<BOOL>(*this, ACM_OPEN, hInst, MAKEINTRESOURCE(nID));
}

BOOL CAnimateCtrl::Play(UINT nFrom, UINT nTo, UINT nRep)
{
    return Ask<BOOL>(*this, ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo));
}

BOOL CAnimateCtrl::Stop()
{
    return Ask<BOOL>(*this, ACM_STOP);
}

BOOL CAnimateCtrl::Seek(UINT nTo)
{
    return Play(nTo, nTo, 1);
}

BOOL CAnimateCtrl::Close()
{
    return Open(static_cast<LPCTSTR>(nullptr));
}

BOOL CAnimateCtrl::IsPlaying() const
{
    return Ask<BOOL>(*this, ACM_ISPLAYING);
}
