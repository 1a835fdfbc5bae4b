#include <afxwin.h>

// A program with a global application object, which takes its entry function from afx_main.

namespace
{
constexpr int kAllWell = 23;

class MainWnd : public CWnd
{
  public:
    void PostNcDestroy() override { delete this; }
};

class HostApp : public CWinApp
{
  public:
    int idles = 0;
    bool handlesWereSet = false;

    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        handlesWereSet = m_hInstance == ::GetModuleHandle(nullptr) && AfxGetInstanceHandle() == m_hInstance;
        auto* pMain = new MainWnd;
        if (!pMain->CreateEx(0, nullptr, _T("app"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 100, 100), nullptr,
                             0)) {
            return FALSE;
        }
        m_pMainWnd = pMain;
        return TRUE;
    }
    BOOL OnIdle(LONG lCount) override
    {
        if (++idles == 2 && m_pMainWnd) {
            m_pMainWnd->PostMessage(WM_CLOSE);
        }
        return CWinApp::OnIdle(lCount);
    }
    int ExitInstance() override
    {
        return CWinApp::ExitInstance() == 0 && handlesWereSet && idles >= 2 && !m_pMainWnd ? kAllWell : 1;
    }
} theApp;
} // namespace
