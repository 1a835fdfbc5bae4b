#pragma once

#include <afx/except.h>
#include <afx/wnd.h>

typedef UINT (*AFX_THREADPROC)(LPVOID);

/** A thread of the program: a worker that runs a function, or one with windows and a message loop. */
class AFX_LIB CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

  public:
    CWinThread();
    /** For worker threads: pfnThreadProc is called with pParam. */
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    CWnd* m_pMainWnd;   ///< Its destruction ends the thread's message loop.
    CWnd* m_pActiveWnd; ///< Main window of an embedded server, else null.
    BOOL m_bAutoDelete; ///< The object deletes itself when the thread ends.
    HANDLE m_hThread;
    DWORD m_nThreadID;
    LPVOID m_pThreadParams;
    AFX_THREADPROC m_pfnThreadProc;

    operator HANDLE() const;
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    virtual BOOL InitInstance();
    /** The message loop. @return the thread's exit code. */
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /** Gets and dispatches one message. @return FALSE for WM_QUIT. */
    virtual BOOL PumpMessage();
    /** Work for an idle moment. @return TRUE to be called again before the next message. */
    virtual BOOL OnIdle(LONG lCount);
    /** TRUE when idle work may be needed after the message. */
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual int ExitInstance();
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();
    virtual void Delete();

  protected:
    void DispatchThreadMessage(MSG* pMsg);
    BOOL DispatchThreadMessageEx(MSG* pMsg);

    DECLARE_MESSAGE_MAP()
};

/** The application: the module's thread object and its start parameters. */
class AFX_LIB CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

  public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszAppName;
    LPCTSTR m_pszExeName;
    int m_nWaitCursorCount;
    HCURSOR m_hcurWaitCursorRestore;
    LPCTSTR m_pszRegistryKey;  ///< Name of the company, or null: the profile is a file then.
    LPCTSTR m_pszProfileName;  ///< Name of the profile's file, or of the program below the company's key.
    LPCTSTR m_pszHelpFilePath; ///< Path of the help file: the program's with another ending.

    /** Keeps the profile in the registry, below HKEY_CURRENT_USER\\Software\\<company>\\<program>. */
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /** The program's key, made when it is missing; the caller closes it. Null without SetRegistryKey. */
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /** A null entry deletes the section, a null value the entry. */
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /** @param ppData receives a block that the caller frees with delete[]; null when there is none. */
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    /** Nothing is left to enable; for programs of the time when the controls' look was chosen so. @return TRUE. */
    BOOL Enable3dControls() { return TRUE; }
    BOOL Enable3dControlsStatic() { return TRUE; }

    /** Opens the help for a topic; the base hands it to the main window's thread as the system's help call. */
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;

    /** Called once, before InitInstance, for the first instance. */
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnIdle(LONG lCount) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    /** Shows AfxMessageBox's message. */
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /** nCode 1 begins, -1 ends, 0 restores the wait cursor. */
    virtual void DoWaitCursor(int nCode);
    void EnableModeless(BOOL bEnable);
    void HideApplication();
    void SetCurrentHandles();

    afx_msg void OnAppExit();
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();

  protected:
    CString m_strAppName;
    CString m_strExeName;
    CString m_strRegistryKey;
    CString m_strProfileName;
    CString m_strHelpFilePath;

    /** Names the profile's file and the help file after the program, unless they have a name. */
    void NameProfile();

    DECLARE_MESSAGE_MAP()
};

/** The thread object of the calling thread, or null. */
AFX_LIB CWinThread* AfxGetThread();
/** The application object of the current module state, or null. */
AFX_LIB CWinApp* AfxGetApp();
/** The main window of the calling thread, or its active window when it has none; null without both. */
AFX_LIB CWnd* AfxGetMainWnd();
AFX_LIB LPCTSTR AfxGetAppName();

/** Starts a worker thread; null when it cannot be started. The object deletes itself unless m_bAutoDelete is cleared.
 */
AFX_LIB CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority = THREAD_PRIORITY_NORMAL,
                                   UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                   LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/** Starts a thread with a message loop, of a class with dynamic creation. */
AFX_LIB CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                   UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                   LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/** Ends the calling thread. */
AFX_LIB void AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

/** Ties the current module state and its application object to the module. */
AFX_LIB BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/** Ends what the framework holds for the current module. */
AFX_LIB void AfxWinTerm();
/** Ends what the framework holds for the calling thread. */
AFX_LIB void AfxTermThread(HINSTANCE hInstTerm = nullptr);
/** Runs the program: AfxWinInit, InitApplication, InitInstance, Run, AfxWinTerm. */
AFX_LIB int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

AFX_LIB int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_LIB int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
AFX_LIB void AfxPostQuitMessage(int nExitCode);

// The loop's building blocks; they also work in a thread without a thread object.
AFX_LIB BOOL AfxPumpMessage();
AFX_LIB BOOL AfxPreTranslateMessage(MSG* pMsg);
AFX_LIB BOOL AfxIsIdleMessage(MSG* pMsg);

/** For programs that contain foreign controls; those need nothing enabled here. */
inline void AfxEnableControlContainer(void* pOccManager = nullptr)
{
    UNUSED_ALWAYS(pOccManager);
}
