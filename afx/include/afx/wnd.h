#pragma once

#include <afx/cmdtarget.h>
#include <afx/msgmap.h>
#include <afx/rect.h>
#include <afx/str.h>

// A macro of the system's headers that hides CWnd::GetNextWindow.
#undef GetNextWindow

inline HWND GetNextWindow(HWND hWnd, UINT nCmd)
{
    return ::GetWindow(hWnd, nCmd);
}

class CBitmap;
class CDC;
class CDataExchange;
class CFont;
class CFrameWnd;
class CListBox;
class CMenu;
class CPalette;
class CRgn;
class CScrollBar;
class CToolTipCtrl;
class CWinThread;

// Flags of CWnd::m_nFlags.
#define WF_TOOLTIPS 0x0001
#define WF_TEMPHIDE 0x0002
#define WF_STAYDISABLED 0x0004
#define WF_MODALLOOP 0x0008
#define WF_CONTINUEMODAL 0x0010
#define WF_STAYACTIVE 0x0040

// Flags of CWnd::RunModalLoop.
#define MLF_NOIDLEMSG 0x0001  ///< Do not send WM_ENTERIDLE to the parent.
#define MLF_NOKICKIDLE 0x0002 ///< Do not send WM_KICKIDLE to the window.
#define MLF_SHOWONIDLE 0x0004 ///< Show the window at the first idle moment.

// Messages of the framework, sent within the process only.
#define WM_QUERYAFXWNDPROC 0x0360 ///< Answered with 1 by windows whose procedure is the framework's.
#define WM_SIZEPARENT 0x0361      ///< lParam AFX_SIZEPARENTPARAMS: a child of RepositionBars takes its share.
#define WM_IDLEUPDATECMDUI 0x0363 ///< wParam TRUE: disable what has no handler.
#define WM_KICKIDLE 0x036A        ///< Sent by modal loops when idle; wParam MSGF_DIALOGBOX, lParam idle count.

/** What WM_SIZEPARENT carries. */
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;      ///< Moves are deferred into this; null: nothing shall be moved.
    RECT rect;      ///< What is left of the parent; a child takes its share away.
    SIZE sizeTotal; ///< Adds up what the children take.
    BOOL bStretch;  ///< Children fill the whole side.
};

