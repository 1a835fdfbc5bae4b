#include "QorUIApp.h"

#include "GdiplusCalls.h"

CQorUIApp g_QorUIApp;
QorGdiplusCalls g_GdiplusCalls = {&Gdiplus::GdiplusStartup, &Gdiplus::GdiplusShutdown};

CQorUIApp::CQorUIApp() = default;

BOOL CQorUIApp::InitInstance()
{
    CWinApp::InitInstance();
    m_hHost = ::GetModuleHandleW(nullptr);
    StartGdiplus();
    QorMakeSkin(*this);
    return TRUE;
}

int CQorUIApp::ExitInstance()
{
    if (m_nGdiplusToken != 0) {
        g_GdiplusCalls.shutdown(m_nGdiplusToken);
        m_nGdiplusToken = 0;
    }
    return CWinApp::ExitInstance();
}

void CQorUIApp::StartGdiplus()
{
    const Gdiplus::GdiplusStartupInput input; // version 1, nothing suppressed
    if (g_GdiplusCalls.startup(&m_nGdiplusToken, &input, nullptr) != Gdiplus::Ok) {
        m_nGdiplusToken = 0;
    }
}
