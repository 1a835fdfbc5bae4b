#include <tests/support/Support.h>

#include <cstdlib>
#include <stdexcept>
#include <thread>

/** @file
 * The program runs itself with a variable that tells one test to crash, and looks at what is left of it.
 */

namespace
{
constexpr wchar_t kVariable[] = L"QOR_TEST_CRASH";

std::string Wanted()
{
    const char* value = getenv("QOR_TEST_CRASH");
    return value ? value : "";
}

volatile int* volatile g_nowhere = nullptr;

__attribute__((noinline)) void WriteToNull()
{
    *g_nowhere = 1;
}

LRESULT CALLBACK CrashInProcedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam)
{
    if (id == WM_USER) {
        WriteToNull();
    }
    return DefWindowProcW(window, id, wParam, lParam);
}

void CrashInWindow()
{
    const ts::HostWindow host;
    SetWindowLongPtrW(host.Hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CrashInProcedure));
    SendMessageW(host.Hwnd(), WM_USER, 0, 0);
}

void ThrowInThread()
{
    std::thread([] { throw std::runtime_error("nobody waits"); }).join();
}

/** Crashes when the surrounding test asked for it; otherwise the variable is not set, which is what it checks. */
TEST(CrashVictim, CrashesWhenAsked)
{
    const std::string wanted = Wanted();
    if (wanted == "null") {
        WriteToNull();
    }
    if (wanted == "window") {
        CrashInWindow();
    }
    if (wanted == "thread") {
        std::thread(WriteToNull).join();
    }
    if (wanted == "abort") {
        std::abort();
    }
    if (wanted == "throw") {
        ThrowInThread();
    }
    if (wanted == "hung") {
        ts::EndHungProgram("asked for");
    }
    while (wanted == "loop") {
        Sleep(10);
    }
    EXPECT_EQ("", wanted);
}

ts::ProcessResult RunVictim(const wchar_t* how, DWORD limit = 60000)
{
    const ts::EnvironmentVariable wanted(kVariable, how);
    const ts::EnvironmentVariable noFile(L"QOR_CRASH_FILE", nullptr);
    return ts::RunProcess(L"\"" + ts::ProgramPath() + L"\" --gtest_filter=CrashVictim.*", limit);
}

void ExpectReport(const wchar_t* how, DWORD status, const std::string& what)
{
    const ts::ProcessResult result = RunVictim(how);
    EXPECT_EQ(status, result.status) << result.output;
    EXPECT_NE(std::string::npos, result.output.find(what)) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("support_test.exe")) << result.output;
}

void ExpectTestNamed(const wchar_t* how)
{
    const ts::ProcessResult result = RunVictim(how);
    EXPECT_NE(std::string::npos, result.output.find("in test CrashVictim.CrashesWhenAsked")) << result.output;
}

TEST(CrashHandler, ReportsAnAccessViolation)
{
    ExpectReport(L"null", ts::kCrashStatus, "CRASH: exception c0000005");
    ExpectTestNamed(L"null");
}

TEST(CrashHandler, ReportsACrashInAWindowProcedure)
{
    ExpectReport(L"window", ts::kCrashStatus, "writing address 0000000000000000");
    ExpectTestNamed(L"window");
}

TEST(CrashHandler, ReportsACrashInAThread)
{
    ExpectReport(L"thread", ts::kCrashStatus, "CRASH: exception c0000005");
}

TEST(CrashHandler, ReportsAbort)
{
    ExpectReport(L"abort", ts::kCrashStatus, "abort() was called");
}

TEST(CrashHandler, ReportsAnExceptionThatNobodyCaught)
{
    ExpectReport(L"throw", ts::kTerminateStatus, "St13runtime_error");
}

TEST(CrashHandler, ReportsAProgramThatGaveUp)
{
    ExpectReport(L"hung", ts::kHungStatus, "HUNG: asked for");
}

TEST(CrashHandler, WritesTheTraceForTheScriptWhenThereIsAFile)
{
    const ts::TempFolder folder;
    const ts::EnvironmentVariable file(L"QOR_CRASH_FILE", folder.File(L"crash").c_str());
    const ts::EnvironmentVariable wanted(kVariable, L"null");
    ts::RunProcess(L"\"" + ts::ProgramPath() + L"\" --gtest_filter=CrashVictim.*");
    const std::string report = ts::ReadBytes(folder.File(L"crash"));
    EXPECT_NE(std::string::npos, report.find("frame 0x")) << report;
}

TEST(RunProcess, EndsAHungProcess)
{
    const ts::ProcessResult result = RunVictim(L"loop", 500);
    EXPECT_TRUE(result.started);
    EXPECT_TRUE(result.timedOut);
}

} // namespace
