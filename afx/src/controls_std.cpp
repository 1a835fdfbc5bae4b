#include <afxwin.h>

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon)
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_SETICON, reinterpret_cast<WPARAM>(hIcon), 0));
}

HICON CStatic::GetIcon() const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_GETICON, 0, 0));
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return reinterpret_cast<HENHMETAFILE>(
        ::SendMessage(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, reinterpret_cast<LPARAM>(hMetaFile)));
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return reinterpret_cast<HENHMETAFILE>(::SendMessage(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE, 0));
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    return reinterpret_cast<HBITMAP>(
        ::SendMessage(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

HBITMAP CStatic::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(::SendMessage(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP, 0));
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor)
{
    return reinterpret_cast<HCURSOR>(
        ::SendMessage(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(hCursor)));
}

HCURSOR CStatic::GetCursor()
{
    return reinterpret_cast<HCURSOR>(::SendMessage(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR, 0));
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, BM_GETSTATE, 0, 0));
}

void CButton::SetState(BOOL bHighlight)
{
    ::SendMessage(m_hWnd, BM_SETSTATE, bHighlight, 0);
}

int CButton::GetCheck() const
{
    return static_cast<int>(::SendMessage(m_hWnd, BM_GETCHECK, 0, 0));
}

void CButton::SetCheck(int nCheck)
{
    ::SendMessage(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(nCheck), 0);
}

UINT CButton::GetButtonStyle() const
{
    return static_cast<UINT>(::GetWindowLong(m_hWnd, GWL_STYLE) & BS_TYPEMASK);
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, BM_SETSTYLE, nStyle, MAKELPARAM(bRedraw, 0));
}

HICON CButton::SetIcon(HICON hIcon)
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CButton::GetIcon() const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, BM_GETIMAGE, IMAGE_ICON, 0));
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    return reinterpret_cast<HBITMAP>(
        ::SendMessage(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

HBITMAP CButton::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(::SendMessage(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP, 0));
}

HCURSOR CButton::SetCursor(HCURSOR hCursor)
{
    return reinterpret_cast<HCURSOR>(
        ::SendMessage(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(hCursor)));
}

HCURSOR CButton::GetCursor()
{
    return reinterpret_cast<HCURSOR>(::SendMessage(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR, 0));
}

BOOL CButton::GetIdealSize(LPSIZE psize) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(psize)));
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pbuttonImagelist)));
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(pbuttonImagelist)));
}

BOOL CButton::SetTextMargin(LPRECT pmargin)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_SETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(pmargin)));
}

BOOL CButton::GetTextMargin(LPRECT pmargin) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_GETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(pmargin)));
}

BOOL CButton::SetNote(LPCTSTR lpszNote)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_SETNOTE, 0, reinterpret_cast<LPARAM>(lpszNote)));
}

UINT CButton::GetNoteLength() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, BCM_GETNOTELENGTH, 0, 0));
}

CString CButton::GetNote() const
{
    CString strNote;
    DWORD nLength = GetNoteLength() + 1;
    ::SendMessage(m_hWnd, BCM_GETNOTE, reinterpret_cast<WPARAM>(&nLength),
                  reinterpret_cast<LPARAM>(strNote.GetBuffer(nLength)));
    strNote.ReleaseBuffer();
    return strNote;
}

HICON CButton::SetShield(BOOL fElevationRequired)
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired));
}

BOOL CButton::SetDropDownState(BOOL fDropDown)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_SETDROPDOWNSTATE, fDropDown, 0));
}

BOOL CButton::SetSplitInfo(PBUTTON_SPLITINFO pInfo)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_SETSPLITINFO, 0, reinterpret_cast<LPARAM>(pInfo)));
}

BOOL CButton::GetSplitInfo(PBUTTON_SPLITINFO pInfo) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, BCM_GETSPLITINFO, 0, reinterpret_cast<LPARAM>(pInfo)));
}

void CButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETCOUNT, 0, 0));
}

int CListBox::GetHorizontalExtent() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETHORIZONTALEXTENT, 0, 0));
}

void CListBox::SetHorizontalExtent(int cxExtent)
{
    ::SendMessage(m_hWnd, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent), 0);
}

int CListBox::GetTopIndex() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETTOPINDEX, 0, 0));
}

int CListBox::SetTopIndex(int nIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_SETTOPINDEX, static_cast<WPARAM>(nIndex), 0));
}

