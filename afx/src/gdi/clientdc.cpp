#include "handles.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(gdi::WindowOf(pWnd))
{
    // A window that does not exist any more must not turn into the screen.
    if ((pWnd && !m_hWnd) || !Attach(::GetDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CClientDC::~CClientDC()
{
    if (m_hDC) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(gdi::WindowOf(pWnd))
{
    if ((pWnd && !m_hWnd) || !Attach(::GetWindowDC(m_hWnd))) {
        AfxThrowResourceException();
    }
}

CWindowDC::~CWindowDC()
{
    if (m_hDC) {
        ::ReleaseDC(m_hWnd, Detach());
    }
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(gdi::WindowOf(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) {
        AfxThrowResourceException();
    }
}

CPaintDC::~CPaintDC()
{
    if (!m_hDC) {
        return;
    }
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
