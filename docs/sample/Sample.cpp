#include <QorUI/QorUI.h>

/** The main window: one button that asks a question with the library's message box. */
class CSampleFrame : public CQorFrame
{
  protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
        return CQorFrame::OnCreate(create) == 0 && m_ask.Create(L"&Ask", style, CRect(20, 100, 120, 121), this, 100)
                   ? 0
                   : -1;
    }
    afx_msg void OnAsk() { QorMsgBox(L"Does it work?", QOR_MSG_YESNO, 0, this); }
    afx_msg void OnDestroy() { ::PostQuitMessage(0); }
    DECLARE_MESSAGE_MAP()
    CQorBtn m_ask;
};

BEGIN_MESSAGE_MAP(CSampleFrame, CQorFrame)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_BN_CLICKED(100, &CSampleFrame::OnAsk)
END_MESSAGE_MAP()

class CSampleApp : public CWinApp
{
    BOOL InitInstance() override
    {
        m_pMainWnd = &m_frame;
        return m_frame.CreateEx(0, nullptr, L"Sample", 0, 200, 200, 480, 320, nullptr, nullptr) &&
               (m_frame.ShowWindow(SW_SHOW), TRUE);
    }
    CSampleFrame m_frame;
} g_App;
