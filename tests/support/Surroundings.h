#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

/** @file Folders, files, environment variables and other processes around a test. */

namespace ts
{

/** Whether the program runs under Wine. */
bool OnWine();

/** A fresh, empty folder that is removed with everything in it when the object ends. */
class TempFolder
{
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /** Full path without a backslash at its end. */
    const std::wstring& Path() const { return m_path; }

    /** Full path of a file or folder in it; makes nothing. */
    std::wstring File(std::wstring_view name) const { return m_path + L"\\" + std::wstring(name); }

    /** Makes a folder in it, with those above. @return Its full path. */
    std::wstring MakeFolder(std::wstring_view name) const;

  private:
    std::wstring m_path;
};

/** Sets an environment variable, for the system and the C run-time, until the object ends. */
class EnvironmentVariable
{
  public:
    /** @param value Null or empty to remove the variable. */
    EnvironmentVariable(const wchar_t* name, const wchar_t* value);
    ~EnvironmentVariable();
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  private:
    std::wstring m_name;
    std::wstring m_old;
};

/** All bytes of a file. A file that cannot be read fails the test. */
std::string ReadBytes(const std::wstring& path);

/** Writes a file anew. A file that cannot be written fails the test. */
void WriteBytes(const std::wstring& path, std::string_view bytes);

bool FileExists(const std::wstring& path);

std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

/** Full path of this test program, and its folder without a backslash at the end (the DLLs are there too). */
std::wstring ProgramPath();
std::wstring ProgramFolder();

struct ProcessResult
{
    bool started = false;
    bool timedOut = false; ///< The process was ended by force.
    DWORD status = 0;      ///< Exit status.
    std::string output;    ///< Standard output and standard error.
};

/**
 * Runs a program to its end.
 * @param commandLine Command line with the program, quoted where needed.
 * @param limit Milliseconds until the process is ended by force.
 */
ProcessResult RunProcess(std::wstring commandLine, DWORD limit = 60000);

} // namespace ts
