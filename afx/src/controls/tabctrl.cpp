#include "create.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_TAB_CLASSES, 0, WC_TABCONTROL, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_TAB_CLASSES, dwExStyle, WC_TABCONTROL, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, TCM_SETIMAGELIST, 0, gdi::HandleOf(pImageList)));
}

void CTabCtrl::RemoveImage(int nImage)
{
    Ask(*this, TCM_REMOVEIMAGE, nImage);
}

int CTabCtrl::GetItemCount() const
{
    return Ask<int>(*this, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return Ask<BOOL>(*this, TCM_GETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    return Ask<BOOL>(*this, TCM_SETITEM, nItem, pTabCtrlItem);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    GetItem(nItem, &item);
    return item.dwState & dwMask;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem)
{
    if (!m_hWnd || !pTabCtrlItem) {
        return -1;
    }
    return Ask<LONG>(*this, TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, -1, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::DeleteItem(int nItem)
{
    return Ask<BOOL>(*this, TCM_DELETEITEM, nItem);
}

BOOL CTabCtrl::DeleteAllItems()
{
    return Ask<BOOL>(*this, TCM_DELETEALLITEMS);
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return Ask<BOOL>(*this, TCM_GETITEMRECT, nItem, lpRect);
}

int CTabCtrl::GetCurSel() const
{
    return m_hWnd ? Ask<int>(*this, TCM_GETCURSEL) : -1;
}

int CTabCtrl::SetCurSel(int nItem)
{
    return m_hWnd ? Ask<int>(*this, TCM_SETCURSEL, nItem) : -1;
}

int CTabCtrl::GetCurFocus() const
{
    return Ask<int>(*this, TCM_GETCURFOCUS);
}

void CTabCtrl::SetCurFocus(int nItem)
{
    Ask(*this, TCM_SETCURFOCUS, nItem);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const DWORD dwFormer = Ask<DWORD>(*this, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(dwFormer), HIWORD(dwFormer));
}

BOOL CTabCtrl::SetItemExtra(int nBytes)
{
    return Ask<BOOL>(*this, TCM_SETITEMEXTRA, nBytes);
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    return Ask<int>(*this, TCM_SETMINTABWIDTH, 0, cx);
}

void CTabCtrl::SetPadding(CSize size)
{
    Ask(*this, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    return Ask<int>(*this, TCM_GETROWCOUNT);
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight)
{
    return Ask<BOOL>(*this, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus)
{
    Ask(*this, TCM_DESELECTALL, fExcludeFocus);
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return Ask<DWORD>(*this, TCM_GETEXTENDEDSTYLE);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask)
{
    return Ask<DWORD>(*this, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    return m_hWnd ? Ask<int>(*this, TCM_HITTEST, 0, pHitTestInfo) : -1;
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    Ask(*this, TCM_ADJUSTRECT, bLarger, lpRect);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, TCM_GETTOOLTIPS));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    Ask(*this, TCM_SETTOOLTIPS, gdi::WindowOf(pWndTip));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