LCID CListBox::GetLocale() const
{
    return static_cast<LCID>(::SendMessage(m_hWnd, LB_GETLOCALE, 0, 0));
}

LCID CListBox::SetLocale(LCID nNewLocale)
{
    return static_cast<LCID>(::SendMessage(m_hWnd, LB_SETLOCALE, static_cast<WPARAM>(nNewLocale), 0));
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_INITSTORAGE, static_cast<WPARAM>(nItems), nBytes));
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const DWORD dwResult = static_cast<DWORD>(::SendMessage(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(dwResult);
    return LOWORD(dwResult);
}

DWORD CListBox::GetListBoxInfo() const
{
    return ::GetListBoxInfo(m_hWnd);
}

int CListBox::GetCurSel() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETCURSEL, 0, 0));
}

int CListBox::SetCurSel(int nSelect)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_SETCURSEL, static_cast<WPARAM>(nSelect), 0));
}

int CListBox::GetSel(int nIndex) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETSEL, static_cast<WPARAM>(nIndex), 0));
}

int CListBox::SetSel(int nIndex, BOOL bSelect)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_SETSEL, bSelect, nIndex));
}

int CListBox::GetSelCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETSELCOUNT, 0, 0));
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_GETSELITEMS, static_cast<WPARAM>(nMaxItems), reinterpret_cast<LPARAM>(rgIndex)));
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    // The range in the message is 16 bits wide; the extended one takes first and last instead of a flag.
    if (bSelect)
        return static_cast<int>(::SendMessage(m_hWnd, LB_SELITEMRANGEEX, static_cast<WPARAM>(nFirstItem), nLastItem));
    return static_cast<int>(::SendMessage(m_hWnd, LB_SELITEMRANGEEX, static_cast<WPARAM>(nLastItem), nFirstItem));
}

void CListBox::SetAnchorIndex(int nIndex)
{
    ::SendMessage(m_hWnd, LB_SETANCHORINDEX, static_cast<WPARAM>(nIndex), 0);
}

int CListBox::GetAnchorIndex() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETANCHORINDEX, 0, 0));
}

int CListBox::GetCaretIndex() const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETCARETINDEX, 0, 0));
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_SETCARETINDEX, static_cast<WPARAM>(nIndex), MAKELPARAM(bScroll, 0)));
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0));
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
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
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)));
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int nLength = GetTextLen(nIndex);
    if (nLength <= 0)
        return;
    GetText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
}

int CListBox::GetTextLen(int nIndex) const
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, LB_GETTEXTLEN, static_cast<WPARAM>(nIndex), 0))
                             : LB_ERR;
}

void CListBox::SetColumnWidth(int cxWidth)
{
    ::SendMessage(m_hWnd, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(cxWidth), 0);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, LB_SETTABSTOPS, static_cast<WPARAM>(nTabStops), reinterpret_cast<LPARAM>(rgTabStops)));
}

void CListBox::SetTabStops()
{
    ::SendMessage(m_hWnd, LB_SETTABSTOPS, 0, 0);
}

BOOL CListBox::SetTabStops(const int& cxEachStop)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&cxEachStop)));
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELPARAM(cyItemHeight, 0)));
}

int CListBox::GetItemHeight(int nIndex) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex), 0));
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::DeleteString(UINT nIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_DELETESTRING, nIndex, 0));
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszItem)));
}

void CListBox::ResetContent()
{
    ::SendMessage(m_hWnd, LB_RESETCONTENT, 0, 0);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard)));
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_FINDSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return static_cast<int>(::SendMessage(m_hWnd, LB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart),
                                          reinterpret_cast<LPARAM>(lpszFind)));
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, LB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszItem)));
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
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        lResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    case WM_VKEYTOITEM:
        lResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        lResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    if (pResult != nullptr)
        *pResult = lResult;
    return TRUE;
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETCOUNT, 0, 0));
}

int CComboBox::GetCurSel() const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETCURSEL, 0, 0));
}

int CComboBox::SetCurSel(int nSelect)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_SETCURSEL, static_cast<WPARAM>(nSelect), 0));
}

LCID CComboBox::GetLocale() const
{
    return static_cast<LCID>(::SendMessage(m_hWnd, CB_GETLOCALE, 0, 0));
}

LCID CComboBox::SetLocale(LCID nNewLocale)
{
    return static_cast<LCID>(::SendMessage(m_hWnd, CB_SETLOCALE, static_cast<WPARAM>(nNewLocale), 0));
}

