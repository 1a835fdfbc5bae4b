#include "itemmessages.h"
#include "wnd/ask.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    return Ask<int>(*this, LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const
{
    return Ask<int>(*this, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent)
{
    Ask(*this, LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::GetTopIndex() const
{
    return Ask<int>(*this, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex)
{
    return Ask<int>(*this, LB_SETTOPINDEX, nIndex);
}

LCID CListBox::GetLocale() const
{
    return Ask<LCID>(*this, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale)
{
    return Ask<LCID>(*this, LB_SETLOCALE, nNewLocale);
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    return Ask<int>(*this, LB_INITSTORAGE, nItems, nBytes);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const DWORD dwResult = Ask<DWORD>(*this, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(dwResult);
    return LOWORD(dwResult);
}

DWORD CListBox::GetListBoxInfo() const
{
    return ::GetListBoxInfo(m_hWnd);
}

int CListBox::GetCurSel() const
{
    return Ask<int>(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect)
{
    return Ask<int>(*this, LB_SETCURSEL, nSelect);
}

int CListBox::GetSel(int nIndex) const
{
    return Ask<int>(*this, LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect)
{
    return Ask<int>(*this, LB_SETSEL, bSelect, nIndex);
}

int CListBox::GetSelCount() const
{
    return Ask<int>(*this, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return Ask<int>(*this, LB_GETSELITEMS, nMaxItems, rgIndex);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    // The range in the message is 16 bits wide; the extended one takes first and last instead of a flag.
    if (bSelect) {
        return Ask<int>(*this, LB_SELITEMRANGEEX, nFirstItem, nLastItem);
    }
    return Ask<int>(*this, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::SetAnchorIndex(int nIndex)
{
    Ask(*this, LB_SETANCHORINDEX, nIndex);
}

int CListBox::GetAnchorIndex() const
{
    return Ask<int>(*this, LB_GETANCHORINDEX);
}

int CListBox::GetCaretIndex() const
{
    return Ask<int>(*this, LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    return Ask<int>(*this, LB_SETCARETINDEX, nIndex, MAKELPARAM(bScroll, 0));
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return Ask<DWORD_PTR>(*this, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return Ask<int>(*this, LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const
{
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CListBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return Ask<int>(*this, LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask<int>(*this, LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int nLength = GetTextLen(nIndex);
    if (nLength <= 0) {
        return;
    }
    GetText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
}

int CListBox::GetTextLen(int nIndex) const
{
    return m_hWnd ? Ask<int>(*this, LB_GETTEXTLEN, nIndex) : LB_ERR;
}

void CListBox::SetColumnWidth(int cxWidth)
{
    Ask(*this, LB_SETCOLUMNWIDTH, cxWidth);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return Ask<BOOL>(*this, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

void CListBox::SetTabStops()
{
    Ask(*this, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop)
{
    return Ask<BOOL>(*this, LB_SETTABSTOPS, 1, &cxEachStop);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return Ask<int>(*this, LB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CListBox::GetItemHeight(int nIndex) const
{
    return Ask<int>(*this, LB_GETITEMHEIGHT, nIndex);
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return Ask<int>(*this, LB_ADDSTRING, 0, lpszItem);
}

int CListBox::DeleteString(UINT nIndex)
{
    return Ask<int>(*this, LB_DELETESTRING, nIndex);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return Ask<int>(*this, LB_INSERTSTRING, nIndex, lpszItem);
}

void CListBox::ResetContent()
{
    Ask(*this, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return Ask<int>(*this, LB_DIR, attr, lpszWildCard);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return Ask<int>(*this, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return Ask<int>(*this, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return Ask<int>(*this, LB_SELECTSTRING, nStartAfter, lpszItem);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    UNREFERENCED_PARAMETER(lpMeasureItemStruct);
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    UNREFERENCED_PARAMETER(lpCompareItemStruct);
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    UNREFERENCED_PARAMETER(lpDeleteItemStruct);
}

int CListBox::VKeyToItem(UINT nKey, UINT nIndex)
{
    UNREFERENCED_PARAMETER(nKey);
    UNREFERENCED_PARAMETER(nIndex);
    return -1;
}

int CListBox::CharToItem(UINT nKey, UINT nIndex)
{
    UNREFERENCED_PARAMETER(nKey);
    UNREFERENCED_PARAMETER(nIndex);
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = TRUE;
    if (message == WM_VKEYTOITEM) {
        lResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
    } else if (message == WM_CHARTOITEM) {
        lResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
    } else if (!AnswerItemMessage(*this, message, lParam, lResult)) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    if (pResult) {
        *pResult = lResult;
    }
    return TRUE;
}
