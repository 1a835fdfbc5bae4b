#pragma once

#include <afx/thread.h>
#include <afx/wnd.h>

/** Carries one run of UpdateData through DoDataExchange. */
class AFX_LIB CDataExchange
{
  public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: controls to members.
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl;
    UINT m_idLastControl;
    BOOL m_bEditLastControl;

    /** The control with the id; throws CNotSupportedException when it is missing. */
    HWND PrepareCtrl(int nIDC);
    /** As PrepareCtrl, and a failed check selects the control's text. */
    HWND PrepareEditCtrl(int nIDC);
    /** Moves the focus to the last prepared control and ends the exchange by a CUserException. */
    void Fail();
};

AFX_LIB void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, double& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_LIB void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
AFX_LIB void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/** value: 0-based index of the checked button in the group that starts at nIDC, or -1. */
AFX_LIB void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
AFX_LIB void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_LIB void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_LIB void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_LIB void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_LIB void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_LIB void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_LIB void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
AFX_LIB void DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

// Checks after the exchange; an out-of-range value is refused with a message and CDataExchange::Fail.
AFX_LIB void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFX_LIB void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
AFX_LIB void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_LIB void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFX_LIB void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_LIB void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
AFX_LIB void DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
AFX_LIB void DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal);
/** Limits an edit control's text when filling it, and refuses longer text when saving. */
AFX_LIB void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);

/** A dialog box made from a template, modal or modeless. */
class AFX_LIB CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

  public:
    /** For modeless dialogs and InitModalIndirect. */
    CDialog();
    /** For DoModal: the template's name. */
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    /** For DoModal: the template's id. */
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // The template is looked up with AfxFindResourceHandle; a null parent means the thread's main window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr, void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /** Shows the dialog and runs its loop. @return the result given to EndDialog, -1 when it cannot be shown. */
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;
    /** Dialog units to pixels. */
    void MapDialogRect(LPRECT lpRect) const;
    void SetHelpID(UINT nIDR);

    /** First message of a dialog. @return FALSE when the focus has been set. */
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL CheckAutoCenter() override;

  protected:
    virtual void OnOK();
    virtual void OnCancel();
    /** Called once the window is there, before OnInitDialog, for set-up that a derived class's OnInitDialog needs. */
    virtual void PreInitDialog();
    void PreSubclassWindow() override;

    UINT m_nIDHelp;
    LPCTSTR m_lpszTemplateName;
    HGLOBAL m_hDialogTemplate;
    LPCDLGTEMPLATE m_lpDialogTemplate;
    void* m_lpDialogInit;
    CWnd* m_pParentWnd;
    HWND m_hWndTop;

    /** Makes the dialog's window from a template in memory; hInst is the module that holds the template. */
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);
    /** Disables the top-level window when the dialog has no parent of its own. @return the window that owns the dialog.
     */
    HWND PreModal();
    void PostModal();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

  private:
    void CloseModal(HWND hWndParent, bool enableParent);
};

/** The dialog procedure of all framework dialogs. */
INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
