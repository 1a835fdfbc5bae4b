#include "internal.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

namespace
{
// Header and list say their count through the header window; a list without one
// has no columns.
int ColumnCount(HWND hList)
{
    HWND hHeader = hList != nullptr ? ListView_GetHeader(hList) : nullptr;
    return hHeader != nullptr ? Header_GetItemCount(hHeader) : 0;
}

constexpr UINT CHECK_BOX_SHIFT = 12;
} // namespace

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_LISTVIEW_CLASSES, 0, WC_LISTVIEW, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return AfxCreateControl(*this, ICC_LISTVIEW_CLASSES, dwExStyle, WC_LISTVIEW, dwStyle, rect, pParentWnd, nID);
}

COLORREF CListCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETBKCOLOR, 0, 0));
}

BOOL CListCtrl::SetBkColor(COLORREF cr)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETBKCOLOR, 0, cr));
}

COLORREF CListCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETTEXTCOLOR, 0, 0));
}

BOOL CListCtrl::SetTextColor(COLORREF cr)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTEXTCOLOR, 0, cr));
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETTEXTBKCOLOR, 0, 0));
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr));
}

COLORREF CListCtrl::GetOutlineColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETOUTLINECOLOR, 0, 0));
}

COLORREF CListCtrl::SetOutlineColor(COLORREF color)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_SETOUTLINECOLOR, 0, color));
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle));
}

DWORD CListCtrl::GetView() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETVIEW, 0, 0));
}

DWORD CListCtrl::SetView(int iView)
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_SETVIEW, static_cast<WPARAM>(iView), 0));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
        ::SendMessage(m_hWnd, LVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType), AfxImageListParam(pImageList))));
}

CImageList* CListCtrl::GetImageList(int nImageListType) const
{
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, LVM_GETIMAGELIST, static_cast<WPARAM>(nImageListType), 0)));
}

BOOL CListCtrl::GetBkImage(LVBKIMAGE* plvbkImage) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETBKIMAGE, 0, reinterpret_cast<LPARAM>(plvbkImage)));
}

BOOL CListCtrl::SetBkImage(LVBKIMAGE* plvbkImage)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETBKIMAGE, 0, reinterpret_cast<LPARAM>(plvbkImage)));
}

BOOL CListCtrl::SetBkImage(HBITMAP hbm, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = {};
    image.ulFlags =
        hbm != nullptr ? LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL) : LVBKIF_SOURCE_NONE;
    image.hbm = hbm;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

int CListCtrl::GetItemCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETITEMCOUNT, 0, 0));
}

void CListCtrl::SetItemCount(int nItems)
{
    ::SendMessage(m_hWnd, LVM_SETITEMCOUNT, static_cast<WPARAM>(nItems), 0);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETITEMCOUNT, static_cast<WPARAM>(iCount), dwFlags));
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
}

BOOL CListCtrl::SetItem(const LVITEM* pItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETITEM, 0, reinterpret_cast<LPARAM>(pItem)));
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam, int nIndent)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::InsertItem(const LVITEM* pItem)
{
    if (m_hWnd == nullptr || pItem == nullptr) {
        return -1;
    }
    return ListView_InsertItem(m_hWnd, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETEITEM, static_cast<WPARAM>(nItem), 0));
}

BOOL CListCtrl::DeleteAllItems()
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETEALLITEMS, 0, 0));
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    return static_cast<int>(
        ::SendMessage(m_hWnd, LVM_GETITEMTEXT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    std::vector<TCHAR> buffer(128);
    int nLength = GetItemText(nItem, nSubItem, buffer.data(), static_cast<int>(buffer.size()));
    while (nLength >= static_cast<int>(buffer.size()) - 1) {
        buffer.resize(buffer.size() * 2);
        nLength = GetItemText(nItem, nSubItem, buffer.data(), static_cast<int>(buffer.size()));
    }
    return CString(buffer.data(), (std::max)(nLength, 0));
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_SETITEMTEXT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, LVM_GETITEMSTATE, static_cast<WPARAM>(nItem), nMask));
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pItem)));
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    // State image 1 is the empty box, 2 the ticked one; none at all is 0.
    const int nImage = static_cast<int>(GetItemState(nItem, LVIS_STATEIMAGEMASK) >> CHECK_BOX_SHIFT);
    return nImage > 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, LVM_GETNEXTITEM, static_cast<WPARAM>(nItem),
                                                              MAKELPARAM(nFlags, 0)))
                             : -1;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return AfxPositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int nItem = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = nItem >= 0 ? AfxPositionOf(GetNextItem(nItem, LVNI_SELECTED)) : nullptr;
    return nItem;
}

