#include "create.h"
#include "dragimage.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_LISTVIEW_CLASSES, 0, WC_HEADER, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_LISTVIEW_CLASSES, dwExStyle, WC_HEADER, dwStyle, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const
{
    return Ask<int>(*this, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return Ask<BOOL>(*this, HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem)
{
    return Ask<BOOL>(*this, HDM_SETITEM, nPos, pHeaderItem);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi)
{
    return m_hWnd && phdi ? Ask<int>(*this, HDM_INSERTITEM, nPos, phdi) : -1;
}

BOOL CHeaderCtrl::DeleteItem(int nPos)
{
    return Ask<BOOL>(*this, HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return Ask<BOOL>(*this, HDM_GETITEMRECT, nIndex, lpRect);
}

BOOL CHeaderCtrl::GetItemDropDownRect(int iItem, LPRECT lpRect) const
{
    return Ask<BOOL>(*this, HDM_GETITEMDROPDOWNRECT, iItem, lpRect);
}

BOOL CHeaderCtrl::GetOverflowRect(LPRECT lpRect) const
{
    return Ask<BOOL>(*this, HDM_GETOVERFLOWRECT, 0, lpRect);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout)
{
    return Ask<BOOL>(*this, HDM_LAYOUT, 0, pHeaderLayout);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const
{
    return Ask<int>(*this, HDM_ORDERTOINDEX, nOrder);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    const int nCount = iCount == -1 ? GetItemCount() : iCount;
    return Ask<BOOL>(*this, HDM_GETORDERARRAY, nCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return Ask<BOOL>(*this, HDM_SETORDERARRAY, iCount, piArray);
}

int CHeaderCtrl::SetHotDivider(CPoint pt)
{
    return Ask<int>(*this, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
}

int CHeaderCtrl::SetHotDivider(int nIndex)
{
    return Ask<int>(*this, HDM_SETHOTDIVIDER, FALSE, nIndex);
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return Ask<int>(*this, HDM_GETBITMAPMARGIN);
}

int CHeaderCtrl::SetBitmapMargin(int nWidth)
{
    return Ask<int>(*this, HDM_SETBITMAPMARGIN, nWidth);
}

int CHeaderCtrl::GetFocusedItem() const
{
    return Ask<int>(*this, HDM_GETFOCUSEDITEM);
}

BOOL CHeaderCtrl::SetFocusedItem(int iItem)
{
    return Ask<BOOL>(*this, HDM_SETFOCUSEDITEM, 0, iItem);
}

int CHeaderCtrl::EditFilter(int nColumn, BOOL bDiscardChanges)
{
    return Ask<int>(*this, HDM_EDITFILTER, nColumn, MAKELPARAM(bDiscardChanges, 0));
}

int CHeaderCtrl::ClearFilter(int nColumn)
{
    return Ask<int>(*this, HDM_CLEARFILTER, nColumn);
}

int CHeaderCtrl::ClearAllFilters()
{
    return Ask<int>(*this, HDM_CLEARFILTER, -1);
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut)
{
    return Ask<int>(*this, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, HDM_GETIMAGELIST));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, HDM_SETIMAGELIST, 0, gdi::HandleOf(pImageList)));
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return OwnDragImage(Ask<HIMAGELIST>(*this, HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti)
{
    return m_hWnd ? Ask<int>(*this, HDM_HITTEST, 0, phdhti) : -1;
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
