/** @file A program with an application object of its own. */
#include "LinkedChecks.h"

namespace
{

class CHostApp : public CWinApp
{
  public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        HOST_CHECK(AfxGetApp() == this);
        HOST_CHECK(m_hInstance == host::Program());
        HOST_CHECK(AfxGetInstanceHandle() == host::Program());
        host::CheckLinked();
        HOST_CHECK(AfxGetApp() == this);
        return TRUE;
    }

    /** In place of a message loop. */
    int Run() override { return ExitInstance(); }

    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return host::g_failures;
    }
};

CHostApp g_app;

} // namespace
