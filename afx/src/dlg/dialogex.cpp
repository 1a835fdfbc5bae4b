#include <common/Owner.h>

#include <afxdialogex.h>

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CDialogEx::CDialogEx() : m_sizeBkgrBitmap(0, 0) {}

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParent) : CDialog(nIDTemplate, pParent), m_sizeBkgrBitmap(0, 0) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : CDialog(lpszTemplateName, pParentWnd), m_sizeBkgrBitmap(0, 0)
{
}

CDialogEx::~CDialogEx()
{
    DropImage();
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint)
{
    m_brBkgr.DeleteObject();
    if (color != static_cast<COLORREF>(-1)) {
        m_brBkgr.CreateSolidBrush(color);
    }
    if (bRepaint && m_hWnd) {
        Invalidate();
        UpdateWindow();
    }
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy, BOOL bRepaint)
{
    if (hBitmap != m_hBkgrBitmap) {
        DropImage();
    }
    m_hBkgrBitmap = hBitmap;
    m_bAutoDestroyBmp = bAutoDestroy;
    m_BkgrLocation = location;
    BITMAP description = {};
    if (hBitmap && ::GetObject(hBitmap, sizeof(description), &description)) {
        m_sizeBkgrBitmap = CSize(description.bmWidth, description.bmHeight);
    }
    if (bRepaint && m_hWnd) {
        Invalidate();
        UpdateWindow();
    }
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint)
{
    HBITMAP hBitmap = nullptr;
    if (uiBmpResId != 0) {
        const LPCTSTR lpszName = MAKEINTRESOURCE(uiBmpResId);
        hBitmap = ::LoadBitmap(AfxFindResourceHandle(lpszName, RT_BITMAP), lpszName);
        if (!hBitmap) {
            return FALSE;
        }
    }
    SetBackgroundImage(hBitmap, location, TRUE, bRepaint);
    return TRUE;
}

void CDialogEx::DropImage()
{
    if (m_bAutoDestroyBmp && m_hBkgrBitmap) {
        ::DeleteObject(m_hBkgrBitmap);
    }
    m_hBkgrBitmap = nullptr;
    m_sizeBkgrBitmap = CSize(0, 0);
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC)
{
    if (!m_brBkgr.GetSafeHandle() && !m_hBkgrBitmap) {
        return CDialog::OnEraseBkgnd(pDC);
    }
    CRect rectClient;
    GetClientRect(rectClient);
    if (m_brBkgr.GetSafeHandle()) {
        pDC->FillRect(rectClient, &m_brBkgr);
    } else if (m_BkgrLocation != BACKGR_TILE) {
        CDialog::OnEraseBkgnd(pDC);
    }
    if (m_hBkgrBitmap) {
        DrawImage(pDC, rectClient);
    }
    return TRUE;
}

void CDialogEx::DrawImage(CDC* pDC, const CRect& rectClient)
{
    const own::MemoryDc dcImage(::CreateCompatibleDC(pDC->GetSafeHdc()));
    const int cx = m_sizeBkgrBitmap.cx;
    const int cy = m_sizeBkgrBitmap.cy;
    if (!dcImage || cx <= 0 || cy <= 0) {
        return;
    }
    const HGDIOBJ hOld = ::SelectObject(dcImage.Get(), m_hBkgrBitmap);
    if (m_BkgrLocation == BACKGR_TILE) {
        for (int y = rectClient.top; y < rectClient.bottom; y += cy) {
            for (int x = rectClient.left; x < rectClient.right; x += cx) {
                ::BitBlt(pDC->GetSafeHdc(), x, y, cx, cy, dcImage.Get(), 0, 0, SRCCOPY);
            }
        }
    } else {
        const bool bRight = m_BkgrLocation == BACKGR_TOPRIGHT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
        const bool bBottom = m_BkgrLocation == BACKGR_BOTTOMLEFT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
        ::BitBlt(pDC->GetSafeHdc(), bRight ? rectClient.right - cx : rectClient.left,
                 bBottom ? rectClient.bottom - cy : rectClient.top, cx, cy, dcImage.Get(), 0, 0, SRCCOPY);
    }
    ::SelectObject(dcImage.Get(), hOld);
}

void CDialogEx::OnSize(UINT nType, int cx, int cy)
{
    CDialog::OnSize(nType, cx, cy);
    if (m_hBkgrBitmap && m_BkgrLocation != BACKGR_TILE && m_BkgrLocation != BACKGR_TOPLEFT) {
        Invalidate();
    }
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH hBrush = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (nCtlColor != CTLCOLOR_STATIC || !pDC || (!m_brBkgr.GetSafeHandle() && !m_hBkgrBitmap)) {
        return hBrush;
    }
    pDC->SetBkMode(TRANSPARENT);
    return m_hBkgrBitmap ? static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH)) : static_cast<HBRUSH>(m_brBkgr);
}