UINT CListCtrl::GetSelectedCount() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, LVM_GETSELECTEDCOUNT, 0, 0));
}

int CListCtrl::GetSelectionMark()
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETSELECTIONMARK, 0, 0));
}

int CListCtrl::SetSelectionMark(int iIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex));
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, LVM_FINDITEM, static_cast<WPARAM>(nStart),
                                                              reinterpret_cast<LPARAM>(pFindInfo)))
                             : -1;
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SORTITEMS, dwData, reinterpret_cast<LPARAM>(pfnCompare)));
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SORTITEMSEX, dwData, reinterpret_cast<LPARAM>(pfnCompare)));
}

UINT CListCtrl::MapIndexToID(UINT index) const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, LVM_MAPINDEXTOID, index, 0));
}

UINT CListCtrl::MapIDToIndex(UINT id) const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, LVM_MAPIDTOINDEX, id, 0));
}

CString CListCtrl::GetISearchString() const
{
    TCHAR text[256] = {};
    const int nLength = static_cast<int>(::SendMessage(m_hWnd, LVM_GETISEARCHSTRING, 0, 0));
    if (nLength > 0 && nLength < static_cast<int>(_countof(text))) {
        ::SendMessage(m_hWnd, LVM_GETISEARCHSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    return text;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    if (m_hWnd == nullptr || lpRect == nullptr) {
        return FALSE;
    }
    lpRect->left = static_cast<LONG>(nCode);
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const
{
    RECT rect = {nArea, iSubItem, 0, 0};
    const BOOL bOk = static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_GETSUBITEMRECT, static_cast<WPARAM>(iItem), reinterpret_cast<LPARAM>(&rect)));
    if (bOk) {
        ref = rect;
    }
    return bOk;
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_GETITEMPOSITION, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpPoint)));
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_SETITEMPOSITION32, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&pt)));
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETORIGIN, 0, reinterpret_cast<LPARAM>(lpPoint)));
}

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETVIEWRECT, 0, reinterpret_cast<LPARAM>(lpRect)));
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const
{
    if (m_hWnd == nullptr || pnHorzSpacing == nullptr || pnVertSpacing == nullptr) {
        return FALSE;
    }
    const DWORD dwSpacing = static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETITEMSPACING, fSmall, 0));
    *pnHorzSpacing = LOWORD(dwSpacing);
    *pnVertSpacing = HIWORD(dwSpacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    const DWORD dwFormer = static_cast<DWORD>(::SendMessage(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
    return CSize(LOWORD(dwFormer), HIWORD(dwFormer));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    const DWORD dwSize = static_cast<DWORD>(
        ::SendMessage(m_hWnd, LVM_APPROXIMATEVIEWRECT, static_cast<WPARAM>(iCount), MAKELPARAM(sz.cx, sz.cy)));
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const
{
    return m_hWnd != nullptr
               ? static_cast<int>(::SendMessage(m_hWnd, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo)))
               : -1;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int nItem = HitTest(&info);
    if (pFlags != nullptr) {
        *pFlags = info.flags;
    }
    return nItem;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo)
{
    return m_hWnd != nullptr
               ? static_cast<int>(::SendMessage(m_hWnd, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(pInfo)))
               : -1;
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_ENSUREVISIBLE, static_cast<WPARAM>(nItem), MAKELPARAM(bPartialOK, 0)));
}

BOOL CListCtrl::IsItemVisible(int nItem) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_ISITEMVISIBLE, static_cast<WPARAM>(nItem), 0));
}

int CListCtrl::GetTopIndex() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETTOPINDEX, 0, 0));
}

int CListCtrl::GetCountPerPage() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETCOUNTPERPAGE, 0, 0));
}

int CListCtrl::GetHotItem()
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETHOTITEM, 0, 0));
}

int CListCtrl::SetHotItem(int iIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_SETHOTITEM, static_cast<WPARAM>(iIndex), 0));
}

HCURSOR CListCtrl::GetHotCursor()
{
    return reinterpret_cast<HCURSOR>(::SendMessage(m_hWnd, LVM_GETHOTCURSOR, 0, 0));
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc)
{
    return reinterpret_cast<HCURSOR>(::SendMessage(m_hWnd, LVM_SETHOTCURSOR, 0, reinterpret_cast<LPARAM>(hc)));
}

DWORD CListCtrl::GetHoverTime() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_GETHOVERTIME, 0, 0));
}

DWORD CListCtrl::SetHoverTime(DWORD dwHoverTime)
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, LVM_SETHOVERTIME, 0, dwHoverTime));
}

BOOL CListCtrl::Scroll(CSize size)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SCROLL, static_cast<WPARAM>(size.cx), size.cy));
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_REDRAWITEMS, static_cast<WPARAM>(nFirst), nLast));
}

