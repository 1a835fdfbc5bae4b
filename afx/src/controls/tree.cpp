#include "internal.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

namespace
{
constexpr UINT CHECK_BOX_SHIFT = 12;
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
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETCOUNT, 0, 0));
}

UINT CTreeCtrl::GetIndent() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETINDENT, 0, 0));
}

void CTreeCtrl::SetIndent(UINT nIndent)
{
    ::SendMessage(m_hWnd, TVM_SETINDENT, nIndent, 0);
}

DWORD CTreeCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, TVM_GETEXTENDEDSTYLE, 0, 0));
}

DWORD CTreeCtrl::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles));
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, TVM_GETIMAGELIST, nImageList, 0)));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        ::SendMessage(m_hWnd, TVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType), AfxImageListParam(pImageList))));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETBKCOLOR, 0, 0));
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(static_cast<int>(clr))));
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETTEXTCOLOR, 0, 0));
}

COLORREF CTreeCtrl::SetTextColor(COLORREF clr)
{
    return static_cast<COLORREF>(
        ::SendMessage(m_hWnd, TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(static_cast<int>(clr))));
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETLINECOLOR, 0, 0));
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew)
{
    return static_cast<COLORREF>(
        ::SendMessage(m_hWnd, TVM_SETLINECOLOR, 0, static_cast<LPARAM>(static_cast<int>(clrNew))));
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_GETINSERTMARKCOLOR, 0, 0));
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew));
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SETINSERTMARK, fAfter, reinterpret_cast<LPARAM>(hItem)));
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return static_cast<SHORT>(::SendMessage(m_hWnd, TVM_GETITEMHEIGHT, 0, 0));
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight)
{
    return static_cast<SHORT>(::SendMessage(m_hWnd, TVM_SETITEMHEIGHT, static_cast<WPARAM>(cyHeight), 0));
}

UINT CTreeCtrl::GetScrollTime() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETSCROLLTIME, 0, 0));
}

UINT CTreeCtrl::SetScrollTime(UINT uScrollTime)
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_SETSCROLLTIME, uScrollTime, 0));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_GETNEXTITEM, nCode, reinterpret_cast<LPARAM>(hItem)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_GETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
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
        if (hItem == nullptr || !GetItem(&item)) {
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
    if (hItem == nullptr || !GetItem(&item)) {
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
    if (hItem == nullptr || !GetItem(&item)) {
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
    if (hItem == nullptr || !GetItem(&item)) {
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
    return hItem != nullptr && GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> CHECK_BOX_SHIFT) > 1;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    if (m_hWnd == nullptr || hItem == nullptr || lpRect == nullptr) {
        return FALSE;
    }
    // The item travels in the rectangle that comes back.
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem;
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_GETITEMRECT, bTextOnly, reinterpret_cast<LPARAM>(lpRect)));
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
{
    return reinterpret_cast<HTREEITEM>(
        ::SendMessage(m_hWnd, TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(lpInsertStruct)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(hItem)));
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)));
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_EXPAND, nCode, reinterpret_cast<LPARAM>(hItem)));
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SELECTITEM, nCode, reinterpret_cast<LPARAM>(hItem)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(hItem)));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SORTCHILDREN, 0, reinterpret_cast<LPARAM>(hItem)));
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(pSort)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info = {};
    info.pt = pt;
    HTREEITEM hItem = HitTest(&info);
    if (pFlags != nullptr) {
        *pFlags = info.flags;
    }
    return hItem;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo)));
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_GETVISIBLECOUNT, 0, 0));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return static_cast<CEdit*>(CWnd::FromHandle(
        reinterpret_cast<HWND>(::SendMessage(m_hWnd, TVM_EDITLABEL, 0, reinterpret_cast<LPARAM>(hItem)))));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancel)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TVM_ENDEDITLABELNOW, fCancel, 0));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TVM_GETEDITCONTROL, 0, 0))));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TVM_GETTOOLTIPS, 0, 0))));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TVM_SETTOOLTIPS, AfxWindowParam(pWndTip), 0))));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    return AfxOwnImageList(::SendMessage(m_hWnd, TVM_CREATEDRAGIMAGE, 0, reinterpret_cast<LPARAM>(hItem)));
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM htreeitem) const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(htreeitem), 0));
}

HTREEITEM CTreeCtrl::MapAccIDToItem(UINT uAccID) const
{
    return reinterpret_cast<HTREEITEM>(::SendMessage(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccID, 0));
}

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
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, TCM_GETIMAGELIST, 0, 0)));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, TCM_SETIMAGELIST, 0, AfxImageListParam(pImageList))));
}

void CTabCtrl::RemoveImage(int nImage)
{
    ::SendMessage(m_hWnd, TCM_REMOVEIMAGE, static_cast<WPARAM>(nImage), 0);
}

int CTabCtrl::GetItemCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TCM_GETITEMCOUNT, 0, 0));
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, TCM_GETITEM, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, TCM_SETITEM, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
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
    if (m_hWnd == nullptr || pTabCtrlItem == nullptr) {
        return -1;
    }
    return TabCtrl_InsertItem(m_hWnd, nItem, pTabCtrlItem);
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_DELETEITEM, static_cast<WPARAM>(nItem), 0));
}

BOOL CTabCtrl::DeleteAllItems()
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_DELETEALLITEMS, 0, 0));
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, TCM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
}

int CTabCtrl::GetCurSel() const
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, TCM_GETCURSEL, 0, 0)) : -1;
}

int CTabCtrl::SetCurSel(int nItem)
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, TCM_SETCURSEL, static_cast<WPARAM>(nItem), 0))
                             : -1;
}

int CTabCtrl::GetCurFocus() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TCM_GETCURFOCUS, 0, 0));
}

void CTabCtrl::SetCurFocus(int nItem)
{
    ::SendMessage(m_hWnd, TCM_SETCURFOCUS, static_cast<WPARAM>(nItem), 0);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const DWORD dwFormer = static_cast<DWORD>(::SendMessage(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
    return CSize(LOWORD(dwFormer), HIWORD(dwFormer));
}

BOOL CTabCtrl::SetItemExtra(int nBytes)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, TCM_SETITEMEXTRA, static_cast<WPARAM>(nBytes), 0));
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    return static_cast<int>(::SendMessage(m_hWnd, TCM_SETMINTABWIDTH, 0, cx));
}

void CTabCtrl::SetPadding(CSize size)
{
    ::SendMessage(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, TCM_GETROWCOUNT, 0, 0));
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, TCM_HIGHLIGHTITEM, static_cast<WPARAM>(idItem), MAKELPARAM(fHighlight, 0)));
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus)
{
    ::SendMessage(m_hWnd, TCM_DESELECTALL, fExcludeFocus, 0);
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, TCM_GETEXTENDEDSTYLE, 0, 0));
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask)
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle));
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    return m_hWnd != nullptr
               ? static_cast<int>(::SendMessage(m_hWnd, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo)))
               : -1;
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    ::SendMessage(m_hWnd, TCM_ADJUSTRECT, bLarger, reinterpret_cast<LPARAM>(lpRect));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TCM_GETTOOLTIPS, 0, 0))));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    ::SendMessage(m_hWnd, TCM_SETTOOLTIPS, AfxWindowParam(pWndTip), 0);
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
