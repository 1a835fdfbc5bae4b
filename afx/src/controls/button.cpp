#include "wnd/ask.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CButton, CWnd)

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
