#include "stdafx.h"
#include "Gauge.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

IMPLEMENT_DYNAMIC(CGauge, CWnd)

BEGIN_MESSAGE_MAP(CGauge, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CGauge::CGauge() : m_nValue(0)
{
    RegisterWindowClass();
}

BOOL CGauge::RegisterWindowClass()
{
    WNDCLASS wndcls;
    HINSTANCE hInst = AfxGetInstanceHandle();
    if (!(::GetClassInfo(hInst, _T("SampleGauge"), &wndcls))) {
        wndcls.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        wndcls.lpfnWndProc = ::DefWindowProc;
        wndcls.cbClsExtra = wndcls.cbWndExtra = 0;
        wndcls.hInstance = hInst;
        wndcls.hIcon = NULL;
        wndcls.hCursor = AfxGetApp()->LoadStandardCursor(IDC_ARROW);
        wndcls.hbrBackground = (HBRUSH)(COLOR_3DFACE + 1);
        wndcls.lpszMenuName = NULL;
        wndcls.lpszClassName = _T("SampleGauge");
        if (!AfxRegisterClass(&wndcls)) {
            AfxThrowResourceException();
            return FALSE;
        }
    }
    return TRUE;
}

void CGauge::SetValue(int nValue)
{
    m_nValue = max(0, min(10, nValue));
    if (GetSafeHwnd()) {
        Invalidate(FALSE);
    }
}

void CGauge::OnPaint()
{
    CPaintDC dc(this);
    CRect rc;
    GetClientRect(&rc);
    CDC memDC;
    memDC.CreateCompatibleDC(&dc);
    CBitmap bmp;
    bmp.CreateCompatibleBitmap(&dc, rc.Width(), rc.Height());
    CBitmap* pOldBmp = memDC.SelectObject(&bmp);
    memDC.FillSolidRect(rc, GetSysColor(COLOR_WINDOW));
    CFont font;
    font.CreateStockObject(DEFAULT_GUI_FONT);
    memDC.SelectObject(font);
    CRect bar(rc.left, rc.top, rc.left + rc.Width() * m_nValue / 10, rc.bottom);
    memDC.FillSolidRect(bar, RGB(0, 0, 255));
    dc.BitBlt(0, 0, rc.Width(), rc.Height(), &memDC, 0, 0, SRCCOPY);
    memDC.SelectObject(pOldBmp);
}

BOOL CGauge::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CGauge::OnLButtonDown(UINT nFlags, CPoint point)
{
    CRect rc;
    GetClientRect(&rc);
    SetValue(rc.Width() > 0 ? point.x * 10 / rc.Width() + 1 : 0);
    CWnd::OnLButtonDown(nFlags, point);
}
