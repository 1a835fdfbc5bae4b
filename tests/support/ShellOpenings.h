#pragma once

#include <tests/support/Imports.h>

#include <string>
#include <vector>

namespace ts
{

/** Takes what the shell is asked to open, as long as it lives. */
class ShellOpenings
{
  public:
    struct Opening
    {
        HWND owner;
        std::wstring verb;
        std::wstring file;
        bool extras; ///< parameters or a folder
        INT show;
    };

    static constexpr INT_PTR kLeastSuccess = 33;

    /** @param answer what the shell answers. */
    explicit ShellOpenings(INT_PTR answer = kLeastSuccess)
    {
        s_openings.clear();
        s_answer = answer;
    }

    void Answer(INT_PTR answer) { s_answer = answer; }
    const std::vector<Opening>& Taken() const { return s_openings; }
    std::vector<std::wstring> Files() const
    {
        std::vector<std::wstring> files;
        for (const Opening& opening : s_openings) {
            files.push_back(opening.file);
        }
        return files;
    }

  private:
    static HINSTANCE WINAPI Take(HWND owner, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters, LPCWSTR folder, INT show)
    {
        s_openings.push_back({owner, verb, file, parameters || folder, show});
        return reinterpret_cast<HINSTANCE>(s_answer);
    }

    static inline std::vector<Opening> s_openings;
    static inline INT_PTR s_answer = kLeastSuccess;
    const ReplacedFunction m_shell{L"shell32.dll", "ShellExecuteW", &Take};
};

} // namespace ts
