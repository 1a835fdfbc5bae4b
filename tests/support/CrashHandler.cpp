#include <tests/support/CrashHandler.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <cxxabi.h>

#include <algorithm>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <typeinfo>

namespace ts
{
namespace
{
constexpr int kMaxFrames = 64;
constexpr ULONG kStackReserve = 64 * 1024;

/** Writes to the error output and to the file that the script which runs tests reads. No heap: it may be the reason. */
class Report
{
  public:
    Report()
    {
        wchar_t path[MAX_PATH] = {};
        const bool inDeathTest = wcsstr(GetCommandLineW(), L"--gtest_internal_run_death_test") != nullptr;
        if (!inDeathTest && GetEnvironmentVariableW(L"QOR_CRASH_FILE", path, MAX_PATH) - 1 < MAX_PATH - 1) {
            m_file = CreateFileW(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
        }
    }

    ~Report()
    {
        if (m_file != INVALID_HANDLE_VALUE) {
            CloseHandle(m_file);
        }
    }

    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void __attribute__((format(__MINGW_PRINTF_FORMAT, 2, 3))) Line(const char* format, ...)
    {
        char text[1024];
        va_list arguments;
        va_start(arguments, format);
        const int length = vsnprintf(text, sizeof(text) - 1, format, arguments);
        va_end(arguments);
        if (length < 0) {
            return;
        }
        const DWORD size = (std::min)(static_cast<DWORD>(length), static_cast<DWORD>(sizeof(text) - 2));
        text[size] = '\n';
        DWORD written;
        // Who has the file prints it with functions and lines.
        const bool toFile = m_file != INVALID_HANDLE_VALUE;
        WriteFile(toFile ? m_file : GetStdHandle(STD_ERROR_HANDLE), text, size + 1, &written, nullptr);
    }

  private:
    HANDLE m_file = INVALID_HANDLE_VALUE;
};

void PrintTest(Report& report)
{
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    if (test) {
        report.Line("    in test %s.%s", test->test_suite_name(), test->name());
    }
}

void PrintFrame(Report& report, DWORD64 address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(address), &module);
    wchar_t path[MAX_PATH] = L"?";
    if (module) {
        GetModuleFileNameW(module, path, MAX_PATH);
    }
    char narrow[MAX_PATH * 3] = {};
    WideCharToMultiByte(CP_UTF8, 0, path, -1, narrow, static_cast<int>(sizeof(narrow)) - 1, nullptr, nullptr);
    report.Line("frame 0x%llx %s", static_cast<unsigned long long>(address - reinterpret_cast<DWORD64>(module)),
                narrow);
}

void PrintStack(Report& report, CONTEXT context)
{
    for (int i = 0; i < kMaxFrames && context.Rip != 0; ++i) {
        // A return address points behind the call; the line wanted is the call's.
        PrintFrame(report, context.Rip - (i > 0 ? 1 : 0));
        DWORD64 base = 0;
        const PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (!function) {
            if (IsBadReadPtr(reinterpret_cast<const void*>(context.Rsp), sizeof(DWORD64))) {
                return;
            }
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame, nullptr);
    }
}

[[noreturn]] void End(unsigned status)
{
    fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), status);
    std::abort();
}

[[noreturn]] void ReportHereAndEnd(const char* what, const char* detail, unsigned status)
{
    CONTEXT context = {};
    RtlCaptureContext(&context);
    {
        Report report;
        report.Line("%s %s", what, detail);
        PrintTest(report);
        PrintStack(report, context);
    }
    End(status);
}

LONG WINAPI OnException(EXCEPTION_POINTERS* info)
{
    {
        Report report;
        const EXCEPTION_RECORD& record = *info->ExceptionRecord;
        report.Line("CRASH: exception %08lx at %p", record.ExceptionCode, record.ExceptionAddress);
        if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.NumberParameters >= 2) {
            report.Line("    %s address %p", record.ExceptionInformation[0] ? "writing" : "reading",
                        reinterpret_cast<void*>(record.ExceptionInformation[1]));
        }
        PrintTest(report);
        PrintStack(report, *info->ContextRecord);
    }
    End(kCrashStatus);
}

void OnTerminate()
{
    const std::type_info* type = abi::__cxa_current_exception_type();
    ReportHereAndEnd("CRASH: nobody caught the exception", type ? type->name() : "(none)", kTerminateStatus);
}

void OnAbort(int)
{
    ReportHereAndEnd("CRASH: abort() was called", "", kCrashStatus);
}
} // namespace

void InstallCrashHandler()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ULONG reserve = kStackReserve;
    SetThreadStackGuarantee(&reserve);
    SetUnhandledExceptionFilter(OnException);
    std::set_terminate(OnTerminate);
    std::signal(SIGABRT, OnAbort);
}

void EndHungProgram(const char* why)
{
    ReportHereAndEnd("HUNG:", why, kHungStatus);
}

} // namespace ts
