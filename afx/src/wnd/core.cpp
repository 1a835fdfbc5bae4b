#include "internal.h"

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

bool IsImeWindow(const CREATESTRUCT& cs)
{
    return !IS_INTRESOURCE(cs.lpszClass) && ::lstrcmpi(cs.lpszClass, _T("IME")) == 0;
}

void BindNewWindow(_AFX_THREAD_STATE* pState, HWND hWnd)
{
    CWnd* pWnd = pState->m_pWndInit;
    pState->m_pWndInit = nullptr;
    pWnd->Attach(hWnd);
    pWnd->PreSubclassWindow();
    WNDPROC* ppfnSuper = AfxWndAccess::SuperProcAddress(pWnd);
    const auto pfnOld =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (pfnOld != AfxWndProc) {
        *ppfnSuper = pfnOld;
    }
}

LRESULT CALLBACK CreationHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (nCode == HCBT_CREATEWND && pState->m_pWndInit) {
        const auto* pCreate = reinterpret_cast<CBT_CREATEWND*>(lParam);
        if (!IsImeWindow(*pCreate->lpcs)) {
            BindNewWindow(pState, reinterpret_cast<HWND>(wParam));
        }
    }
    return ::CallNextHookEx(pState->m_hHookOldCbtFilter, nCode, wParam, lParam);
}

/** Places a dialog that nobody placed: remembers where it was before WM_INITDIALOG and centres it after. */
class DialogPlacement
{
  public:
    DialogPlacement(HWND hWnd, UINT message) : m_hWnd(message == WM_INITDIALOG ? hWnd : nullptr)
    {
        if (m_hWnd && (!::GetWindowRect(m_hWnd, &m_rect) || (::GetWindowLong(m_hWnd, GWL_STYLE) & WS_VISIBLE))) {
            m_hWnd = nullptr;
        }
    }

    void CenterIfUntouched() const
    {
        RECT rect;
        CWnd* pWnd = m_hWnd ? CWnd::FromHandlePermanent(m_hWnd) : nullptr;
        if (!pWnd || !::GetWindowRect(m_hWnd, &rect) || !::EqualRect(&rect, &m_rect)) {
            return;
        }
        if ((::GetWindowLong(m_hWnd, GWL_STYLE) & (WS_VISIBLE | WS_CHILD)) == 0 && pWnd->CheckAutoCenter()) {
            pWnd->CenterWindow();
        }
    }

  private:
    HWND m_hWnd;
    RECT m_rect = {};
};

/** Makes a message the thread's current one while it is handled. */
class CurrentMessage
{
  public:
    CurrentMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_pState(AfxGetThreadState()), m_previous(m_pState->m_lastSentMsg)
    {
        m_pState->m_lastSentMsg = {hWnd, message, wParam, lParam, 0, {0, 0}};
    }
    ~CurrentMessage() { m_pState->m_lastSentMsg = m_previous; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;
    const MSG& Get() const { return m_pState->m_lastSentMsg; }

  private:
    _AFX_THREAD_STATE* m_pState;
    MSG m_previous;
};
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

void CWnd::PreSubclassWindow() {}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (m_hWnd || !::IsWindow(hWnd) || ::GetWindowThreadProcessId(hWnd, nullptr) != ::GetCurrentThreadId()) {
        return FALSE;
    }
    const CWnd* pOther = FromHandlePermanent(hWnd);
    if (pOther && pOther->m_hWnd == hWnd) {
        return FALSE; // two objects cannot share a window
    }
    Attach(hWnd);
    PreSubclassWindow();
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    const auto pfnOld =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (pfnOld != AfxWndProc) {
        *ppfnSuper = pfnOld;
    }
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND hWndControl = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    return hWndControl ? SubclassWindow(hWndControl) : FALSE;
}

HWND CWnd::UnsubclassWindow()
{
    if (!::IsWindow(m_hWnd)) {
        return Detach();
    }
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
    }
    *ppfnSuper = nullptr;
    return Detach();
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

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    return OnWndMsg(message, wParam, lParam, &lResult) ? lResult : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC pfnSuper = m_pfnSuper ? m_pfnSuper : *GetSuperWndProcAddr();
    if (pfnSuper) {
        return ::CallWindowProc(pfnSuper, m_hWnd, message, wParam, lParam);
    }
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& msg = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

const MSG* CWnd::GetCurrentMessage()
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    pState->m_lastSentMsg.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD dwPos = ::GetMessagePos();
    pState->m_lastSentMsg.pt = {static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos))};
    return &pState->m_lastSentMsg;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_QUERYAFXWNDPROC) {
        return 1;
    }
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (!pWnd || pWnd->m_hWnd != hWnd) {
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    }
    AFX_MANAGE_STATE(pWnd->m_pModuleState);
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

WNDPROC AfxGetAfxWndProc()
{
    return AfxWndProc;
}

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const CurrentMessage current(hWnd, nMsg, wParam, lParam);
    const DialogPlacement placement(hWnd, nMsg);
    LRESULT lResult = 0;
    try {
        lResult = AfxWndAccess::CallWindowProc(pWnd, nMsg, wParam, lParam);
        placement.CenterIfUntouched();
    } catch (CException* e) {
        const MSG msg = {hWnd, nMsg, wParam, lParam, 0, {0, 0}};
        lResult = AfxProcessWndProcException(e, &msg);
        e->Delete();
    }
    return lResult;
}

void AfxHookWindowCreate(CWnd* pWnd)
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (pState->m_pWndInit == pWnd) {
        return;
    }
    if (!pState->m_hHookOldCbtFilter) {
        pState->m_hHookOldCbtFilter = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
        if (!pState->m_hHookOldCbtFilter) {
            AfxThrowMemoryException();
        }
    }
    pState->m_pWndInit = pWnd;
}

BOOL AfxUnhookWindowCreate()
{
    _AFX_THREAD_STATE* pState = AfxGetThreadState();
    if (pState->m_hHookOldCbtFilter) {
        ::UnhookWindowsHookEx(pState->m_hHookOldCbtFilter);
        pState->m_hHookOldCbtFilter = nullptr;
    }
    const BOOL bBound = pState->m_pWndInit == nullptr;
    pState->m_pWndInit = nullptr;
    return bBound;
}
