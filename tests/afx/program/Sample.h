#pragma once

#ifndef __AFXWIN_H__
#error "include 'stdafx.h' before including this file for PCH"
#endif

#include "resource.h"

class CSampleApp : public CWinApp
{
  public:
    CSampleApp();
    virtual BOOL InitInstance();
    virtual int ExitInstance();

  private:
    void CheckProfile();
    void Expect(BOOL bHolds, LPCTSTR lpszWhat);

    CString m_strFault;

    DECLARE_MESSAGE_MAP()
};

extern CSampleApp theApp;
