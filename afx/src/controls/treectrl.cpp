#include "create.h"
#include "dragimage.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace
{
constexpr UINT kCheckBoxShift = 12;
} // namespace

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_TREEVIEW_CLASSES, 0, WC_TREEVIEW, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_TREEVIEW_CLASSES, dwExStyle, WC_TREEVIEW, dwStyle, rect, pParentWnd, nID);
}

UINT CTreeCtrl::GetCount() const
{
    return Ask<UINT>(*this, TVM_GETCOUNT);
}

UINT CTreeCtrl::GetIndent() const
{
    return Ask<UINT>(*this, TVM_GETINDENT);
}

void CTreeCtrl::SetIndent(UINT nIndent)
{
    Ask(*this, TVM_SETINDENT, nIndent);
}

DWORD CTreeCtrl::GetExtendedStyle() const
{
    return Ask<DWORD>(*this, TVM_GETEXTENDEDSTYLE);
}

DWORD CTreeCtrl::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
{
    return Ask<DWORD>(*this, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, TVM_SETIMAGELIST, nImageListType, gdi::HandleOf(pImageList)));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return Ask<COLORREF>(*this, TVM_GETBKCOLOR);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr)
{
    return Ask<COLORREF>(*this, TVM_SETBKCOLOR, 0, static_cast<int>(clr));
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return Ask<COLORREF>(*this, TVM_GETTEXTCOLOR);
}

COLORREF CTreeCtrl::SetTextColor(COLORREF clr)
{
    return Ask<COLORREF>(*this, TVM_SETTEXTCOLOR, 0, static_cast<int>(clr));
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return Ask<COLORREF>(*this, TVM_GETLINECOLOR);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew)
{
    return Ask<COLORREF>(*this, TVM_SETLINECOLOR, 0, static_cast<int>(clrNew));
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return Ask<COLORREF>(*this, TVM_GETINSERTMARKCOLOR);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return Ask<COLORREF>(*this, TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter)
{
    return Ask<BOOL>(*this, TVM_SETINSERTMARK, fAfter, hItem);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return Ask<SHORT>(*this, TVM_GETITEMHEIGHT);
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight)
{
    return Ask<SHORT>(*this, TVM_SETITEMHEIGHT, cyHeight);
}

UINT CTreeCtrl::GetScrollTime() const
{
    return Ask<UINT>(*this, TVM_GETSCROLLTIME);
}

UINT CTreeCtrl::SetScrollTime(UINT uScrollTime)
{
    return Ask<UINT>(*this, TVM_SETSCROLLTIME, uScrollTime);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return Ask<HTREEITEM>(*this, TVM_GETNEXTITEM, nCode, hItem);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_LASTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return GetNextItem(nullptr, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return GetNextItem(nullptr, TVGN_DROPHILITE);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetNextItem(nullptr, TVGN_ROOT);
}

BOOL CTreeCtrl::GetItem(TVITEM* pItem) const
{
    return Ask<BOOL>(*this, TVM_GETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem)
{
    return Ask<BOOL>(*this, TVM_SETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    std::vector<TCHAR> buffer(64);
    for (;;) {
        buffer.resize(buffer.size() * 2);
        buffer[0] = 0;
        TVITEM item = {};
        item.mask = TVIF_TEXT;
        item.hItem = hItem;
        item.pszText = buffer.data();
        item.cchTextMax = static_cast<int>(buffer.size());
        if (!hItem || !GetItem(&item)) {
            return CString();
        }
        // A callback may have put its own pointer there.
        if (item.pszText != buffer.data() || lstrlen(buffer.data()) < item.cchTextMax - 1) {
            return item.pszText;
        }
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item = {};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = hItem;
    if (!hItem || !GetItem(&item)) {
        return FALSE;
    }
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    TVITEM item = {};
    item.mask = TVIF_STATE;
    item.hItem = hItem;
    item.stateMask = nStateMask;
    if (!hItem || !GetItem(&item)) {
        return 0;
    }
    return item.state & nStateMask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.mask = TVIF_PARAM;
    item.hItem = hItem;
    if (!hItem || !GetItem(&item)) {
        return 0;
    }
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.mask = TVIF_CHILDREN;
    item.hItem = hItem;
    return hItem && GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> kCheckBoxShift) > 1;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    if (!m_hWnd || !hItem || !lpRect) {
        return FALSE;
    }
    // The item travels in the rectangle that comes back.
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem;
    return Ask<BOOL>(*this, TVM_GETITEMRECT, bTextOnly, lpRect);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
{
    return Ask<HTREEITEM>(*this, TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0, hParent,
                      hInsertAfter);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem)
{
    return Ask<BOOL>(*this, TVM_DELETEITEM, 0, hItem);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return Ask<BOOL>(*this, TVM_DELETEITEM, 0, TVI_ROOT);
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode)
{
    return Ask<BOOL>(*this, TVM_EXPAND, nCode, hItem);
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode)
{
    return Ask<BOOL>(*this, TVM_SELECTITEM, nCode, hItem);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem)
{
    return Select(hItem, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM hItem)
{
    return Select(hItem, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM hItem)
{
    return Select(hItem, TVGN_FIRSTVISIBLE);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem)
{
    return Ask<BOOL>(*this, TVM_ENSUREVISIBLE, 0, hItem);
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem)
{
    return Ask<BOOL>(*this, TVM_SORTCHILDREN, 0, hItem);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort)
{
    return Ask<BOOL>(*this, TVM_SORTCHILDRENCB, 0, pSort);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info = {};
    info.pt = pt;
    HTREEITEM hItem = HitTest(&info);
    if (pFlags) {
        *pFlags = info.flags;
    }
    return hItem;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const
{
    return Ask<HTREEITEM>(*this, TVM_HITTEST, 0, pHitTestInfo);
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return Ask<UINT>(*this, TVM_GETVISIBLECOUNT);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return WrapperOf<CEdit>(Ask<HWND>(*this, TVM_EDITLABEL, 0, hItem));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancel)
{
    return Ask<BOOL>(*this, TVM_ENDEDITLABELNOW, fCancel);
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return WrapperOf<CEdit>(Ask<HWND>(*this, TVM_GETEDITCONTROL));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, TVM_GETTOOLTIPS));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, TVM_SETTOOLTIPS, gdi::WindowOf(pWndTip)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    return OwnDragImage(Ask<HIMAGELIST>(*this, TVM_CREATEDRAGIMAGE, 0, hItem));
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM htreeitem) const
{
    return Ask<UINT>(*this, TVM_MAPHTREEITEMTOACCID, htreeitem);
}

HTREEITEM CTreeCtrl::MapAccIDToItem(UINT uAccID) const
{
    return Ask<HTREEITEM>(*this, TVM_MAPACCIDTOHTREEITEM, uAccID);
}
