#include "tooltip.h"
#include "wndaccess.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace
{
CObject* AFXAPI CreateTemporaryWnd(HANDLE h)
{
    auto* pWnd = new CWnd;
    pWnd->m_hWnd = static_cast<HWND>(h);
    return pWnd;
}

void AFXAPI ReleaseTemporaryWnd(CObject* pObject)
{
    auto* pWnd = static_cast<CWnd*>(pObject);
    pWnd->m_hWnd = nullptr;
    delete pWnd;
}

const AFX_HANDLE_FACTORY kWndFactory = {CreateTemporaryWnd, ReleaseTemporaryWnd};

bool IsInsertionPlace(const CWnd* pWnd)
{
    return pWnd == &CWnd::wndTop || pWnd == &CWnd::wndBottom || pWnd == &CWnd::wndTopMost ||
           pWnd == &CWnd::wndNoTopMost;
}
} // namespace

CHandleMap* AfxWndMap()
{
    return AfxGetHandleMap(AFX_HANDLE_HWND, &kWndFactory);
}

CWnd::CWnd() : CWnd(nullptr) {}

CWnd::CWnd(HWND hWnd) : m_hWnd(hWnd), m_nFlags(0), m_hWndOwner(nullptr), m_pfnSuper(nullptr), m_nModalResult(0) {}

CWnd::~CWnd()
{
    if (m_hWnd && !IsInsertionPlace(this)) {
        TRACE(_T("CWnd destroyed while its window lives.\n"));
        DestroyWindow();
    }
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    return static_cast<CWnd*>(AfxWndMap()->FromHandle(hWnd));
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    return hWnd ? static_cast<CWnd*>(AfxWndMap()->LookupPermanent(hWnd)) : nullptr;
}

void CWnd::DeleteTempMap()
{
    AfxWndMap()->DeleteTemp();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    ASSERT(!m_hWnd);
    if (!hWndNew || m_hWnd) {
        return FALSE;
    }
    AfxWndMap()->SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND hWnd = m_hWnd;
    if (hWnd && FromHandlePermanent(hWnd) == this) {
        AfxWndMap()->RemoveHandle(hWnd);
    }
    m_hWnd = nullptr;
    return hWnd;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, LPVOID pContext)
{
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    ASSERT(!m_hWnd);
    if (m_hWnd) {
        return FALSE;
    }
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                                       cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    const DWORD error = ::GetLastError();
    if (!AfxUnhookWindowCreate()) {
        PostNcDestroy(); // no message ever reached this object, so nobody else does it
    }
    ::SetLastError(error);
    return hWnd != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    }
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    const HWND hWnd = m_hWnd;
    if (!hWnd) {
        return FALSE;
    }
    const bool isPermanent = FromHandlePermanent(hWnd) == this;
    const BOOL bResult = ::DestroyWindow(hWnd);
    // This object may be gone now; only the map tells. A window that was merely attached never told us of its end.
    if (isPermanent && FromHandlePermanent(hWnd) == this && (bResult || !::IsWindow(hWnd))) {
        Detach();
    }
    return bResult;
}

void CWnd::PostNcDestroy() {}

void CWnd::OnFinalRelease()
{
    if (m_hWnd) {
        DestroyWindow(); // PostNcDestroy decides about the object
    } else {
        PostNcDestroy();
    }
}

void CWnd::OnNcDestroy()
{
    CWinThread* pThread = AfxGetThread();
    if (pThread && pThread->m_pMainWnd == this) {
        pThread->m_pMainWnd = nullptr;
        if (!pThread->m_pModuleState->m_bDLL || pThread != AfxGetApp()) {
            AfxPostQuitMessage(0);
        }
    }
    if (pThread && pThread->m_pActiveWnd == this) {
        pThread->m_pActiveWnd = nullptr;
    }
    AFX_MODULE_THREAD_STATE* pThreadState = AfxGetModuleThreadState();
    if (pThreadState->m_pLastHit == this) {
        AfxDestroyToolTip();
    }
    const HWND hWnd = m_hWnd;
    const LONG_PTR pfnBefore = ::GetWindowLongPtr(hWnd, GWLP_WNDPROC);
    Default();
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper && ::GetWindowLongPtr(hWnd, GWLP_WNDPROC) == pfnBefore) {
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
    }
    *ppfnSuper = nullptr;
    m_nFlags &= ~static_cast<UINT>(WF_MODALLOOP | WF_CONTINUEMODAL);
    Detach();
    PostNcDestroy();
}
