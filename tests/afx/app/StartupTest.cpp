#include <tests/afx/TestWindows.h>

namespace
{
/** Runs a program that stands beside this one. @return its exit code, or -1. */
int RunProgram(LPCTSTR name)
{
    TCHAR szPath[MAX_PATH];
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    CString strProgram(szPath);
    strProgram = strProgram.Left(strProgram.ReverseFind(_T('\\')) + 1) + name;
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(strProgram, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return -1;
    }
    DWORD dwCode = static_cast<DWORD>(-1);
    if (::WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0) {
        ::GetExitCodeProcess(process.hProcess, &dwCode);
    } else {
        ::TerminateProcess(process.hProcess, 1);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(dwCode);
}
} // namespace

TEST(Programs, PlainProgramWithoutAnApplicationObjectUsesDialogsAndLoops)
{
    EXPECT_EQ(17, RunProgram(_T("afx_app_plain_host.exe")));
}

TEST(Programs, ProgramWithAnApplicationObjectRunsAndEndsWithItsMainWindow)
{
    EXPECT_EQ(23, RunProgram(_T("afx_app_host.exe")));
}