int CComboBox::GetTopIndex() const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETTOPINDEX, 0, 0));
}

int CComboBox::SetTopIndex(int nIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_SETTOPINDEX, static_cast<WPARAM>(nIndex), 0));
}

int CComboBox::InitStorage(int nItems, UINT nBytes)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_INITSTORAGE, static_cast<WPARAM>(nItems), nBytes));
}

void CComboBox::SetHorizontalExtent(UINT nExtent)
{
    ::SendMessage(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent, 0);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, CB_GETHORIZONTALEXTENT, 0, 0));
}

int CComboBox::SetDroppedWidth(UINT nWidth)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_SETDROPPEDWIDTH, nWidth, 0));
}

int CComboBox::GetDroppedWidth() const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETDROPPEDWIDTH, 0, 0));
}

BOOL CComboBox::SetMinVisibleItems(int iMinVisible)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_SETMINVISIBLE, static_cast<WPARAM>(iMinVisible), 0));
}

int CComboBox::GetMinVisible() const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETMINVISIBLE, 0, 0));
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

DWORD CComboBox::GetEditSel() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, CB_GETEDITSEL, 0, 0));
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar)));
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_LIMITTEXT, static_cast<WPARAM>(nMaxChars), 0));
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(lpszText)));
}

CString CComboBox::GetCueBanner() const
{
    WCHAR text[256] = {};
    ::SendMessage(m_hWnd, CB_GETCUEBANNER, reinterpret_cast<WPARAM>(text), _countof(text));
    return text;
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    return static_cast<DWORD_PTR>(::SendMessage(m_hWnd, CB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0));
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
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
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszText)));
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int nLength = GetLBTextLen(nIndex);
    if (nLength <= 0)
        return;
    GetLBText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    return m_hWnd != nullptr ? static_cast<int>(::SendMessage(m_hWnd, CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex), 0))
                             : CB_ERR;
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELPARAM(cyItemHeight, 0)));
}

int CComboBox::GetItemHeight(int nIndex) const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex), 0));
}

int CComboBox::SetExtendedUI(BOOL bExtended)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_SETEXTENDEDUI, bExtended, 0));
}

BOOL CComboBox::GetExtendedUI() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_GETEXTENDEDUI, 0, 0));
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const
{
    ::SendMessage(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
}

BOOL CComboBox::GetDroppedState() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, CB_GETDROPPEDSTATE, 0, 0));
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    ::SendMessage(m_hWnd, CB_SHOWDROPDOWN, bShowIt, 0);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::DeleteString(UINT nIndex)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_DELETESTRING, nIndex, 0));
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszString)));
}

void CComboBox::ResetContent()
{
    ::SendMessage(m_hWnd, CB_RESETCONTENT, 0, 0);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard)));
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_FINDSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return static_cast<int>(::SendMessage(m_hWnd, CB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart),
                                          reinterpret_cast<LPARAM>(lpszFind)));
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, CB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

void CComboBox::Clear()
{
    ::SendMessage(m_hWnd, WM_CLEAR, 0, 0);
}

void CComboBox::Copy()
{
    ::SendMessage(m_hWnd, WM_COPY, 0, 0);
}

void CComboBox::Cut()
{
    ::SendMessage(m_hWnd, WM_CUT, 0, 0);
}

void CComboBox::Paste()
{
    ::SendMessage(m_hWnd, WM_PASTE, 0, 0);
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
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        lResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    if (pResult != nullptr)
        *pResult = lResult;
    return TRUE;
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::CreateEx(0, WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_CANUNDO, 0, 0));
}

int CEdit::GetLineCount() const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_GETLINECOUNT, 0, 0));
}

BOOL CEdit::GetModify() const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_GETMODIFY, 0, 0));
}

void CEdit::SetModify(BOOL bModified)
{
    ::SendMessage(m_hWnd, EM_SETMODIFY, bModified, 0);
}

void CEdit::GetRect(LPRECT lpRect) const
{
    ::SendMessage(m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRect(LPCRECT lpRect)
{
    ::SendMessage(m_hWnd, EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    ::SendMessage(m_hWnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect));
}

DWORD CEdit::GetSel() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, EM_GETSEL, 0, 0));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD dwStart = 0;
    DWORD dwEnd = 0;
    ::SendMessage(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), reinterpret_cast<LPARAM>(&dwEnd));
    nStartChar = static_cast<int>(dwStart);
    nEndChar = static_cast<int>(dwEnd);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    ::SendMessage(m_hWnd, EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        ::SendMessage(m_hWnd, EM_SCROLLCARET, 0, 0);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    ::SendMessage(m_hWnd, EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText));
}

