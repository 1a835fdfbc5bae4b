#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ts
{
namespace
{
constexpr DWORD kPipePoll = 10;

/** Closes a handle at its end. */
class Handle
{
  public:
    Handle() = default;
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void Close()
    {
        if (m_handle && m_handle != INVALID_HANDLE_VALUE) {
            CloseHandle(m_handle);
        }
        m_handle = nullptr;
    }
    HANDLE Get() const { return m_handle; }
    HANDLE* Out() { return &m_handle; }
    bool IsValid() const { return m_handle && m_handle != INVALID_HANDLE_VALUE; }

  private:
    HANDLE m_handle = nullptr;
};

std::wstring VariableValue(const wchar_t* name)
{
    std::wstring value(32767, L'\0');
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

void DrainPipe(HANDLE pipe, std::string& output)
{
    char buffer[4096];
    DWORD available = 0;
    while (PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) && available > 0) {
        DWORD got = 0;
        if (!ReadFile(pipe, buffer, (std::min)(available, static_cast<DWORD>(sizeof(buffer))), &got, nullptr) ||
            got == 0) {
            return;
        }
        output.append(buffer, got);
    }
}

void WaitForProcess(HANDLE process, HANDLE pipe, DWORD limit, ProcessResult& result)
{
    const ULONGLONG end = GetTickCount64() + limit;
    while (WaitForSingleObject(process, kPipePoll) == WAIT_TIMEOUT) {
        DrainPipe(pipe, result.output);
        if (GetTickCount64() >= end) {
            result.timedOut = true;
            TerminateProcess(process, 1);
            WaitForSingleObject(process, limit);
            break;
        }
    }
    DrainPipe(pipe, result.output);
    GetExitCodeProcess(process, &result.status);
}
} // namespace

bool OnWine()
{
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine;
}

TempFolder::TempFolder()
{
    static int count = 0;
    wchar_t base[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, base);
    m_path = base + (L"qor-test-" + std::to_wstring(GetCurrentProcessId())) + L"-" + std::to_wstring(++count);
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
    std::filesystem::create_directories(m_path, error);
    if (error) {
        ADD_FAILURE() << "TempFolder: " << error.message();
    }
}

TempFolder::~TempFolder()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

std::wstring TempFolder::MakeFolder(std::wstring_view name) const
{
    std::error_code error;
    std::filesystem::create_directories(File(name), error);
    if (error) {
        ADD_FAILURE() << "TempFolder: " << error.message();
    }
    return File(name);
}

EnvironmentVariable::EnvironmentVariable(const wchar_t* name, const wchar_t* value)
    : m_name(name), m_old(VariableValue(name))
{
    _wputenv_s(name, value ? value : L"");
}

EnvironmentVariable::~EnvironmentVariable()
{
    _wputenv_s(m_name.c_str(), m_old.c_str());
}

std::string ReadBytes(const std::wstring& path)
{
    std::string bytes;
    FILE* file = _wfopen(path.c_str(), L"rb");
    if (!file) {
        ADD_FAILURE() << "cannot read " << ToUtf8(path);
        return bytes;
    }
    char buffer[4096];
    size_t got;
    while ((got = fread(buffer, 1, sizeof(buffer), file)) > 0) {
        bytes.append(buffer, got);
    }
    fclose(file);
    return bytes;
}

void WriteBytes(const std::wstring& path, std::string_view bytes)
{
    FILE* file = _wfopen(path.c_str(), L"wb");
    if (!file) {
        ADD_FAILURE() << "cannot write " << ToUtf8(path);
        return;
    }
    const bool all = fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (fclose(file) != 0 || !all) {
        ADD_FAILURE() << "cannot write all of " << ToUtf8(path);
    }
}

bool FileExists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string ToUtf8(std::wstring_view text)
{
    const int size = static_cast<int>(text.size());
    std::string result(static_cast<size_t>(size) * 3, '\0');
    result.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(),
                                                          static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

std::wstring FromUtf8(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    std::wstring result(text.size(), L'\0');
    result.resize(static_cast<size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()))));
    return result;
}

std::wstring ProgramPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

std::wstring ProgramFolder()
{
    const std::wstring path = ProgramPath();
    return path.substr(0, path.find_last_of(L'\\'));
}

ProcessResult RunProcess(std::wstring commandLine, DWORD limit)
{
    ProcessResult result;
    Handle read;
    Handle write;
    SECURITY_ATTRIBUTES inherit = {sizeof(inherit), nullptr, TRUE};
    if (!CreatePipe(read.Out(), write.Out(), &inherit, 0)) {
        return result;
    }
    SetHandleInformation(read.Get(), HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = write.Get();
    startup.hStdError = write.Get();
    PROCESS_INFORMATION info = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &info)) {
        return result;
    }
    const Handle process(info.hProcess);
    const Handle thread(info.hThread);
    write.Close();
    result.started = true;
    WaitForProcess(process.Get(), read.Get(), limit, result);
    return result;
}

} // namespace ts
