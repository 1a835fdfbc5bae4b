#include <QorUI/QorUI.h>

constexpr UINT kAskId = 100;

/** The main window: one button that asks a question with the library's message box. */
class CSampleFrame : public CQorFrame
{
  protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (CQorFrame::OnCreate(create) != 0) {
            return -1;
        }
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;
        if (!m_ask.Create(L"&Ask", style, CRect(20, 100, 120, 121), this, kAskId)) {
            return -1;
        }
        return 0;
    }

    afx_msg void OnAsk() { QorMsgBox(L"Does it work?", QOR_MSG_YESNO, 0, this); }

    DECLARE_MESSAGE_MAP()

  private:
    CQorBtn m_ask;
};

BEGIN_MESSAGE_MAP(CSampleFrame, CQorFrame)
    ON_WM_CREATE()
    ON_BN_CLICKED(kAskId, &CSampleFrame::OnAsk)
END_MESSAGE_MAP()

class CSampleApp : public CWinApp
{
  public:
    BOOL InitInstance() override
    {
        if (!m_frame.CreateEx(0, nullptr, L"Sample", 0, 200, 200, 480, 320, nullptr, nullptr)) {
            return FALSE;
        }
        m_pMainWnd = &m_frame; // the program ends when this window is closed
        m_frame.ShowWindow(SW_SHOW);
        return TRUE;
    }

  private:
    CSampleFrame m_frame;
};

CSampleApp g_app;