HLOCAL CEdit::GetHandle() const
{
    return reinterpret_cast<HLOCAL>(::SendMessage(m_hWnd, EM_GETHANDLE, 0, 0));
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    ::SendMessage(m_hWnd, EM_SETHANDLE, reinterpret_cast<WPARAM>(hBuffer), 0);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    ::SendMessage(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

DWORD CEdit::GetMargins() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, EM_GETMARGINS, 0, 0));
}

void CEdit::SetLimitText(UINT nMax)
{
    ::SendMessage(m_hWnd, EM_SETLIMITTEXT, nMax, 0);
}

UINT CEdit::GetLimitText() const
{
    return static_cast<UINT>(::SendMessage(m_hWnd, EM_GETLIMITTEXT, 0, 0));
}

void CEdit::LimitText(int nChars)
{
    ::SendMessage(m_hWnd, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const DWORD dwPos = static_cast<DWORD>(::SendMessage(m_hWnd, EM_POSFROMCHAR, nChar, 0));
    return CPoint(static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos)));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return static_cast<int>(
        ::SendMessage(m_hWnd, EM_GETLINE, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (lpszBuffer == nullptr || nMaxLength <= 0)
        return 0;
    // The control reads the buffer's size from its first word.
    *reinterpret_cast<LPWORD>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::EmptyUndoBuffer()
{
    ::SendMessage(m_hWnd, EM_EMPTYUNDOBUFFER, 0, 0);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_FMTLINES, bAddEOL, 0));
}

int CEdit::LineFromChar(int nIndex) const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex), 0));
}

int CEdit::LineIndex(int nLine) const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_LINEINDEX, static_cast<WPARAM>(nLine), 0));
}

int CEdit::LineLength(int nLine) const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_LINELENGTH, static_cast<WPARAM>(nLine), 0));
}

void CEdit::LineScroll(int nLines, int nChars)
{
    ::SendMessage(m_hWnd, EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
}

int CEdit::GetFirstVisibleLine() const
{
    return static_cast<int>(::SendMessage(m_hWnd, EM_GETFIRSTVISIBLELINE, 0, 0));
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    ::SendMessage(m_hWnd, EM_SETPASSWORDCHAR, static_cast<WPARAM>(ch), 0);
}

TCHAR CEdit::GetPasswordChar() const
{
    return static_cast<TCHAR>(::SendMessage(m_hWnd, EM_GETPASSWORDCHAR, 0, 0));
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SETREADONLY, bReadOnly, 0));
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, EM_SETTABSTOPS, static_cast<WPARAM>(nTabStops), reinterpret_cast<LPARAM>(rgTabStops)));
}

void CEdit::SetTabStops()
{
    ::SendMessage(m_hWnd, EM_SETTABSTOPS, 0, 0);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&cxEachStop)));
}

BOOL CEdit::SetCueBanner(LPCTSTR lpszText, BOOL fDrawWhenFocused)
{
    return static_cast<BOOL>(
        ::SendMessage(m_hWnd, EM_SETCUEBANNER, fDrawWhenFocused, reinterpret_cast<LPARAM>(lpszText)));
}

BOOL CEdit::GetCueBanner(LPTSTR lpszText, int cchText) const
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(lpszText), cchText));
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(pEditBalloonTip)));
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
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_HIDEBALLOONTIP, 0, 0));
}

BOOL CEdit::Undo()
{
    return static_cast<BOOL>(::SendMessage(m_hWnd, EM_UNDO, 0, 0));
}

void CEdit::Clear()
{
    ::SendMessage(m_hWnd, WM_CLEAR, 0, 0);
}

void CEdit::Copy()
{
    ::SendMessage(m_hWnd, WM_COPY, 0, 0);
}

void CEdit::Cut()
{
    ::SendMessage(m_hWnd, WM_CUT, 0, 0);
}

void CEdit::Paste()
{
    ::SendMessage(m_hWnd, WM_PASTE, 0, 0);
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
    if (m_hWnd == nullptr || lpScrollInfo == nullptr)
        return FALSE;
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    if (lpScrollInfo == nullptr)
        return FALSE;
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nMax - (std::max)(static_cast<int>(info.nPage) - 1, 0);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    if (pScrollInfo == nullptr)
        return FALSE;
    pScrollInfo->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}
