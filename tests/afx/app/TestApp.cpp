#include "TestApp.h"

BEGIN_MESSAGE_MAP(TestApp, CWinApp)
    ON_THREAD_MESSAGE(WM_USER + 20, &TestApp::OnThreadMessage)
END_MESSAGE_MAP()
