#include "ask.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

namespace
{
/** Lets a box answer an owner-draw message about its items. @return false for any other message */
template <class Box>
bool AnswerItemMessage(Box& box, UINT message, LPARAM lParam, LRESULT& lResult)
{
    switch (message) {
    case WM_DRAWITEM:
        box.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        box.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        lResult = box.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        box.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}
} // namespace

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon)
{
    return Ask<HICON>(*this, STM_SETICON, hIcon);
}

HICON CStatic::GetIcon() const
{
    return Ask<HICON>(*this, STM_GETICON);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return Ask<HENHMETAFILE>(*this, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return Ask<HENHMETAFILE>(*this, STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    return Ask<HBITMAP>(*this, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CStatic::GetBitmap() const
{
    return Ask<HBITMAP>(*this, STM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor)
{
    return Ask<HCURSOR>(*this, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CStatic::GetCursor()
{
    return Ask<HCURSOR>(*this, STM_GETIMAGE, IMAGE_CURSOR);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    return Ask<UINT>(*this, BM_GETSTATE);
}

void CButton::SetState(BOOL bHighlight)
{
    Ask(*this, BM_SETSTATE, bHighlight);
}

int CButton::GetCheck() const
{
    return Ask<int>(*this, BM_GETCHECK);
}

void CButton::SetCheck(int nCheck)
{
    Ask(*this, BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const
{
    return static_cast<UINT>(::GetWindowLong(m_hWnd, GWL_STYLE) & BS_TYPEMASK);
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    Ask(*this, BM_SETSTYLE, nStyle, MAKELPARAM(bRedraw, 0));
}

HICON CButton::SetIcon(HICON hIcon)
{
    return Ask<HICON>(*this, BM_SETIMAGE, IMAGE_ICON, hIcon);
}

HICON CButton::GetIcon() const
{
    return Ask<HICON>(*this, BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    return Ask<HBITMAP>(*this, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const
{
    return Ask<HBITMAP>(*this, BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR hCursor)
{
    return Ask<HCURSOR>(*this, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CButton::GetCursor()
{
    return Ask<HCURSOR>(*this, BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::GetIdealSize(LPSIZE psize) const
{
    return Ask<BOOL>(*this, BCM_GETIDEALSIZE, 0, psize);
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return Ask<BOOL>(*this, BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const
{
    return Ask<BOOL>(*this, BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::SetTextMargin(LPRECT pmargin)
{
    return Ask<BOOL>(*this, BCM_SETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::GetTextMargin(LPRECT pmargin) const
{
    return Ask<BOOL>(*this, BCM_GETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::SetNote(LPCTSTR lpszNote)
{
    return Ask<BOOL>(*this, BCM_SETNOTE, 0, lpszNote);
}

UINT CButton::GetNoteLength() const
{
    return Ask<UINT>(*this, BCM_GETNOTELENGTH);
}

CString CButton::GetNote() const
{
    CString strNote;
    DWORD nLength = GetNoteLength() + 1;
    Ask(*this, BCM_GETNOTE, &nLength, strNote.GetBuffer(nLength));
    strNote.ReleaseBuffer();
    return strNote;
}

HICON CButton::SetShield(BOOL fElevationRequired)
{
    return Ask<HICON>(*this, BCM_SETSHIELD, 0, fElevationRequired);
}

BOOL CButton::SetDropDownState(BOOL fDropDown)
{
    return Ask<BOOL>(*this, BCM_SETDROPDOWNSTATE, fDropDown);
}

BOOL CButton::SetSplitInfo(PBUTTON_SPLITINFO pInfo)
{
    return Ask<BOOL>(*this, BCM_SETSPLITINFO, 0, pInfo);
}

BOOL CButton::GetSplitInfo(PBUTTON_SPLITINFO pInfo) const
{
    return Ask<BOOL>(*this, BCM_GETSPLITINFO, 0, pInfo);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

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
    return m_hWnd != nullptr ? Ask<int>(*this, LB_GETTEXTLEN, nIndex) : LB_ERR;
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
    if (pResult != nullptr) {
        *pResult = lResult;
    }
    return TRUE;
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    return Ask<int>(*this, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return Ask<int>(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect)
{
    return Ask<int>(*this, CB_SETCURSEL, nSelect);
}

LCID CComboBox::GetLocale() const
{
    return Ask<LCID>(*this, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale)
{
    return Ask<LCID>(*this, CB_SETLOCALE, nNewLocale);
}

int CComboBox::GetTopIndex() const
{
    return Ask<int>(*this, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex)
{
    return Ask<int>(*this, CB_SETTOPINDEX, nIndex);
}

int CComboBox::InitStorage(int nItems, UINT nBytes)
{
    return Ask<int>(*this, CB_INITSTORAGE, nItems, nBytes);
}

void CComboBox::SetHorizontalExtent(UINT nExtent)
{
    Ask(*this, CB_SETHORIZONTALEXTENT, nExtent);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return Ask<UINT>(*this, CB_GETHORIZONTALEXTENT);
}

int CComboBox::SetDroppedWidth(UINT nWidth)
{
    return Ask<int>(*this, CB_SETDROPPEDWIDTH, nWidth);
}

int CComboBox::GetDroppedWidth() const
{
    return Ask<int>(*this, CB_GETDROPPEDWIDTH);
}

BOOL CComboBox::SetMinVisibleItems(int iMinVisible)
{
    return Ask<BOOL>(*this, CB_SETMINVISIBLE, iMinVisible);
}

int CComboBox::GetMinVisible() const
{
    return Ask<int>(*this, CB_GETMINVISIBLE);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

DWORD CComboBox::GetEditSel() const
{
    return Ask<DWORD>(*this, CB_GETEDITSEL);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return Ask<BOOL>(*this, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    return Ask<BOOL>(*this, CB_LIMITTEXT, nMaxChars);
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText)
{
    return Ask<BOOL>(*this, CB_SETCUEBANNER, 0, lpszText);
}

CString CComboBox::GetCueBanner() const
{
    WCHAR text[256] = {};
    Ask(*this, CB_GETCUEBANNER, text, _countof(text));
    return text;
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    return Ask<DWORD_PTR>(*this, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return Ask<int>(*this, CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const
{
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const
{
    return Ask<int>(*this, CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int nLength = GetLBTextLen(nIndex);
    if (nLength <= 0) {
        return;
    }
    GetLBText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    return m_hWnd != nullptr ? Ask<int>(*this, CB_GETLBTEXTLEN, nIndex) : CB_ERR;
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return Ask<int>(*this, CB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CComboBox::GetItemHeight(int nIndex) const
{
    return Ask<int>(*this, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetExtendedUI(BOOL bExtended)
{
    return Ask<int>(*this, CB_SETEXTENDEDUI, bExtended);
}

BOOL CComboBox::GetExtendedUI() const
{
    return Ask<BOOL>(*this, CB_GETEXTENDEDUI);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const
{
    Ask(*this, CB_GETDROPPEDCONTROLRECT, 0, lprect);
}

BOOL CComboBox::GetDroppedState() const
{
    return Ask<BOOL>(*this, CB_GETDROPPEDSTATE);
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    Ask(*this, CB_SHOWDROPDOWN, bShowIt);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return Ask<int>(*this, CB_ADDSTRING, 0, lpszString);
}

int CComboBox::DeleteString(UINT nIndex)
{
    return Ask<int>(*this, CB_DELETESTRING, nIndex);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return Ask<int>(*this, CB_INSERTSTRING, nIndex, lpszString);
}

void CComboBox::ResetContent()
{
    Ask(*this, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return Ask<int>(*this, CB_DIR, attr, lpszWildCard);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return Ask<int>(*this, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return Ask<int>(*this, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return Ask<int>(*this, CB_SELECTSTRING, nStartAfter, lpszString);
}

void CComboBox::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CComboBox::Copy()
{
    Ask(*this, WM_COPY);
}

void CComboBox::Cut()
{
    Ask(*this, WM_CUT);
}

void CComboBox::Paste()
{
    Ask(*this, WM_PASTE);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    UNREFERENCED_PARAMETER(lpMeasureItemStruct);
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    UNREFERENCED_PARAMETER(lpCompareItemStruct);
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    UNREFERENCED_PARAMETER(lpDeleteItemStruct);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = TRUE;
    if (!AnswerItemMessage(*this, message, lParam, lResult)) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    if (pResult != nullptr) {
        *pResult = lResult;
    }
    return TRUE;
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return Ask<BOOL>(*this, EM_CANUNDO);
}

int CEdit::GetLineCount() const
{
    return Ask<int>(*this, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return Ask<BOOL>(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified)
{
    Ask(*this, EM_SETMODIFY, bModified);
}

void CEdit::GetRect(LPRECT lpRect) const
{
    Ask(*this, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect)
{
    Ask(*this, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    Ask(*this, EM_SETRECTNP, 0, lpRect);
}

DWORD CEdit::GetSel() const
{
    return Ask<DWORD>(*this, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    Ask(*this, EM_GETSEL, &dwStart, &dwEnd);
    nStartChar = static_cast<int>(dwStart);
    nEndChar = static_cast<int>(dwEnd);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    Ask(*this, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll) {
        Ask(*this, EM_SCROLLCARET);
    }
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    Ask(*this, EM_REPLACESEL, bCanUndo, lpszNewText);
}

HLOCAL CEdit::GetHandle() const
{
    return Ask<HLOCAL>(*this, EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    Ask(*this, EM_SETHANDLE, hBuffer);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    Ask(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

DWORD CEdit::GetMargins() const
{
    return Ask<DWORD>(*this, EM_GETMARGINS);
}

void CEdit::SetLimitText(UINT nMax)
{
    Ask(*this, EM_SETLIMITTEXT, nMax);
}

UINT CEdit::GetLimitText() const
{
    return Ask<UINT>(*this, EM_GETLIMITTEXT);
}

void CEdit::LimitText(int nChars)
{
    Ask(*this, EM_LIMITTEXT, nChars);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const DWORD dwPos = Ask<DWORD>(*this, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos)));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return Ask<int>(*this, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask<int>(*this, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (lpszBuffer == nullptr || nMaxLength <= 0) {
        return 0;
    }
    // The control reads the buffer's size from its first word.
    *reinterpret_cast<LPWORD>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::EmptyUndoBuffer()
{
    Ask(*this, EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return Ask<BOOL>(*this, EM_FMTLINES, bAddEOL);
}

int CEdit::LineFromChar(int nIndex) const
{
    return Ask<int>(*this, EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const
{
    return Ask<int>(*this, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const
{
    return Ask<int>(*this, EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars)
{
    Ask(*this, EM_LINESCROLL, nChars, nLines);
}

int CEdit::GetFirstVisibleLine() const
{
    return Ask<int>(*this, EM_GETFIRSTVISIBLELINE);
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    Ask(*this, EM_SETPASSWORDCHAR, ch);
}

TCHAR CEdit::GetPasswordChar() const
{
    return Ask<TCHAR>(*this, EM_GETPASSWORDCHAR);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return Ask<BOOL>(*this, EM_SETREADONLY, bReadOnly);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return Ask<BOOL>(*this, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

void CEdit::SetTabStops()
{
    Ask(*this, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return Ask<BOOL>(*this, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetCueBanner(LPCTSTR lpszText, BOOL fDrawWhenFocused)
{
    return Ask<BOOL>(*this, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
}

BOOL CEdit::GetCueBanner(LPTSTR lpszText, int cchText) const
{
    return Ask<BOOL>(*this, EM_GETCUEBANNER, lpszText, cchText);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return Ask<BOOL>(*this, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCTSTR lpszTitle, LPCTSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {};
    tip.cbStruct = sizeof(tip);
    tip.pszTitle = lpszTitle;
    tip.pszText = lpszText;
    tip.ttiIcon = ttiIcon;
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return Ask<BOOL>(*this, EM_HIDEBALLOONTIP);
}

BOOL CEdit::Undo()
{
    return Ask<BOOL>(*this, EM_UNDO);
}

void CEdit::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CEdit::Copy()
{
    Ask(*this, WM_COPY);
}

void CEdit::Cut()
{
    Ask(*this, WM_CUT);
}

void CEdit::Paste()
{
    Ask(*this, WM_PASTE);
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

void CScrollBar::ShowScrollBar(BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, SB_CTL, bShow);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    if (m_hWnd == nullptr || lpScrollInfo == nullptr) {
        return FALSE;
    }
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    if (lpScrollInfo == nullptr) {
        return FALSE;
    }
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    return info.nMax - (std::max)(static_cast<int>(info.nPage) - 1, 0);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    if (pScrollInfo == nullptr) {
        return FALSE;
    }
    pScrollInfo->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}
