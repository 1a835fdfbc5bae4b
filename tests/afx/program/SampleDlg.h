#pragma once

#include "Gauge.h"

class CSampleDlg : public CDialogEx
{
  public:
    CSampleDlg(CWnd* pParent = NULL);

    enum
    {
        IDD = IDD_SAMPLE_DIALOG
    };

    CString m_strName;
    int m_nCount;
    BOOL m_bAgree;
    CGauge m_ctlGauge;
    CDateTimeCtrl m_ctlDay;
    CString m_strFault; ///< What went wrong, for the program's exit code.

  protected:
    HICON m_hIcon;

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnBnClickedAgree();
    DECLARE_MESSAGE_MAP()

  private:
    void Expect(BOOL bHolds, LPCTSTR lpszWhat);
    void TypeAndClick();

    int m_nAgreeClicks;
};
