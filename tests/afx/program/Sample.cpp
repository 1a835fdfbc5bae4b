#include "stdafx.h"
#include "Sample.h"
#include "SampleDlg.h"

#include <afxole.h>

#include <cstdio>

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

#if _MFC_VER < 0x0800
#error "An older interface than this program asks for."
#endif

BEGIN_MESSAGE_MAP(CSampleApp, CWinApp)
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

CSampleApp::CSampleApp() {}

CSampleApp theApp;

BOOL CSampleApp::InitInstance()
{
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES;
    InitCommonControlsEx(&InitCtrls);
    CWinApp::InitInstance();
    Enable3dControls();
    AfxEnableControlContainer();
    Expect(AfxOleInit(), _T("AfxOleInit"));
    SetRegistryKey(_T("Sample Makers"));
    CheckProfile();

    CSampleDlg dlg;
    m_pMainWnd = &dlg;
    INT_PTR nResponse = dlg.DoModal();
    Expect(nResponse == IDOK, _T("DoModal"));
    Expect(dlg.m_strFault.IsEmpty(), dlg.m_strFault);
    Expect(dlg.m_strName == _T("changed") && dlg.m_nCount == 42 && dlg.m_bAgree, _T("data came back"));
    m_pMainWnd = NULL;
    return FALSE;
}

int CSampleApp::ExitInstance()
{
    CWinApp::ExitInstance();
    if (m_strFault.IsEmpty()) {
        return 0;
    }
    _putws(m_strFault);
    return 1;
}

void CSampleApp::CheckProfile()
{
    WriteProfileInt(_T("Window"), _T("Left"), -12);
    WriteProfileString(_T("Window"), _T("Title"), _T("A title"));
    BYTE abData[] = {1, 2, 250};
    WriteProfileBinary(_T("Window"), _T("Place"), abData, sizeof(abData));
    Expect(static_cast<int>(GetProfileInt(_T("Window"), _T("Left"), 7)) == -12, _T("GetProfileInt"));
    Expect(GetProfileInt(_T("Window"), _T("Right"), 7) == 7, _T("GetProfileInt without entry"));
    Expect(GetProfileString(_T("Window"), _T("Title")) == _T("A title"), _T("GetProfileString"));
    LPBYTE pData = NULL;
    UINT nBytes = 0;
    Expect(GetProfileBinary(_T("Window"), _T("Place"), &pData, &nBytes) && nBytes == 3 && pData[2] == 250,
           _T("GetProfileBinary"));
    delete[] pData;
    WriteProfileString(_T("Window"), NULL, NULL);
    Expect(GetProfileString(_T("Window"), _T("Title"), _T("none")) == _T("none"), _T("a deleted section"));
}

void CSampleApp::Expect(BOOL bHolds, LPCTSTR lpszWhat)
{
    if (!bHolds && m_strFault.IsEmpty()) {
        m_strFault = lpszWhat;
    }
}
