#include <tests/afx/resource.h>

#include <afxwin.h>

// A program with an entry function of its own and no application object. The exit code tells how far it got.

namespace
{
constexpr int kAllWell = 17;

class EndingDialog : public CDialog
{
  public:
    EndingDialog() : CDialog(IDD_SIMPLE) {}
    int kicks = 0;

    LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        UpdateDialogControls(this, FALSE);
        if (++kicks == 1) {
            PostMessage(WM_COMMAND, IDOK, reinterpret_cast<LPARAM>(::GetDlgItem(m_hWnd, IDOK)));
        }
        return FALSE;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(EndingDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &EndingDialog::OnKickIdle)
END_MESSAGE_MAP()

class MainWnd : public CWnd
{
  public:
    int painted = 0;
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        ++painted;
    }
    afx_msg void OnDestroy()
    {
        CWnd::OnDestroy();
        ::PostQuitMessage(kAllWell);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MainWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

int PlainLoop(MainWnd& wnd)
{
    MSG msg;
    while (::GetMessage(&msg, nullptr, 0, 0) > 0) {
        ::DispatchMessage(&msg);
        if (wnd.painted == 1 && wnd.m_hWnd) {
            ++wnd.painted;
            wnd.PostMessage(WM_CLOSE);
        }
    }
    return static_cast<int>(msg.wParam);
}
} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    if (AfxGetApp() || AfxGetThread() || AfxGetMainWnd()) {
        return 1;
    }
    if (AfxGetInstanceHandle() != ::GetModuleHandle(nullptr)) {
        return 2;
    }
    EndingDialog dialog;
    if (dialog.DoModal() != IDOK || dialog.kicks == 0) {
        return 3;
    }
    MainWnd wnd;
    if (!wnd.CreateEx(0, nullptr, _T("plain"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 100, 100), nullptr, 0)) {
        return 4;
    }
    return PlainLoop(wnd);
}