BOOL CListCtrl::Update(int nItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_UPDATE, static_cast<WPARAM>(nItem), 0));
}

BOOL CListCtrl::Arrange(UINT nCode)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_ARRANGE, nCode, 0));
}

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETSTRINGWIDTH, 0, reinterpret_cast<LPARAM>(lpsz)));
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_EDITLABEL, static_cast<WPARAM>(nItem), 0))));
}

CEdit* CListCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETEDITCONTROL, 0, 0))));
}

void CListCtrl::CancelEditLabel()
{
    ::SendMessage(m_hWnd, LVM_CANCELEDITLABEL, 0, 0);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return AfxOwnImageList(
        ::SendMessage(m_hWnd, LVM_CREATEDRAGIMAGE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpPoint)));
}

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_GETCOLUMN, static_cast<WPARAM>(nCol), reinterpret_cast<LPARAM>(pColumn)));
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_SETCOLUMN, static_cast<WPARAM>(nCol), reinterpret_cast<LPARAM>(pColumn)));
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn)
{
    if (m_hWnd == nullptr || pColumn == nullptr) {
        return -1;
    }
    return ListView_InsertColumn(m_hWnd, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::DeleteColumn(int nCol)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_DELETECOLUMN, static_cast<WPARAM>(nCol), 0));
}

int CListCtrl::GetColumnWidth(int nCol) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(nCol), 0));
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(nCol), MAKELPARAM(cx, 0)));
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_SETCOLUMNORDERARRAY, static_cast<WPARAM>(iCount), reinterpret_cast<LPARAM>(piArray)));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) const
{
    const int nCount = iCount == -1 ? ColumnCount(m_hWnd) : iCount;
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LVM_GETCOLUMNORDERARRAY, static_cast<WPARAM>(nCount), reinterpret_cast<LPARAM>(piArray)));
}

int CListCtrl::GetSelectedColumn() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETSELECTEDCOLUMN, 0, 0));
}

void CListCtrl::SetSelectedColumn(int iCol)
{
    ::SendMessage(m_hWnd, LVM_SETSELECTEDCOLUMN, static_cast<WPARAM>(iCol), 0);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return static_cast<CHeaderCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETHEADER, 0, 0))));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_GETTOOLTIPS, 0, 0))));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return static_cast<CToolTipCtrl*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, LVM_SETTOOLTIPS, AfxWindowParam(pWndTip), 0))));
}

LRESULT CListCtrl::EnableGroupView(BOOL fEnable)
{
    return ::SendMessage(m_hWnd, LVM_ENABLEGROUPVIEW, fEnable, 0);
}

BOOL CListCtrl::IsGroupViewEnabled() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_ISGROUPVIEWENABLED, 0, 0));
}

LRESULT CListCtrl::InsertGroup(int index, PLVGROUP pgrp)
{
    return ::SendMessage(m_hWnd, LVM_INSERTGROUP, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(pgrp));
}

int CListCtrl::SetGroupInfo(int iGroupId, PLVGROUP pgrp)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LVM_SETGROUPINFO, static_cast<WPARAM>(iGroupId), reinterpret_cast<LPARAM>(pgrp)));
}

int CListCtrl::GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LVM_GETGROUPINFO, static_cast<WPARAM>(iGroupId), reinterpret_cast<LPARAM>(pgrp)));
}

LRESULT CListCtrl::RemoveGroup(int iGroupId)
{
    return ::SendMessage(m_hWnd, LVM_REMOVEGROUP, static_cast<WPARAM>(iGroupId), 0);
}

void CListCtrl::RemoveAllGroups()
{
    ::SendMessage(m_hWnd, LVM_REMOVEALLGROUPS, 0, 0);
}

BOOL CListCtrl::HasGroup(int iGroupId) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_HASGROUP, static_cast<WPARAM>(iGroupId), 0));
}

BOOL CListCtrl::SetTileViewInfo(PLVTILEVIEWINFO ptvi)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTILEVIEWINFO, 0, reinterpret_cast<LPARAM>(ptvi)));
}

BOOL CListCtrl::GetTileViewInfo(PLVTILEVIEWINFO ptvi) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETTILEVIEWINFO, 0, reinterpret_cast<LPARAM>(ptvi)));
}

BOOL CListCtrl::SetTileInfo(PLVTILEINFO pti)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETTILEINFO, 0, reinterpret_cast<LPARAM>(pti)));
}

BOOL CListCtrl::GetTileInfo(PLVTILEINFO plvti) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETTILEINFO, 0, reinterpret_cast<LPARAM>(plvti)));
}

BOOL CListCtrl::SetInsertMark(LPLVINSERTMARK plvim)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_SETINSERTMARK, 0, reinterpret_cast<LPARAM>(plvim)));
}

