#include "itemmessages.h"
#include "wnd/ask.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

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
    return m_hWnd ? Ask<int>(*this, CB_GETLBTEXTLEN, nIndex) : CB_ERR;
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
    if (pResult) {
        *pResult = lResult;
    }
    return TRUE;
}
