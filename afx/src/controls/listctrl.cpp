#include "create.h"
#include "dragimage.h"
#include "gdi/handles.h"
#include "wnd/ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace
{
// A list without a header has no columns.
int ColumnCount(const CListCtrl& list)
{
    const HWND hHeader = Ask<HWND>(list, LVM_GETHEADER);
    return hHeader ? Ask<int>(hHeader, HDM_GETITEMCOUNT) : 0;
}

constexpr UINT kCheckBoxShift = 12;

/** Positions are indices moved by one, so that index 0 is not the null position. */
POSITION PositionOf(int nIndex)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(nIndex) + 1);
}
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
    return Ask<COLORREF>(*this, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF cr)
{
    return Ask<BOOL>(*this, LVM_SETBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextColor() const
{
    return Ask<COLORREF>(*this, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF cr)
{
    return Ask<BOOL>(*this, LVM_SETTEXTCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return Ask<COLORREF>(*this, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr)
{
    return Ask<BOOL>(*this, LVM_SETTEXTBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetOutlineColor() const
{
    return Ask<COLORREF>(*this, LVM_GETOUTLINECOLOR);
}

COLORREF CListCtrl::SetOutlineColor(COLORREF color)
{
    return Ask<COLORREF>(*this, LVM_SETOUTLINECOLOR, 0, color);
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return Ask<DWORD>(*this, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return Ask<DWORD>(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

DWORD CListCtrl::GetView() const
{
    return Ask<DWORD>(*this, LVM_GETVIEW);
}

DWORD CListCtrl::SetView(int iView)
{
    return Ask<DWORD>(*this, LVM_SETVIEW, iView);
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, LVM_SETIMAGELIST, nImageListType, gdi::HandleOf(pImageList)));
}

CImageList* CListCtrl::GetImageList(int nImageListType) const
{
    return CImageList::FromHandle(Ask<HIMAGELIST>(*this, LVM_GETIMAGELIST, nImageListType));
}

BOOL CListCtrl::GetBkImage(LVBKIMAGE* plvbkImage) const
{
    return Ask<BOOL>(*this, LVM_GETBKIMAGE, 0, plvbkImage);
}

BOOL CListCtrl::SetBkImage(LVBKIMAGE* plvbkImage)
{
    return Ask<BOOL>(*this, LVM_SETBKIMAGE, 0, plvbkImage);
}

BOOL CListCtrl::SetBkImage(HBITMAP hbm, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = {};
    image.ulFlags =
        hbm ? LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL) : LVBKIF_SOURCE_NONE;
    image.hbm = hbm;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

int CListCtrl::GetItemCount() const
{
    return Ask<int>(*this, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int nItems)
{
    Ask(*this, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return Ask<BOOL>(*this, LVM_SETITEMCOUNT, iCount, dwFlags);
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const
{
    return Ask<BOOL>(*this, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem)
{
    return Ask<BOOL>(*this, LVM_SETITEM, 0, pItem);
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
    if (!m_hWnd || !pItem) {
        return -1;
    }
    return Ask<int>(*this, LVM_INSERTITEM, 0, pItem);
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
    return Ask<BOOL>(*this, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems()
{
    return Ask<BOOL>(*this, LVM_DELETEALLITEMS);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    return Ask<int>(*this, LVM_GETITEMTEXT, nItem, &item);
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
    return Ask<BOOL>(*this, LVM_SETITEMTEXT, nItem, &item);
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
    return Ask<UINT>(*this, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem)
{
    return Ask<BOOL>(*this, LVM_SETITEMSTATE, nItem, pItem);
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
    const int nImage = static_cast<int>(GetItemState(nItem, LVIS_STATEIMAGEMASK) >> kCheckBoxShift);
    return nImage > 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return m_hWnd ? Ask<int>(*this, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0)) : -1;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int nItem = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = nItem >= 0 ? PositionOf(GetNextItem(nItem, LVNI_SELECTED)) : nullptr;
    return nItem;
}

UINT CListCtrl::GetSelectedCount() const
{
    return Ask<UINT>(*this, LVM_GETSELECTEDCOUNT);
}

int CListCtrl::GetSelectionMark()
{
    return Ask<int>(*this, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int iIndex)
{
    return Ask<int>(*this, LVM_SETSELECTIONMARK, 0, iIndex);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return m_hWnd ? Ask<int>(*this, LVM_FINDITEM, nStart, pFindInfo) : -1;
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask<BOOL>(*this, LVM_SORTITEMS, dwData, pfnCompare);
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask<BOOL>(*this, LVM_SORTITEMSEX, dwData, pfnCompare);
}

UINT CListCtrl::MapIndexToID(UINT index) const
{
    return Ask<UINT>(*this, LVM_MAPINDEXTOID, index);
}

UINT CListCtrl::MapIDToIndex(UINT id) const
{
    return Ask<UINT>(*this, LVM_MAPIDTOINDEX, id);
}

CString CListCtrl::GetISearchString() const
{
    TCHAR text[256] = {};
    const int nLength = Ask<int>(*this, LVM_GETISEARCHSTRING);
    if (nLength > 0 && nLength < static_cast<int>(_countof(text))) {
        Ask(*this, LVM_GETISEARCHSTRING, 0, text);
    }
    return text;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    if (!m_hWnd || !lpRect) {
        return FALSE;
    }
    lpRect->left = static_cast<LONG>(nCode);
    return Ask<BOOL>(*this, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const
{
    RECT rect = {nArea, iSubItem, 0, 0};
    const BOOL bOk = Ask<BOOL>(*this, LVM_GETSUBITEMRECT, iItem, &rect);
    if (bOk) {
        ref = rect;
    }
    return bOk;
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const
{
    return Ask<BOOL>(*this, LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt)
{
    return Ask<BOOL>(*this, LVM_SETITEMPOSITION32, nItem, &pt);
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const
{
    return Ask<BOOL>(*this, LVM_GETORIGIN, 0, lpPoint);
}

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const
{
    return Ask<BOOL>(*this, LVM_GETVIEWRECT, 0, lpRect);
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const
{
    if (!m_hWnd || !pnHorzSpacing || !pnVertSpacing) {
        return FALSE;
    }
    const DWORD dwSpacing = Ask<DWORD>(*this, LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(dwSpacing);
    *pnVertSpacing = HIWORD(dwSpacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    const DWORD dwFormer = Ask<DWORD>(*this, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy));
    return CSize(LOWORD(dwFormer), HIWORD(dwFormer));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    const DWORD dwSize = Ask<DWORD>(*this, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy));
    return CSize(LOWORD(dwSize), HIWORD(dwSize));
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const
{
    return m_hWnd ? Ask<int>(*this, LVM_HITTEST, 0, pHitTestInfo) : -1;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int nItem = HitTest(&info);
    if (pFlags) {
        *pFlags = info.flags;
    }
    return nItem;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo)
{
    return m_hWnd ? Ask<int>(*this, LVM_SUBITEMHITTEST, 0, pInfo) : -1;
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return Ask<BOOL>(*this, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

BOOL CListCtrl::IsItemVisible(int nItem) const
{
    return Ask<BOOL>(*this, LVM_ISITEMVISIBLE, nItem);
}

int CListCtrl::GetTopIndex() const
{
    return Ask<int>(*this, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return Ask<int>(*this, LVM_GETCOUNTPERPAGE);
}

int CListCtrl::GetHotItem()
{
    return Ask<int>(*this, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int iIndex)
{
    return Ask<int>(*this, LVM_SETHOTITEM, iIndex);
}

HCURSOR CListCtrl::GetHotCursor()
{
    return Ask<HCURSOR>(*this, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc)
{
    return Ask<HCURSOR>(*this, LVM_SETHOTCURSOR, 0, hc);
}

DWORD CListCtrl::GetHoverTime() const
{
    return Ask<DWORD>(*this, LVM_GETHOVERTIME);
}

DWORD CListCtrl::SetHoverTime(DWORD dwHoverTime)
{
    return Ask<DWORD>(*this, LVM_SETHOVERTIME, 0, dwHoverTime);
}

BOOL CListCtrl::Scroll(CSize size)
{
    return Ask<BOOL>(*this, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast)
{
    return Ask<BOOL>(*this, LVM_REDRAWITEMS, nFirst, nLast);
}

BOOL CListCtrl::Update(int nItem)
{
    return Ask<BOOL>(*this, LVM_UPDATE, nItem);
}

BOOL CListCtrl::Arrange(UINT nCode)
{
    return Ask<BOOL>(*this, LVM_ARRANGE, nCode);
}

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const
{
    return Ask<int>(*this, LVM_GETSTRINGWIDTH, 0, lpsz);
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return WrapperOf<CEdit>(Ask<HWND>(*this, LVM_EDITLABEL, nItem));
}

CEdit* CListCtrl::GetEditControl() const
{
    return WrapperOf<CEdit>(Ask<HWND>(*this, LVM_GETEDITCONTROL));
}

void CListCtrl::CancelEditLabel()
{
    Ask(*this, LVM_CANCELEDITLABEL);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return OwnDragImage(Ask<HIMAGELIST>(*this, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const
{
    return Ask<BOOL>(*this, LVM_GETCOLUMN, nCol, pColumn);
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn)
{
    return Ask<BOOL>(*this, LVM_SETCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn)
{
    if (!m_hWnd || !pColumn) {
        return -1;
    }
    return Ask<int>(*this, LVM_INSERTCOLUMN, nCol, pColumn);
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
    return Ask<BOOL>(*this, LVM_DELETECOLUMN, nCol);
}

int CListCtrl::GetColumnWidth(int nCol) const
{
    return Ask<int>(*this, LVM_GETCOLUMNWIDTH, nCol);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx)
{
    return Ask<BOOL>(*this, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray)
{
    return Ask<BOOL>(*this, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) const
{
    const int nCount = iCount == -1 ? ColumnCount(*this) : iCount;
    return Ask<BOOL>(*this, LVM_GETCOLUMNORDERARRAY, nCount, piArray);
}

int CListCtrl::GetSelectedColumn() const
{
    return Ask<int>(*this, LVM_GETSELECTEDCOLUMN);
}

void CListCtrl::SetSelectedColumn(int iCol)
{
    Ask(*this, LVM_SETSELECTEDCOLUMN, iCol);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return WrapperOf<CHeaderCtrl>(Ask<HWND>(*this, LVM_GETHEADER));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, LVM_GETTOOLTIPS));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return WrapperOf<CToolTipCtrl>(Ask<HWND>(*this, LVM_SETTOOLTIPS, gdi::WindowOf(pWndTip)));
}

LRESULT CListCtrl::EnableGroupView(BOOL fEnable)
{
    return Ask(*this, LVM_ENABLEGROUPVIEW, fEnable);
}

BOOL CListCtrl::IsGroupViewEnabled() const
{
    return Ask<BOOL>(*this, LVM_ISGROUPVIEWENABLED);
}

LRESULT CListCtrl::InsertGroup(int index, PLVGROUP pgrp)
{
    return Ask(*this, LVM_INSERTGROUP, index, pgrp);
}

int CListCtrl::SetGroupInfo(int iGroupId, PLVGROUP pgrp)
{
    return Ask<int>(*this, LVM_SETGROUPINFO, iGroupId, pgrp);
}

int CListCtrl::GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
{
    return Ask<int>(*this, LVM_GETGROUPINFO, iGroupId, pgrp);
}

LRESULT CListCtrl::RemoveGroup(int iGroupId)
{
    return Ask(*this, LVM_REMOVEGROUP, iGroupId);
}

void CListCtrl::RemoveAllGroups()
{
    Ask(*this, LVM_REMOVEALLGROUPS);
}

BOOL CListCtrl::HasGroup(int iGroupId) const
{
    return Ask<BOOL>(*this, LVM_HASGROUP, iGroupId);
}

BOOL CListCtrl::SetTileViewInfo(PLVTILEVIEWINFO ptvi)
{
    return Ask<BOOL>(*this, LVM_SETTILEVIEWINFO, 0, ptvi);
}

BOOL CListCtrl::GetTileViewInfo(PLVTILEVIEWINFO ptvi) const
{
    return Ask<BOOL>(*this, LVM_GETTILEVIEWINFO, 0, ptvi);
}

BOOL CListCtrl::SetTileInfo(PLVTILEINFO pti)
{
    return Ask<BOOL>(*this, LVM_SETTILEINFO, 0, pti);
}

BOOL CListCtrl::GetTileInfo(PLVTILEINFO plvti) const
{
    return Ask<BOOL>(*this, LVM_GETTILEINFO, 0, plvti);
}

BOOL CListCtrl::SetInsertMark(LPLVINSERTMARK plvim)
{
    return Ask<BOOL>(*this, LVM_SETINSERTMARK, 0, plvim);
}

BOOL CListCtrl::GetInsertMark(LPLVINSERTMARK plvim) const
{
    return Ask<BOOL>(*this, LVM_GETINSERTMARK, 0, plvim);
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const
{
    return Ask<int>(*this, LVM_INSERTMARKHITTEST, pPoint, plvim);
}

int CListCtrl::GetInsertMarkRect(LPRECT pRect) const
{
    return Ask<int>(*this, LVM_GETINSERTMARKRECT, 0, pRect);
}

COLORREF CListCtrl::SetInsertMarkColor(COLORREF color)
{
    return Ask<COLORREF>(*this, LVM_SETINSERTMARKCOLOR, 0, color);
}

COLORREF CListCtrl::GetInsertMarkColor() const
{
    return Ask<COLORREF>(*this, LVM_GETINSERTMARKCOLOR);
}

void CListCtrl::SetWorkAreas(int nWorkAreas, LPRECT lpRect)
{
    Ask(*this, LVM_SETWORKAREAS, nWorkAreas, lpRect);
}

void CListCtrl::GetWorkAreas(int nWorkAreas, LPRECT prc) const
{
    Ask(*this, LVM_GETWORKAREAS, nWorkAreas, prc);
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT nCount = 0;
    Ask(*this, LVM_GETNUMBEROFWORKAREAS, 0, &nCount);
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