BOOL CListCtrl::GetInsertMark(LPLVINSERTMARK plvim) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LVM_GETINSERTMARK, 0, reinterpret_cast<LPARAM>(plvim)));
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_INSERTMARKHITTEST, reinterpret_cast<WPARAM>(pPoint),
                                          reinterpret_cast<LPARAM>(plvim)));
}

int CListCtrl::GetInsertMarkRect(LPRECT pRect) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LVM_GETINSERTMARKRECT, 0, reinterpret_cast<LPARAM>(pRect)));
}

COLORREF CListCtrl::SetInsertMarkColor(COLORREF color)
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color));
}

COLORREF CListCtrl::GetInsertMarkColor() const
{
    return static_cast<COLORREF>(::SendMessage(m_hWnd, LVM_GETINSERTMARKCOLOR, 0, 0));
}

void CListCtrl::SetWorkAreas(int nWorkAreas, LPRECT lpRect)
{
    ::SendMessage(m_hWnd, LVM_SETWORKAREAS, static_cast<WPARAM>(nWorkAreas), reinterpret_cast<LPARAM>(lpRect));
}

void CListCtrl::GetWorkAreas(int nWorkAreas, LPRECT prc) const
{
    ::SendMessage(m_hWnd, LVM_GETWORKAREAS, static_cast<WPARAM>(nWorkAreas), reinterpret_cast<LPARAM>(prc));
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT nCount = 0;
    ::SendMessage(m_hWnd, LVM_GETNUMBEROFWORKAREAS, 0, reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

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
    return static_cast<int>(::SendMessage(m_hWnd, HDM_GETITEMCOUNT, 0, 0));
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_GETITEM, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(pHeaderItem)));
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_SETITEM, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(pHeaderItem)));
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi)
{
    return m_hWnd != nullptr && phdi != nullptr ? Header_InsertItem(m_hWnd, nPos, phdi) : -1;
}

BOOL CHeaderCtrl::DeleteItem(int nPos)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_DELETEITEM, static_cast<WPARAM>(nPos), 0));
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)));
}

BOOL CHeaderCtrl::GetItemDropDownRect(int iItem, LPRECT lpRect) const
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_GETITEMDROPDOWNRECT, static_cast<WPARAM>(iItem), reinterpret_cast<LPARAM>(lpRect)));
}

BOOL CHeaderCtrl::GetOverflowRect(LPRECT lpRect) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_GETOVERFLOWRECT, 0, reinterpret_cast<LPARAM>(lpRect)));
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(pHeaderLayout)));
}

int CHeaderCtrl::OrderToIndex(int nOrder) const
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_ORDERTOINDEX, static_cast<WPARAM>(nOrder), 0));
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    const int nCount = iCount == -1 ? GetItemCount() : iCount;
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_GETORDERARRAY, static_cast<WPARAM>(nCount), reinterpret_cast<LPARAM>(piArray)));
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, HDM_SETORDERARRAY, static_cast<WPARAM>(iCount), reinterpret_cast<LPARAM>(piArray)));
}

int CHeaderCtrl::SetHotDivider(CPoint pt)
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)));
}

int CHeaderCtrl::SetHotDivider(int nIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex));
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_GETBITMAPMARGIN, 0, 0));
}

int CHeaderCtrl::SetBitmapMargin(int nWidth)
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_SETBITMAPMARGIN, static_cast<WPARAM>(nWidth), 0));
}

int CHeaderCtrl::GetFocusedItem() const
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_GETFOCUSEDITEM, 0, 0));
}

BOOL CHeaderCtrl::SetFocusedItem(int iItem)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, HDM_SETFOCUSEDITEM, 0, iItem));
}

int CHeaderCtrl::EditFilter(int nColumn, BOOL bDiscardChanges)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, HDM_EDITFILTER, static_cast<WPARAM>(nColumn), MAKELPARAM(bDiscardChanges, 0)));
}

int CHeaderCtrl::ClearFilter(int nColumn)
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_CLEARFILTER, static_cast<WPARAM>(nColumn), 0));
}

int CHeaderCtrl::ClearAllFilters()
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_CLEARFILTER, static_cast<WPARAM>(-1), 0));
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut)
{
    return static_cast<int>(::SendMessage(m_hWnd, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut));
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, HDM_GETIMAGELIST, 0, 0)));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(::SendMessage(m_hWnd, HDM_SETIMAGELIST, 0, AfxImageListParam(pImageList))));
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return AfxOwnImageList(::SendMessage(m_hWnd, HDM_CREATEDRAGIMAGE, static_cast<WPARAM>(nIndex), 0));
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti)
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(phdhti)))
                             : -1;
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