/** A window of the system with an object that takes part in its messages. */
class AFX_LIB CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

  public:
    CWnd();
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND m_hWnd; ///< The window, or null.

    operator HWND() const;
    BOOL operator==(const CWnd& wnd) const;
    BOOL operator!=(const CWnd& wnd) const;
    /** The window's handle, null when called on a null pointer's object. */
    HWND GetSafeHwnd() const;

    // Insertion places of SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /** @return TRUE when the style changed; with nFlags the window is also told by SetWindowPos. */
    static BOOL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);

    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);

    void GetWindowText(CString& rString) const;
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;

    // Handle maps
    /** The object of a window: its permanent one, or a temporary one that lives until the next idle moment. */
    static CWnd* FromHandle(HWND hWnd);
    /** The permanent object of a window, or null. */
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();
    /** Binds an existing window to this object without taking part in its messages. */
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    /** Last chance to change the object before its window is bound or subclassed. */
    virtual void PreSubclassWindow();
    /** Takes part in an existing window's messages. */
    BOOL SubclassWindow(HWND hWnd);
    /** Subclasses the control of a dialog that has the id. */
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /** Gives the window back its own procedure. @return the window. */
    HWND UnsubclassWindow();

    // Creation and destruction
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, LPVOID pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    /** Changes the parameters of the creation; FALSE refuses it. */
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

    // Window tree
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetParentOwner() const;
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetAncestor(UINT gaFlags) const;
    CWnd* GetTopWindow() const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow);
    static CWnd* WindowFromPoint(POINT point);
    static CWnd* GetActiveWindow();
    static CWnd* GetCapture();
    static CWnd* GetDesktopWindow();
    static CWnd* GetFocus();
    static CWnd* GetForegroundWindow();
    static CWnd* GetOpenClipboardWindow();
    static CWnd* GetClipboardOwner();
    static CWnd* GetClipboardViewer();
    /** The window that should own a pop-up: the parent given, else the active main window of the thread. */
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);
    BOOL IsTopParentActive() const;
    void ActivateTopParent();

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    /** The message that is being handled. */
    static const MSG* GetCurrentMessage();

    // Text, font, menu, icon
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

    // Place and size
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    UINT ArrangeIconicWindows();
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    /** Centres the window over its owner (or the given window), kept on the monitor's work area. */
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;

    // Painting
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    BOOL PrintWindow(CDC* pDC, UINT nFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL bShow = TRUE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo);
    BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags);
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags);
    BOOL FlashWindow(BOOL bInvert);
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout);
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags);
    BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                             BLENDFUNCTION* pblend, DWORD dwFlags);
    BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const;

    // Timers, state, input
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    CWnd* SetActiveWindow();
    CWnd* SetCapture();
    CWnd* SetFocus();
    BOOL SetForegroundWindow();
    void DragAcceptFiles(BOOL bAccept = TRUE);
    BOOL DragDetect(POINT pt) const;
    int SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    DWORD GetHotKey() const;
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    DWORD GetWindowContextHelpId() const;
    BOOL IsWindowUnicode() const;

    // Message boxes
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // Scroll bars of the window
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    /** Enables or disables a scroll bar of the window, or the control that stands for it. */
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);
    BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const;

    // Controls of a dialog
    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    UINT IsDlgButtonChecked(int nIDButton) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    /** Lets the children with ids from nIDFirst to nIDLast take their share of the client area (WM_SIZEPARENT) and
     * gives the rest to nIDLeftOver. */
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    enum RepositionFlags
    {
        reposDefault = 0, ///< Moves the children.
        reposQuery = 1,   ///< Only tells in lpRectParam what would be left over.
        reposExtra = 2,   ///< Keeps the borders of lpRectParam free inside of what is left over.
        reposNoPosLeftOver = 0x8000
    };
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType);
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox);
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox);

    // Clipboard and caret
    BOOL OpenClipboard();
    HWND SetClipboardViewer();
    BOOL ChangeClipboardChain(HWND hWndNext);
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();

    // Data exchange and dialog services
    /** Moves data from the controls to the members (TRUE) or the other way; FALSE when a value was refused. */
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /** Fills list and combo boxes from the RT_DLGINIT resource. */
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);
    /** Sends a command update to every child control. */
    virtual void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    BOOL IsDialogMessage(LPMSG lpMsg);

    // Modal loop
    /** Pumps messages until EndModalLoop. @return the result given there. */
    virtual int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    virtual BOOL CheckAutoCenter();

    /** Called for each message before it is dispatched; TRUE drops the message. */
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL PreTranslateInput(LPMSG lpMsg);
    /** Asks a window and its parents up to hWndStop for the message. */
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // Tool tips
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    static void CancelToolTips(BOOL bKeys = FALSE);
    void FilterToolTipMessage(MSG* pMsg);
    /** Which tool is at a client point; fills pTI and returns its id, or -1. A text that is not LPSTR_TEXTCALLBACK
     * comes from malloc and is freed by the framework. */
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

    void OnFinalRelease() override;

    /** Parent-side entry of reflection: offers a notification to the child it came from. */
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    BOOL ReflectChildNotify(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** Child-side handler of notifications to its parent; TRUE when the parent shall not see it. */
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult);

    /** Set by EnableToolTips and the modal loop. */
    UINT m_nFlags;

  protected:
    explicit CWnd(HWND hWnd);

    HWND m_hWndOwner;   ///< Set by SetOwner.
    WNDPROC m_pfnSuper; ///< Procedure that stands behind ours, or null.
    int m_nModalResult;

    virtual WNDPROC* GetSuperWndProcAddr();
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /** Passes the current message on to the default handling. */
    LRESULT Default();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** Called as the last action of the window; objects on the heap delete themselves here. */
    virtual void PostNcDestroy();
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void BeginModalState();
    virtual void EndModalState();
    virtual BOOL IsFrameWnd() const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnAppCommand(CWnd* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex);
    afx_msg void OnChildActivate();
    afx_msg void OnClipboardUpdate();
    afx_msg void OnClose();
    afx_msg void OnColorizationColorChanged(DWORD dwColorizationColor, BOOL bOpacity);
    afx_msg void OnCompacting(UINT nCpuTime);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnCompositionChanged();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnDestroyClipboard();
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName);
    afx_msg LRESULT OnDragList(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDrawClipboard();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho);
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnEnterSizeMove();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnExitSizeMove();
    afx_msg void OnFontChange();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnIconEraseBkgnd(CDC* pDC);
    afx_msg void OnInitMenu(CMenu* pMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnInputDeviceChange(unsigned short uFlag, HANDLE hDevice);
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenuGetObjectInfo);
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcRenderingChanged(BOOL bIsRendering);
    afx_msg void OnNcXButtonDblClk(UINT nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonDown(UINT nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonUp(UINT nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMdiNextMenu);
    afx_msg void OnPaint();
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct);
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg BOOL OnQueryEndSession();
    afx_msg BOOL OnQueryNewPalette();
    afx_msg BOOL OnQueryOpen();
    afx_msg UINT OnQueryUIState();
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT nFormat);
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysColorChange();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnTCard(UINT idAction, DWORD dwActionData);
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnTimeChange();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnUserChanged();
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnWindowMaximizedChanged(BOOL bIsMaximized);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point);

    DECLARE_MESSAGE_MAP()

  private:
    friend LRESULT AFX_LIB AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
    friend class AfxWndAccess;
};

/** Registers a window class for the style, cursor, brush and icon given and returns its name, which stays valid. */
AFX_LIB LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                                    HICON hIcon = nullptr);
/** Registers a window class once; TRUE also when it exists already. */
AFX_LIB BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

/** The framework's window procedure. */
AFX_LIB LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
/** The framework's window procedure as the current module state uses it. */
AFX_LIB WNDPROC AfxGetAfxWndProc();
/** Hands a message to an object's WindowProc; exceptions end here. */
AFX_LIB LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/** Binds the next window that this thread creates to an object, from its first message on. */
AFX_LIB void AfxHookWindowCreate(CWnd* pWnd);
/** Ends AfxHookWindowCreate. What the object threw when its window was bound leaves this function.
 *  @return FALSE when no window was bound, or it is gone again because another hook refused it. */
AFX_LIB BOOL AfxUnhookWindowCreate();

/** Sets the text of a window only when it differs. */
AFX_LIB void AfxSetWindowText(HWND hWndCtrl, LPCTSTR lpszNew);
