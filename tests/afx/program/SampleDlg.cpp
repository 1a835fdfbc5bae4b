#include "stdafx.h"
#include "resource.h"
#include "SampleDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

class CAboutDlg : public CDialogEx
{
  public:
    CAboutDlg() : CDialogEx(IDD_ABOUTBOX) {}
};

CSampleDlg::CSampleDlg(CWnd* pParent)
    : CDialogEx(CSampleDlg::IDD, pParent), m_strName(_T("first")), m_nCount(3), m_bAgree(FALSE), m_nAgreeClicks(0)
{
    m_hIcon = AfxGetApp()->LoadStandardIcon(IDI_APPLICATION);
}

void CSampleDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, 20);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDX_Check(pDX, IDC_AGREE, m_bAgree);
    DDX_Control(pDX, IDC_GAUGE, m_ctlGauge);
    DDX_Control(pDX, IDC_DAY, m_ctlDay);
}

BEGIN_MESSAGE_MAP(CSampleDlg, CDialogEx)
    ON_WM_SYSCOMMAND()
    ON_WM_PAINT()
    ON_WM_TIMER()
    ON_BN_CLICKED(IDC_AGREE, &CSampleDlg::OnBnClickedAgree)
END_MESSAGE_MAP()

BOOL CSampleDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    ASSERT((IDM_ABOUTBOX & 0xFFF0) == IDM_ABOUTBOX);
    _ASSERTE(IDM_ABOUTBOX < 0xF000);
    CMenu* pSysMenu = GetSystemMenu(FALSE);
    if (pSysMenu != NULL) {
        CString strAboutMenu;
        BOOL bNameValid = strAboutMenu.LoadString(IDS_ABOUTBOX);
        ASSERT(bNameValid);
        if (bNameValid && !strAboutMenu.IsEmpty()) {
            pSysMenu->AppendMenu(MF_SEPARATOR);
            pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
        }
    }
    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);
    SetBackgroundColor(RGB(10, 200, 30), FALSE);
    SetTimer(1, 10, NULL);
    return TRUE;
}

void CSampleDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
    if ((nID & 0xFFF0) == IDM_ABOUTBOX) {
        CAboutDlg dlgAbout;
        dlgAbout.DoModal();
    } else {
        CDialogEx::OnSysCommand(nID, lParam);
    }
}

void CSampleDlg::OnPaint()
{
    if (IsIconic()) {
        CPaintDC dc(this);
        SendMessage(WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
    } else {
        CDialogEx::OnPaint();
    }
}

void CSampleDlg::Expect(BOOL bHolds, LPCTSTR lpszWhat)
{
    if (!bHolds && m_strFault.IsEmpty()) {
        m_strFault = lpszWhat;
    }
}

void CSampleDlg::TypeAndClick()
{
    USES_CONVERSION;
    CString strText;
    GetDlgItemText(IDC_NAME, strText);
    Expect(strText == _T("first"), _T("data reached the controls"));
    Expect(strcmp(T2A(strText.GetBuffer()), "first") == 0, _T("T2A"));
    Expect(CString(A2T("second")) == _T("second"), _T("A2T"));
    Expect(strcmp(CT2A(_T("third")), "third") == 0, _T("CT2A"));
    Expect(CString(CA2W("fourth")) == _T("fourth"), _T("CA2W"));
    Expect(::GetNextWindow(::GetTopWindow(m_hWnd), GW_HWNDNEXT) != NULL, _T("GetNextWindow"));
    Expect(m_ctlGauge.GetSafeHwnd() != NULL && m_ctlGauge.IsKindOf(RUNTIME_CLASS(CGauge)), _T("the control is bound"));
    CRect rc;
    m_ctlGauge.GetClientRect(&rc);
    m_ctlGauge.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rc.Width() / 2, 3));
    Expect(m_ctlGauge.GetValue() == 6, _T("the control took a click"));
    m_ctlGauge.UpdateWindow();
    CClientDC dcGauge(&m_ctlGauge);
    Expect(dcGauge.GetPixel(2, 2) == RGB(0, 0, 255), _T("the control painted its bar"));
    CClientDC dc(this);
    UpdateWindow();
    Expect(dc.GetPixel(1, 1) == RGB(10, 200, 30), _T("the dialog has its background"));
    SetDlgItemText(IDC_NAME, _T("changed"));
    SetDlgItemInt(IDC_COUNT, 42);
    GetDlgItem(IDC_AGREE)->SendMessage(BM_CLICK);
    Expect(m_nAgreeClicks == 1, _T("the click reached the message map"));
}

void CSampleDlg::OnTimer(UINT_PTR nIDEvent)
{
    KillTimer(nIDEvent);
    TypeAndClick();
    PostMessage(WM_COMMAND, IDOK);
}

void CSampleDlg::OnBnClickedAgree()
{
    ++m_nAgreeClicks;
}
