#include "ConsoleFrame.h"
#include "ConsoleOutput.h"
#include "ConsoleText.h"
#include "Options.h"
#include "PageRegistry.h"
#include "res/ConsoleResource.h"
#include "Shots.h"

#include <common/Owner.h>
#include <QorApi/QorApi.h>

#include <shellapi.h>

namespace
{

using CommandLine = own::Owner<own::FreedBy<LPWSTR*, ::LocalFree>>;

/** Sample data is added by the built-in account, which has no password as long as nobody gave it one. */
DWORD FillDemoStore()
{
    const DWORD status = QorLogonUser(QORUSER_BUILTIN_NAME, L"");
    if (status != ERROR_SUCCESS) {
        return status;
    }
    const DWORD filled = QorFillDemoStore();
    QorLogoff();
    return filled;
}

/** The names of all pages, as the user is told them. */
CString PageNames()
{
    CString names;
    for (const PageInfo& page : AllPages()) {
        names += (names.IsEmpty() ? L"" : L", ") + CString(page.name);
    }
    return names;
}

class CConsoleApp : public CWinApp
{
  public:
    BOOL InitInstance() override;
    int ExitInstance() override;

  private:
    bool ReadOptions();
    bool PrepareLanguage();
    bool PrepareStore();
    bool OpenFrame();
    void Say(DWORD stream, const CString& text) const;
    bool Fail(const CString& text, int status);

    ConsoleOptions m_options;
    CConsoleFrame m_frame;
    int m_exitStatus = 0;
    bool m_storeOpen = false;
};

CConsoleApp g_app;

BOOL CConsoleApp::InitInstance()
{
    CWinApp::InitInstance();
    if (!ReadOptions() || !PrepareLanguage() || !PrepareStore() || !OpenFrame()) {
        return FALSE;
    }
    if (!m_options.shotsFolder.IsEmpty()) {
        m_exitStatus = TakeShots(m_frame, m_options.shotsFolder);
        m_frame.DestroyWindow();
        return FALSE;
    }
    m_frame.ShowWindow(m_nCmdShow);
    m_frame.UpdateWindow();
    return TRUE;
}

int CConsoleApp::ExitInstance()
{
    if (m_storeOpen) {
        QorClose();
    }
    const int status = CWinApp::ExitInstance();
    return m_exitStatus != 0 ? m_exitStatus : status;
}

/** Output goes where the program was started from, or into a box when it was started from the desktop. */
void CConsoleApp::Say(DWORD stream, const CString& text) const
{
    if (!ConsoleWriteLine(stream, text)) {
        QorMsgBox(text, stream == STD_ERROR_HANDLE ? QOR_MSG_ERROR : QOR_MSG_INFO, 0, nullptr);
    }
}

bool CConsoleApp::Fail(const CString& text, int status)
{
    Say(STD_ERROR_HANDLE, L"QorConsole: " + text);
    m_exitStatus = status;
    return false;
}

bool CConsoleApp::ReadOptions()
{
    int argc = 0;
    const CommandLine argv(::CommandLineToArgvW(::GetCommandLineW(), &argc));
    CString message;
    const bool understood = argv && ParseOptions(argc, argv.Get(), m_options, message);
    if (!understood) {
        return Fail(message, kExitBadOptions);
    }
    if (m_options.help) {
        Say(STD_OUTPUT_HANDLE, OptionsHelp(PageNames()));
        return false;
    }
    if (!m_options.page.IsEmpty() && !FindPage(m_options.page)) {
        return Fail(L"there is no page '" + m_options.page + L"'; the pages: " + PageNames(), kExitBadOptions);
    }
    return true;
}

bool CConsoleApp::PrepareLanguage()
{
    if (!m_options.language.IsEmpty() && !QorSetLanguage(m_options.language)) {
        return Fail(L"there is no language data for '" + m_options.language + L"'", kExitBadOptions);
    }
    return true;
}

/** A store that cannot be opened does not keep the console from starting: its pages say so. */
bool CConsoleApp::PrepareStore()
{
    DWORD status = QorOpen();
    m_storeOpen = status == ERROR_SUCCESS;
    if (m_storeOpen && m_options.demo) {
        status = FillDemoStore();
    }
    if (status != ERROR_SUCCESS) {
        ConsoleWriteLine(STD_ERROR_HANDLE, L"QorConsole: the store: " + QorFormatMsg(status));
    }
    return true;
}

bool CConsoleApp::OpenFrame()
{
    QorSetAppIcon(LoadIcon(IDI_CONSOLE), FALSE);
    if (!m_frame.Create()) {
        return Fail(L"the main window could not be created", 1);
    }
    m_pMainWnd = &m_frame;
    if (!m_frame.ShowPage(FindPage(m_options.page).value_or(0))) {
        return Fail(L"the page could not be created", 1);
    }
    return true;
}

} // namespace
