#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
END_MESSAGE_MAP()

namespace
{
CString ModuleBaseName(HINSTANCE hInstance)
{
    TCHAR szPath[MAX_PATH] = {};
    ::GetModuleFileName(hInstance, szPath, MAX_PATH);
    CString strName(szPath);
    strName = strName.Mid(strName.ReverseFind(_T('\\')) + 1);
    const int nDot = strName.ReverseFind(_T('.'));
    return nDot > 0 ? strName.Left(nDot) : strName;
}

UINT WithIcon(UINT nType)
{
    if (nType & MB_ICONMASK) {
        return nType;
    }
    switch (nType & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
    case MB_RETRYCANCEL:
    case MB_ABORTRETRYIGNORE:
        return nType | MB_ICONEXCLAMATION;
    default:
        return nType | MB_ICONQUESTION;
    }
}

int ShowMessageBox(LPCTSTR lpszPrompt, UINT nType)
{
    HWND hWndTop = nullptr;
    CWnd* pOwner = CWnd::GetSafeOwner(nullptr, &hWndTop);
    const HWND hWndOwner = pOwner->GetSafeHwnd();
    const int nResult = ::MessageBox(hWndOwner, lpszPrompt, AfxGetAppName(), WithIcon(nType));
    if (hWndTop) {
        ::EnableWindow(hWndTop, TRUE);
    }
    return nResult;
}
} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(nullptr),
      m_lpCmdLine(nullptr),
      m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(nullptr),
      m_pszExeName(nullptr),
      m_nWaitCursorCount(0),
      m_hcurWaitCursorRestore(nullptr),
      m_pszRegistryKey(nullptr),
      m_pszProfileName(nullptr),
      m_pszHelpFilePath(nullptr),
      m_strAppName(lpszAppName)
{
    if (lpszAppName) {
        m_pszAppName = m_strAppName;
    }
    m_bAutoDelete = FALSE;
    AFX_MODULE_STATE* pState = AfxGetModuleState();
    ASSERT(!pState->m_pCurrentWinApp);
    if (pState->m_pCurrentWinApp) {
        return; // a module has one application; the first one stays
    }
    pState->m_pCurrentWinApp = this;
    AFX_MODULE_THREAD_STATE* pThreadState = AfxGetModuleThreadState();
    if (!pThreadState->m_pCurrentWinThread) {
        pThreadState->m_pCurrentWinThread = this;
    }
    m_hThread = ::GetCurrentThread();
    m_nThreadID = ::GetCurrentThreadId();
}

CWinApp::~CWinApp()
{
    m_hThread = nullptr; // a pseudo handle, nothing to close
    if (m_pModuleState->m_pCurrentWinApp == this) {
        m_pModuleState->m_pCurrentWinApp = nullptr;
        m_pModuleState->m_lpszCurrentAppName = nullptr;
    }
}

void CWinApp::SetCurrentHandles()
{
    m_strExeName = ModuleBaseName(m_hInstance);
    m_pszExeName = m_strExeName;
    if (!m_pszAppName) {
        m_strAppName = m_strExeName;
        m_pszAppName = m_strAppName;
    }
    NameProfile();
    m_pModuleState->m_hCurrentInstanceHandle = m_hInstance;
    m_pModuleState->m_hCurrentResourceHandle = m_hInstance;
    m_pModuleState->m_lpszCurrentAppName = m_pszAppName;
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    if (!m_pMainWnd) {
        AfxPostQuitMessage(0); // without a main window nobody would ever end the loop
    }
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

BOOL CWinApp::PreTranslateMessage(MSG* pMsg)
{
    return CWinThread::PreTranslateMessage(pMsg);
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    return CWinThread::OnIdle(lCount);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    if (pMsg->message == WM_CREATE || pMsg->message == WM_PAINT) {
        return CWinThread::ProcessWndProcException(e, pMsg);
    }
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) { // that one has been shown to the user
        e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    }
    return pMsg->message == WM_COMMAND ? TRUE : 0;
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt)
{
    UNUSED_ALWAYS(nIDPrompt);
    return ShowMessageBox(lpszPrompt, nType);
}

void CWinApp::EnableModeless(BOOL bEnable)
{
    if (m_pMainWnd) {
        m_pMainWnd->EnableWindow(bEnable);
    }
}

void CWinApp::HideApplication()
{
    if (!m_pMainWnd) {
        return;
    }
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursor(nullptr, lpszCursorName);
}

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const
{
    return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor));
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIcon(nullptr, lpszIconName);
}

HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const
{
    return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon));
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd) {
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AfxGetAppName()
{
    const AFX_MODULE_STATE* pState = AfxGetModuleState();
    if (pState->m_lpszCurrentAppName) {
        return pState->m_lpszCurrentAppName;
    }
    static const CString kProgram = ModuleBaseName(nullptr);
    return kProgram;
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    CWinApp* pApp = AfxGetApp();
    return pApp ? pApp->DoMessageBox(lpszText, nType, nIDHelp) : ShowMessageBox(lpszText, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString strText;
    if (!strText.LoadString(nIDPrompt)) {
        TRACE(_T("AfxMessageBox: no string %u.\n"), nIDPrompt);
    }
    return AfxMessageBox(strText.GetString(), nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

void AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}
